#include "platform/registry/RegistryLine.h"

#include <cstdio>
#include <optional>

#include "platform/file/TextEncoding.h"
#include "platform/registry/RegistryPath.h"

namespace vx::registry {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kDwordPrefix = "dword:";
constexpr std::string_view kStringHexPrefix = "hex(1):";
// regedit breaks hex data before a line would pass this many characters.
constexpr std::size_t kHexLineWidth = 77;

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    const auto last = text.find_last_not_of(kBlanks);
    return text.substr(first, last - first + 1);
}

bool StartsWithNoCase(std::string_view text, std::string_view lowerPrefix) {
    return FoldCase(text.substr(0, lowerPrefix.size())) == lowerPrefix;
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// Reads a quoted text starting at text[pos] == '"'; regedit escapes only \\ and \", and a
// backslash before anything else stands for itself. Advances `pos` past the closing quote.
std::optional<std::string> ReadQuoted(std::string_view text, std::size_t& pos) {
    std::string out;
    for (std::size_t i = pos + 1; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"') {
            pos = i + 1;
            return out;
        }
        if (c == '\\' && i + 1 < text.size() && (text[i + 1] == '\\' || text[i + 1] == '"')) ++i;
        out += text[i];
    }
    return std::nullopt;
}

std::string Quote(std::string_view text) {
    std::string out = "\"";
    for (char c : text) {
        if (c == '\\' || c == '"') out += '\\';
        out += c;
    }
    return out + '"';
}

// Splits `"name"=data` (or `@=data`); false when the line does not have that shape.
bool SplitValueLine(std::string_view line, std::string& name, std::string_view& data) {
    std::size_t pos = 1;
    if (line.starts_with('"')) {
        pos = 0;
        auto quoted = ReadQuoted(line, pos);
        if (!quoted) return false;
        name = std::move(*quoted);
    } else if (!line.starts_with('@')) {
        return false;
    }
    const std::string_view rest = Trim(line.substr(pos));
    if (!rest.starts_with('=')) return false;
    data = Trim(rest.substr(1));
    return true;
}

std::optional<std::uint32_t> ParseDword(std::string_view digits) {
    if (digits.empty() || digits.size() > 8) return std::nullopt;
    std::uint32_t number = 0;
    for (char c : digits) {
        const int digit = HexDigit(c);
        if (digit < 0) return std::nullopt;
        number = (number << 4) | static_cast<std::uint32_t>(digit);
    }
    return number;
}

// The bytes of comma-separated hex data, which may run over continued lines.
std::optional<std::string> ParseHexBytes(std::string_view data) {
    std::string bytes;
    int value = 0;
    int digits = 0;
    for (char c : data) {
        if (c == ',') {
            if (digits > 0) bytes += static_cast<char>(value);
            value = digits = 0;
        } else if (c == '\\' || c == '\r' || c == '\n' || c == ' ' || c == '\t') {
            continue;
        } else {
            const int digit = HexDigit(c);
            if (digit < 0 || ++digits > 2) return std::nullopt;
            value = value * 16 + digit;
        }
    }
    if (digits > 0) bytes += static_cast<char>(value);
    return bytes;
}

// hex(1) is REG_SZ as UTF-16LE bytes; its terminating zero is not part of the text.
std::optional<std::string> ParseStringHex(std::string_view data) {
    auto bytes = ParseHexBytes(data);
    if (!bytes || bytes->size() % 2 != 0) return std::nullopt;
    if (bytes->ends_with(std::string_view("\0\0", 2))) bytes->resize(bytes->size() - 2);
    return Utf16LeBytesToClient(*bytes);
}

RegistryValue ParseData(std::string_view data) {
    if (data.starts_with('"')) {
        std::size_t pos = 0;
        auto text = ReadQuoted(data, pos);
        if (text && pos == data.size()) return StringValue(std::move(*text));
    } else if (StartsWithNoCase(data, kDwordPrefix)) {
        if (auto number = ParseDword(data.substr(kDwordPrefix.size()))) return DwordValue(*number);
    } else if (StartsWithNoCase(data, kStringHexPrefix)) {
        if (auto text = ParseStringHex(data.substr(kStringHexPrefix.size())))
            return StringValue(std::move(*text));
    }
    return {ValueKind::Other, {}, 0};
}

std::string FormatStringHex(std::string_view lineStart, std::string_view text) {
    std::string bytes = ClientToUtf16LeBytes(text);
    bytes.append(2, '\0');
    std::string out(lineStart);
    out += kStringHexPrefix;
    std::size_t lineLength = out.size();
    char pair[4];
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::snprintf(pair, sizeof pair, "%02x", static_cast<unsigned char>(bytes[i]));
        out += pair;
        lineLength += 2;
        if (i + 1 == bytes.size()) break;
        out += ',';
        ++lineLength;
        if (lineLength + 3 > kHexLineWidth) {
            out += "\\\r\n  ";
            lineLength = 2;
        }
    }
    return out;
}

bool NeedsHexForm(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos;
}

}  // namespace

RegistryLine ParseLine(std::string raw) {
    RegistryLine line;
    const std::string_view text = Trim(raw);
    std::string_view data;
    if (text.empty()) {
        line.type = LineType::Blank;
    } else if (text == kHeaderVersion5 || text == kHeaderVersion4) {
        line.type = LineType::Header;
    } else if (text.starts_with(';')) {
        line.type = LineType::Comment;
    } else if (text.starts_with('[')) {
        const bool deletion = text.starts_with("[-");
        const std::size_t start = deletion ? 2 : 1;
        if (text.ends_with(']') && text.size() > start + 1) {
            line.key = std::string(text.substr(start, text.size() - start - 1));
            line.type = deletion ? LineType::KeyDeletion : LineType::Key;
        } else {
            line.type = LineType::BadKey;
        }
    } else if (SplitValueLine(text, line.name, data)) {
        if (data == "-") {
            line.type = LineType::ValueDeletion;
        } else {
            line.type = LineType::Value;
            line.value = ParseData(data);
        }
    }
    if (line.type == LineType::Unknown) line.name.clear();
    line.raw = std::move(raw);
    return line;
}

bool StartsContinuedValue(std::string_view raw) {
    std::string name;
    std::string_view data;
    return SplitValueLine(Trim(raw), name, data) && !data.starts_with('"') &&
           EndsWithContinuation(raw);
}

bool EndsWithContinuation(std::string_view raw) {
    return Trim(raw).ends_with('\\');
}

RegistryLine MakeKeyLine(std::string_view key) {
    std::string text = "[";
    text += key;
    text += ']';
    return ParseLine(std::move(text));
}

RegistryLine MakeValueLine(std::string_view name, const RegistryValue& value) {
    const std::string lineStart = (name.empty() ? std::string("@") : Quote(name)) + "=";
    if (value.kind == ValueKind::Dword) {
        char digits[16];
        std::snprintf(digits, sizeof digits, "%08x", static_cast<unsigned>(value.dword));
        return ParseLine(lineStart + std::string(kDwordPrefix) + digits);
    }
    if (NeedsHexForm(value.text)) return ParseLine(FormatStringHex(lineStart, value.text));
    return ParseLine(lineStart + Quote(value.text));
}

RegistryLine MakeBlankLine() {
    return ParseLine({});
}
RegistryLine MakeHeaderLine() {
    return ParseLine(std::string(kHeaderVersion5));
}

}  // namespace vx::registry
