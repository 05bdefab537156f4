#include "vxutil/decimal/TKxmsg.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

#include "vxutil/gnrt/OSLoadString.h"

// The formats are the catalogue's texts, fixed in the library, or translations whose conversions
// are exactly the fixed text's (TKMessageFormat), never text from outside.
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

namespace {

// The printf conversions of `format` in order, each as written ("%s", "%.*s", "%lu").
std::vector<std::string_view> Conversions(std::string_view format) {
    std::vector<std::string_view> found;
    for (std::size_t at = format.find('%'); at != std::string_view::npos;
         at = format.find('%', at)) {
        std::size_t end = at + 1;
        if (end < format.size() && format[end] == '%') {
            at = end + 1;
            continue;
        }
        while (end < format.size() &&
               std::strchr("-+ #0123456789.*hlLqjzt", format[end]) != nullptr)
            ++end;
        if (end < format.size()) ++end;  // the conversion letter
        found.push_back(format.substr(at, end - at));
        at = end;
    }
    return found;
}

}  // namespace

std::string TKMessageFormat(const TKMessage& message) {
    CGNString translated;
    if (OSLoadString(message.number, translated) > 0 &&
        Conversions(translated.view()) == Conversions(message.text))
        return translated.str();
    return message.text;
}
