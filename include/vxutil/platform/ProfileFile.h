// Profile ("INI") files with the observable behaviour of the Windows private profile functions:
// on Windows these call GetPrivateProfileStringA, GetPrivateProfileIntA and
// WritePrivateProfileStringA; on POSIX our own engine behaves the same, so a file written by a
// client on one system reads the same on the other.
//
// `file` is resolved with ResolveSettingsFile: a bare name is looked for in the settings home.
#pragma once

#include <string>

#include "vxutil/export.h"

namespace vx {

// As GetPrivateProfileStringA. With a null `section` the buffer receives every section name,
// with a null `key` every key of the section (`def` when it has none), each terminated by a
// zero byte and the whole by a second one; a list that does not fit is cut to size - 2 bytes
// and closed by two zeros. Otherwise the value (quotes removed) or, when absent, `def` without
// its trailing blanks (null reads as ""), at most size - 1 bytes of it. The result is the
// number of bytes stored before the final zero.
VXUTIL_API unsigned long ProfileGetString(const char* section, const char* key, const char* def,
                                          char* buffer, unsigned long size, const char* file);

// The same into a string, without a size limit; a list comes as names each followed by a zero.
VXUTIL_API std::string ProfileGetString(const char* section, const char* key, const char* def,
                                        const char* file);

// As GetPrivateProfileIntA: the value's leading integer, decimal or with a "0x", "0o" or "0b"
// prefix ("42A" gives 42, "B" gives 0, "-1" gives 4294967295, "0x10" gives 16); `def` when the
// key is absent or empty.
VXUTIL_API unsigned int ProfileGetInt(const char* section, const char* key, int def,
                                      const char* file);

// As WritePrivateProfileStringA: a null `value` deletes the key, a null `key` deletes the
// section, "" writes "key=". A new section is appended at the end of the file. True when done.
VXUTIL_API bool ProfileWriteString(const char* section, const char* key, const char* value,
                                   const char* file);

}  // namespace vx
