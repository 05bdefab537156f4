#include <cstdlib>
#include <fstream>
#include <iterator>

#include "runtime/module/LocaleResources.h"
#include "runtime/module/MoCatalogue.h"
#include "runtime/module/ResourceName.h"

namespace vx {
namespace {

// Catalogues are small; anything larger is not one of ours.
constexpr std::streamoff kMaxCatalogueSize = 16 * 1024 * 1024;

class CatalogueResources : public LocaleResources {
public:
    CatalogueResources(std::string path, std::string language, MoCatalogue catalogue)
        : LocaleResources(std::move(path), std::move(language)),
          m_catalogue(std::move(catalogue)) {}

    bool Lookup(unsigned id, std::string& text) const override {
        const std::string* found = m_catalogue.Find(id);
        if (found != nullptr) text = *found;
        return found != nullptr;
    }
    void* Handle() const override { return const_cast<MoCatalogue*>(&m_catalogue); }
    void Version(int& major, int& minor) const override {
        if (!m_catalogue.Version(major, minor)) major = minor = 0;
    }

private:
    MoCatalogue m_catalogue;
};

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

// $VX_LOCALEDIR when set; else the locale folder of the prefix the library is installed in, then
// a "locale" folder beside the library, where the build tree keeps its catalogues. Nothing
// depends on where the library was meant to be installed when it was built.
std::vector<std::string> LocaleFolders(const std::string& modulePath) {
    const std::string chosen = Environment("VX_LOCALEDIR");
    if (!chosen.empty()) return {chosen};
    const std::string folder(ModuleFolder(modulePath));
    return {folder + VXUTIL_LOCALEDIR_FROM_LIBDIR, folder + "locale"};
}

bool ReadCatalogue(const std::string& path, MoCatalogue& catalogue) {
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    if (!in) return false;
    const std::streamoff size = in.tellg();
    if (size <= 0 || size > kMaxCatalogueSize) return false;
    in.seekg(0);
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    return catalogue.Parse(bytes);
}

bool IsDefaultLocale(const std::string& locale) {
    return locale.empty() || locale == "C" || locale == "POSIX" || locale.rfind("C.", 0) == 0;
}

void AddOnce(std::vector<std::string>& languages, std::string language) {
    for (const std::string& known : languages)
        if (known == language) return;
    languages.push_back(std::move(language));
}

}  // namespace

std::vector<std::string> PreferredLanguages() {
    std::string locale;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = Environment(name);
        if (!locale.empty()) break;
    }
    // As with gettext, LANGUAGE counts only when a locale other than "C" is chosen.
    if (IsDefaultLocale(locale)) return {};
    std::string list = Environment("LANGUAGE");
    if (list.empty()) list = locale;
    std::vector<std::string> languages;
    std::size_t start = 0;
    while (start <= list.size()) {
        std::size_t end = list.find(':', start);
        if (end == std::string::npos) end = list.size();
        std::string entry = list.substr(start, end - start);
        start = end + 1;
        entry = entry.substr(0, entry.find_first_of(".@"));  // "de_DE.UTF-8@euro" -> "de_DE"
        if (IsDefaultLocale(entry)) continue;
        AddOnce(languages, entry);
        AddOnce(languages, entry.substr(0, entry.find('_')));
    }
    return languages;
}

std::unique_ptr<LocaleResources> OSAttachLocaleResDLL(const std::string& modulePath,
                                                      const std::string& resourceName,
                                                      const std::vector<std::string>& languages) {
    const std::vector<std::string> folders = LocaleFolders(modulePath);
    for (const std::string& language : languages) {
        for (const std::string& folder : folders) {
            const std::string path =
                folder + "/" + language + "/LC_MESSAGES/" + resourceName + ".mo";
            MoCatalogue catalogue;
            if (ReadCatalogue(path, catalogue))
                return std::make_unique<CatalogueResources>(path, language, std::move(catalogue));
        }
    }
    return nullptr;
}

}  // namespace vx
