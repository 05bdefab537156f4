// The method trace every operation of the accounts dialog opens.
#pragma once

#include "vxutil/runtime/RMethodTrace.h"

namespace vx::accounts {

inline constexpr char kTraceSource[] = "RAccountsDialog";
// Opened with the class ("CLoginPropDlg", "CUserList", "CServerList"), "::" and the operation's
// name.
using AccountsTrace = RSourceTrace<kTraceSource>;

}  // namespace vx::accounts
