// UTF-8: a character is a code point.
#include <cstring>

#include "gnrt/MultiByteCharset.h"

namespace vx::mb {
namespace {

bool IsTrail(unsigned char b) {
    return (b & 0xC0) == 0x80;
}

}  // namespace

// Length of the well-formed UTF-8 sequence at `text` (RFC 3629: no overlong forms, no
// surrogates, nothing above U+10FFFF), or 1 when the bytes form none.
std::size_t CharsetLength(const unsigned char* text, std::size_t available) {
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

int CharsetCollate(const char* a, const char* b) {
    return std::strcoll(a, b);
}

}  // namespace vx::mb
