// The registry file in the settings home, kept by the settings store: reads share its parsed
// copy while the file is unchanged, and every edit is one locked read-modify-write.
#include "platform/file/SettingsStore.h"
#include "platform/registry/RegistryDocument.h"
#include "platform/registry/RegistryPath.h"
#include "platform/registry/RegistryStore.h"
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

class DocumentReader : public KeyReader {
public:
    DocumentReader(const RegistryDocument* document, const std::string& key)
        : m_document(document), m_foldedKey(FoldCase(NormalizeKeyPath(key))) {}
    bool Read(const std::string& name, RegistryValue& out) const override {
        const RegistryValue* value =
            m_document ? m_document->FindFolded(m_foldedKey, FoldCase(name)) : nullptr;
        if (value) out = *value;
        return value != nullptr;
    }

private:
    const RegistryDocument* m_document;
    std::string m_foldedKey;  // folded once for all the reads of an operation
};

class DocumentEditor : public KeyEditor {
public:
    DocumentEditor(RegistryDocument& document, std::string key)
        : m_document(document), m_key(std::move(key)) {}
    bool Read(const std::string& name, RegistryValue& out) const override {
        return DocumentReader(&m_document, m_key).Read(name, out);
    }
    bool Write(const std::string& name, const RegistryValue& value) override {
        m_changed = m_document.Set(m_key, name, value) || m_changed;
        return true;
    }
    bool Remove(const std::string& name) override {
        const bool removed = m_document.Remove(m_key, name);
        m_changed = removed || m_changed;
        return removed;
    }
    bool changed() const { return m_changed; }

private:
    RegistryDocument& m_document;
    std::string m_key;
    bool m_changed = false;
};

}  // namespace

std::string Location() {
    return ResolveSettingsFile(kFileName);
}

void ReadKey(const std::string& keyPath, const std::function<void(const KeyReader&)>& read) {
    const auto document = store::Read<RegistryDocument>(Location());
    read(DocumentReader(document.get(), FullKey(keyPath)));
}

bool EditKey(const std::string& keyPath, const std::function<void(KeyEditor&)>& edit) {
    return store::Edit<RegistryDocument>(Location(), FileAccess::OwnerOnly,
                                         [&](RegistryDocument& document) {
                                             DocumentEditor editor(document, FullKey(keyPath));
                                             edit(editor);
                                             return editor.changed();
                                         });
}

}  // namespace vx::registry
