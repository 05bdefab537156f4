// The system configuration primitives over the backend of the platform. What they share lives
// here: the key path below HKEY_CURRENT_USER, and the readings of a number as text and of a text
// as a number.
#include "vxutil/gnrt/OSConfigReg.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>

#include "platform/registry/RegistryPath.h"
#include "platform/registry/RegistryStore.h"

using vx::registry::RegistryValue;
using vx::registry::ValueKind;

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

// A dword is a signed 32-bit number to the client: ffffffff is -1.
std::int32_t SignExtended(std::uint32_t dword) {
    return static_cast<std::int32_t>(dword);
}

// A text that holds a decimal 32-bit integer, blanks around it allowed.
std::optional<std::int32_t> ParseDecimal(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return std::nullopt;
    text = text.substr(first, text.find_last_not_of(" \t") - first + 1);
    if (text.starts_with('+')) text.remove_prefix(1);
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

}  // namespace

int OSGetSystemConfigReg(CGNString& out, const CGNString& def, const CGNString& keyPath,
                         const CGNString& valueName, const CGNString& root) {
    const auto value = Read(root, keyPath, valueName);
    if (value && value->kind == ValueKind::String) {
        out = CGNString(value->text);
        return 1;
    }
    if (value && value->kind == ValueKind::Dword) {
        out = CGNString(std::to_string(SignExtended(value->dword)));
        return 1;
    }
    out = def;
    return 0;
}

int OSGetSystemConfigReg(long& out, long def, const CGNString& keyPath, const CGNString& valueName,
                         const CGNString& root) {
    const auto value = Read(root, keyPath, valueName);
    std::optional<std::int32_t> number;
    if (value && value->kind == ValueKind::Dword) number = SignExtended(value->dword);
    if (value && value->kind == ValueKind::String) number = ParseDecimal(value->text);
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
