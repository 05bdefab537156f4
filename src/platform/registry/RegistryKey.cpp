// Single values over the key views of the backend, and the readings of a value.
#include <charconv>

#include "platform/registry/RegistryStore.h"

namespace vx::registry {
namespace {

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

std::optional<std::string> TextOf(const RegistryValue& value) {
    if (value.kind == ValueKind::String) return value.text;
    if (value.kind == ValueKind::Dword) return std::to_string(SignExtended(value.dword));
    return std::nullopt;
}

std::optional<std::int32_t> NumberOf(const RegistryValue& value) {
    if (value.kind == ValueKind::Dword) return SignExtended(value.dword);
    if (value.kind == ValueKind::String) return ParseDecimal(value.text);
    return std::nullopt;
}

bool ReadValue(const std::string& keyPath, const std::string& name, RegistryValue& out) {
    bool found = false;
    ReadKey(keyPath, [&](const KeyReader& key) { found = key.Read(name, out); });
    return found;
}

bool WriteValue(const std::string& keyPath, const std::string& name, const RegistryValue& value) {
    bool written = false;
    return EditKey(keyPath, [&](KeyEditor& key) { written = key.Write(name, value); }) && written;
}

bool DeleteValue(const std::string& keyPath, const std::string& name) {
    bool removed = false;
    return EditKey(keyPath, [&](KeyEditor& key) { removed = key.Remove(name); }) && removed;
}

}  // namespace vx::registry
