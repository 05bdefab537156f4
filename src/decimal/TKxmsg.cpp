#include "vxutil/decimal/TKxmsg.h"

#include <cstdarg>
#include <cstdio>

std::string TKFormat(const TKMessage& message, ...) {
    va_list args;
    va_start(args, message);
    va_list measure;
    va_copy(measure, args);
    int length = std::vsnprintf(nullptr, 0, message.text, measure);
    va_end(measure);
    std::string text;
    if (length > 0) {
        text.resize(static_cast<std::size_t>(length) + 1);
        std::vsnprintf(text.data(), text.size(), message.text, args);
        text.resize(static_cast<std::size_t>(length));
    }
    va_end(args);
    return text;
}
