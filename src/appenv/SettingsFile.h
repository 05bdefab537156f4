// The per-folder settings file "vx.ini" and the remembered-login values in its section "User".
#pragma once

#include <cstddef>

#include "vxutil/gnrt/CGNString.h"

namespace vx::appenv {

// MakeFilePath(folder, "vx.ini"), except that an empty folder gives a separator before the name
// ("/vx.ini"), as clients have always formed this path; callers that may hold an empty folder
// must check it first.
CGNString SettingsFilePath(const CGNString& folder);

// Reads "User"/`key` of `file` into `out` (kNameBufferSize bytes): "" when absent, a longer
// value cut to 30 bytes at a character boundary. Returns the number of bytes stored.
std::size_t ReadUserValue(const CGNString& file, const char* key, char* out);
bool WriteUserValue(const CGNString& file, const char* key, const char* value);

}  // namespace vx::appenv
