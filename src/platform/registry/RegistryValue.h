// One value of the system configuration store, as the backends hand it to the front end.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vx::registry {

enum class ValueKind {
    String,  // REG_SZ
    Dword,   // REG_DWORD
    Other,   // any other kind: present, but not readable through this library
};

struct RegistryValue {
    ValueKind kind = ValueKind::String;
    std::string text;         // String
    std::uint32_t dword = 0;  // Dword

    friend bool operator==(const RegistryValue&, const RegistryValue&) = default;
};

inline RegistryValue StringValue(std::string text) {
    return {ValueKind::String, std::move(text), 0};
}
inline RegistryValue DwordValue(std::uint32_t number) {
    return {ValueKind::Dword, {}, number};
}

// The value as text: a string as it stands, a dword as its signed decimal text (ffffffff is
// "-1"); nothing for another kind.
std::optional<std::string> TextOf(const RegistryValue& value);
// The value as a signed 32-bit number: a dword sign-extended, a string holding a decimal
// integer (blanks around it allowed); nothing otherwise.
std::optional<std::int32_t> NumberOf(const RegistryValue& value);

}  // namespace vx::registry
