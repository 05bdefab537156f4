// The remembered login: the last user's name and password in the "vx.ini" of that user's home
// folder, and the last logon name in the default home folder's "vx.ini".
#include "appenv/AppEnvTrace.h"
#include "appenv/SettingsFile.h"
#include "appenv/UserRegistry.h"
#include "gnrt/MultiByte.h"
#include "platform/profile/ProfileEdit.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/login/OSUserName.h"
#include "vxutil/platform/ProfileFile.h"

using namespace vx::appenv;

namespace {

// The "vx.ini" of a folder that must exist: an empty folder has no settings file of its own,
// and its path would name one at the root of the file system.
bool SettingsFileOf(const CGNString& folder, CGNString& file) {
    if (folder.IsEmpty()) return false;
    file = SettingsFilePath(folder);
    return true;
}

}  // namespace

CAppEnv::flag CAppEnv::PromptForLogin(CGNString& homeFolder) {
    AppEnvTrace trace("CAppEnv::PromptForLogin");
    // The caller's string is left holding the file path; callers rely on it.
    homeFolder = SettingsFilePath(homeFolder);
    return static_cast<flag>(vx::ProfileGetInt("Desktop", "PromptForLogin", 0, homeFolder.c_str()));
}

CAppEnv::flag CAppEnv::GetLastUserAndPassword(char* user, char* password) {
    AppEnvTrace trace("CAppEnv::GetLastUserAndPassword");
    if (user == nullptr || password == nullptr) return 0;
    char folder[vx::kHomeFolderBufferSize];
    unsigned int slot = static_cast<unsigned int>(kNoSlot);
    GetLastUserAndPath(&slot, folder, sizeof folder);
    if (slot == static_cast<unsigned int>(kNoSlot)) return 0;

    CGNString file;
    const bool hasFile = SettingsFileOf(folder, file);
    user[0] = '\0';
    if (hasFile) ReadUserValue(file, "User", user);
    if (user[0] == '\0') {
        // A file without the name: the user is the one in the slot.
        CGNString name;
        bool named = false;
        ReadUsers([&](const UserSlots& users) { named = users.Name(slot, name); });
        if (!named || name.IsEmpty()) return 0;
        vx::mb::BoundedCopy(user, vx::kNameBufferSize, name.c_str());
    }
    password[0] = '\0';
    if (hasFile) ReadUserValue(file, "Password", password);
    return 1;
}

CAppEnv::flag CAppEnv::GetUserAndPassword(const CGNString& homeFolder, char* user, char* password) {
    AppEnvTrace trace("CAppEnv::GetUserAndPassword");
    if (user == nullptr || password == nullptr) return 0;
    const CGNString file = SettingsFilePath(homeFolder);
    if (ReadUserValue(file, "User", user) == 0) return 0;
    ReadUserValue(file, "Password", password);
    return 1;
}

CAppEnv::flag CAppEnv::GetLastOSUser(char* osUser) {
    AppEnvTrace trace("CAppEnv::GetLastOSUser");
    CGNString folder;
    CGNString file;
    if (osUser == nullptr || !GetDefaultHomePath(folder) || !SettingsFileOf(folder, file)) return 0;
    return ReadUserValue(file, "OSUser", osUser) > 0 ? 1 : 0;
}

CAppEnv::flag CAppEnv::SetLastUserAndPassword(const char* user, const char* password) {
    AppEnvTrace trace("CAppEnv::SetLastUserAndPassword");
    if (user == nullptr || password == nullptr) return 0;
    const CGNString osUser = ClientGetOSUserName();
    CGNString migrated;  // an older client's default folder is carried over first
    GetDefaultHomePath(migrated);
    flag stored = 0;
    // The users stay as they are until the login is written: no other process moves this
    // user's slot, and with it the folder, in between.
    EditUsers([&](UserSlotsEditor& users) {
        CGNString userFolder;
        CGNString userFile;
        CGNString defaultFolder;
        CGNString defaultFile;
        if (!users.HomeFolderOf(user, userFolder) || !SettingsFileOf(userFolder, userFile) ||
            !users.String(kDefaultFolderValue, defaultFolder) ||
            !SettingsFileOf(defaultFolder, defaultFile))
            return;
        // Name and password are one unit: a refused password leaves the old login whole. The
        // logon name of a separate default folder's file is written afterwards, its result
        // ignored.
        if (userFile == defaultFile) {
            stored =
                vx::ProfileWriteValues(
                    "User", {{"User", user}, {"OSUser", osUser.c_str()}, {"Password", password}},
                    userFile.c_str())
                    ? 1
                    : 0;
            return;
        }
        if (!vx::ProfileWriteValues("User", {{"User", user}, {"Password", password}},
                                    userFile.c_str()))
            return;
        stored = 1;
        WriteUserValue(defaultFile, "OSUser", osUser.c_str());
    });
    return stored;
}
