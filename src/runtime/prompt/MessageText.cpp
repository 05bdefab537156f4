#include "vxutil/runtime/MessageText.h"

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

CGNString LoadMessageText(unsigned id, std::initializer_list<std::string_view> inserts) {
    CGNString pattern;
    OSLoadString(id, pattern);
    return FillInserts(pattern.view(), inserts);
}

}  // namespace vx
