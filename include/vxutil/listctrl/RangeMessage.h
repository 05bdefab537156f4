// The message that tells a user the range of a number cell, shared by the cells' keystroke
// logic, their check when an edit ends and the dialogs that check typed numbers themselves.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx {

// String 3060 with the refused `text`, then `minimum` and `maximum` in decimal and once more
// in hexadecimal.
VXUTIL_API CGNString NumberRangeMessage(const CGNString& text, int minimum, int maximum);

}  // namespace vx
