// The application object: the running client tool's name and its profile, set up once by the
// host tool. Without one (or with an empty profile name) there is no application profile, and
// the trace writes nothing.
//
// Storage of the profile: on Windows the registry key
// HKEY_CURRENT_USER\Software\Korvel\<profile name>, one subkey per section; on POSIX the file
// "<profile name>.ini" in the settings home.
#pragma once

#include <memory>
#include <string>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API RApplication {
public:
    RApplication(std::string appName, std::string profileName);
    RApplication(const RApplication&) = delete;
    RApplication& operator=(const RApplication&) = delete;
    ~RApplication();

    // The current application object, or null when the host has set none.
    static RApplication* Current();
    // Makes `app` the current application object (null removes it); returns the previous one.
    // The caller keeps ownership.
    static RApplication* SetCurrent(RApplication* app);

    const std::string& GetAppName() const { return m_strAppName; }
    const std::string& GetProfileName() const { return m_strProfileName; }
    // Where the profile is kept, for display: the file path or the registry key.
    std::string GetProfileLocation() const;

    // A missing entry, or one that is not a number, gives `def`.
    unsigned int GetProfileInt(const char* section, const char* entry, int def) const;
    bool WriteProfileInt(const char* section, const char* entry, int value);
    // A missing entry gives `def` (null reads as "").
    CGNString GetProfileString(const char* section, const char* entry,
                               const char* def = nullptr) const;
    // A null `value` deletes the entry; a null `entry` deletes the whole section.
    bool WriteProfileString(const char* section, const char* entry, const char* value);

private:
    std::string m_strAppName;
    std::string m_strProfileName;
};
