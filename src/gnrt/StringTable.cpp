#include "gnrt/StringTable.h"

#include <algorithm>
#include <iterator>

#include "vxutil/foundation/CVXStatusList.h"

namespace vx {
namespace {

struct Entry {
    unsigned id;
    const char* text;
};

// Sorted by id. "%1" and "%2" are insertion points filled by the message code.
constexpr Entry kTable[] = {
    {kStrFolderMissingCreate, "%1\n\nThis folder does not exist - create?"},
    {kStrFolderCreateFailed,
     "%1\n\nError creating folder.  Please verify folder location and security permissions and "
     "try again."},
    {kStrFolderCopyFailed,
     "Error in copying folder '%1' to '%2'.  Unable to copy at least one file.  Please verify "
     "that the paths and privileges are set properly.  Also verify that duplicate files do not "
     "already exist in the target directory, and that the disk is not full."},
    {kStrNumberOutOfRange,
     "Invalid number, %s.\nDecimal numbers have the format of \"1234\".\nHexadecimal numbers have "
     "the format of \"0x1234\".\nPlease enter a valid number.\n\nDecimal range is %d to "
     "%d.\nHexadecimal range is 0x%X to 0x%X."},
    {kStrPrivateRpcNumber,
     "A private server's RPC socket number must be 390600 or in the range of 390680-390694."},
    {kStrDialogBarFont, "Font..."},
    {kStrDialogBarBackground, "Background..."},
    {kStrBrowseFolder, "Browse..."},
    {kStrSelectFolder, "Select Folder"},
    {kStrAccountsUsers, "Users"},
    {kStrAccountsServers, "Servers"},
    {kStrAccountsUserColumn, "User"},
    {kStrAccountsFolderColumn, "VX Home Folder"},
    {kStrAccountsServerColumn, "Server Name"},
    {kStrAccountsWorkflowColumn, "VX Svr"},
    {kStrAccountsNotifierColumn, "Ntfy Svr"},
    {kStrAccountsWorkflowPortColumn, "VX TCP Port"},
    {kStrAccountsRpcColumn, "VX RPC #"},
    {kStrAccountsNotifierPortColumn, "Ntfy TCP Port"},
    {kStrAccountsAddUser, "Click to add new user"},
    {kStrAccountsDefaultUser, "Default User"},
    {kStrAccountsAddServer, "Click to add new server"},
    {kStrAccountsAskRemoveUser, "Permanently remove user '%1'?"},
    {kStrAccountsAskRemoveServers, "Permanently remove the selected servers from user '%1'?"},
    {kStrAccountsRelativeFolder,
     "Relative folder directory ('%1') is not suggested.  Please enter a fully-qualified "
     "folder location."},
    {kStrAccountsFolderRenameFailed,
     "Unable to rename user home directory:\n\n==> %1\n\nPlease make sure that no files are open "
     "within this directory or any of its subdirectories.  Also, make sure that the new name is "
     "not already used."},
    {kStrAccountsStoreFailed,
     "Unable to save the change to '%1', so it has been undone.  Please make sure that the "
     "settings can be written and try again."},
    {kStrAccountsBadServerName,
     "'%1' cannot be used as a server name.  A server name has at most 64 characters, "
     "contains no blanks and does not begin with '#'."},
    {kStrAccountsMenuEditServer, "Edit Server"},
    {kStrAccountsMenuDeleteServer, "Delete Server"},
    {kStrAccountsMenuConnectAtLogin, "Connect to server at login"},
    {kStrAccountsMenuProperties, "Properties..."},
    {kStrAccountsMenuWorkflowServer, "VX Server"},
    {kStrAccountsMenuNotifierServer, "Notifier Server"},
    {kStrAccountsMenuEditPorts, "Edit Ports"},
    {kStrAccountsMenuEditWorkflowPort, "Edit VX TCP Port"},
    {kStrAccountsMenuEditNotifierPort, "Edit Notifier TCP Port"},
    {kStrAccountsMenuEditUser, "Edit User"},
    {kStrAccountsMenuEditFolder, "Edit Folder"},
    {kStrAccountsMenuDeleteUser, "Delete User"},
    {kStrAccountsServerProperties,
     "Server: %1\nUser: %2\n\nVX server: %3\nNotifier server: %4\nConnect at login: %5\n"
     "Logged in now: %6\n\nVX TCP port: %7\nVX RPC #: %8\nNotifier TCP port: %9"},
    {kStrAccountsYes, "Yes"},
    {kStrAccountsNo, "No"},
    {kStrAccountsDefaultPort, "(default)"},
    {kStrAccountsCaption, "Accounts"},
    {kStrAccountsAdvancedOptions, "&Advanced server options"},
    {kStrLoginCaption, "Login"},
    {kStrLoginUserNameLabel, "&User Name:"},
    {kStrLoginPasswordLabel, "&Password:"},
    {kStrLoginAccountsButton, "&Accounts..."},
    {kStrLoginOkButton, "OK"},
    {kStrLoginCancelButton, "Cancel"},
    {kStrLoginFieldTooLong,
     "The user name or the password is too long: each can hold at most 30 characters, fewer "
     "when it contains accented or non-Latin letters."},
    {kStrLoginShowPassword, "Show password"},
    {kStrLoginHidePassword, "Hide password"},
    {kStrLoginCapsLockOn, "Caps Lock is on"},
    {kStrAboutCaption, "About "},
    {kStrAboutVersion, "Version %1.%2 (Build %3)"},
    {kStrAboutSystemInfo, "&System information:"},
    {kStrButtonOk, "OK"},
    {kStrButtonCancel, "Cancel"},
    {kStrButtonAbort, "Abort"},
    {kStrButtonRetry, "Retry"},
    {kStrButtonIgnore, "Ignore"},
    {kStrButtonYes, "Yes"},
    {kStrButtonNo, "No"},
    {kStrButtonTryAgain, "Try Again"},
    {kStrButtonContinue, "Continue"},
    {kStrAnswered, "[answered: %1]"},
    {kStrLargestFreeBlock, "Largest Free Memory Block"},
    {kStrSwapSpaceSize, "Swap Space Size"},
    {kStrUserHeap, "User Heap"},
    {kStrWinsockVersion, "Winsock Version"},
    {kStrMaxSockets, "Max Sockets"},
    {kStrMaxDatagram, "Max Datagram"},
    {kStrSocketDescription, "Description"},
    {kStrSocketStatus, "Status"},
    {kStrResourceVersion, "Resource DLL Version"},
    {CVXStatusList::kDateOutOfRange, "'%s' is not a valid date. Dates must lie between %s and %s."},
    {CVXStatusList::kTimeOutOfRange, "'%s' is not a valid time. Times must lie between %s and %s."},
    {CVXStatusList::kDateTimeOutOfRange,
     "'%s' is not a valid date and time. Values must lie between %s and %s."},
};

static_assert(std::is_sorted(std::begin(kTable), std::end(kTable),
                             [](const Entry& a, const Entry& b) { return a.id < b.id; }),
              "the string table must stay sorted by id for the binary search");

}  // namespace

const char* BuiltInString(unsigned id) {
    const Entry* entry = std::lower_bound(
        std::begin(kTable), std::end(kTable), id,
        [](const Entry& candidate, unsigned wanted) { return candidate.id < wanted; });
    return (entry != std::end(kTable) && entry->id == id) ? entry->text : nullptr;
}

}  // namespace vx
