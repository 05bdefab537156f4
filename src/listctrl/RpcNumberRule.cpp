#include "vxutil/listctrl/RpcNumberRule.h"

#include "gnrt/StringTable.h"
#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/runtime/RUserPrompt.h"
#include "vxutil/runtime/RUtils.h"

namespace vx {

namespace {
constexpr int kPrivateRpcSingle = 390600;
constexpr int kPrivateRpcFirst = 390680;
constexpr int kPrivateRpcLast = 390694;
constexpr unsigned kRefusedStyle = kMbOk | kMbIconStop;
static_assert(kRefusedStyle == 0x10);
}  // namespace

bool IsPrivateRpcNumber(int value) {
    return value == 0 || value == kPrivateRpcSingle ||
           (value >= kPrivateRpcFirst && value <= kPrivateRpcLast);
}

bool CheckPrivateRpcNumber(const CGNString& text, WindowHandle parent) {
    if (IsPrivateRpcNumber(RHexToInt(text))) return true;
    CGNString message;
    OSLoadString(kStrPrivateRpcNumber, message);
    RUserPrompt::Current().Show(parent, message.c_str(), nullptr, kRefusedStyle);
    return false;
}

}  // namespace vx
