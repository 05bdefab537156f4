#include "vxutil/decor/MenuMergeRules.h"

#include <algorithm>

namespace vx {

std::string StripAmpersands(std::string_view text) {
    std::string stripped;
    stripped.reserve(text.size());
    std::copy_if(text.begin(), text.end(), std::back_inserter(stripped),
                 [](char c) { return c != '&'; });
    return stripped;
}

bool IsMergeAnchor(std::string_view text) {
    const std::string name = StripAmpersands(text);
    return name == "Window" || name == "?" || name == "Help";
}

bool IsSameMenuText(std::string_view a, std::string_view b) {
    return StripAmpersands(a) == StripAmpersands(b);
}

}  // namespace vx
