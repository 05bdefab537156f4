#include "vxutil/listctrl/RangeMessage.h"

#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "gnrt/StringTable.h"
#include "vxutil/gnrt/OSLoadString.h"

namespace vx {
namespace {

// One insert of the message: a text, or a number that its conversion renders.
struct Insert {
    const char* text;
    int number;
};

std::string Render(const Insert& insert, char conversion) {
    char digits[16];
    switch (conversion) {
        case 's':
            if (insert.text != nullptr) return insert.text;
            [[fallthrough]];
        case 'd':
        case 'i':
            std::snprintf(digits, sizeof digits, "%d", insert.number);
            break;
        case 'x':
            std::snprintf(digits, sizeof digits, "%x", static_cast<unsigned>(insert.number));
            break;
        default:
            std::snprintf(digits, sizeof digits, "%X", static_cast<unsigned>(insert.number));
            break;
    }
    return digits;
}

// Fills the printf conversions of `pattern` from `inserts` in order, each rendered as its
// conversion asks. A translated pattern is not trusted to have the conversions of the
// original, so it is never handed to printf itself: a conversion that does not fit its insert
// still renders, and one beyond the inserts renders nothing.
CGNString FillConversions(const std::string& pattern, std::initializer_list<Insert> inserts) {
    std::string text;
    const Insert* next = inserts.begin();
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char conversion = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        if (pattern[i] != '%' || std::string_view("sdixX%").find(conversion) == std::string::npos) {
            text += pattern[i];
            continue;
        }
        ++i;
        if (conversion == '%')
            text += '%';
        else if (next != inserts.end())
            text += Render(*next++, conversion);
    }
    return CGNString(std::move(text));
}

}  // namespace

CGNString NumberRangeMessage(const CGNString& text, int minimum, int maximum) {
    CGNString pattern;
    OSLoadString(kStrNumberOutOfRange, pattern);
    return FillConversions(pattern.str(), {{text.c_str(), 0},
                                           {nullptr, minimum},
                                           {nullptr, maximum},
                                           {nullptr, minimum},
                                           {nullptr, maximum}});
}

}  // namespace vx
