// The user list of the accounts dialog: users, their home folders and the default home folder.
#include <vector>

#include "appenv/SettingsFile.h"
#include "gnrt/StringTable.h"
#include "login/accounts/AccountsPrompts.h"
#include "login/accounts/AccountsText.h"
#include "login/accounts/AccountsTrace.h"
#include "runtime/files/FileSystem.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/ListPort.h"
#include "vxutil/platform/ProfileFile.h"
#include "vxutil/runtime/MessageText.h"
#include "vxutil/runtime/RUtils.h"

namespace vx {

using accounts::AccountsTrace;
using accounts::ShowError;
using accounts::Text;

namespace {

constexpr int kAddRow = 0;
constexpr int kDefaultUserRow = 1;
constexpr int kFirstUserRow = 2;

// The files a home folder keeps the client's settings in: the remembered login and the server
// file of CAppEnv's server lists.
constexpr const char* kSettingsFiles[] = {kSettingsFileName, "VX"};

// A folder is taken as fully qualified when it names at least one parent folder.
bool IsFullyQualified(const CGNString& folder) {
    for (char c : folder.view())
        if (IsSeparator(c)) return true;
    return false;
}

}  // namespace

bool AccountsPresenter::CanEditUserItem(int row, int column) const {
    AccountsTrace trace("CUserList::CanEditThisItem");
    return !(row == kDefaultUserRow && column == kUserNameColumn);
}

bool AccountsPresenter::IsUserDirectEdit(int row, int column) const {
    AccountsTrace trace("CUserList::IsDirectEdit");
    return row == kAddRow && column == kUserNameColumn;
}

bool AccountsPresenter::IsUserEditTextValid(int, int, const CGNString& text) const {
    AccountsTrace trace("CUserList::IsEditTextValid");
    return text.CompareNoCase(Text(kStrAccountsAddUser).c_str()) != 0;
}

int AccountsPresenter::UpdateUserList() {
    AccountsTrace trace("CLoginPropDlg::UpdateUserList");
    CGNStringList names(10);
    CGNStringList folders(10);
    const int listed = CAppEnv::GetListOfUsers(names, folders);
    CGNString defaultFolder;
    CAppEnv::GetDefaultHomePath(defaultFolder);
    m_strDefaultHomePath = RGetDiskCaseOfDirectory(defaultFolder);

    ClearRows(m_users);
    m_users.InsertRow(kAddRow, Text(kStrAccountsAddUser));
    m_users.SetCellText(kAddRow, kUserFolderColumn, m_strDefaultHomePath);
    m_users.InsertRow(kDefaultUserRow, Text(kStrAccountsDefaultUser));
    m_users.SetCellText(kDefaultUserRow, kUserFolderColumn, m_strDefaultHomePath);
    int current = -1;
    for (int i = 0; i < names.GetCount(); ++i) {
        const int row = kFirstUserRow + i;
        m_users.InsertRow(row, names.GetAt(i));
        m_users.SetCellText(row, kUserFolderColumn, RGetDiskCaseOfDirectory(folders.GetAt(i)));
        if (current < 0 && names.GetAt(i) == m_strCurrentUser) current = row;
    }
    SelectOnly(m_users, current >= 0 ? current : kDefaultUserRow);
    OnItemchangedUserList();
    return listed;
}

void AccountsPresenter::OnItemchangedUserList() {
    AccountsTrace trace("CLoginPropDlg::OnItemchangedUserList");
    const std::vector<int> selected = m_users.GetSelectedRows();
    if (!selected.empty() && selected.front() >= kFirstUserRow)
        m_strCurrentUser = m_users.GetCellText(selected.front(), kUserNameColumn);
    UpdateServerList();
}

int AccountsPresenter::OnEndLabelEditUserList(int row, int column) {
    AccountsTrace trace("CLoginPropDlg::OnEndLabelEditUserList");
    if (column < 0 || row < 0 || row >= m_users.GetRowCount()) return 0;
    if (column == kUserFolderColumn) return RenameDirectory(row);
    if (column != kUserNameColumn) return 0;
    const CGNString name = m_users.GetCellText(row, column);
    if (name == m_users.GetOriginalLabel()) return 0;
    if (name.IsEmpty() || !CanEditUserItem(row, column)) {
        RestoreOriginal(m_users, row, column);
        return 0;
    }
    int found = 0;
    if (!VerifyItemUnique(row, column, m_users, &found)) {
        PointAtDuplicate(m_users, row, column, found);
        OnItemchangedUserList();
        return 0;
    }
    if (row != kAddRow) {
        const int renamed = RenameUser(row);
        if (renamed) {
            m_nDirty = 1;
            OnItemchangedUserList();
        } else {
            RestoreOriginal(m_users, row, column);
            ReportStoreFailure(name);
        }
        return renamed;
    }
    return AddTypedUser(name);
}

// The typed name has become the add row's text. The add row and "Default User" go back above
// it, so that the new user stands in row 2 with the folder that was prepared in the add row.
int AccountsPresenter::AddTypedUser(const CGNString& name) {
    const CGNString preparedFolder = m_users.GetCellText(kAddRow, kUserFolderColumn);
    const CGNString defaultName = m_users.GetCellText(kDefaultUserRow, kUserNameColumn);
    const CGNString defaultFolder = m_users.GetCellText(kDefaultUserRow, kUserFolderColumn);
    m_users.DeleteRow(kDefaultUserRow);
    m_users.InsertRow(kAddRow, Text(kStrAccountsAddUser));
    m_users.SetCellText(kAddRow, kUserFolderColumn, m_strDefaultHomePath);
    m_users.InsertRow(kDefaultUserRow, defaultName);
    m_users.SetCellText(kDefaultUserRow, kUserFolderColumn, defaultFolder);
    SelectOnly(m_users, kFirstUserRow);

    const int added =
        AddUser(kFirstUserRow, name, m_users.GetCellText(kFirstUserRow, kUserFolderColumn));
    if (!added) {
        m_users.DeleteRow(kFirstUserRow);
        m_users.SetCellText(kAddRow, kUserFolderColumn, preparedFolder);
        SelectOnly(m_users, kAddRow);
        OnItemchangedUserList();
        ReportStoreFailure(name);
    }
    return added;
}

int AccountsPresenter::AddUser(int row, const CGNString& name, const CGNString& folder) {
    AccountsTrace trace("CLoginPropDlg::AddUser");
    if (name.IsEmpty() || folder.IsEmpty()) return 0;
    // A user who shares the default folder keeps its settings there; only a folder of its own
    // is created and told whose it is.
    if (!(folder == m_users.GetCellText(kDefaultUserRow, kUserFolderColumn))) UpdateUserName(row);
    const int added = CAppEnv::AddUser(name, folder);
    m_nDirty |= added;
    if (added) OnItemchangedUserList();
    return added;
}

int AccountsPresenter::RenameUser(int row) {
    AccountsTrace trace("CLoginPropDlg::RenameUser");
    return UpdateUserName(row);
}

int AccountsPresenter::UpdateUserName(int row) {
    AccountsTrace trace("CLoginPropDlg::UpdateUserName");
    const CGNString name = m_users.GetCellText(row, kUserNameColumn);
    const CGNString folder = m_users.GetCellText(row, kUserFolderColumn);
    if (!folder.IsEmpty()) {
        if (!RIsValidDirectory(folder)) RCreateDirectory(folder);
        ProfileWriteString("User", "User", name.c_str(), appenv::SettingsFilePath(folder).c_str());
    }
    return CAppEnv::RenameUser(m_users.GetOriginalLabel(), name);
}

int AccountsPresenter::RenameDirectory(int row) {
    AccountsTrace trace("CLoginPropDlg::RenameDirectory");
    const CGNString folder = m_users.GetCellText(row, kUserFolderColumn);
    const CGNString previous = m_users.GetOriginalLabel();
    // The add row's folder only prepares the folder of the user that will be added.
    if (row == kAddRow || folder == previous) return 0;
    const WindowHandle parent = m_view.GetWindowHandle();
    if (row == kDefaultUserRow) {
        if (!CAppEnv::SetDefaultHomePath(folder)) {
            RestoreOriginal(m_users, row, kUserFolderColumn);
            ReportStoreFailure(folder);
            return 0;
        }
        // The next new user is offered the new default folder, unless one was prepared.
        if (m_users.GetCellText(kAddRow, kUserFolderColumn) == m_strDefaultHomePath)
            m_users.SetCellText(kAddRow, kUserFolderColumn, folder);
        m_strDefaultHomePath = folder;
        m_nDirty = 1;
        OnItemchangedUserList();
        return 1;
    }
    if (!IsFullyQualified(folder)) {
        ShowError(parent, LoadMessageText(kStrAccountsRelativeFolder, {folder.view()}));
        RestoreOriginal(m_users, row, kUserFolderColumn);
        return 0;
    }
    MoveHomeFolder(previous, folder);
    if (!CAppEnv::SetUserHomePath(m_users.GetCellText(row, kUserNameColumn), folder)) {
        ShowError(parent, LoadMessageText(kStrAccountsFolderRenameFailed, {folder.view()}));
        RestoreOriginal(m_users, row, kUserFolderColumn);
        return 0;
    }
    m_nDirty = 1;
    OnItemchangedUserList();
    return 1;
}

// The settings files come along even into a folder that exists already; a new folder gets a
// copy of everything in the old one.
void AccountsPresenter::MoveHomeFolder(const CGNString& from, const CGNString& to) const {
    for (const char* file : kSettingsFiles)
        CopyFileKeepingTarget(MakeFilePath(from, file).str(), MakeFilePath(to, file).str());
    if (RIsValidDirectory(from) && !RIsValidDirectory(to) && !RCopyDirectory(from, to, 1))
        ShowError(m_view.GetWindowHandle(),
                  LoadMessageText(kStrFolderCopyFailed, {from.view(), to.view()}));
    if (!RIsValidDirectory(to)) RCreateDirectory(to);
}

// The rows selected when the run starts are visited from the bottom up; DeleteUser moves the
// selection to a row that was already visited, which therefore asks nothing.
int AccountsPresenter::DeleteSelectedUsers() {
    const std::vector<int> selected = m_users.GetSelectedRows();
    int deleted = 0;
    for (auto row = selected.rbegin(); row != selected.rend() && *row >= kFirstUserRow; ++row) {
        const CGNString name = m_users.GetCellText(*row, kUserNameColumn);
        if (name.IsEmpty() || name == Text(kStrAccountsAddUser)) continue;
        // No ends the run as it stands: users removed so far stay removed, and neither the
        // list nor the dirty flag is brought up to date.
        if (!accounts::AskRemove(m_view.GetWindowHandle(),
                                 LoadMessageText(kStrAccountsAskRemoveUser, {name.view()})))
            return 0;
        deleted = DeleteUser(*row);
    }
    if (deleted) m_nDirty |= UpdateUserList();
    return deleted;
}

int AccountsPresenter::DeleteUser(int row) {
    AccountsTrace trace("CLoginPropDlg::DeleteUser");
    if (!CAppEnv::DeleteUser(m_users.GetCellText(row, kUserNameColumn))) return 0;
    m_users.DeleteRow(row);
    const int next = row < m_users.GetRowCount() ? row : m_users.GetRowCount() - 1;
    m_users.SetRowSelected(next, true);
    m_users.SetFocusedRow(next);
    OnItemchangedUserList();
    return 1;
}

}  // namespace vx
