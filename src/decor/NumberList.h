// Reading "%d,%d,..." texts of the stored look the way the C library's scanf reads them, but
// without scanf's undefined behaviour on numbers too large for their field.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vx::decor {

// Reads up to `numbers.size()` comma-separated numbers from the start of `text`: blanks before
// each number are skipped, a sign is allowed, the comma must follow a number directly, and text
// after the last number read is ignored. A number beyond 32 bits ends the reading. Returns how
// many numbers were read.
std::size_t ScanNumbers(std::string_view text, std::span<std::int32_t> numbers);

}  // namespace vx::decor
