#include "vxutil/runtime/MessageText.h"

#include <cstdio>
#include <string>

#include "vxutil/gnrt/OSLoadString.h"

namespace vx {

CGNString FillInserts(std::string_view pattern, std::initializer_list<std::string_view> inserts) {
    std::string text;
    text.reserve(pattern.size());
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        if (pattern[i] != '%' || next < '1' || next > '9') {
            text += pattern[i];
            continue;
        }
        const std::size_t index = static_cast<std::size_t>(next - '1');
        if (index < inserts.size()) text += *(inserts.begin() + index);
        ++i;
    }
    return CGNString(std::move(text));
}

namespace {

std::string Render(const MessageValue& value, char conversion) {
    if (conversion == 's' && value.text != nullptr) return value.text;
    char digits[16];
    const char* format = conversion == 'x' ? "%x" : conversion == 'X' ? "%X" : "%d";
    if (conversion == 'x' || conversion == 'X')
        std::snprintf(digits, sizeof digits, format, static_cast<unsigned>(value.number));
    else
        std::snprintf(digits, sizeof digits, format, value.number);
    return digits;
}

}  // namespace

CGNString FillConversions(std::string_view pattern, std::initializer_list<MessageValue> values) {
    std::string text;
    text.reserve(pattern.size());
    const MessageValue* next = values.begin();
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char conversion = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        if (pattern[i] != '%' || std::string_view("sdixX%").find(conversion) == std::string::npos) {
            text += pattern[i];
            continue;
        }
        ++i;
        if (conversion == '%')
            text += '%';
        else if (next != values.end())
            text += Render(*next++, conversion);
    }
    return CGNString(std::move(text));
}

CGNString LoadMessageText(unsigned id, std::initializer_list<std::string_view> inserts) {
    CGNString pattern;
    OSLoadString(id, pattern);
    return FillInserts(pattern.view(), inserts);
}

}  // namespace vx
