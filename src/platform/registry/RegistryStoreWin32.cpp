// The user's registry hive. Only REG_SZ and REG_DWORD are read; a value of another kind is
// reported as present but unreadable.
#include <windows.h>

#include <cstring>

#include "platform/registry/RegistryStore.h"

namespace vx::registry {
namespace {

class OpenKey {
public:
    OpenKey(const std::string& path, REGSAM access, bool create) {
        const LSTATUS status =
            create ? RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr,
                                     REG_OPTION_NON_VOLATILE, access, nullptr, &m_key, nullptr)
                   : RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, access, &m_key);
        if (status != ERROR_SUCCESS) m_key = nullptr;
    }
    ~OpenKey() {
        if (m_key) RegCloseKey(m_key);
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

// The value's type and bytes. The value may grow between the size query and the read, so the
// read is tried again a few times.
bool QueryValue(HKEY key, const std::string& name, DWORD& type, std::string& data) {
    DWORD size = 0;
    LSTATUS status = RegQueryValueExA(key, name.c_str(), nullptr, &type, nullptr, &size);
    for (int attempt = 0; attempt < 4; ++attempt) {
        if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA) return false;
        data.resize(size);
        status = RegQueryValueExA(key, name.c_str(), nullptr, &type,
                                  reinterpret_cast<BYTE*>(data.data()), &size);
        if (status == ERROR_SUCCESS) {
            data.resize(size);
            return true;
        }
    }
    return false;
}

}  // namespace

std::string Location() {
    return "HKEY_CURRENT_USER";
}

bool ReadValue(const std::string& keyPath, const std::string& name, RegistryValue& out) {
    OpenKey key(keyPath, KEY_QUERY_VALUE, false);
    DWORD type = REG_NONE;
    std::string data;
    if (!key.get() || !QueryValue(key.get(), name, type, data)) return false;
    if (type == REG_SZ) {
        // The stored terminator, if any, is not part of the text.
        out = StringValue(std::string(data.c_str()));
    } else if (type == REG_DWORD && data.size() == sizeof(DWORD)) {
        DWORD number = 0;
        std::memcpy(&number, data.data(), sizeof number);
        out = DwordValue(number);
    } else {
        out = {ValueKind::Other, {}, 0};
    }
    return true;
}

bool WriteValue(const std::string& keyPath, const std::string& name, const RegistryValue& value) {
    OpenKey key(keyPath, KEY_SET_VALUE, true);
    if (!key.get()) return false;
    if (value.kind == ValueKind::Dword) {
        const DWORD number = value.dword;
        return RegSetValueExA(key.get(), name.c_str(), 0, REG_DWORD,
                              reinterpret_cast<const BYTE*>(&number),
                              sizeof number) == ERROR_SUCCESS;
    }
    return RegSetValueExA(key.get(), name.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(value.text.c_str()),
                          static_cast<DWORD>(value.text.size() + 1)) == ERROR_SUCCESS;
}

bool DeleteValue(const std::string& keyPath, const std::string& name) {
    OpenKey key(keyPath, KEY_SET_VALUE, false);
    return key.get() && RegDeleteValueA(key.get(), name.c_str()) == ERROR_SUCCESS;
}

}  // namespace vx::registry
