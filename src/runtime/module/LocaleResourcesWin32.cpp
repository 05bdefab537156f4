#include <windows.h>

#include <cstring>

#include "runtime/module/LocaleResources.h"
#include "runtime/module/ResourceName.h"

namespace vx {
namespace {

// Longer than any text of the string table.
constexpr int kMaxStringLength = 4096;
constexpr DWORD kFixedInfoSignature = 0xFEEF04BD;

class DllResources : public LocaleResources {
public:
    DllResources(std::string path, std::string language, HMODULE module)
        : LocaleResources(std::move(path), std::move(language)), m_module(module) {}
    ~DllResources() override { ::FreeLibrary(m_module); }

    bool Lookup(unsigned id, std::string& text) const override {
        char buffer[kMaxStringLength];
        const int length = ::LoadStringA(m_module, id, buffer, kMaxStringLength);
        if (length <= 0) return false;
        text.assign(buffer, static_cast<std::size_t>(length));
        return true;
    }
    void* Handle() const override { return m_module; }

    // The file version of the DLL's version resource, read straight from the resource: the
    // DLL is loaded as data, so the version functions that want a file are not needed.
    void Version(int& major, int& minor) const override {
        major = minor = 0;
        HRSRC found = ::FindResourceA(m_module, MAKEINTRESOURCEA(1), MAKEINTRESOURCEA(16));
        HGLOBAL loaded = found != nullptr ? ::LoadResource(m_module, found) : nullptr;
        const auto* bytes =
            static_cast<const unsigned char*>(loaded ? ::LockResource(loaded) : nullptr);
        if (bytes == nullptr) return;
        const DWORD size = ::SizeofResource(m_module, found);
        for (DWORD at = 0; at + sizeof(VS_FIXEDFILEINFO) <= size; at += 4) {
            VS_FIXEDFILEINFO info;
            std::memcpy(&info, bytes + at, sizeof info);
            if (info.dwSignature != kFixedInfoSignature) continue;
            major = HIWORD(info.dwFileVersionMS);
            minor = LOWORD(info.dwFileVersionMS);
            return;
        }
    }

private:
    HMODULE m_module;
};

std::string LocaleName(LCID locale, LCTYPE type) {
    char text[16] = "";
    ::GetLocaleInfoA(locale, type, text, sizeof text);
    return text;
}

}  // namespace

std::vector<std::string> PreferredLanguages() {
    const LCID locale = MAKELCID(::GetUserDefaultUILanguage(), SORT_DEFAULT);
    const std::string language = LocaleName(locale, LOCALE_SISO639LANGNAME);
    const std::string country = LocaleName(locale, LOCALE_SISO3166CTRYNAME);
    if (language.empty()) return {};
    if (country.empty()) return {language};
    return {language + "-" + country, language};
}

std::unique_ptr<LocaleResources> OSAttachLocaleResDLL(const std::string& modulePath,
                                                      const std::string& resourceName,
                                                      const std::vector<std::string>& languages) {
    const std::string folder(ModuleFolder(modulePath));
    for (const std::string& language : languages) {
        const std::string path = folder + language + "\\" + resourceName;
        HMODULE module = ::LoadLibraryExA(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        if (module != nullptr) return std::make_unique<DllResources>(path, language, module);
    }
    return nullptr;
}

}  // namespace vx
