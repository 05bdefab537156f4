// How menu texts compare when one menu is merged into another: mnemonic markers do not count.
#pragma once

#include <string>
#include <string_view>

#include "vxutil/export.h"

namespace vx {

// `text` with every "&" removed ("&&", a shown ampersand, goes as well).
VXUTIL_API std::string StripAmpersands(std::string_view text);

// Whether a top-level item with this text is one that merged items go before: "Window", "?" or
// "Help", once every "&" is removed. Only these English names count, so "&Hilfe" is no anchor.
VXUTIL_API bool IsMergeAnchor(std::string_view text);

// Whether two item texts name the same pop-up: equal, byte for byte, once every "&" is removed
// ("&File" and "F&ile" match, "file" does not).
VXUTIL_API bool IsSameMenuText(std::string_view a, std::string_view b);

}  // namespace vx
