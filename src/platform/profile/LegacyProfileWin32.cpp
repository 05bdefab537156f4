// The legacy profile on Windows: the system's own profile functions (win.ini, or wherever the
// system maps its sections).
#include "vxutil/platform/LegacyProfile.h"

#include <windows.h>

namespace vx {

std::string LegacyProfilePath() {
    return "win.ini";
}

unsigned long LegacyProfileGetString(const char* section, const char* key, const char* def,
                                     char* buffer, unsigned long size) {
    if (!buffer || size == 0) return 0;
    return ::GetProfileStringA(section, key, def, buffer, size);
}

unsigned int LegacyProfileGetInt(const char* section, const char* key, int def) {
    return ::GetProfileIntA(section, key, def);
}

bool LegacyProfileWriteString(const char* section, const char* key, const char* value) {
    return ::WriteProfileStringA(section, key, value) != FALSE;
}

}  // namespace vx
