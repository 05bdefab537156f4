// Bytes as hexadecimal text, two digits per byte, high nibble first.
#pragma once

#include <cstddef>
#include <string>

namespace vx::hex {

// Appends the lower-case digits of `length` bytes to `out`.
void Append(std::string& out, const unsigned char* bytes, std::size_t length);

// The number of hexadecimal digits (either case) at the start of `text`, which is
// zero-terminated.
std::size_t DigitRun(const char* text);

// Reads `length` bytes from the first 2 * length digits of `text`, which must all be
// hexadecimal digits (see DigitRun).
void Decode(const char* text, unsigned char* bytes, std::size_t length);

}  // namespace vx::hex
