// The server list of the accounts dialog: the servers of the selected user, their two switches
// and their ports, kept in the server file of the user's home folder.
#include <vector>

#include "gnrt/StringTable.h"
#include "login/accounts/AccountsPrompts.h"
#include "login/accounts/AccountsText.h"
#include "login/accounts/AccountsTrace.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/foundation/CVXServerNameList.h"
#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/ListPort.h"
#include "vxutil/runtime/MessageText.h"
#include "vxutil/runtime/RUtils.h"

namespace vx {

using accounts::AccountsTrace;
using accounts::Text;

namespace {

constexpr int kAddRow = 0;
constexpr int kFirstUserRow = 1;  // "Default User" has servers too; the add row has none yet

// The text field of a server that a column shows; null for the toggle columns.
CGNString tagSERVERTYPE::*TextField(int column) {
    switch (column) {
        case kServerNameColumn:
            return &tagSERVERTYPE::m_strName;
        case kWorkflowPortColumn:
            return &tagSERVERTYPE::m_strWorkflowPort;
        case kRpcColumn:
            return &tagSERVERTYPE::m_strWorkflowRpc;
        case kNotifierPortColumn:
            return &tagSERVERTYPE::m_strNotifierPort;
        default:
            return nullptr;
    }
}

// What the server file can hold as a name: its lines start with the name up to the first blank,
// a leading "#" marks a disabled server, and names have at most 64 bytes.
bool IsStorableServerName(const CGNString& name) {
    constexpr std::size_t kMaxServerName = 64;
    return name.GetLength() <= kMaxServerName && name.Find(' ') < 0 && name.Find('\t') < 0 &&
           name[0] != '#';
}

}  // namespace

int AccountsPresenter::SelectedUserRow() const {
    const std::vector<int> selected = m_users.GetSelectedRows();
    return selected.empty() ? -1 : selected.front();
}

CGNString AccountsPresenter::SelectedUserFolder() const {
    const int row = SelectedUserRow();
    return row >= kFirstUserRow ? m_users.GetCellText(row, kUserFolderColumn) : CGNString();
}

AccountsPresenter::ServerRow* AccountsPresenter::RowServer(int row) {
    return row >= 1 && row <= static_cast<int>(m_serverRows.size())
               ? &m_serverRows[static_cast<std::size_t>(row - 1)]
               : nullptr;
}

const AccountsPresenter::ServerRow* AccountsPresenter::RowServer(int row) const {
    return const_cast<AccountsPresenter*>(this)->RowServer(row);
}

std::vector<int> AccountsPresenter::SelectedServerRows() const {
    std::vector<int> rows;
    for (int row : m_servers.GetSelectedRows())
        if (RowServer(row) != nullptr) rows.push_back(row);
    return rows;
}

int AccountsPresenter::UpdateServerList() {
    AccountsTrace trace("CLoginPropDlg::UpdateServerList");
    ClearRows(m_servers);
    m_serverRows.clear();
    m_servers.InsertRow(kAddRow, Text(kStrAccountsAddServer));
    const int userRow = SelectedUserRow();
    if (userRow >= kFirstUserRow) {
        const CGNString user = m_users.GetCellText(userRow, kUserNameColumn);
        const CGNString folder = m_users.GetCellText(userRow, kUserFolderColumn);
        CVXServerNameList names;
        CAppEnv::GetServerList(folder, names, 1, 1);
        for (int i = 0; i < names.GetCount(); ++i) {
            ServerRow entry;
            tagSERVERTYPE& server = entry.server;
            server.m_strName = names.GetServer(i)->GetName();
            CAppEnv::GetServerAttributes(folder, server.m_strName, server.m_bDisabled,
                                         server.m_bWorkflow, server.m_bNotifier,
                                         server.m_strWorkflowPort, server.m_strWorkflowRpc,
                                         server.m_strNotifierPort);
            entry.loggedIn = IsServerLoggedIn(user, server.m_strName) != 0;
            m_servers.InsertRow(m_servers.GetRowCount(), server.m_strName);
            m_serverRows.push_back(entry);
        }
    }
    UpdatePortColumns();
    m_view.UpdateColumnImages();
    return 1;
}

void AccountsPresenter::UpdatePortColumns() {
    AccountsTrace trace("CLoginPropDlg::UpdatePortColumns");
    if (!m_bPortsShown) return;
    for (int row = 1; row < m_servers.GetRowCount(); ++row)
        for (int column : {kWorkflowPortColumn, kRpcColumn, kNotifierPortColumn})
            m_servers.SetCellText(row, column, RowServer(row)->server.*TextField(column));
}

bool AccountsPresenter::CanEditServerItem(int row, int column) const {
    AccountsTrace trace("CServerList::CanEditThisItem");
    // The add row of the users has no folder of its own yet, so nothing to keep servers in.
    if (SelectedUserRow() < kFirstUserRow) return false;
    if (column == kServerNameColumn) return true;
    return m_bPortsShown && RowServer(row) != nullptr && TextField(column) != nullptr;
}

bool AccountsPresenter::IsServerEditTextValid(int, int column, const CGNString& text) const {
    AccountsTrace trace("CServerList::IsEditTextValid");
    if (column >= kWorkflowPortColumn) return CheckPortText(column, text);
    if (text.CompareNoCase(Text(kStrAccountsAddServer).c_str()) == 0) return false;
    if (column == kServerNameColumn && !text.IsEmpty() && !IsStorableServerName(text)) {
        accounts::ShowError(m_view.GetWindowHandle(),
                            LoadMessageText(kStrAccountsBadServerName, {text.view()}));
        return false;
    }
    return true;
}

int AccountsPresenter::OnEndLabelEditServerList(int row, int column) {
    AccountsTrace trace("CLoginPropDlg::OnEndLabelEditServerList");
    if (column < 0 || row < 0 || row >= m_servers.GetRowCount()) return 0;
    CGNString text = m_servers.GetCellText(row, column);
    text.Trim();
    if (text == m_servers.GetOriginalLabel()) return 0;
    if (!CanEditServerItem(row, column) || (column == kServerNameColumn && text.IsEmpty())) {
        RestoreOriginal(m_servers, row, column);
        return 0;
    }
    m_servers.SetCellText(row, column, text);
    if (column != kServerNameColumn) return StoreServerText(row, column, text);

    int found = 0;
    if (!VerifyItemUnique(row, column, m_servers, &found)) {
        PointAtDuplicate(m_servers, row, column, found);
        return 0;
    }
    if (row == kAddRow) {
        // The add row stays on top: the new server becomes the second row, used as a workflow
        // server, which is what a server is added for.
        m_servers.InsertRow(kAddRow, Text(kStrAccountsAddServer));
        ServerRow added;
        added.server.m_strName = text;
        added.server.m_bWorkflow = 1;
        m_serverRows.insert(m_serverRows.begin(), added);
        if (!SaveServers(text)) {
            m_serverRows.erase(m_serverRows.begin());
            m_servers.DeleteRow(kAddRow + 1);
            return 0;
        }
        m_nDirty = 1;
    } else if (!StoreServerText(row, column, text)) {
        return 0;
    }
    UpdateServerList();
    SelectServer(text);
    return 1;
}

int AccountsPresenter::StoreServerText(int row, int column, const CGNString& text) {
    CGNString& field = RowServer(row)->server.*TextField(column);
    const CGNString previous = field;
    field = text;
    if (!SaveServers(text)) {
        field = previous;
        RestoreOriginal(m_servers, row, column);
        return 0;
    }
    m_nDirty = 1;
    return 1;
}

// Writes the server file of the selected user from the rows; a failure is reported with
// `subject`, what the user changed.
bool AccountsPresenter::SaveServers(const CGNString& subject) {
    const CGNString folder = SelectedUserFolder();
    if (!folder.IsEmpty() && !RIsValidDirectory(folder)) RCreateDirectory(folder);
    ServerTypeList records;
    for (ServerRow& entry : m_serverRows)
        records.push_back(&entry.server);
    if (CAppEnv::SetServerList(folder, records)) return true;
    ReportStoreFailure(subject);
    return false;
}

void AccountsPresenter::SelectServer(const CGNString& name) {
    for (int row = 1; row < m_servers.GetRowCount(); ++row)
        if (m_servers.GetCellText(row, kServerNameColumn) == name)
            return SelectOnly(m_servers, row);
}

// The rows selected when the run starts, from the bottom up; the question names the user, and
// comes once for every server as it is about to go.
int AccountsPresenter::DeleteSelectedServers() {
    const std::vector<int> selected = SelectedServerRows();
    const CGNString user = m_users.GetCellText(SelectedUserRow(), kUserNameColumn);
    int deleted = 0;
    for (auto row = selected.rbegin(); row != selected.rend(); ++row) {
        if (m_servers.GetCellText(*row, kServerNameColumn).IsEmpty()) continue;
        // No ends the run as it stands: servers removed so far stay removed, and neither the
        // list nor the dirty flag is brought up to date.
        if (!accounts::AskRemove(m_view.GetWindowHandle(),
                                 LoadMessageText(kStrAccountsAskRemoveServers, {user.view()})))
            return 0;
        const auto at = m_serverRows.begin() + (*row - 1);
        const ServerRow removed = *at;
        m_serverRows.erase(at);
        if (!SaveServers(removed.server.m_strName)) {
            m_serverRows.insert(m_serverRows.begin() + (*row - 1), removed);
            break;
        }
        m_servers.DeleteRow(*row);
        deleted = 1;
    }
    if (deleted) UpdateServerList();
    m_nDirty |= deleted;
    return deleted;
}

bool AccountsPresenter::FlagValue(const tagSERVERTYPE& server, ServerFlag which) {
    switch (which) {
        case ServerFlag::kWorkflow:
            return server.m_bWorkflow != 0;
        case ServerFlag::kNotifier:
            return server.m_bNotifier != 0;
        case ServerFlag::kConnectAtLogin:
            return server.m_bDisabled == 0;
    }
    return false;
}

void AccountsPresenter::SetFlagValue(tagSERVERTYPE& server, ServerFlag which, bool on) {
    const unsigned char value = on ? 1 : 0;
    switch (which) {
        case ServerFlag::kWorkflow:
            server.m_bWorkflow = value;
            break;
        case ServerFlag::kNotifier:
            server.m_bNotifier = value;
            break;
        case ServerFlag::kConnectAtLogin:
            server.m_bDisabled = value ^ 1;
            break;
    }
}

bool AccountsPresenter::AllSelectedHave(ServerFlag which) const {
    const std::vector<int> rows = SelectedServerRows();
    for (int row : rows)
        if (!FlagValue(RowServer(row)->server, which)) return false;
    return !rows.empty();
}

void AccountsPresenter::ApplyServerFlag(ServerFlag which, bool on) {
    const std::vector<int> rows = SelectedServerRows();
    if (rows.empty()) return;
    const std::vector<ServerRow> before = m_serverRows;
    for (int row : rows)
        SetFlagValue(RowServer(row)->server, which, on);
    if (SaveServers(RowServer(rows.front())->server.m_strName))
        m_nDirty = 1;
    else
        m_serverRows = before;
    m_view.UpdateColumnImages();
}

void AccountsPresenter::ToggleSelection(ServerFlag which) {
    ApplyServerFlag(which, !AllSelectedHave(which));
}

AccountsPresenter::ServerFlag AccountsPresenter::ColumnFlag(int column) {
    return column == kWorkflowColumn ? ServerFlag::kWorkflow : ServerFlag::kNotifier;
}

int AccountsPresenter::GetServerImage(int row, int column) const {
    AccountsTrace trace("CServerList::GetImage");
    const ServerRow* entry = RowServer(row);
    if (entry == nullptr || (column != kWorkflowColumn && column != kNotifierColumn)) return -1;
    return FlagValue(entry->server, ColumnFlag(column)) ? 1 : 0;
}

void AccountsPresenter::OnKorvelNotifyToggleBitmap(int row, int column) {
    AccountsTrace trace("CLoginPropDlg::OnKorvelNotifyToggleBitmap");
    const ServerRow* entry = RowServer(row);
    if (entry == nullptr || (column != kWorkflowColumn && column != kNotifierColumn)) return;
    ApplyServerFlag(ColumnFlag(column), !FlagValue(entry->server, ColumnFlag(column)));
}

void AccountsPresenter::ToggleSelServerColumn(int column) {
    AccountsTrace trace("CLoginPropDlg::ToggleSelServerColumn");
    if (column == kWorkflowColumn || column == kNotifierColumn) ToggleSelection(ColumnFlag(column));
}

int AccountsPresenter::IsServerLoggedIn(const CGNString& user, const CGNString& server) const {
    AccountsTrace trace("CLoginPropDlg::IsServerLoggedIn");
    // The owner's sessions belong to the user the dialog was opened for.
    if (m_pOwner == nullptr || !(user == m_strSessionUser)) return 0;
    CGNStringList loggedIn;
    m_pOwner->GetLoggedInServerArray(loggedIn);
    for (const CGNString& name : loggedIn)
        if (name.CompareNoCase(server.c_str()) == 0) return 1;
    return 0;
}

bool AccountsPresenter::IsServerRowLoggedIn(int row) const {
    const ServerRow* entry = RowServer(row);
    return entry != nullptr && entry->loggedIn;
}

}  // namespace vx
