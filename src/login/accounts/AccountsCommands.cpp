// The context-menu commands of the accounts dialog: what each menu holds, when a command is
// enabled or checked, and what it does.
#include <vector>

#include "gnrt/StringTable.h"
#include "login/accounts/AccountsText.h"
#include "login/accounts/AccountsTrace.h"
#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/ListPort.h"
#include "vxutil/runtime/MessageText.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace vx {

using accounts::AccountsTrace;
using accounts::Text;

namespace {

struct CommandInfo {
    int command;
    unsigned textId;
    bool checkable;
    const char* handler;  // the names the command's trace entries carry
    const char* updateHandler;
};

constexpr CommandInfo kCommands[] = {
    {kCmdEditServer, kStrAccountsMenuEditServer, false, "CLoginPropDlg::OnAccountsEditServer",
     "CLoginPropDlg::OnUpdateAccountsEditServer"},
    {kCmdDeleteServer, kStrAccountsMenuDeleteServer, false, "CLoginPropDlg::OnAccountsDeleteServer",
     "CLoginPropDlg::OnUpdateAccountsDeleteServer"},
    {kCmdConnectAtLogin, kStrAccountsMenuConnectAtLogin, true, "CLoginPropDlg::OnAccountsCALServer",
     "CLoginPropDlg::OnUpdateAccountsCALServer"},
    {kCmdServerProperties, kStrAccountsMenuProperties, false, "CLoginPropDlg::OnAccountsPropServer",
     "CLoginPropDlg::OnUpdateAccountsPropServer"},
    {kCmdWorkflowServer, kStrAccountsMenuWorkflowServer, true, "CLoginPropDlg::OnAccountsVXServer",
     "CLoginPropDlg::OnUpdateAccountsVXServer"},
    {kCmdNotifierServer, kStrAccountsMenuNotifierServer, true, "CLoginPropDlg::OnAccountsNTServer",
     "CLoginPropDlg::OnUpdateAccountsNTServer"},
    {kCmdEditUser, kStrAccountsMenuEditUser, false, "CLoginPropDlg::OnAccountsEditUser",
     "CLoginPropDlg::OnUpdateAccountsEditUser"},
    {kCmdEditUserFolder, kStrAccountsMenuEditFolder, false, "CLoginPropDlg::OnAccountsEditUserDir",
     "CLoginPropDlg::OnUpdateAccountsEditUserDir"},
    {kCmdDeleteUser, kStrAccountsMenuDeleteUser, false, "CLoginPropDlg::OnAccountsDeleteUser",
     "CLoginPropDlg::OnUpdateAccountsDeleteUser"},
    {kCmdEditPorts, kStrAccountsMenuEditPorts, false, "CLoginPropDlg::OnAccountsEditPorts",
     "CLoginPropDlg::OnUpdateAccountsEditPorts"},
    {kCmdEditWorkflowPort, kStrAccountsMenuEditWorkflowPort, false,
     "CLoginPropDlg::OnAccountsVXPort", "CLoginPropDlg::OnUpdateAccountsVXPort"},
    {kCmdEditNotifierPort, kStrAccountsMenuEditNotifierPort, false,
     "CLoginPropDlg::OnAccountsNTPort", "CLoginPropDlg::OnUpdateAccountsNTPort"},
};

const CommandInfo* FindCommand(int command) {
    for (const CommandInfo& info : kCommands)
        if (info.command == command) return &info;
    return nullptr;
}

constexpr int kSeparator = 0;

std::vector<int> MenuCommands(int menuId) {
    switch (menuId) {
        case kMenuServerName:
            return {kCmdEditServer,     kCmdDeleteServer,   kSeparator,
                    kCmdWorkflowServer, kCmdNotifierServer, kCmdConnectAtLogin,
                    kSeparator,         kCmdEditPorts,      kCmdServerProperties};
        case kMenuWorkflowServer:
            return {kCmdWorkflowServer, kCmdConnectAtLogin, kSeparator, kCmdServerProperties};
        case kMenuNotifierServer:
            return {kCmdNotifierServer, kCmdConnectAtLogin, kSeparator, kCmdServerProperties};
        case kMenuServerPorts:
            return {kCmdEditWorkflowPort, kCmdEditNotifierPort, kSeparator, kCmdServerProperties};
        case kMenuUserName:
            return {kCmdEditUser, kCmdEditUserFolder, kSeparator, kCmdDeleteUser};
        case kMenuUserFolder:
            return {kCmdEditUserFolder, kCmdEditUser, kSeparator, kCmdDeleteUser};
        default:
            return {};
    }
}

}  // namespace

std::vector<AccountsMenuEntry> AccountsMenu(int menuId) {
    std::vector<AccountsMenuEntry> entries;
    for (int command : MenuCommands(menuId)) {
        const CommandInfo* info = FindCommand(command);
        entries.push_back(info != nullptr
                              ? AccountsMenuEntry{command, Text(info->textId), info->checkable}
                              : AccountsMenuEntry{kSeparator, CGNString(), false});
    }
    return entries;
}

AccountsCommandState AccountsPresenter::GetCommandState(int command) const {
    const CommandInfo* info = FindCommand(command);
    if (info == nullptr) return {};
    AccountsTrace trace(info->updateHandler);
    const bool servers = !SelectedServerRows().empty();
    const bool oneServer = SelectedServerRows().size() == 1;
    const std::vector<int> users = m_users.GetSelectedRows();
    switch (command) {
        case kCmdEditServer:
            return {SelectedUserRow() >= 1 && m_servers.GetSelectedRows().size() == 1};
        case kCmdDeleteServer:
            return {servers};
        case kCmdConnectAtLogin:
            return {servers, AllSelectedHave(ServerFlag::kConnectAtLogin)};
        case kCmdWorkflowServer:
            return {servers, AllSelectedHave(ServerFlag::kWorkflow)};
        case kCmdNotifierServer:
            return {servers, AllSelectedHave(ServerFlag::kNotifier)};
        case kCmdServerProperties:
        case kCmdEditPorts:
            return {oneServer};
        case kCmdEditWorkflowPort:
        case kCmdEditNotifierPort:
            return {oneServer && m_bPortsShown};
        case kCmdEditUser:
            return {users.size() == 1 && CanEditUserItem(users.front(), kUserNameColumn)};
        case kCmdEditUserFolder:
            return {users.size() == 1};
        case kCmdDeleteUser:
            // Rows 0 and 1 are never deleted.
            return {!users.empty() && users.back() >= 2};
        default:
            return {};
    }
}

void AccountsPresenter::OnCommand(int command) {
    const CommandInfo* info = FindCommand(command);
    if (info == nullptr) return;
    AccountsTrace trace(info->handler);
    if (!GetCommandState(command).enabled) return;
    switch (command) {
        case kCmdEditServer:
            return EditSelectedCell(m_servers, kServerNameColumn);
        case kCmdDeleteServer:
            OnListDeleteKey(m_servers);
            return;
        case kCmdConnectAtLogin:
            return ToggleSelection(ServerFlag::kConnectAtLogin);
        case kCmdServerProperties:
            return ShowServerProperties();
        case kCmdWorkflowServer:
            return ToggleSelServerColumn(kWorkflowColumn);
        case kCmdNotifierServer:
            return ToggleSelServerColumn(kNotifierColumn);
        case kCmdEditUser:
            return EditSelectedCell(m_users, kUserNameColumn);
        case kCmdEditUserFolder:
            return EditSelectedCell(m_users, kUserFolderColumn);
        case kCmdDeleteUser:
            OnListDeleteKey(m_users);
            return;
        case kCmdEditPorts:
            return EditPorts();
        case kCmdEditWorkflowPort:
            return EditSelectedCell(m_servers, kWorkflowPortColumn);
        case kCmdEditNotifierPort:
            return EditSelectedCell(m_servers, kNotifierPortColumn);
        default:
            return;
    }
}

void AccountsPresenter::EditSelectedCell(ListPort& list, int column) {
    list.EditCell(list.GetSelectedRows().front(), column);
}

// Shows the port columns when they are hidden, and starts with the server's TCP port.
void AccountsPresenter::EditPorts() {
    if (!m_bPortsShown) {
        m_view.SetAdvancedOptionsChecked(true);
        OnAdvancedServerOptions();
    }
    EditSelectedCell(m_servers, kWorkflowPortColumn);
}

void AccountsPresenter::ShowServerProperties() const {
    const int row = SelectedServerRows().front();
    const tagSERVERTYPE& server = RowServer(row)->server;
    const CGNString yes = Text(kStrAccountsYes), no = Text(kStrAccountsNo);
    const CGNString byDefault = Text(kStrAccountsDefaultPort);
    const auto answer = [&](bool on) { return on ? yes.view() : no.view(); };
    const auto port = [&](const CGNString& value) {
        return value.IsEmpty() ? byDefault.view() : value.view();
    };
    const CGNString text = LoadMessageText(
        kStrAccountsServerProperties,
        {server.m_strName.view(), m_users.GetCellText(SelectedUserRow(), kUserNameColumn).view(),
         answer(server.m_bWorkflow != 0), answer(server.m_bNotifier != 0),
         answer(server.m_bDisabled == 0), answer(IsServerRowLoggedIn(row)),
         port(server.m_strWorkflowPort), port(server.m_strWorkflowRpc),
         port(server.m_strNotifierPort)});
    RUserPrompt::Current().Show(m_view.GetWindowHandle(), text.c_str(), nullptr,
                                kMbOk | kMbIconInformation);
}

}  // namespace vx
