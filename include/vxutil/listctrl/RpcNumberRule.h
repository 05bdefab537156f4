// The RPC program numbers a private server may use, which the accounts dialog's private-number
// cells enforce.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/runtime/WindowHandle.h"

namespace vx {

// True for 0 (no private number), 390600, and 390680 to 390694.
VXUTIL_API bool IsPrivateRpcNumber(int value);

// Reads `text` as a typed number (decimal, or hexadecimal after "0x", as RHexToInt does) and
// checks it with IsPrivateRpcNumber; a refused number is reported to the user through the
// current RUserPrompt over `parent`, with the error icon. True when accepted.
VXUTIL_API bool CheckPrivateRpcNumber(const CGNString& text, WindowHandle parent);

}  // namespace vx
