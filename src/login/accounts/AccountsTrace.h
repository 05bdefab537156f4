// The method trace every operation of the accounts dialog opens.
#pragma once

#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"

namespace vx::accounts {

class AccountsTrace : public RMethodTrace {
public:
    // `method` is the class ("CLoginPropDlg", "CUserList", "CServerList"), "::" and the
    // operation's name.
    explicit AccountsTrace(const char* method)
        : RMethodTrace("RAccountsDialog", method, kTraceAllLevels) {}
};

}  // namespace vx::accounts
