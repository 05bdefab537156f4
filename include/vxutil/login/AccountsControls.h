// The columns, context menus and commands of the accounts dialog's two lists, as data the view
// builds its list columns, menus and actions from. What a command does and when it is enabled
// or checked is the presenter's (AccountsPresenter::OnCommand, GetCommandState).
#pragma once

#include <vector>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/listctrl/ColumnSettings.h"

namespace vx {

// Context menus, one per column (AccountsColumn::menuId).
inline constexpr int kMenuServerName = 3021;
inline constexpr int kMenuWorkflowServer = 3022;
inline constexpr int kMenuNotifierServer = 3023;
inline constexpr int kMenuServerPorts = 3024;
inline constexpr int kMenuUserName = 3025;
inline constexpr int kMenuUserFolder = 3026;

// Commands of the context menus and of the toggle columns.
inline constexpr int kCmdEditServer = 3201;
inline constexpr int kCmdDeleteServer = 3202;
inline constexpr int kCmdConnectAtLogin = 3203;
inline constexpr int kCmdServerProperties = 3204;
inline constexpr int kCmdWorkflowServer = 3205;  // toggles column 1
inline constexpr int kCmdNotifierServer = 3206;  // toggles column 2
inline constexpr int kCmdEditUser = 3207;
inline constexpr int kCmdEditUserFolder = 3208;
inline constexpr int kCmdDeleteUser = 3209;
inline constexpr int kCmdEditPorts = 3211;
inline constexpr int kCmdEditWorkflowPort = 3212;
inline constexpr int kCmdEditNotifierPort = 3213;

// Columns of the two lists.
inline constexpr int kUserNameColumn = 0;
inline constexpr int kUserFolderColumn = 1;
inline constexpr int kServerNameColumn = 0;
inline constexpr int kWorkflowColumn = 1;  // toggle: the user logs in to it as a workflow server
inline constexpr int kNotifierColumn = 2;  // toggle: ... as a notifier server
inline constexpr int kWorkflowPortColumn = 3;
inline constexpr int kRpcColumn = 4;
inline constexpr int kNotifierPortColumn = 5;

struct AccountsColumn {
    unsigned type;  // cell type of ColumnSettings
    bool sizeable;
    bool toggles;       // a click on the cell posts toggleCommand
    int toggleCommand;  // 0: none
    bool directEdit;    // a single click starts the editor
    int menuId;
    bool centred;
    // Number cells: the range their editor keeps to while typing and the message names.
    int minimum = 0;
    int maximum = 0;
};

inline constexpr AccountsColumn kUserColumns[] = {
    {kCellText, true, false, 0, false, kMenuUserName, false},
    {kCellFolderBrowse, true, false, 0, true, kMenuUserFolder, false},
};

// Columns 3 to 5 (the ports) are shown only with the advanced server options.
inline constexpr AccountsColumn kServerColumns[] = {
    {kCellText, true, false, 0, false, kMenuServerName, false},
    {kCellToggleBitmap, false, true, kCmdWorkflowServer, false, kMenuWorkflowServer, false},
    {kCellToggleBitmap, false, true, kCmdNotifierServer, false, kMenuNotifierServer, false},
    {kCellHexadecimal, false, false, kCmdEditPorts, true, kMenuServerPorts, true, 0, 65535},
    // Which numbers of the range are private RPC numbers, RpcNumberRule decides.
    {kCellPrivateNumber, false, false, kCmdEditPorts, true, kMenuServerPorts, true, 0, 390694},
    {kCellHexadecimal, false, false, kCmdEditPorts, true, kMenuServerPorts, true, 0, 65535},
};

struct AccountsMenuEntry {
    int command;     // 0: a separator
    CGNString text;  // in the user's language
    bool checkable;
};

// The entries of context menu `menuId`, in order; empty for an unknown menu.
VXUTIL_API std::vector<AccountsMenuEntry> AccountsMenu(int menuId);

struct AccountsCommandState {
    bool enabled = false;
    bool checked = false;
};

}  // namespace vx
