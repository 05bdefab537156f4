// Minimal JSON text building for vxenv's --json output.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vxenv {

// The JSON string literal of `text`, a text of the client's character set, always valid UTF-8:
// on POSIX the text is UTF-8, and a byte that starts no UTF-8 character is read as Latin-1 (as
// older clients wrote their settings); on Windows the text is in the ANSI code page.
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
    // `json` is inserted as it stands (a nested object or array, or null).
    JsonObject& AddRaw(std::string_view name, std::string json);
    std::string Text() const;

private:
    std::vector<std::pair<std::string, std::string>> m_members;
};

std::string JsonArray(const std::vector<std::string>& elements);

}  // namespace vxenv
