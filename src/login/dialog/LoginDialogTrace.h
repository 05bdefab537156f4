// The method trace the login dialog's operations and the login owner's defaults open on entry.
#pragma once

#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"

namespace vx::login {

class LoginDialogTrace : public RMethodTrace {
public:
    // `method` is the class, "::" and the operation's name ("CLoginDlg::OnOK").
    explicit LoginDialogTrace(const char* method)
        : RMethodTrace("RLoginDialog", method, kTraceAllLevels) {}
};

}  // namespace vx::login
