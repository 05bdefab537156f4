// The localized resource library of the module: on Windows a resource DLL in a per-language
// folder beside the module, loaded as data; on POSIX a gettext message catalogue in the
// per-language folder of the locale folder of the prefix the module is installed in
// ($VX_LOCALEDIR instead, when set), whose domain is the resource library's name.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vx {

class LocaleResources {
public:
    LocaleResources(std::string path, std::string language) noexcept
        : m_path(std::move(path)), m_language(std::move(language)) {}
    LocaleResources(const LocaleResources&) = delete;
    LocaleResources& operator=(const LocaleResources&) = delete;
    virtual ~LocaleResources() = default;

    // Sets `text` to the localized text of string `id`; false when the library has none.
    virtual bool Lookup(unsigned id, std::string& text) const = 0;
    // The handle the resource handle query gives: the HMODULE of the DLL, or the catalogue.
    virtual void* Handle() const = 0;
    // The library's version (its version resource, or the catalogue's "Project-Id-Version").
    virtual void Version(int& major, int& minor) const = 0;

    const std::string& Path() const { return m_path; }
    // The language folder it was found in.
    const std::string& Language() const { return m_language; }

private:
    std::string m_path;
    std::string m_language;
};

// The user's languages, most preferred first, each as "ll_CC" or "ll" (Windows: "ll-CC", "ll").
// On POSIX they come from LANGUAGE, LC_ALL, LC_MESSAGES and LANG as gettext reads them; empty
// for the "C" locale, whose texts are the built-in English ones.
std::vector<std::string> PreferredLanguages();

// Looks for the resource library `resourceName` of the module at `modulePath` in the folder of
// each language in turn and attaches the first one found; null when none is installed.
std::unique_ptr<LocaleResources> OSAttachLocaleResDLL(const std::string& modulePath,
                                                      const std::string& resourceName,
                                                      const std::vector<std::string>& languages);

}  // namespace vx
