// The system configuration primitives over the registry backend of the platform
// (src/platform/registry): the key path below HKEY_CURRENT_USER and the checks of names.
#include "vxutil/gnrt/OSConfigReg.h"

#include <cstdint>
#include <optional>

#include "platform/registry/RegistryPath.h"
#include "platform/registry/RegistryStore.h"

using vx::registry::RegistryValue;

namespace {

// Control characters cannot stand in the lines of the registry file; they are refused on every
// platform so that settings behave alike everywhere.
bool HasControlCharacter(std::string_view text) {
    for (char c : text)
        if (static_cast<unsigned char>(c) < 0x20) return true;
    return false;
}

// The key below HKEY_CURRENT_USER, or nothing for names the store cannot hold. The names are
// taken up to their first zero byte, as the Windows API sees them.
struct ValueAddress {
    std::string keyPath;
    std::string name;
};

std::optional<ValueAddress> AddressOf(const CGNString& root, const CGNString& keyPath,
                                      const CGNString& valueName) {
    ValueAddress address{
        vx::registry::NormalizeKeyPath(std::string(root.c_str()) + '\\' + keyPath.c_str()),
        valueName.c_str()};
    if (HasControlCharacter(address.keyPath) || HasControlCharacter(address.name))
        return std::nullopt;
    return address;
}

std::optional<RegistryValue> Read(const CGNString& root, const CGNString& keyPath,
                                  const CGNString& valueName) {
    const auto address = AddressOf(root, keyPath, valueName);
    RegistryValue value;
    if (!address || !vx::registry::ReadValue(address->keyPath, address->name, value))
        return std::nullopt;
    return value;
}

int Write(const CGNString& root, const CGNString& keyPath, const CGNString& valueName,
          const RegistryValue& value) {
    const auto address = AddressOf(root, keyPath, valueName);
    return address && vx::registry::WriteValue(address->keyPath, address->name, value) ? 1 : 0;
}

}  // namespace

int OSGetSystemConfigReg(CGNString& out, const CGNString& def, const CGNString& keyPath,
                         const CGNString& valueName, const CGNString& root) {
    const auto value = Read(root, keyPath, valueName);
    const auto text = value ? vx::registry::TextOf(*value) : std::nullopt;
    out = text ? CGNString(*text) : def;
    return text ? 1 : 0;
}

int OSGetSystemConfigReg(long& out, long def, const CGNString& keyPath, const CGNString& valueName,
                         const CGNString& root) {
    const auto value = Read(root, keyPath, valueName);
    const auto number = value ? vx::registry::NumberOf(*value) : std::nullopt;
    out = number ? *number : def;
    return number ? 1 : 0;
}

int OSSetSystemConfigReg(const CGNString& value, const CGNString& keyPath,
                         const CGNString& valueName, const CGNString& root) {
    return Write(root, keyPath, valueName, vx::registry::StringValue(value.c_str()));
}

int OSSetSystemConfigReg(int& value, const CGNString& keyPath, const CGNString& valueName,
                         const CGNString& root) {
    return Write(root, keyPath, valueName,
                 vx::registry::DwordValue(static_cast<std::uint32_t>(value)));
}

int OSDelSystemConfigReg(const CGNString& keyPath, const CGNString& valueName,
                         const CGNString& root) {
    const auto address = AddressOf(root, keyPath, valueName);
    return address && vx::registry::DeleteValue(address->keyPath, address->name) ? 1 : 0;
}

std::string vx::SystemConfigLocation() {
    return vx::registry::Location();
}
