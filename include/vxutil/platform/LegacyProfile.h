// The operating system's own per-user profile (win.ini), where older clients kept their users:
// on Windows GetProfileStringA, GetProfileIntA and WriteProfileStringA; on POSIX the file
// "win.ini" in the settings home, through the profile engine.
#pragma once

#include <string>

#include "vxutil/export.h"

namespace vx {

VXUTIL_API unsigned long LegacyProfileGetString(const char* section, const char* key,
                                                const char* def, char* buffer, unsigned long size);
VXUTIL_API unsigned int LegacyProfileGetInt(const char* section, const char* key, int def);
VXUTIL_API bool LegacyProfileWriteString(const char* section, const char* key, const char* value);

// Where the legacy profile lives, for display ("win.ini" on Windows).
VXUTIL_API std::string LegacyProfilePath();

}  // namespace vx
