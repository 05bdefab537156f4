#include "appenv/UserRegistry.h"

#include <cstdio>
#include <string>

#include "vxutil/appenv/SettingsLayout.h"

namespace vx::appenv {
namespace {

// "SOFTWARE" + "Korvel\VXUser\Users", as a normalized key path below HKEY_CURRENT_USER.
const std::string& UsersKey() {
    static const std::string key = std::string(kUsersKeyRoot) + "\\" + kUsersKeyPath;
    return key;
}

std::string EntryName(const char* prefix, unsigned slot) {
    char name[32];
    std::snprintf(name, sizeof name, "%s%u", prefix, slot);
    return name;
}

}  // namespace

CGNString SlotEntryName(const char* prefix, unsigned slot) {
    return CGNString(EntryName(prefix, slot));
}

bool UserSlots::String(const char* valueName, CGNString& out) const {
    registry::RegistryValue value;
    const auto text = m_key.Read(valueName, value) ? registry::TextOf(value) : std::nullopt;
    out = text ? CGNString(*text) : CGNString();
    return text.has_value();
}

bool UserSlots::Number(const char* valueName, long def, long& out) const {
    registry::RegistryValue value;
    const auto number = m_key.Read(valueName, value) ? registry::NumberOf(value) : std::nullopt;
    out = number ? *number : def;
    return number.has_value();
}

bool UserSlots::Name(unsigned slot, CGNString& name) const {
    return String(EntryName("USER", slot).c_str(), name);
}

bool UserSlots::Folder(unsigned slot, CGNString& folder) const {
    return String(EntryName("VXPATH", slot).c_str(), folder);
}

SlotSearch UserSlots::Find(const CGNString& name, unsigned first) const {
    CGNString slotName;
    // The counter is unsigned; should it ever wrap, the search ends at slot 0.
    for (unsigned slot = first; slot != 0; ++slot) {
        if (!Name(slot, slotName)) return {0, slot};
        if (slotName == name) return {slot, 0};
    }
    return {0, 0};
}

bool UserSlots::HomeFolderOf(const CGNString& name, CGNString& folder) const {
    CGNString found;
    // A slot of this name without a folder lets a later slot of the same name answer.
    for (unsigned slot = Find(name).match; slot != 0; slot = Find(name, slot + 1).match) {
        if (Folder(slot, found)) {
            folder = found;
            return true;
        }
    }
    if (!String(kDefaultFolderValue, found)) return false;
    folder = found;
    return true;
}

bool UserSlotsEditor::SetString(const char* valueName, const CGNString& value) {
    return m_key.Write(valueName, registry::StringValue(value.str()));
}

bool UserSlotsEditor::SetNumber(const char* valueName, int value) {
    return m_key.Write(valueName, registry::DwordValue(static_cast<std::uint32_t>(value)));
}

bool UserSlotsEditor::SetName(unsigned slot, const CGNString& name) {
    return SetString(EntryName("USER", slot).c_str(), name);
}

bool UserSlotsEditor::SetFolder(unsigned slot, const CGNString& folder) {
    return SetString(EntryName("VXPATH", slot).c_str(), folder);
}

void UserSlotsEditor::RemoveName(unsigned slot) {
    m_key.Remove(EntryName("USER", slot));
}

void UserSlotsEditor::RemoveFolder(unsigned slot) {
    m_key.Remove(EntryName("VXPATH", slot));
}

void ReadUsers(const std::function<void(const UserSlots&)>& read) {
    registry::ReadKey(UsersKey(), [&](const registry::KeyReader& key) { read(UserSlots(key)); });
}

bool EditUsers(const std::function<void(UserSlotsEditor&)>& edit) {
    return registry::EditKey(UsersKey(), [&](registry::KeyEditor& key) {
        UserSlotsEditor users(key);
        edit(users);
    });
}

bool ReadRegistryString(const char* valueName, CGNString& out) {
    bool found = false;
    ReadUsers([&](const UserSlots& users) { found = users.String(valueName, out); });
    return found;
}

bool ReadRegistryNumber(const char* valueName, long def, long& out) {
    bool found = false;
    ReadUsers([&](const UserSlots& users) { found = users.Number(valueName, def, out); });
    return found;
}

bool WriteRegistryString(const char* valueName, const CGNString& value) {
    bool written = false;
    return EditUsers(
               [&](UserSlotsEditor& users) { written = users.SetString(valueName, value); }) &&
           written;
}

bool WriteRegistryNumber(const char* valueName, int value) {
    bool written = false;
    return EditUsers(
               [&](UserSlotsEditor& users) { written = users.SetNumber(valueName, value); }) &&
           written;
}

}  // namespace vx::appenv
