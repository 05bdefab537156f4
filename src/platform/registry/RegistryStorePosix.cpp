// The registry file in the settings home. Reads share one parsed copy of the file, taken again
// only when the file changed on disk; every write goes through the locked read-edit-rename of
// UpdateFile, so that concurrent writers never lose each other's values.
#include <functional>
#include <memory>
#include <mutex>

#include "platform/registry/RegistryDocument.h"
#include "platform/registry/RegistryStore.h"
#include "vxutil/platform/SafeFile.h"
#include "vxutil/platform/SettingsHome.h"

namespace vx::registry {
namespace {

constexpr const char* kFileName = "registry.reg";
// The hive that the Windows client uses, so that regedit imports the file into the same place.
constexpr std::string_view kHive = "HKEY_CURRENT_USER";

std::string FullKey(const std::string& keyPath) {
    std::string key(kHive);
    if (!keyPath.empty()) key += '\\' + keyPath;
    return key;
}

class DocumentCache {
public:
    // The parsed file as it is now on disk; null when it cannot be read.
    std::shared_ptr<const RegistryDocument> Current(const std::string& path) {
        const FileStamp stamp = StatFile(path);
        std::lock_guard lock(m_mutex);
        if (m_document && m_path == path && m_stamp == stamp) return m_document;
        std::string content;
        FileStamp readStamp;
        if (!ReadWholeFile(path, content, readStamp)) return nullptr;
        m_document = std::make_shared<const RegistryDocument>(RegistryDocument::FromBytes(content));
        m_path = path;
        m_stamp = readStamp;
        return m_document;
    }

    // A file rewritten within the resolution of its time stamp could otherwise look unchanged.
    void Forget() {
        std::lock_guard lock(m_mutex);
        m_document.reset();
    }

private:
    std::mutex m_mutex;
    std::string m_path;
    FileStamp m_stamp;
    std::shared_ptr<const RegistryDocument> m_document;
};

DocumentCache& Cache() {
    static DocumentCache cache;
    return cache;
}

// Applies `change` to the file under its lock. `changed` tells whether anything was written.
bool EditFile(const std::function<bool(RegistryDocument&)>& change, bool& changed) {
    changed = false;
    EnsureSettingsHome();
    const bool written = UpdateFile(
        Location(),
        [&](std::string& content) {
            RegistryDocument document = RegistryDocument::FromBytes(content);
            changed = change(document);
            if (changed) content = document.ToBytes();
            return changed;
        },
        FileAccess::OwnerOnly);
    Cache().Forget();
    return written;
}

}  // namespace

std::string Location() {
    return ResolveSettingsFile(kFileName);
}

bool ReadValue(const std::string& keyPath, const std::string& name, RegistryValue& out) {
    const auto document = Cache().Current(Location());
    const RegistryValue* value = document ? document->Find(FullKey(keyPath), name) : nullptr;
    if (!value) return false;
    out = *value;
    return true;
}

bool WriteValue(const std::string& keyPath, const std::string& name, const RegistryValue& value) {
    bool changed = false;
    return EditFile(
        [&](RegistryDocument& document) { return document.Set(FullKey(keyPath), name, value); },
        changed);
}

bool DeleteValue(const std::string& keyPath, const std::string& name) {
    bool changed = false;
    const bool written = EditFile(
        [&](RegistryDocument& document) { return document.Remove(FullKey(keyPath), name); },
        changed);
    return written && changed;
}

}  // namespace vx::registry
