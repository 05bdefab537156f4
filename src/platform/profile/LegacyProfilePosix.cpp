// The legacy profile of POSIX systems: "win.ini" in the settings home, through the profile
// file engine.
#include "vxutil/platform/LegacyProfile.h"

#include "vxutil/platform/ProfileFile.h"
#include "vxutil/platform/SettingsHome.h"

namespace vx {

std::string LegacyProfilePath() {
    return ResolveSettingsFile("win.ini");
}

unsigned long LegacyProfileGetString(const char* section, const char* key, const char* def,
                                     char* buffer, unsigned long size) {
    return ProfileGetString(section, key, def, buffer, size, LegacyProfilePath().c_str());
}

unsigned int LegacyProfileGetInt(const char* section, const char* key, int def) {
    return ProfileGetInt(section, key, def, LegacyProfilePath().c_str());
}

bool LegacyProfileWriteString(const char* section, const char* key, const char* value) {
    return ProfileWriteString(section, key, value, LegacyProfilePath().c_str());
}

}  // namespace vx
