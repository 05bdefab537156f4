// The user's registry hive. Only REG_SZ and REG_DWORD are read; a value of another kind is
// reported as present but unreadable. Views of a key hold a named mutex of that key for as long
// as they are in use, so that an operation of several values is isolated from other processes.
#include <windows.h>

#include <cstring>

#include "platform/file/NativeFile.h"
#include "platform/file/StoreFailure.h"
#include "platform/registry/RegistryPath.h"
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

bool ReadFrom(HKEY key, const std::string& name, RegistryValue& out) {
    DWORD type = REG_NONE;
    std::string data;
    if (!key || !QueryValue(key, name, type, data)) return false;
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

// The mutex of a key, held from construction to destruction. A holder that died leaves it
// abandoned, which hands it on like a release: the values it wrote stand in the safe order.
class KeyMutex {
public:
    explicit KeyMutex(const std::string& keyPath) {
        std::string name = "Local\\vxutil-registry-" + FoldCase(keyPath);
        for (std::size_t i = sizeof "Local\\" - 1; i < name.size(); ++i)
            if (name[i] == '\\') name[i] = '/';
        const HANDLE mutex = ::CreateMutexA(nullptr, FALSE, name.c_str());
        if (!mutex) return;
        m_mutex = NativeFile(mutex);
        const DWORD waited = ::WaitForSingleObject(m_mutex.get(), INFINITE);
        m_held = waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED;
    }
    KeyMutex(const KeyMutex&) = delete;
    KeyMutex& operator=(const KeyMutex&) = delete;
    ~KeyMutex() {
        if (m_held) ::ReleaseMutex(m_mutex.get());
    }

private:
    NativeFile m_mutex;
    bool m_held = false;
};

class HiveReader : public KeyReader {
public:
    explicit HiveReader(const std::string& keyPath) : m_key(keyPath, KEY_QUERY_VALUE, false) {}
    bool Read(const std::string& name, RegistryValue& out) const override {
        return ReadFrom(m_key.get(), name, out);
    }

private:
    OpenKey m_key;
};

class HiveEditor : public KeyEditor {
public:
    explicit HiveEditor(const std::string& keyPath)
        : m_path(keyPath), m_key(keyPath, KEY_QUERY_VALUE | KEY_SET_VALUE, true) {}
    bool Read(const std::string& name, RegistryValue& out) const override {
        return ReadFrom(m_key.get(), name, out);
    }
    bool Write(const std::string& name, const RegistryValue& value) override {
        LSTATUS status = ERROR_INVALID_HANDLE;
        if (m_key.get() && value.kind == ValueKind::Dword) {
            const DWORD number = value.dword;
            status = RegSetValueExA(m_key.get(), name.c_str(), 0, REG_DWORD,
                                    reinterpret_cast<const BYTE*>(&number), sizeof number);
        } else if (m_key.get()) {
            status = RegSetValueExA(m_key.get(), name.c_str(), 0, REG_SZ,
                                    reinterpret_cast<const BYTE*>(value.text.c_str()),
                                    static_cast<DWORD>(value.text.size() + 1));
        }
        if (status == ERROR_SUCCESS) return true;
        m_failed = true;
        return StoreFailure("HKEY_CURRENT_USER\\" + m_path, SystemErrorText(status));
    }
    bool Remove(const std::string& name) override {
        return m_key.get() && RegDeleteValueA(m_key.get(), name.c_str()) == ERROR_SUCCESS;
    }
    bool failed() const { return m_failed || !m_key.get(); }

private:
    std::string m_path;
    OpenKey m_key;
    bool m_failed = false;
};

}  // namespace

std::string Location() {
    return "HKEY_CURRENT_USER";
}

void ReadKey(const std::string& keyPath, const std::function<void(const KeyReader&)>& read) {
    const KeyMutex isolated(keyPath);
    read(HiveReader(keyPath));
}

bool EditKey(const std::string& keyPath, const std::function<void(KeyEditor&)>& edit) {
    const KeyMutex isolated(keyPath);
    HiveEditor editor(keyPath);
    edit(editor);
    return !editor.failed();
}

}  // namespace vx::registry
