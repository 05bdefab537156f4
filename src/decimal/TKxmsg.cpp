#include "vxutil/decimal/TKxmsg.h"

#include <cstdarg>
#include <cstdio>

std::string TKFormat(const TKMessage& message, ...) {
    // One pass into a buffer that holds every catalogue text with short arguments; a second
    // only for longer ones.
    char buffer[256];
    va_list args;
    va_start(args, message);
    va_list again;
    va_copy(again, args);
    int length = std::vsnprintf(buffer, sizeof buffer, message.text, args);
    std::string text;
    if (length >= static_cast<int>(sizeof buffer)) {
        text.resize(static_cast<std::size_t>(length) + 1);
        std::vsnprintf(text.data(), text.size(), message.text, again);
        text.resize(static_cast<std::size_t>(length));
    } else if (length > 0) {
        text.assign(buffer, static_cast<std::size_t>(length));
    }
    va_end(again);
    va_end(args);
    return text;
}
