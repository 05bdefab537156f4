// Opening and closing the accounts dialog, and what both of its lists share.
#include "vxutil/login/AccountsPresenter.h"

#include <iterator>

#include "gnrt/StringTable.h"
#include "login/accounts/AccountsPrompts.h"
#include "login/accounts/AccountsSettings.h"
#include "login/accounts/AccountsText.h"
#include "login/accounts/AccountsTrace.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/ListPort.h"
#include "vxutil/runtime/MessageText.h"

namespace vx {

using accounts::AccountsTrace;
using accounts::kFixedServerColumns;
using accounts::kServerHeaders;
using accounts::Text;

namespace {

// The user list's columns get a fixed start width; the user may size them.
constexpr int kUserColumnWidths[] = {150, 300};
constexpr unsigned kUserHeaders[] = {kStrAccountsUserColumn, kStrAccountsFolderColumn};
static_assert(std::size(kUserColumnWidths) == std::size(kUserColumns));
static_assert(std::size(kUserHeaders) == std::size(kUserColumns));

}  // namespace

AccountsPresenter::AccountsPresenter(AccountsView& view, ListPort& users, ListPort& servers,
                                     const CGNString& currentUser, CLoginOwner* owner)
    : m_view(view),
      m_users(users),
      m_servers(servers),
      m_strCurrentUser(currentUser),
      m_strSessionUser(currentUser),
      m_pOwner(owner) {}

void AccountsPresenter::OnInitDialog() {
    AccountsTrace trace("CLoginPropDlg::OnInitDialog");
    m_bInitialising = true;
    m_view.SetUsersTitle(UsersTitle());
    m_view.SetServersTitle(Text(kStrAccountsServers));
    InsertColumns();
    UpdateUserList();
    const bool portsByDefault = m_pOwner == nullptr || m_pOwner->ShowVXPortsByDefault() != 0;
    m_view.SetAdvancedOptionsChecked(accounts::ReadAdvancedServerOptions(portsByDefault));
    OnAdvancedServerOptions();
    m_bInitialising = false;
}

void AccountsPresenter::OnOK() {
    AccountsTrace trace("CLoginPropDlg::OnOK");
    accounts::WriteServerColumnWidths(GetServerColumnWidths());
}

CGNString AccountsPresenter::UsersTitle() const {
    CGNString title = Text(kStrAccountsUsers);
    // The user whose login is remembered: the one the login dialog will propose.
    char user[kNameBufferSize] = {};
    char password[kNameBufferSize] = {};
    if (CAppEnv::GetLastUserAndPassword(user, password) && user[0] != '\0')
        title += CGNString(" ( ") + user + " )";
    return title;
}

void AccountsPresenter::InsertColumns() {
    for (int column = 0; column < static_cast<int>(std::size(kUserColumns)); ++column)
        m_users.InsertColumn(column, Text(kUserHeaders[column]), kUserColumnWidths[column]);
    const accounts::ServerColumnWidths widths = accounts::ReadServerColumnWidths();
    for (int column = 0; column < kFixedServerColumns; ++column)
        m_servers.InsertColumn(column, Text(kServerHeaders[column]),
                               widths[static_cast<std::size_t>(column)]);
}

int AccountsPresenter::VerifyItemUnique(int row, int column, const ListPort& list,
                                        int* found) const {
    AccountsTrace trace("CLoginPropDlg::VerifyItemUnique");
    if (found != nullptr) *found = 0;
    const CGNString text = list.GetCellText(row, column);
    for (int other = 0; other < list.GetRowCount(); ++other) {
        if (other == row || !(list.GetCellText(other, column) == text)) continue;
        if (found != nullptr) *found = other;
        return 0;
    }
    return 1;
}

void AccountsPresenter::ClearRows(ListPort& list) {
    for (int row = list.GetRowCount() - 1; row >= 0; --row)
        list.DeleteRow(row);
}

void AccountsPresenter::SelectOnly(ListPort& list, int row) {
    for (int selected : list.GetSelectedRows())
        list.SetRowSelected(selected, false);
    list.SetRowSelected(row, true);
    list.SetFocusedRow(row);
}

void AccountsPresenter::RestoreOriginal(ListPort& list, int row, int column) {
    list.SetCellText(row, column, list.GetOriginalLabel());
}

// A name that another row already has: the cell gets its old text back and the user is shown
// the row that holds the name.
void AccountsPresenter::PointAtDuplicate(ListPort& list, int row, int column, int found) {
    RestoreOriginal(list, row, column);
    list.SetRowSelected(row, false);
    list.SetRowSelected(found, true);
    list.SetFocusedRow(found);
}

void AccountsPresenter::ReportStoreFailure(const CGNString& typed) const {
    accounts::ShowError(m_view.GetWindowHandle(),
                        LoadMessageText(kStrAccountsStoreFailed, {typed.view()}));
}

int AccountsPresenter::OnListDeleteKey(ListPort& list) {
    AccountsTrace trace("CLoginPropDlg::OnListDeleteKey");
    if (list.GetRowCount() == 0 || list.GetSelectedRows().empty()) return 0;
    return &list == &m_users ? DeleteSelectedUsers() : DeleteSelectedServers();
}

}  // namespace vx
