// The backend of the system configuration store, one per OS: the user's registry hive on
// Windows, the registry file in the settings home elsewhere. Key paths are relative to
// HKEY_CURRENT_USER, already normalized ("SOFTWARE\Korvel\VXUser\Users"); an empty value name
// addresses the key's default value.
//
// An operation that reads or changes several values of a key does so through one view:
// - on POSIX a read sees one version of the registry file, and an edit is one locked
//   read-modify-write of it with one rename, so a crash leaves all its changes or none;
// - on Windows a named mutex per key keeps other processes' reads and edits of the key out
//   while the view is in use, and an edit's writes reach the registry in the order made, so a
//   caller orders them such that every state in between is one a reader may see.
#pragma once

#include <functional>
#include <string>

#include "platform/registry/RegistryValue.h"

namespace vx::registry {

class KeyReader {
public:
    virtual ~KeyReader() = default;
    // True when the value exists (of any kind); false when it is absent or cannot be read.
    virtual bool Read(const std::string& name, RegistryValue& out) const = 0;
};

class KeyEditor : public KeyReader {
public:
    // Creates the key when needed. False when the value could not be stored.
    virtual bool Write(const std::string& name, const RegistryValue& value) = 0;
    // True when the value existed and was removed.
    virtual bool Remove(const std::string& name) = 0;
};

// Where the values are kept, for display.
std::string Location();
// Calls `read` with the key as it is now.
void ReadKey(const std::string& keyPath, const std::function<void(const KeyReader&)>& read);
// Calls `edit` with the key for changing, as one unit. False when the changes could not be
// stored (the cause is recorded, see StoreError.h).
bool EditKey(const std::string& keyPath, const std::function<void(KeyEditor&)>& edit);

// One value, each through a view of its own.
bool ReadValue(const std::string& keyPath, const std::string& name, RegistryValue& out);
bool WriteValue(const std::string& keyPath, const std::string& name, const RegistryValue& value);
// True when the value existed and was removed.
bool DeleteValue(const std::string& keyPath, const std::string& name);

}  // namespace vx::registry
