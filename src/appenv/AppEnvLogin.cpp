// The remembered login: the last user's name and password in the "vx.ini" of that user's home
// folder, and the last logon name in the default home folder's "vx.ini".
#include "appenv/AppEnvTrace.h"
#include "appenv/SettingsFile.h"
#include "appenv/UserRegistry.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/MultiByte.h"
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
        if (!ReadSlotName(slot, name) || name.IsEmpty()) return 0;
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
    CGNString userFolder;
    CGNString userFile;
    if (!FindHomeDirectory(user, userFolder) || !SettingsFileOf(userFolder, userFile)) return 0;
    const CGNString osUser = ClientGetOSUserName();
    CGNString defaultFolder;
    CGNString defaultFile;
    if (!GetDefaultHomePath(defaultFolder) || !SettingsFileOf(defaultFolder, defaultFile)) return 0;

    if (!WriteUserValue(userFile, "User", user)) return 0;
    WriteUserValue(defaultFile, "OSUser", osUser.c_str());
    WriteUserValue(userFile, "Password", password);
    return 1;
}
