// Minimal JSON text building for vxenv's --json output.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vxenv {

// The JSON string literal of `text` (bytes >= 0x80 are passed through as they are).
std::string JsonString(std::string_view text);

// An object written member by member, in insertion order.
class JsonObject {
public:
    JsonObject& Add(std::string_view name, std::string_view text);
    JsonObject& Add(std::string_view name, const char* text) {
        return Add(name, std::string_view(text));
    }
    JsonObject& Add(std::string_view name, long long number);
    JsonObject& Add(std::string_view name, bool flag);
    // `json` is inserted as it stands (a nested object or array).
    JsonObject& AddRaw(std::string_view name, std::string json);
    std::string Text() const;

private:
    std::vector<std::pair<std::string, std::string>> m_members;
};

std::string JsonArray(const std::vector<std::string>& elements);

}  // namespace vxenv
