// CAppEnv: the one door through which the client tools reach their persistent settings.
//
// Four stores hold them:
// - the user registry, key "Korvel\VXUser\Users" under root "SOFTWARE": users in dense slots
//   "USER%u"/"VXPATH%u" from 1, the default home folder "VXPATH0", "LastUserLoggedIn" and
//   "ShowLangDLLNotFound";
// - the legacy profile section "VXUser", where older clients kept their users; read to migrate
//   them ("Vxpath%u" is spelled as those clients wrote it);
// - "vx.ini" in a home folder: "Desktop"/"PromptForLogin" and the remembered login in "User";
// - the application profile of RApplication::Current(): the display, query and network
//   preferences. Without a current application its reads give the defaults and its writes do
//   nothing.
// Nothing is cached: every call goes to the stores. Operations never throw and show nothing; they
// report through their flag results (1 done, 0 not done).
//
// Arguments an operation only reads are const references; code written against non-const
// signatures compiles unchanged.
#pragma once

#include "vxutil/appenv/ServerType.h"
#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"
#include "vxutil/gnrt/CGNStringList.h"

class CVXServerNameList;

namespace vx {
// The per-folder settings file and the command folder name, shared with the login dialogs.
inline constexpr const char* kSettingsFileName = "vx.ini";
inline constexpr const char* kCommandFolderName = "vxcmds";
// Sizes of the character buffers at this interface, terminating zero included.
inline constexpr int kNameBufferSize = 31;  // user, password and logon names: 30 bytes of text
inline constexpr int kHomeFolderBufferSize = 1024;
}  // namespace vx

class VXUTIL_API CAppEnv {
public:
    using flag = unsigned char;

    // Preferences (application profile).
    static unsigned GetMenuDisplayMethod();
    static void SetMenuDisplayMethod(unsigned method);
    static void GetMenuThresholds(unsigned& levelThreshold, unsigned& itemsThreshold);
    static void SetMenuThresholds(unsigned levelThreshold, unsigned itemsThreshold);
    static int GetArrowKeyStepSize();
    static void SetArrowKeyStepSize(int stepSize);
    static flag ExpandMenuItemsAtStartup();
    static void ExpandMenuItemsAtStartup(flag expand);
    static int GetMaxInQuery();
    static void SetMaxInQuery(int maxInQuery);
    static flag GetIsLimitedQuery();
    static void SetIsLimitedQuery(flag limited);
    static int GetCloseAfterSubmitAction();
    static unsigned long GetRPCTimeoutNormal();
    static unsigned long GetRPCTimeoutLong();
    static unsigned long GetRPCTimeoutXLong();
    // The registry value, or the application profile's when the registry cannot be used.
    static flag GetShouldShowLangDLLNotFound();
    static void SetShouldShowLangDLLNotFound(flag show);

    // The search path for macros: "User"/"VXPath" split at ";", or the single folder
    // homeFolder + "vxcmds" when that is empty. Reports use the very same list. Both give 1.
    static flag GetMacroPathList(const CGNString& homeFolder, CGNStringList& paths);
    static flag GetReportPathList(const CGNString& homeFolder, CGNStringList& paths);

    // Users and home folders (user registry; legacy users migrate on first listing).
    static flag GetListOfUsers(CGNStringList& names, CGNStringList& homeFolders);
    // Adds the user in a new slot, or replaces the folder of an existing one.
    static flag AddUser(const CGNString& name, const CGNString& homeFolder);
    static flag SetUserHomePath(const CGNString& name, const CGNString& homeFolder);
    // Moves later slots down and keeps "LastUserLoggedIn" naming the same user.
    static flag DeleteUser(const CGNString& name);
    static int RenameUser(const CGNString& oldName, const CGNString& newName);
    static flag GetDefaultHomePath(CGNString& folder);
    static flag SetDefaultHomePath(const CGNString& folder);
    // The user's folder; the default home folder when the user has none.
    static flag FindHomeDirectory(const CGNString& name, CGNString& folder);
    static flag SetLastUserLoggedIn(const CGNString& name);
    // `slot` receives the last user's slot (0xFFFFFFFF for none) and `folder`, which must hold
    // kHomeFolderBufferSize bytes, that user's home folder or "". `size` is not consulted.
    static void GetLastUserAndPath(unsigned int* slot, char* folder, int size);

    // Servers of a user: the file "VX" in the user's home folder.
    // All entries (disabled ones without their "#"), or the enabled workflow ("VX") or notifier
    // ("NT") servers; names are appended to `list`. 0 when the file cannot be read.
    static flag GetServerList(const CGNString& homeFolder, CVXServerNameList& list, flag allEntries,
                              flag workflowServers);
    // Replaces the whole file with one workflow-server line per name.
    static flag SetVXServerList(const CGNString& homeFolder, const CVXServerNameList& list);
    // Replaces the whole file with one full line per record.
    static flag SetServerList(const CGNString& homeFolder, const ServerTypeList& servers);
    // The named server's flags and its workflow TCP port, RPC number and notifier TCP port
    // (empty when the file has none). 0 when the name is empty or not in the file.
    static flag GetServerAttributes(const CGNString& homeFolder, const CGNString& server,
                                    flag& disabled, flag& workflow, flag& notifier,
                                    CGNString& workflowPort, CGNString& workflowRpc,
                                    CGNString& notifierPort);
    // The same with the workflow TCP port and the RPC number only.
    static flag GetServerAttributes(const CGNString& homeFolder, const CGNString& server,
                                    flag& disabled, flag& workflow, flag& notifier,
                                    CGNString& workflowPort, CGNString& workflowRpc);

    // Remembered login ("vx.ini"). Name and password buffers hold kNameBufferSize bytes; longer
    // stored values come back cut to 30 bytes at a character boundary.
    // Turns `homeFolder` into the path of its "vx.ini" and gives "Desktop"/"PromptForLogin".
    static flag PromptForLogin(CGNString& homeFolder);
    static flag GetLastUserAndPassword(char* user, char* password);
    static flag GetUserAndPassword(const CGNString& homeFolder, char* user, char* password);
    static flag GetLastOSUser(char* osUser);
    // Stores the login in the user's "vx.ini" and the logon name in the default folder's; does
    // not change "LastUserLoggedIn".
    static flag SetLastUserAndPassword(const char* user, const char* password);
};
