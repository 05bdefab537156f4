#include "appenv/UserRegistry.h"

#include <cstdio>

#include "vxutil/gnrt/OSConfigReg.h"

namespace vx::appenv {
namespace {

constexpr const char* kUsersKey = "Korvel\\VXUser\\Users";
constexpr const char* kRoot = "SOFTWARE";

}  // namespace

CGNString SlotEntryName(const char* prefix, unsigned slot) {
    CGNString name;
    name.Format("%s%u", prefix, slot);
    return name;
}

bool ReadRegistryString(const char* valueName, CGNString& out) {
    return OSGetSystemConfigReg(out, "", kUsersKey, valueName, kRoot) > 0;
}

bool ReadRegistryNumber(const char* valueName, long def, long& out) {
    return OSGetSystemConfigReg(out, def, kUsersKey, valueName, kRoot) > 0;
}

bool WriteRegistryString(const char* valueName, const CGNString& value) {
    return OSSetSystemConfigReg(value, kUsersKey, valueName, kRoot) > 0;
}

bool WriteRegistryNumber(const char* valueName, int value) {
    return OSSetSystemConfigReg(value, kUsersKey, valueName, kRoot) > 0;
}

bool ReadSlotName(unsigned slot, CGNString& name) {
    return ReadRegistryString(SlotEntryName("USER", slot).c_str(), name);
}

bool ReadSlotFolder(unsigned slot, CGNString& folder) {
    return ReadRegistryString(SlotEntryName("VXPATH", slot).c_str(), folder);
}

bool WriteSlotName(unsigned slot, const CGNString& name) {
    return WriteRegistryString(SlotEntryName("USER", slot).c_str(), name);
}

bool WriteSlotFolder(unsigned slot, const CGNString& folder) {
    return WriteRegistryString(SlotEntryName("VXPATH", slot).c_str(), folder);
}

void DeleteSlot(unsigned slot) {
    OSDelSystemConfigReg(kUsersKey, SlotEntryName("USER", slot), kRoot);
    OSDelSystemConfigReg(kUsersKey, SlotEntryName("VXPATH", slot), kRoot);
}

SlotSearch FindSlot(const CGNString& name, unsigned first) {
    CGNString slotName;
    // The counter is unsigned; should it ever wrap, the search ends at slot 0.
    for (unsigned slot = first; slot != 0; ++slot) {
        if (!ReadSlotName(slot, slotName)) return {0, slot};
        if (slotName == name) return {slot, 0};
    }
    return {0, 0};
}

}  // namespace vx::appenv
