#include "runtime/qt/StringTableTranslator.h"

#include <charconv>
#include <cstring>

#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/runtime/qt/QtText.h"

namespace vx {

QString StringTableTranslator::translate(const char*, const char*, const char* disambiguation,
                                         int) const {
    if (disambiguation == nullptr) return {};
    const char* end = disambiguation + std::strlen(disambiguation);
    unsigned id = 0;
    const auto [rest, error] = std::from_chars(disambiguation, end, id);
    if (error != std::errc() || rest != end) return {};
    CGNString text;
    if (OSLoadString(id, text) == 0) return {};
    return ToQString(text);
}

}  // namespace vx
