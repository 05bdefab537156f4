// The backend of the system configuration store, one per OS: the user's registry hive on
// Windows, the registry file in the settings home elsewhere. Key paths are relative to
// HKEY_CURRENT_USER, already normalized ("SOFTWARE\Korvel\VXUser\Users"); an empty value name
// addresses the key's default value.
#pragma once

#include <string>

#include "platform/registry/RegistryValue.h"

namespace vx::registry {

// Where the values are kept, for display.
std::string Location();
// True when the value exists (of any kind); false when it is absent or cannot be read.
bool ReadValue(const std::string& keyPath, const std::string& name, RegistryValue& out);
// Creates the key when needed. False when the value could not be stored.
bool WriteValue(const std::string& keyPath, const std::string& name, const RegistryValue& value);
// True when the value existed and was removed.
bool DeleteValue(const std::string& keyPath, const std::string& name);

}  // namespace vx::registry
