// The values of the users key "Korvel\VXUser\Users" (root "SOFTWARE") in the user registry.
// An operation reads them through one view (UserSlots) and changes several of them as one unit
// (UserSlotsEditor): see platform/registry/RegistryStore.h for what that means on each system.
// Reads return true when the value was found; absent strings read as "".
#pragma once

#include <functional>

#include "platform/registry/RegistryStore.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx::appenv {

inline constexpr const char* kDefaultFolderValue = "VXPATH0";
inline constexpr const char* kLastUserValue = "LastUserLoggedIn";
inline constexpr const char* kShowLangDllValue = "ShowLangDLLNotFound";
// "LastUserLoggedIn" when nobody is remembered.
inline constexpr long kNoSlot = -1;

// The name of a slot's entry: "USER%u", "VXPATH%u", also in the legacy profile.
CGNString SlotEntryName(const char* prefix, unsigned slot);

// Walks the slots from `first` up to the first one without a name.
struct SlotSearch {
    unsigned match = 0;  // the first slot holding the name; 0 when none does
    unsigned end = 0;    // the first slot without a name (only set when there is no match)
};

// Slot n is the pair "USER%u" (name) and "VXPATH%u" (home folder).
class UserSlots {
public:
    explicit UserSlots(const registry::KeyReader& key) : m_key(key) {}

    bool String(const char* valueName, CGNString& out) const;
    bool Number(const char* valueName, long def, long& out) const;
    bool Name(unsigned slot, CGNString& name) const;
    bool Folder(unsigned slot, CGNString& folder) const;
    SlotSearch Find(const CGNString& name, unsigned first = 1) const;
    // The folder of the first slot of this name that has one, else the default home folder.
    bool HomeFolderOf(const CGNString& name, CGNString& folder) const;

private:
    const registry::KeyReader& m_key;
};

class UserSlotsEditor : public UserSlots {
public:
    explicit UserSlotsEditor(registry::KeyEditor& key) : UserSlots(key), m_key(key) {}

    bool SetString(const char* valueName, const CGNString& value);
    bool SetNumber(const char* valueName, int value);
    bool SetName(unsigned slot, const CGNString& name);
    bool SetFolder(unsigned slot, const CGNString& folder);
    void RemoveName(unsigned slot);
    void RemoveFolder(unsigned slot);

private:
    registry::KeyEditor& m_key;
};

// Calls `read` with one view of the users key.
void ReadUsers(const std::function<void(const UserSlots&)>& read);
// Calls `edit` with the users key for changing, as one unit; false when the changes could not
// be stored.
bool EditUsers(const std::function<void(UserSlotsEditor&)>& edit);

// Single values, each as an operation of its own.
bool ReadRegistryString(const char* valueName, CGNString& out);
bool ReadRegistryNumber(const char* valueName, long def, long& out);
bool WriteRegistryString(const char* valueName, const CGNString& value);
bool WriteRegistryNumber(const char* valueName, int value);

}  // namespace vx::appenv
