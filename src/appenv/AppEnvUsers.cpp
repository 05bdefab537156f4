// Users and home folders: dense slots in the user registry, migrated from the legacy profile
// the first time they are listed.
//
// Every operation reads the users key through one view and changes it as one unit. Writes are
// ordered so that, where they reach the store one by one (the Windows registry, under the key's
// mutex; see docs/accounts.md), no state in between pairs a name with another user's folder.
#include <string>
#include <unordered_set>

#include "appenv/AppEnvTrace.h"
#include "appenv/LegacyUsers.h"
#include "appenv/UserRegistry.h"
#include "gnrt/MultiByte.h"
#include "vxutil/appenv/CAppEnv.h"

using namespace vx::appenv;

namespace {

// Puts the user in its slot, or in the first free one; the slot, 0 when there is none. The
// folder goes first, so that the name never stands without it.
unsigned PutUser(UserSlotsEditor& users, const CGNString& name, const CGNString& homeFolder) {
    const SlotSearch search = users.Find(name);
    const unsigned slot = search.match != 0 ? search.match : search.end;
    // Slot 0 would be the default folder; only a wrapped search can end there.
    if (slot == 0 || !users.SetFolder(slot, homeFolder) || !users.SetName(slot, name)) return 0;
    return slot;
}

// Moves the slots after `deleted` down by one. While a slot changes hands it holds the deleted
// user's name without a folder, a name without a folder (the later slot of that name answers
// for it), or a name that also stands in the slot below (which answers for it).
void CloseGap(UserSlotsEditor& users, unsigned deleted) {
    CGNString name;
    CGNString folder;
    for (unsigned slot = deleted;; ++slot) {
        if (!users.Name(slot + 1, name)) {
            users.RemoveName(slot);
            users.RemoveFolder(slot);
            return;
        }
        // When the next slot has a name but no folder, this slot keeps the folder it had, as
        // every client before this one left it.
        const bool hasFolder = users.Folder(slot + 1, folder);
        if (slot == deleted) {
            // The deleted user's folder goes before another name takes the slot.
            if (hasFolder) users.RemoveFolder(slot);
            users.SetName(slot, name);
            if (hasFolder) users.SetFolder(slot, folder);
        } else {
            // The name here stands in the slot below as well, which answers for it.
            if (hasFolder) users.SetFolder(slot, folder);
            users.SetName(slot, name);
        }
    }
}

}  // namespace

CAppEnv::flag CAppEnv::GetListOfUsers(CGNStringList& names, CGNStringList& homeFolders) {
    AppEnvTrace trace("CAppEnv::GetListOfUsers");
    names.RemoveAll();
    homeFolders.RemoveAll();
    // Names already listed, so that the unique add stays linear in the number of users.
    std::unordered_set<std::string> listed;
    const auto list = [&](const CGNString& name, const CGNString& folder) {
        // A name listed twice keeps the folder of its first slot.
        if (listed.insert(name.str()).second) {
            names.Add(name);
            homeFolders.Add(folder);
        }
    };
    ReadUsers([&](const UserSlots& users) {
        CGNString name;
        CGNString folder;
        for (unsigned slot = 1; slot != 0 && users.Name(slot, name); ++slot) {
            users.Folder(slot, folder);
            list(name, folder);
        }
    });
    if (!names.IsEmpty()) return 1;

    // No user in the registry yet: carry over the ones an older client left, in one unit.
    EditUsers([&](UserSlotsEditor& users) {
        for (unsigned slot = 1; slot != 0; ++slot) {
            const CGNString name = LegacyUserName(slot);
            if (name.IsEmpty()) break;
            const CGNString folder = LegacyUserFolder(slot);
            PutUser(users, name, folder);
            list(name, folder);
        }
    });
    CGNString migrated;  // called for its migration of the default folder only
    GetDefaultHomePath(migrated);
    return 1;
}

CAppEnv::flag CAppEnv::AddUser(const CGNString& name, const CGNString& homeFolder) {
    AppEnvTrace trace("CAppEnv::AddUser");
    unsigned slot = 0;
    const bool stored =
        EditUsers([&](UserSlotsEditor& users) { slot = PutUser(users, name, homeFolder); });
    return stored && slot != 0 ? 1 : 0;
}

CAppEnv::flag CAppEnv::SetUserHomePath(const CGNString& name, const CGNString& homeFolder) {
    AppEnvTrace trace("CAppEnv::SetUserHomePath");
    return AddUser(name, homeFolder);
}

CAppEnv::flag CAppEnv::DeleteUser(const CGNString& name) {
    AppEnvTrace trace("CAppEnv::DeleteUser");
    unsigned deleted = 0;
    const bool stored = EditUsers([&](UserSlotsEditor& users) {
        long last = kNoSlot;
        users.Number(kLastUserValue, kNoSlot, last);
        deleted = users.Find(name).match;
        if (deleted == 0) return;

        // Keep "LastUserLoggedIn" naming the same user after the later slots move down; while
        // they move, it names nobody.
        long kept = last;
        const long deletedSlot = static_cast<long>(deleted);
        if (last == deletedSlot) {
            kept = kNoSlot;
        } else if (last > deletedSlot) {
            --kept;
        }
        if (kept != last) users.SetNumber(kLastUserValue, static_cast<int>(kNoSlot));
        CloseGap(users, deleted);
        users.SetNumber(kLastUserValue, static_cast<int>(kept));
    });
    return stored && deleted != 0 ? 1 : 0;
}

int CAppEnv::RenameUser(const CGNString& oldName, const CGNString& newName) {
    AppEnvTrace trace("CAppEnv::RenameUser");
    int renamed = 0;
    const bool stored = EditUsers([&](UserSlotsEditor& users) {
        CGNString first;
        if (users.Name(1, first)) {
            const unsigned slot = users.Find(oldName).match;
            renamed = slot != 0 && users.SetName(slot, newName) ? 1 : 0;
            return;
        }
        // Users not yet migrated are renamed where they are, in the legacy profile.
        for (unsigned slot = 1; slot != 0; ++slot) {
            const CGNString name = LegacyUserName(slot);
            if (name.IsEmpty()) return;
            if (name == oldName) {
                renamed = WriteLegacyUserName(slot, newName) ? 1 : 0;
                return;
            }
        }
    });
    return stored ? renamed : 0;
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
    bool found = false;
    ReadUsers([&](const UserSlots& users) { found = users.HomeFolderOf(name, folder); });
    // Without a default folder in the registry, an older client's may still be migrated.
    return found ? 1 : GetDefaultHomePath(folder);
}

CAppEnv::flag CAppEnv::SetLastUserLoggedIn(const CGNString& name) {
    AppEnvTrace trace("CAppEnv::SetLastUserLoggedIn");
    bool written = false;
    const bool stored = EditUsers([&](UserSlotsEditor& users) {
        const unsigned slot = users.Find(name).match;
        const int number = slot != 0 ? static_cast<int>(slot) : static_cast<int>(kNoSlot);
        written = users.SetNumber(kLastUserValue, number);
    });
    return stored && written ? 1 : 0;
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
    ReadUsers([&](const UserSlots& users) {
        if (last != kNoSlot && users.Folder(lastSlot, path) && !path.IsEmpty() && folder)
            vx::mb::BoundedCopy(folder, vx::kHomeFolderBufferSize, path.c_str());
    });
}
