// The values of the users key "Korvel\VXUser\Users" (root "SOFTWARE") in the user registry.
// Reads return true when the value was found; absent strings read as "".
#pragma once

#include "vxutil/gnrt/CGNString.h"

namespace vx::appenv {

inline constexpr const char* kDefaultFolderValue = "VXPATH0";
inline constexpr const char* kLastUserValue = "LastUserLoggedIn";
inline constexpr const char* kShowLangDllValue = "ShowLangDLLNotFound";
// "LastUserLoggedIn" when nobody is remembered.
inline constexpr long kNoSlot = -1;

// The name of a slot's entry: "USER%u", "VXPATH%u", also in the legacy profile.
CGNString SlotEntryName(const char* prefix, unsigned slot);

bool ReadRegistryString(const char* valueName, CGNString& out);
bool ReadRegistryNumber(const char* valueName, long def, long& out);
bool WriteRegistryString(const char* valueName, const CGNString& value);
bool WriteRegistryNumber(const char* valueName, int value);

// Slot n is the pair "USER%u" (name) and "VXPATH%u" (home folder).
bool ReadSlotName(unsigned slot, CGNString& name);
bool ReadSlotFolder(unsigned slot, CGNString& folder);
bool WriteSlotName(unsigned slot, const CGNString& name);
bool WriteSlotFolder(unsigned slot, const CGNString& folder);
void DeleteSlot(unsigned slot);

// Walks the slots from `first` up to the first one without a name.
struct SlotSearch {
    unsigned match = 0;  // the first slot holding the name; 0 when none does
    unsigned end = 0;    // the first slot without a name (only set when there is no match)
};
SlotSearch FindSlot(const CGNString& name, unsigned first = 1);

}  // namespace vx::appenv
