#include "login/SidText.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#ifdef _WIN32
#include <windows.h>
#endif

namespace vx {
namespace {

constexpr std::size_t kHeaderSize = 8;  // revision, count, six authority bytes
constexpr unsigned char kRevision = 1;
constexpr unsigned long kFixedNeeded = 28;
constexpr unsigned long kNeededPerSubAuthority = 12;

void SetInsufficientBuffer() {
#ifdef _WIN32
    ::SetLastError(ERROR_INSUFFICIENT_BUFFER);
#else
    errno = ERANGE;
#endif
}

}  // namespace

bool BuildSid(void* buffer, std::size_t capacity, std::uint64_t authority,
              std::initializer_list<std::uint32_t> subAuthorities) {
    const std::size_t count = subAuthorities.size();
    if (count > kMaxSubAuthorities || capacity < kHeaderSize + 4 * count) return false;
    auto* bytes = static_cast<unsigned char*>(buffer);
    bytes[0] = kRevision;
    bytes[1] = static_cast<unsigned char>(count);
    for (int i = 0; i < 6; ++i)
        bytes[2 + i] = static_cast<unsigned char>(authority >> (8 * (5 - i)));
    std::size_t at = kHeaderSize;
    for (std::uint32_t sub : subAuthorities) {
        std::memcpy(bytes + at, &sub, sizeof sub);
        at += sizeof sub;
    }
    return true;
}

int FormatTextSid(const void* sid, char* buffer, unsigned long* size) {
    if (sid == nullptr || buffer == nullptr || size == nullptr) return 0;
    const auto* bytes = static_cast<const unsigned char*>(sid);
    const unsigned count = bytes[1];
    if (bytes[0] != kRevision || count > kMaxSubAuthorities) return 0;

    const unsigned long needed = kFixedNeeded + kNeededPerSubAuthority * count;
    if (*size < needed) {
        *size = needed;
        SetInsufficientBuffer();
        return 0;
    }
    // The needed size leaves room for the longest text, so nothing below is cut.
    const unsigned char* authority = bytes + 2;
    int length = std::snprintf(buffer, needed, "S-%lu-", 1UL);  // a fixed 1, whatever the field
    if (authority[0] != 0 || authority[1] != 0) {
        length += std::snprintf(
            buffer + length, needed - static_cast<unsigned long>(length),
            "0x%02hx%02hx%02hx%02hx%02hx%02hx", static_cast<unsigned short>(authority[0]),
            static_cast<unsigned short>(authority[1]), static_cast<unsigned short>(authority[2]),
            static_cast<unsigned short>(authority[3]), static_cast<unsigned short>(authority[4]),
            static_cast<unsigned short>(authority[5]));
    } else {
        const unsigned long value = (static_cast<unsigned long>(authority[2]) << 24) |
                                    (static_cast<unsigned long>(authority[3]) << 16) |
                                    (static_cast<unsigned long>(authority[4]) << 8) |
                                    static_cast<unsigned long>(authority[5]);
        length += std::snprintf(buffer + length, needed - static_cast<unsigned long>(length), "%lu",
                                value);
    }
    for (unsigned i = 0; i < count; ++i) {
        std::uint32_t sub;
        std::memcpy(&sub, bytes + kHeaderSize + 4 * i, sizeof sub);
        length += std::snprintf(buffer + length, needed - static_cast<unsigned long>(length),
                                "-%lu", static_cast<unsigned long>(sub));
    }
    *size = static_cast<unsigned long>(length);
    return 1;
}

}  // namespace vx
