// On POSIX an application profile is the file "<profile name>.ini" in the settings home.
#include <cstdio>

#include "platform/application/ApplicationProfile.h"
#include "vxutil/platform/ProfileFile.h"
#include "vxutil/platform/SettingsHome.h"

namespace vx::app_profile {
namespace {
std::string FilePath(const std::string& profileName) {
    return ResolveSettingsFile(profileName + ".ini");
}
}  // namespace

std::string Location(const std::string& profileName) {
    return FilePath(profileName);
}

unsigned int GetInt(const std::string& profileName, const char* section, const char* entry,
                    int def) {
    return ProfileGetInt(section, entry, def, FilePath(profileName).c_str());
}

std::string GetString(const std::string& profileName, const char* section, const char* entry,
                      const char* def) {
    return ProfileGetString(section, entry, def, FilePath(profileName).c_str());
}

bool WriteInt(const std::string& profileName, const char* section, const char* entry, int value) {
    char text[16];
    std::snprintf(text, sizeof text, "%d", value);
    return WriteString(profileName, section, entry, text);
}

bool WriteString(const std::string& profileName, const char* section, const char* entry,
                 const char* value) {
    return ProfileWriteString(section, entry, value, FilePath(profileName).c_str());
}

}  // namespace vx::app_profile
