// The method trace the login dialog's operations and the login owner's defaults open on entry.
#pragma once

#include "vxutil/runtime/RMethodTrace.h"

namespace vx::login {

inline constexpr char kTraceSource[] = "RLoginDialog";
// Opened with the class, "::" and the operation's name ("CLoginDlg::OnOK").
using LoginDialogTrace = RSourceTrace<kTraceSource>;

}  // namespace vx::login
