#include "vxutil/gnrt/MultiByte.h"

#include <cstring>

#ifdef _WIN32
#include <windows.h>
#endif

namespace vx::mb {
namespace {

// Length a zero-terminated text may be assumed to have: no character is longer than this, and
// the decoders stop at the terminator because it is never a valid trail byte.
constexpr std::size_t kUnbounded = 4;

#ifdef _WIN32

std::size_t DecodeLength(const unsigned char* text, std::size_t available) {
    // A lead byte followed by the terminator (or by nothing) is a stray byte, not a character.
    if (available >= 2 && text[1] != 0 && IsDBCSLeadByteEx(CP_ACP, text[0])) {
        return 2;
    }
    return 1;
}

#else

bool IsTrail(unsigned char b) {
    return (b & 0xC0) == 0x80;
}

// Length of the well-formed UTF-8 sequence at `text` (RFC 3629: no overlong forms, no
// surrogates, nothing above U+10FFFF), or 1 when the bytes form none.
std::size_t DecodeLength(const unsigned char* text, std::size_t available) {
    const unsigned char lead = text[0];
    if (lead < 0x80) {
        return 1;
    }
    std::size_t length = 0;
    unsigned char secondMin = 0x80;
    unsigned char secondMax = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0) {
            secondMin = 0xA0;  // below: overlong
        } else if (lead == 0xED) {
            secondMax = 0x9F;  // above: surrogates
        }
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0) {
            secondMin = 0x90;  // below: overlong
        } else if (lead == 0xF4) {
            secondMax = 0x8F;  // above: beyond U+10FFFF
        }
    } else {
        return 1;
    }
    if (available < length || text[1] < secondMin || text[1] > secondMax) {
        return 1;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if (!IsTrail(text[i])) {
            return 1;
        }
    }
    return length;
}

#endif

const unsigned char* Bytes(const char* text) {
    return reinterpret_cast<const unsigned char*>(text);
}

}  // namespace

std::size_t CharLength(const char* text, std::size_t available) {
    if (text == nullptr || available == 0) {
        return 0;
    }
    return DecodeLength(Bytes(text), available);
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

int Collate(const char* a, const char* b) {
    if (a == nullptr) {
        a = "";
    }
    if (b == nullptr) {
        b = "";
    }
#ifdef _WIN32
    const int result = CompareStringA(LOCALE_USER_DEFAULT, 0, a, -1, b, -1);
    if (result != 0) {
        return result - CSTR_EQUAL;
    }
    return std::strcmp(a, b);  // the locale could not compare them: fall back to byte order
#else
    return std::strcoll(a, b);
#endif
}

}  // namespace vx::mb
