// The helpers common to every character set, over the platform's own (MultiByteCharset.h).
#include "gnrt/MultiByte.h"

#include <cstring>

#include "gnrt/MultiByteCharset.h"

namespace vx::mb {
namespace {

// Length a zero-terminated text may be assumed to have: no character is longer than this, and
// the decoders stop at the terminator because it is never a valid trail byte.
constexpr std::size_t kUnbounded = 4;

}  // namespace

std::size_t CharLength(const char* text, std::size_t available) {
    if (text == nullptr || available == 0) {
        return 0;
    }
    return CharsetLength(reinterpret_cast<const unsigned char*>(text), available);
}

int Collate(const char* a, const char* b) {
    return CharsetCollate(a != nullptr ? a : "", b != nullptr ? b : "");
}

std::size_t CharCount(const char* text, std::size_t length) {
    std::size_t count = 0;
    for (std::size_t pos = 0; pos < length; pos += CharLength(text + pos, length - pos)) {
        ++count;
    }
    return count;
}

const char* FindChar(const char* text, char c) {
    if (text == nullptr || c == '\0') {
        return nullptr;
    }
    for (const char* p = text; *p != '\0'; p += CharLength(p, kUnbounded)) {
        if (*p == c) {
            return p;
        }
    }
    return nullptr;
}

std::size_t BoundedCopy(char* target, std::size_t targetSize, const char* source) {
    if (target == nullptr || targetSize == 0) {
        return 0;
    }
    std::size_t copied = 0;
    if (source != nullptr) {
        while (source[copied] != '\0') {
            const std::size_t next = CharLength(source + copied, kUnbounded);
            if (copied + next > targetSize - 1) {
                break;
            }
            copied += next;
        }
        std::memcpy(target, source, copied);
    }
    target[copied] = '\0';
    return copied;
}

std::size_t CutLength(const char* text, std::size_t length, std::size_t maxBytes) {
    if (text == nullptr) {
        return 0;
    }
    if (length <= maxBytes) {
        return length;
    }
    std::size_t cut = 0;
    while (cut < length) {
        const std::size_t next = CharLength(text + cut, length - cut);
        if (cut + next > maxBytes) {
            break;
        }
        cut += next;
    }
    return cut;
}

}  // namespace vx::mb
