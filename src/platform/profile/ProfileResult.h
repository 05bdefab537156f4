// How the profile engine hands results to its callers, byte for byte as the Windows profile
// functions do, so that callers written for those functions see no difference.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vx {

// Names as the enumeration forms return them: each followed by a zero byte.
std::string JoinProfileNames(const std::vector<std::string>& names);

// Copies a value into `buffer`: at most size - 1 bytes, cut if longer, then a zero. Returns the
// number of bytes before the zero; 0 and nothing written when there is no room at all.
unsigned long CopyProfileValue(std::string_view value, char* buffer, unsigned long size);

// Copies joined names (JoinProfileNames) and the closing second zero. When they do not fit
// the list is cut to size - 2 bytes and closed by two zeros, the last name possibly cut.
// Returns the number of bytes before the closing zero.
unsigned long CopyProfileList(std::string_view names, char* buffer, unsigned long size);

// The default of a lookup: "" for null, trailing spaces removed.
std::string_view ProfileDefault(const char* def);

// The number at the start of `text` as GetPrivateProfileIntA reads it: leading blanks, an
// optional sign, an optional lower-case base prefix ("0x" hexadecimal, "0o" octal, "0b" binary) and
// digits, computed modulo 2^32 ("42A" gives 42, "B" gives 0, "-1" gives 4294967295,
// "4294967297" gives 1, "0x10" gives 16).
unsigned int ParseProfileInt(std::string_view text);

}  // namespace vx
