#include "vxutil/login/LoginPresenter.h"

#include <algorithm>
#include <vector>

#include "gnrt/StringTable.h"
#include "login/dialog/LoginDialogTrace.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/LoginField.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace vx {
namespace {

using login::LoginDialogTrace;

// The list order: ASCII letters without regard to case, ties by bytes (see the header).
bool ListsBefore(const CGNString& a, const CGNString& b) {
    const int folded = a.CompareNoCase(b.c_str());
    return folded != 0 ? folded < 0 : a.Compare(b.c_str()) < 0;
}

// Index of the first entry equal to `name` without regard to case, or -1.
int FindUser(const CGNStringList& users, const CGNString& name) {
    for (int i = 0; i < users.GetCount(); ++i)
        if (users.GetAt(i).CompareNoCase(name.c_str()) == 0) return i;
    return -1;
}

}  // namespace

ILoginView::~ILoginView() = default;

LoginPresenter::LoginPresenter(ILoginView& view, CLoginOwner* owner, const CGNString& user,
                               const CGNString& password)
    : m_view(view),
      m_pOwner(owner),
      m_strUser(FitLoginField(user)),
      m_strPassword(FitLoginField(password)) {}

int LoginPresenter::OnInitDialog() {
    LoginDialogTrace trace("CLoginDlg::OnInitDialog");
    LoadUsers();
    // A proposed user the list does not know stays as typed text.
    PushFields(FindUser(m_users, m_strUser));
    CAppEnv::GetDefaultHomePath(m_strDefaultHomePath);
    SetButtonState();
    EnableContextHelp(m_bContextHelpEnabled);
    return m_pOwner != nullptr ? m_pOwner->OnInitDialog(m_view.Window()) : 1;
}

void LoginPresenter::SetButtonState() {
    PullFields();
    m_view.SetOkEnabled(!m_strUser.IsEmpty());
    EnableInfoButton(m_bInfoButtonEnabled);
}

void LoginPresenter::OnSelChangeUser(int index) {
    LoginDialogTrace trace("CLoginDlg::OnSelChangeUser");
    m_view.SetOkEnabled(index >= 0);
    m_view.SetCancelEnabled(true);
    m_view.SetPassword(CGNString());
}

void LoginPresenter::OnOK() {
    LoginDialogTrace trace("CLoginDlg::OnOK");
    m_view.SetBusy(true);
    PullFields();
    // Typed text cannot exceed the fields; a long name chosen from the list can, and is refused
    // rather than cut into another user's name.
    if (!FitsLoginField(m_strUser.view()) || !FitsLoginField(m_strPassword.view())) {
        m_view.SetBusy(false);
        CGNString text;
        OSLoadString(kStrLoginFieldTooLong, text);
        RUserPrompt::Current().Show(m_view.Window(), text.c_str(), nullptr,
                                    kMbOk | kMbIconExclamation);
        return;
    }
    // Disabled while the owner works, so that a pumping owner cannot see OK pressed again.
    m_view.SetWindowEnabled(false);
    CGNString user = m_strUser;
    CGNString password = m_strPassword;
    const int result = m_pOwner != nullptr ? m_pOwner->Login(user, password) : 0;
    m_view.SetWindowEnabled(true);
    if (result == 1) {
        m_view.End(kLoginDialogOk);
    } else {
        // The owner may have disabled them while it worked.
        m_view.SetOkEnabled(true);
        m_view.SetCancelEnabled(true);
    }
    m_view.SetBusy(false);
}

void LoginPresenter::OnCancel() {
    LoginDialogTrace trace("CLoginDlg::OnCancel");
    m_view.End(kLoginDialogCancel);
}

void LoginPresenter::OnLoginAccounts() {
    LoginDialogTrace trace("CLoginDlg::OnLoginAccounts");
    PullFields();
    const AccountsOutcome outcome = m_view.RunAccounts(m_strUser, m_pOwner);
    if (outcome.dirty) LoadUsers();
    if (outcome.accepted) {
        // The password belongs to the user it was typed for.
        if (!(outcome.currentUser == m_strUser)) m_strPassword.Empty();
        m_strUser = outcome.currentUser;
    }
    int index = -1;
    if (!m_strUser.IsEmpty()) {
        index = FindUser(m_users, m_strUser);
        // A user that is gone (deleted or renamed) gives way to the first in the list, if any.
        if (index < 0 && !m_users.IsEmpty()) index = 0;
        if (index >= 0) m_strUser = m_users.GetAt(index);
    }
    CAppEnv::GetDefaultHomePath(m_strDefaultHomePath);
    PushFields(index);
    SetButtonState();
}

void LoginPresenter::EnableInfoButton(int enable) {
    m_bInfoButtonEnabled = enable;
    m_view.SetAccountsButton(enable > 0, enable > 0);
}

void LoginPresenter::EnableContextHelp(int enable) {
    m_bContextHelpEnabled = enable;
    m_view.SetContextHelp(enable != 0);
}

void LoginPresenter::LoadUsers() {
    CGNStringList names;
    CGNStringList folders;
    CAppEnv::GetListOfUsers(names, folders);
    std::vector<CGNString> sorted(names.begin(), names.end());
    std::sort(sorted.begin(), sorted.end(), ListsBefore);
    m_users.RemoveAll();
    for (const CGNString& name : sorted)
        m_users.Add(name);
    m_view.SetUsers(m_users);
}

void LoginPresenter::PushFields(int index) {
    if (index >= 0)
        m_view.SelectUser(index);
    else
        m_view.SetUserText(m_strUser);
    m_view.SetPassword(m_strPassword);
}

void LoginPresenter::PullFields() {
    m_strUser = m_view.UserText();
    m_strPassword = m_view.Password();
}

}  // namespace vx
