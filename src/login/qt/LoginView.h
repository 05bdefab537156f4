// The login dialog's widgets as the presenter's view: it does what LoginPresenter tells it and
// decides nothing itself.
#pragma once

#include <QPointer>
#include <QWidget>

#include "vxutil/login/ILoginView.h"

class CWDialog;

namespace Ui {
class CLoginDlg;
}

namespace vx {

class PasswordReveal;

class LoginView : public ILoginView {
public:
    // All three outlive the view.
    LoginView(CWDialog& dialog, Ui::CLoginDlg& ui, PasswordReveal& reveal);

    // Whether a login is under way; the dialog must not close under the owner's feet then.
    bool IsBusy() const { return m_busy; }

    WindowHandle Window() override;
    void SetUsers(const CGNStringList& users) override;
    void SelectUser(int index) override;
    void SetUserText(const CGNString& user) override;
    CGNString UserText() override;
    void SetPassword(const CGNString& password) override;
    CGNString Password() override;
    void SetOkEnabled(bool enabled) override;
    void SetCancelEnabled(bool enabled) override;
    void SetAccountsButton(bool visible, bool enabled) override;
    void SetWindowEnabled(bool enabled) override;
    void SetBusy(bool busy) override;
    void SetContextHelp(bool enabled) override;
    AccountsOutcome RunAccounts(const CGNString& user, CLoginOwner* owner) override;
    void End(int code) override;

private:
    CWDialog& m_dialog;
    Ui::CLoginDlg& m_ui;
    PasswordReveal& m_reveal;
    bool m_busy = false;
    // The control that had the focus when the dialog was disabled, to get it back afterwards.
    QPointer<QWidget> m_focusBeforeDisabled;
};

}  // namespace vx
