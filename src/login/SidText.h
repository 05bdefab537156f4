// The binary layout and standard text of security identifiers, shared by every platform.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace vx {

// Windows' own limit, which IsValidSid checks.
inline constexpr unsigned kMaxSubAuthorities = 15;

// Builds an identifier in the Windows layout (revision 1, count, 6-byte big-endian authority,
// 32-bit sub-authorities in host order) into `buffer`; false when it does not fit or has too
// many sub-authorities.
bool BuildSid(void* buffer, std::size_t capacity, std::uint64_t authority,
              std::initializer_list<std::uint32_t> subAuthorities);

// ClientGetTextSid for the identifier at `sid`: the checks, the size rule and the text.
int FormatTextSid(const void* sid, char* buffer, unsigned long* size);

}  // namespace vx
