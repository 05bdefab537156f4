// Users and home folders: dense slots in the user registry, migrated from the legacy profile
// the first time they are listed.
#include <string>
#include <unordered_set>

#include "appenv/AppEnvTrace.h"
#include "appenv/LegacyUsers.h"
#include "appenv/UserRegistry.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/MultiByte.h"

using namespace vx::appenv;

CAppEnv::flag CAppEnv::GetListOfUsers(CGNStringList& names, CGNStringList& homeFolders) {
    AppEnvTrace trace("CAppEnv::GetListOfUsers");
    names.RemoveAll();
    homeFolders.RemoveAll();
    // Names already listed, so that the unique add stays linear in the number of users.
    std::unordered_set<std::string> listed;
    bool registrySeen = false;
    CGNString name;
    CGNString folder;
    for (unsigned slot = 1; slot != 0; ++slot) {
        if (ReadSlotName(slot, name)) {
            registrySeen = true;
            ReadSlotFolder(slot, folder);
        } else if (registrySeen) {
            break;
        } else {
            // No user in the registry yet: carry over the ones an older client left.
            name = LegacyUserName(slot);
            if (name.IsEmpty()) break;
            folder = LegacyUserFolder(slot);
            AddUser(name, folder);
        }
        // A name listed twice keeps the folder of its first slot.
        if (listed.insert(name.str()).second) {
            names.Add(name);
            homeFolders.Add(folder);
        }
    }
    if (!registrySeen) {
        CGNString migrated;  // called for its migration of the default folder only
        GetDefaultHomePath(migrated);
    }
    return 1;
}

CAppEnv::flag CAppEnv::AddUser(const CGNString& name, const CGNString& homeFolder) {
    AppEnvTrace trace("CAppEnv::AddUser");
    const SlotSearch search = FindSlot(name);
    const unsigned slot = search.match != 0 ? search.match : search.end;
    // Slot 0 would be the default folder; only a wrapped search can end there.
    if (slot == 0 || !WriteSlotName(slot, name)) return 0;
    return WriteSlotFolder(slot, homeFolder) ? 1 : 0;
}

CAppEnv::flag CAppEnv::SetUserHomePath(const CGNString& name, const CGNString& homeFolder) {
    AppEnvTrace trace("CAppEnv::SetUserHomePath");
    return AddUser(name, homeFolder);
}

CAppEnv::flag CAppEnv::DeleteUser(const CGNString& name) {
    AppEnvTrace trace("CAppEnv::DeleteUser");
    long last = kNoSlot;
    ReadRegistryNumber(kLastUserValue, kNoSlot, last);
    const unsigned deleted = FindSlot(name).match;
    if (deleted == 0) return 0;

    // Keep "LastUserLoggedIn" naming the same user after the later slots move down.
    const long deletedSlot = static_cast<long>(deleted);
    if (last == deletedSlot) {
        last = kNoSlot;
    } else if (last > deletedSlot) {
        --last;
    }
    WriteRegistryNumber(kLastUserValue, static_cast<int>(last));

    CGNString moved;
    for (unsigned slot = deleted;; ++slot) {
        if (!ReadSlotName(slot + 1, moved)) {
            DeleteSlot(slot);
            break;
        }
        WriteSlotName(slot, moved);
        // When the next slot has a name but no folder, this slot keeps the folder it had, as
        // every client before this one left it.
        if (ReadSlotFolder(slot + 1, moved)) WriteSlotFolder(slot, moved);
    }
    return 1;
}

int CAppEnv::RenameUser(const CGNString& oldName, const CGNString& newName) {
    AppEnvTrace trace("CAppEnv::RenameUser");
    bool registrySeen = false;
    unsigned found = 0;
    CGNString name;
    for (unsigned slot = 1; slot != 0 && found == 0; ++slot) {
        if (ReadSlotName(slot, name)) {
            registrySeen = true;
        } else {
            name = LegacyUserName(slot);
            if (name.IsEmpty()) break;
        }
        if (name == oldName) found = slot;
    }
    if (found == 0) return 0;
    // Users not yet migrated are renamed where they are, in the legacy profile.
    if (registrySeen) return WriteSlotName(found, newName) ? 1 : 0;
    return WriteLegacyUserName(found, newName) ? 1 : 0;
}

CAppEnv::flag CAppEnv::GetDefaultHomePath(CGNString& folder) {
    AppEnvTrace trace("CAppEnv::GetDefaultHomePath");
    folder.Empty();
    CGNString value;
    if (ReadRegistryString(kDefaultFolderValue, value)) {
        folder = value;
        return 1;
    }
    value = LegacyDefaultFolder();
    if (value.IsEmpty()) return 0;
    folder = value;
    WriteRegistryString(kDefaultFolderValue, value);
    return 1;
}

CAppEnv::flag CAppEnv::SetDefaultHomePath(const CGNString& folder) {
    AppEnvTrace trace("CAppEnv::SetDefaultHomePath");
    return WriteRegistryString(kDefaultFolderValue, folder) ? 1 : 0;
}

CAppEnv::flag CAppEnv::FindHomeDirectory(const CGNString& name, CGNString& folder) {
    AppEnvTrace trace("CAppEnv::FindHomeDirectory");
    CGNString found;
    // A slot of this name without a folder lets a later slot of the same name answer.
    for (unsigned slot = FindSlot(name).match; slot != 0; slot = FindSlot(name, slot + 1).match) {
        if (ReadSlotFolder(slot, found)) {
            folder = found;
            return 1;
        }
    }
    return GetDefaultHomePath(folder);
}

CAppEnv::flag CAppEnv::SetLastUserLoggedIn(const CGNString& name) {
    AppEnvTrace trace("CAppEnv::SetLastUserLoggedIn");
    const unsigned slot = FindSlot(name).match;
    const int number = slot != 0 ? static_cast<int>(slot) : static_cast<int>(kNoSlot);
    return WriteRegistryNumber(kLastUserValue, number) ? 1 : 0;
}

void CAppEnv::GetLastUserAndPath(unsigned int* slot, char* folder, int /*size*/) {
    AppEnvTrace trace("CAppEnv::GetLastUserAndPath");
    if (folder != nullptr) folder[0] = '\0';
    long last = kNoSlot;
    if (!ReadRegistryNumber(kLastUserValue, kNoSlot, last)) {
        // First run after an older client: take its last user and migrate the users the
        // number refers to.
        last = LegacyLastUser();
        CGNStringList names(10);
        CGNStringList folders(10);
        GetListOfUsers(names, folders);
        WriteRegistryNumber(kLastUserValue, static_cast<int>(last));
    }
    const auto lastSlot = static_cast<unsigned int>(last);
    if (slot != nullptr) *slot = lastSlot;
    CGNString path;
    if (last != kNoSlot && folder != nullptr && ReadSlotFolder(lastSlot, path) && !path.IsEmpty())
        vx::mb::BoundedCopy(folder, vx::kHomeFolderBufferSize, path.c_str());
}
