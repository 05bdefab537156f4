// The message that tells a user the range of a number cell.
#pragma once

#include "vxutil/gnrt/CGNString.h"

namespace vx {

// String 3060 with the refused `text`, then `minimum` and `maximum` in decimal and once more
// in hexadecimal.
CGNString NumberRangeMessage(const CGNString& text, int minimum, int maximum);

}  // namespace vx
