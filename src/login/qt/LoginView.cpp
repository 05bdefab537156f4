#include "login/qt/LoginView.h"

#include <QApplication>

#include "login/qt/PasswordReveal.h"
#include "ui_login.h"
#include "vxutil/decor/qt/CWDialog.h"
#include "vxutil/login/qt/CLoginPropDlg.h"
#include "vxutil/runtime/qt/QtText.h"

namespace vx {

LoginView::LoginView(CWDialog& dialog, Ui::CLoginDlg& ui, PasswordReveal& reveal)
    : m_dialog(dialog), m_ui(ui), m_reveal(reveal) {}

WindowHandle LoginView::Window() {
    return &m_dialog;
}

void LoginView::SetUsers(const CGNStringList& users) {
    QComboBox& combo = *m_ui.userCombo_3400;
    const QString text = combo.currentText();  // emptying the list empties the edit field
    combo.clear();
    for (const CGNString& user : users)
        combo.addItem(ToQString(user));
    combo.setCurrentIndex(-1);
    combo.setEditText(text);
}

void LoginView::SelectUser(int index) {
    m_ui.userCombo_3400->setCurrentIndex(index);
}

void LoginView::SetUserText(const CGNString& user) {
    m_ui.userCombo_3400->setCurrentIndex(-1);
    m_ui.userCombo_3400->setEditText(ToQString(user));
}

CGNString LoginView::UserText() {
    return FromQString(m_ui.userCombo_3400->currentText());
}

void LoginView::SetPassword(const CGNString& password) {
    m_reveal.SetProgramText(ToQString(password));
}

CGNString LoginView::Password() {
    return FromQString(m_ui.passwordEdit_3401->text());
}

void LoginView::SetOkEnabled(bool enabled) {
    m_ui.okButton->setEnabled(enabled);
}

void LoginView::SetCancelEnabled(bool enabled) {
    m_ui.cancelButton->setEnabled(enabled);
}

void LoginView::SetAccountsButton(bool visible, bool enabled) {
    m_ui.accountsButton_3402->setVisible(visible);
    m_ui.accountsButton_3402->setEnabled(enabled);
}

void LoginView::SetWindowEnabled(bool enabled) {
    if (enabled) {
        m_dialog.setEnabled(true);
        if (m_focusBeforeDisabled != nullptr) m_focusBeforeDisabled->setFocus();
        return;
    }
    m_focusBeforeDisabled = m_dialog.focusWidget();
    m_dialog.setEnabled(false);
    // A login may block for a while: let the disabled look and the busy cursor reach the
    // screen first, without taking the user's input yet.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void LoginView::SetBusy(bool busy) {
    if (busy == m_busy) return;
    m_busy = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void LoginView::SetContextHelp(bool enabled) {
    m_dialog.EnableContextHelp(enabled);
}

AccountsOutcome LoginView::RunAccounts(const CGNString& user, CLoginOwner* owner) {
    CLoginPropDlg accounts(ToQString(user), &m_dialog, owner);
    const bool accepted = accounts.exec() == QDialog::Accepted;
    return {accepted, accounts.IsDirty() != 0, FromQString(accounts.GetCurrentUser())};
}

void LoginView::End(int code) {
    m_dialog.done(code);
}

}  // namespace vx
