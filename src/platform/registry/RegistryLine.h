// The line grammar of regedit's text files ("Windows Registry Editor Version 5.00" and
// "REGEDIT4"). A logical line is one physical line, or for binary-style data ("hex:...",
// "hex(2):...") several joined by a trailing backslash. Every line keeps the text it was read
// from, so that whatever is not understood is written back exactly as it stood.
#pragma once

#include <string>
#include <string_view>

#include "platform/registry/RegistryValue.h"

namespace vx::registry {

inline constexpr std::string_view kHeaderVersion5 = "Windows Registry Editor Version 5.00";
inline constexpr std::string_view kHeaderVersion4 = "REGEDIT4";

enum class LineType {
    Blank,
    Header,
    Comment,        // ; ...
    Key,            // [path]
    KeyDeletion,    // [-path]: the key and everything below it
    BadKey,         // [... that names no key: the values below it belong to none
    Value,          // "name"=data or @=data; data that is not understood gives ValueKind::Other
    ValueDeletion,  // "name"=-
    Unknown,
};

struct RegistryLine {
    LineType type = LineType::Unknown;
    std::string raw;      // as read; physical lines joined by CR LF
    std::string key;      // Key, KeyDeletion: the path between the brackets
    std::string name;     // Value, ValueDeletion: unescaped; empty for the default value "@"
    RegistryValue value;  // Value
};

RegistryLine ParseLine(std::string raw);

// Whether `raw` (a physical line, or a logical line already joined) is a value whose data goes
// on in the next physical line.
bool StartsContinuedValue(std::string_view raw);
// Whether a physical line of continued data is followed by another.
bool EndsWithContinuation(std::string_view raw);

RegistryLine MakeKeyLine(std::string_view key);
// A value line as regedit writes it. Strings holding a line break or a zero byte, which the
// quoted form cannot carry, are written in regedit's hex(1) form (UTF-16LE bytes).
RegistryLine MakeValueLine(std::string_view name, const RegistryValue& value);
RegistryLine MakeBlankLine();
RegistryLine MakeHeaderLine();

}  // namespace vx::registry
