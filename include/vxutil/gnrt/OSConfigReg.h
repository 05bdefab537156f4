// The system configuration store: the user's registry on Windows (HKEY_CURRENT_USER), a
// registry file in the settings home on POSIX. Values are addressed by a root ("SOFTWARE"), a
// key path below it with components separated by backslashes ("Korvel\VXUser\Users") and a
// value name; names are compared without regard to case, and a new name is stored as first
// written. An empty value name addresses the key's default value. Key and value names holding
// control characters (line breaks among them) are refused on every platform, since the registry
// file cannot carry them.
//
// Only string and 32-bit number values are read; a value of another kind (binary, expandable
// text ...) reads as unreadable, and is replaced by a write.
//
// Results: greater than 0 when done; 0 when the value is absent, unreadable or not written.
#pragma once

#include <string>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

// String read. A number value reads as its decimal text. When absent, `out` receives `def`.
VXUTIL_API int OSGetSystemConfigReg(CGNString& out, const CGNString& def, const CGNString& keyPath,
                                    const CGNString& valueName, const CGNString& root);
// Number read of a 32-bit value, sign-extended (dword ffffffff reads as -1). A string value
// holding a decimal integer reads as that number. When absent or not a number, `out`
// receives `def`.
VXUTIL_API int OSGetSystemConfigReg(long& out, long def, const CGNString& keyPath,
                                    const CGNString& valueName, const CGNString& root);
// Stores a string value, creating the key when needed.
VXUTIL_API int OSSetSystemConfigReg(const CGNString& value, const CGNString& keyPath,
                                    const CGNString& valueName, const CGNString& root);
// Stores a 32-bit number value (REG_DWORD), creating the key when needed.
VXUTIL_API int OSSetSystemConfigReg(int& value, const CGNString& keyPath,
                                    const CGNString& valueName, const CGNString& root);
// Removes one value. Greater than 0 when it existed and was removed.
VXUTIL_API int OSDelSystemConfigReg(const CGNString& keyPath, const CGNString& valueName,
                                    const CGNString& root);

namespace vx {
// Where the store keeps its values, for display: the registry file on POSIX,
// "HKEY_CURRENT_USER" on Windows.
VXUTIL_API std::string SystemConfigLocation();
}  // namespace vx
