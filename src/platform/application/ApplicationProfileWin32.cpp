// On Windows an application profile is the registry key
// HKEY_CURRENT_USER\Software\Korvel\<profile name>, with one subkey per section: the layout the
// framework gives applications that keep their profile in the registry.
#include <windows.h>

#include <cstring>
#include <string>

#include "platform/application/ApplicationProfile.h"
#include "platform/file/StoreFailure.h"

namespace vx::app_profile {
namespace {

std::string ProfileKey(const std::string& profileName) {
    return "Software\\Korvel\\" + profileName;
}

std::string SectionKey(const std::string& profileName, const char* section) {
    return ProfileKey(profileName) + "\\" + section;
}

class Key {
public:
    Key(const std::string& path, bool create) {
        LONG result = create ? RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0,
                                               KEY_READ | KEY_WRITE, nullptr, &m_key, nullptr)
                             : RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0,
                                             KEY_READ | KEY_WRITE, &m_key);
        if (result != ERROR_SUCCESS) m_key = nullptr;
    }
    ~Key() {
        if (m_key != nullptr) RegCloseKey(m_key);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

// Reads a value as text: a string as it stands, a number as its decimal text (so that numbered
// trace entries written as numbers still read back as present).
bool ReadText(const std::string& profileName, const char* section, const char* entry,
              std::string& text) {
    Key key(SectionKey(profileName, section), false);
    if (key.get() == nullptr) return false;
    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExA(key.get(), entry, nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return false;
    if (type == REG_DWORD) {
        DWORD number = 0;
        size = sizeof number;
        if (RegQueryValueExA(key.get(), entry, nullptr, nullptr, reinterpret_cast<BYTE*>(&number),
                             &size) != ERROR_SUCCESS)
            return false;
        text = std::to_string(static_cast<int>(number));
        return true;
    }
    if (type != REG_SZ && type != REG_EXPAND_SZ) return false;
    std::string buffer(size + 1, '\0');
    if (RegQueryValueExA(key.get(), entry, nullptr, nullptr, reinterpret_cast<BYTE*>(buffer.data()),
                         &size) != ERROR_SUCCESS)
        return false;
    buffer.resize(size);
    while (!buffer.empty() && buffer.back() == '\0')
        buffer.pop_back();
    text = buffer;
    return true;
}

// A write's result, with the key and the cause recorded when it failed.
bool Written(const std::string& key, LONG result) {
    return result == ERROR_SUCCESS ||
           StoreFailure("HKEY_CURRENT_USER\\" + key, SystemErrorText(static_cast<DWORD>(result)));
}

}  // namespace

std::string Location(const std::string& profileName) {
    return "HKEY_CURRENT_USER\\" + ProfileKey(profileName);
}

unsigned int GetInt(const std::string& profileName, const char* section, const char* entry,
                    int def) {
    Key key(SectionKey(profileName, section), false);
    DWORD type = 0;
    DWORD number = 0;
    DWORD size = sizeof number;
    if (key.get() == nullptr ||
        RegQueryValueExA(key.get(), entry, nullptr, &type, reinterpret_cast<BYTE*>(&number),
                         &size) != ERROR_SUCCESS ||
        type != REG_DWORD)
        return static_cast<unsigned int>(def);
    return number;
}

std::string GetString(const std::string& profileName, const char* section, const char* entry,
                      const char* def) {
    std::string text;
    return ReadText(profileName, section, entry, text) ? text : std::string(def);
}

bool WriteInt(const std::string& profileName, const char* section, const char* entry, int value) {
    Key key(SectionKey(profileName, section), true);
    DWORD number = static_cast<DWORD>(value);
    return Written(SectionKey(profileName, section),
                   key.get() == nullptr
                       ? ERROR_ACCESS_DENIED
                       : RegSetValueExA(key.get(), entry, 0, REG_DWORD,
                                        reinterpret_cast<const BYTE*>(&number), sizeof number));
}

bool WriteString(const std::string& profileName, const char* section, const char* entry,
                 const char* value) {
    if (entry == nullptr) {
        Key profile(ProfileKey(profileName), false);
        if (profile.get() == nullptr) return true;
        LONG result = RegDeleteTreeA(profile.get(), section);
        return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
    }
    if (value == nullptr) {
        Key key(SectionKey(profileName, section), false);
        if (key.get() == nullptr) return true;
        LONG result = RegDeleteValueA(key.get(), entry);
        return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
    }
    Key key(SectionKey(profileName, section), true);
    return Written(
        SectionKey(profileName, section),
        key.get() == nullptr
            ? ERROR_ACCESS_DENIED
            : RegSetValueExA(key.get(), entry, 0, REG_SZ, reinterpret_cast<const BYTE*>(value),
                             static_cast<DWORD>(std::strlen(value) + 1)));
}

}  // namespace vx::app_profile
