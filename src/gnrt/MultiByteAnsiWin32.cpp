// The ANSI code page's characters: one byte, or a lead byte and a trail byte.
#include <windows.h>

#include <cstring>

#include "gnrt/MultiByteCharset.h"

namespace vx::mb {

std::size_t CharsetLength(const unsigned char* text, std::size_t available) {
    // A lead byte followed by the terminator (or by nothing) is a stray byte, not a character.
    if (available >= 2 && text[1] != 0 && IsDBCSLeadByteEx(CP_ACP, text[0])) {
        return 2;
    }
    return 1;
}

int CharsetCollate(const char* a, const char* b) {
    const int result = CompareStringA(LOCALE_USER_DEFAULT, 0, a, -1, b, -1);
    if (result != 0) {
        return result - CSTR_EQUAL;
    }
    return std::strcmp(a, b);  // the locale could not compare them: fall back to byte order
}

}  // namespace vx::mb
