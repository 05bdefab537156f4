#include "foundation/MessageFormat.h"

namespace vx::message {

CGNString FormatStrings(const CGNString& format, std::initializer_list<const char*> values) {
    CGNString text;
    const char* const* next = values.begin();
    const std::size_t length = format.GetLength();
    for (std::size_t i = 0; i < length; ++i) {
        const char c = format[i];
        const char following = i + 1 < length ? format[i + 1] : '\0';
        if (c == '%' && following == 's') {
            if (next != values.end()) {
                if (*next != nullptr) text += *next;
                ++next;
            }
            ++i;
        } else if (c == '%' && following == '%') {
            text += '%';
            ++i;
        } else {
            text += c;
        }
    }
    return text;
}

}  // namespace vx::message
