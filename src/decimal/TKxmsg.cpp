#include "vxutil/decimal/TKxmsg.h"

#include <cstdarg>
#include <cstdio>

// The formats are the catalogue's texts, fixed in the library, never text from outside.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#endif

std::string TKFormat(const char* text, ...) {
    // One pass into a buffer that holds every catalogue text with short arguments; a second
    // only for longer ones.
    char buffer[256];
    va_list args;
    va_start(args, text);
    va_list again;
    va_copy(again, args);
    int length = std::vsnprintf(buffer, sizeof buffer, text, args);
    std::string result;
    if (length >= static_cast<int>(sizeof buffer)) {
        result.resize(static_cast<std::size_t>(length) + 1);
        std::vsnprintf(result.data(), result.size(), text, again);
        result.resize(static_cast<std::size_t>(length));
    } else if (length > 0) {
        result.assign(buffer, static_cast<std::size_t>(length));
    }
    va_end(again);
    va_end(args);
    return result;
}
