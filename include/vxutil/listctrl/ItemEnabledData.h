// The item data word of a CKorvelListCtrl row holds the row's disabled flag, so callers of
// these lists must not use the item data for anything else.
#pragma once

#include <cstdint>

namespace vx {

// 0 is enabled; a negative word counts as enabled as well.
constexpr bool IsItemDataEnabled(std::intptr_t itemData) {
    return itemData <= 0;
}

// The word SetItemEnabled writes, over whatever the row held.
constexpr std::intptr_t ItemDataForEnabled(bool enable) {
    return enable ? 0 : 1;
}

}  // namespace vx
