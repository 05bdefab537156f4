// Decimal numbers in text as the 32-bit client reads and writes them ("%ld", "%lu", strtol,
// strtoul with a 32-bit long), on every platform: a number beyond 32 bits saturates instead of
// wrapping, so that one text gives one value wherever it is read.
#pragma once

#include <cstdint>

#include "vxutil/gnrt/CGNString.h"

namespace vx::number32 {

// A sign and decimal digits, exactly where `text` starts (no blanks skipped).
struct Scanned {
    bool negative = false;
    std::uint64_t magnitude = 0;  // capped far above every 32-bit limit
    const char* end = nullptr;    // after the last digit; `text` itself when there is none
};
Scanned Scan(const char* text);

// The magnitude with its sign, saturated like strtol: [INT32_MIN, INT32_MAX].
std::int32_t Signed(const Scanned& number);
// Saturated like strtoul: a magnitude beyond 32 bits is 4294967295, a negative one within
// them is taken modulo 2^32 ("-1" is 4294967295).
std::uint32_t Unsigned(const Scanned& number);

// strtol and strtoul, base 10: blanks, a sign and digits. `end`, when given, is where the
// number stopped, or `text` when no digits were found (the value is then 0).
std::int32_t ToLong(const char* text, const char** end = nullptr);
std::uint32_t ToUnsignedLong(const char* text, const char** end = nullptr);

// Appends the decimal text of `value`.
void AppendSigned(CGNString& out, std::int32_t value);
void AppendUnsigned(CGNString& out, std::uint32_t value);

}  // namespace vx::number32
