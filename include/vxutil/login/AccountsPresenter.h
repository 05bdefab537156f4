// The rules of the accounts dialog CLoginPropDlg, without a toolkit: the user list (users and
// their home folders) and the server list of the selected user with its ports. The dialog is a
// thin view: it forwards the end of every cell edit, selection changes, toggle clicks, the
// Delete key, the check box and the menu commands here, and asks the edit hooks of its lists
// here too.
//
// Every change is stored through CAppEnv when its edit ends; Cancel undoes nothing, so IsDirty
// is how the caller learns that something changed. A store that fails leaves the lists and the
// dirty flag as they were before the edit, and says so.
//
// User list rows: 0 "Click to add new user", 1 "Default User" (both with the default home
// folder), then one row per user. Server list rows: 0 "Click to add new server", then one row
// per server of the user selected in the user list.
#pragma once

#include <vector>

#include "vxutil/appenv/ServerType.h"
#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/login/AccountsControls.h"

class CLoginOwner;

namespace vx {

class AccountsView;
class ListPort;

class VXUTIL_API AccountsPresenter {
public:
    // `currentUser` is the user the caller proposes; `owner` (may be null) tells which servers
    // are logged in and whether the port columns show by default. Nothing is owned.
    AccountsPresenter(AccountsView& view, ListPort& users, ListPort& servers,
                      const CGNString& currentUser, CLoginOwner* owner);
    AccountsPresenter(const AccountsPresenter&) = delete;
    AccountsPresenter& operator=(const AccountsPresenter&) = delete;

    // Fills the dialog; writes no setting.
    void OnInitDialog();
    // OK: stores the server column widths.
    void OnOK();
    int IsDirty() const { return m_nDirty; }
    // The user the dialog ends on: the caller's user, followed through renames and through the
    // selection of user rows (the add row and "Default User" are no users).
    const CGNString& GetCurrentUser() const { return m_strCurrentUser; }

    // 0 when another row has the same text in `column` (case-sensitive); its index goes to
    // `found`. 1 when the text is unique, and `found` is 0.
    int VerifyItemUnique(int row, int column, const ListPort& list, int* found) const;
    // The Delete key on either list.
    int OnListDeleteKey(ListPort& list);

    // User list.
    bool CanEditUserItem(int row, int column) const;
    // True where a single click starts the editor; elsewhere the list's own rule decides.
    bool IsUserDirectEdit(int row, int column) const;
    bool IsUserEditTextValid(int row, int column, const CGNString& text) const;
    // 1 when the edit stored something.
    int OnEndLabelEditUserList(int row, int column);
    void OnItemchangedUserList();
    int UpdateUserList();
    int AddUser(int row, const CGNString& name, const CGNString& folder);
    int DeleteUser(int row);
    int RenameUser(int row);
    int RenameDirectory(int row);
    int UpdateUserName(int row);

    // Server list.
    bool CanEditServerItem(int row, int column) const;
    // Refuses the add row's text in the name column, and port numbers the server cannot use,
    // telling the user why.
    bool IsServerEditTextValid(int row, int column, const CGNString& text) const;
    int OnEndLabelEditServerList(int row, int column);
    int UpdateServerList();
    void UpdatePortColumns();
    // The toggle image of a cell: 1 checked, 0 unchecked, -1 none.
    int GetServerImage(int row, int column) const;
    // A click on the toggle image of `row` in column 1 or 2: the row's state, inverted, goes to
    // every selected server row.
    void OnKorvelNotifyToggleBitmap(int row, int column);
    void ToggleSelServerColumn(int column);
    // 1 when `user` is the user the dialog was opened for, whose session the owner holds, and
    // the owner is logged in to `server` (letter case ignored, as host names do).
    int IsServerLoggedIn(const CGNString& user, const CGNString& server) const;
    // Whether the server of `row` is logged in, as the last fill of the list found.
    bool IsServerRowLoggedIn(int row) const;

    // The advanced server options check box was clicked (or set up).
    void OnAdvancedServerOptions();
    // "%i;%i;%i;%i;%i;%i": the server column widths to store under "Desktop"/"AccountsColumn".
    CGNString GetServerColumnWidths() const;

    // The context-menu commands of AccountsControls.h.
    void OnCommand(int command);
    AccountsCommandState GetCommandState(int command) const;

private:
    enum class ServerFlag { kWorkflow, kNotifier, kConnectAtLogin };
    struct ServerRow {
        tagSERVERTYPE server;
        bool loggedIn = false;
    };

    // Shared by both lists.
    static void ClearRows(ListPort& list);
    static void SelectOnly(ListPort& list, int row);
    static void RestoreOriginal(ListPort& list, int row, int column);
    static void PointAtDuplicate(ListPort& list, int row, int column, int found);
    void ReportStoreFailure(const CGNString& typed) const;
    void InsertColumns();
    CGNString UsersTitle() const;

    // User list.
    int AddTypedUser(const CGNString& name);
    void MoveHomeFolder(const CGNString& from, const CGNString& to) const;
    int DeleteSelectedUsers();

    // Server list.
    int SelectedUserRow() const;
    CGNString SelectedUserFolder() const;
    ServerRow* RowServer(int row);
    const ServerRow* RowServer(int row) const;
    std::vector<int> SelectedServerRows() const;
    bool SaveServers(const CGNString& subject);
    void SelectServer(const CGNString& name);
    int StoreServerText(int row, int column, const CGNString& text);
    int DeleteSelectedServers();
    static ServerFlag ColumnFlag(int column);
    static bool FlagValue(const tagSERVERTYPE& server, ServerFlag which);
    static void SetFlagValue(tagSERVERTYPE& server, ServerFlag which, bool on);
    bool AllSelectedHave(ServerFlag which) const;
    void ApplyServerFlag(ServerFlag which, bool on);
    void ToggleSelection(ServerFlag which);
    bool CheckPortText(int column, const CGNString& text) const;

    // Commands.
    void ShowServerProperties() const;
    void EditPorts();
    static void EditSelectedCell(ListPort& list, int column);

    AccountsView& m_view;
    ListPort& m_users;
    ListPort& m_servers;
    CGNString m_strCurrentUser;
    const CGNString m_strSessionUser;
    CLoginOwner* m_pOwner;
    CGNString m_strDefaultHomePath;
    std::vector<ServerRow> m_serverRows;  // rows 1 and later of the server list
    bool m_bPortsShown = false;
    bool m_bInitialising = false;
    int m_nDirty = 0;
};

}  // namespace vx
