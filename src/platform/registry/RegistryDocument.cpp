#include "platform/registry/RegistryDocument.h"

#include <optional>

#include "platform/registry/RegistryPath.h"

namespace vx::registry {
namespace {

std::string FoldKey(std::string_view key) {
    return FoldCase(NormalizeKeyPath(key));
}

// Splits text at line feeds, dropping the carriage return of a CR LF line end.
std::vector<std::string_view> PhysicalLines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) end = text.size();
        std::string_view line = text.substr(start, end - start);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        start = end + 1;
    }
    return lines;
}

bool IsAscii(std::string_view text) {
    for (char c : text)
        if (static_cast<unsigned char>(c) >= 0x80) return false;
    return true;
}

}  // namespace

// Where the lines that decide a value stand. Only lines after the last deletion of the key (or
// of a key above it) count: whatever stands before it is overridden.
struct RegistryDocument::Placement {
    std::vector<std::size_t> valueLines;     // lines setting or deleting the value
    std::optional<std::size_t> lastSection;  // the last "[key]" line
};

RegistryDocument RegistryDocument::FromBytes(std::string_view bytes) {
    RegistryDocument document;
    DecodedText decoded = DecodeText(bytes);
    document.m_encoding = decoded.encoding;
    document.m_faithful = decoded.faithful;
    document.m_asciiOnly = IsAscii(bytes);
    const auto physical = PhysicalLines(decoded.text);
    for (std::size_t i = 0; i < physical.size(); ++i) {
        std::string raw(physical[i]);
        if (StartsContinuedValue(raw)) {
            while (EndsWithContinuation(physical[i]) && i + 1 < physical.size()) {
                raw += "\r\n";
                raw += physical[++i];
            }
        }
        document.m_lines.push_back(ParseLine(std::move(raw)));
    }
    document.Reindex();
    return document;
}

TextEncoding RegistryDocument::EncodingToWrite(std::string_view text) const {
    if (m_encoding != TextEncoding::Plain || !m_asciiOnly || IsAscii(text)) return m_encoding;
    for (const auto& line : m_lines)
        if (line.type == LineType::Header && line.raw.starts_with(kHeaderVersion4))
            return m_encoding;  // REGEDIT4 files are ANSI by definition
    return TextEncoding::Utf16Le;
}

bool RegistryDocument::ToBytes(std::string& bytes, std::string& why) const {
    if (!m_faithful) {
        why = "is in an encoding that cannot be written back unchanged";
        return false;
    }
    std::string text;
    for (const auto& line : m_lines) {
        text += line.raw;
        text += "\r\n";
    }
    if (EncodeText(text, EncodingToWrite(text), bytes)) return true;
    why = "is UTF-16 and cannot hold the value given";
    return false;
}

const RegistryValue* RegistryDocument::Find(std::string_view key, std::string_view name) const {
    return FindFolded(FoldKey(key), FoldCase(name));
}

const RegistryValue* RegistryDocument::FindFolded(std::string_view foldedKey,
                                                  std::string_view foldedName) const {
    const auto found =
        m_values.find(std::pair<std::string_view, std::string_view>(foldedKey, foldedName));
    return found == m_values.end() ? nullptr : &found->second;
}

RegistryDocument::Placement RegistryDocument::Locate(const std::string& foldedKey,
                                                     const std::string& foldedName) const {
    Placement placement;
    bool inKey = false;
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const RegistryLine& line = m_lines[i];
        switch (line.type) {
            case LineType::Key:
                inKey = FoldsTo(NormalizeKeyPath(line.key), foldedKey);
                if (inKey) placement.lastSection = i;
                break;
            case LineType::BadKey:
                inKey = false;
                break;
            case LineType::KeyDeletion:
                inKey = false;
                if (IsSameOrBelow(foldedKey, FoldKey(line.key))) placement = {};
                break;
            case LineType::Value:
            case LineType::ValueDeletion:
                if (inKey && FoldsTo(line.name, foldedName)) placement.valueLines.push_back(i);
                break;
            default:
                break;
        }
    }
    return placement;
}

bool RegistryDocument::Set(std::string_view key, std::string_view name,
                           const RegistryValue& value) {
    const std::string foldedKey = FoldKey(key);
    const std::string foldedName = FoldCase(name);
    const auto current = m_values.find({foldedKey, foldedName});
    if (current != m_values.end() && current->second == value) return false;

    const Placement placement = Locate(foldedKey, foldedName);
    if (!placement.valueLines.empty()) {
        RegistryLine& line = m_lines[placement.valueLines.back()];
        line = MakeValueLine(line.name, value);
    } else if (placement.lastSection) {
        // After the section's last value, so that comments heading the next section stay there;
        // but never after data cut off in mid-continuation, which would swallow the new line.
        std::size_t insertAt = *placement.lastSection + 1;
        for (std::size_t i = insertAt; i < m_lines.size(); ++i) {
            const RegistryLine& line = m_lines[i];
            if (line.type == LineType::Key || line.type == LineType::KeyDeletion ||
                line.type == LineType::BadKey)
                break;
            const bool isValue =
                line.type == LineType::Value || line.type == LineType::ValueDeletion;
            if (isValue && !StartsContinuedValue(line.raw)) insertAt = i + 1;
        }
        m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(insertAt),
                       MakeValueLine(name, value));
    } else {
        EnsureHeader();
        if (m_lines.back().type != LineType::Blank) m_lines.push_back(MakeBlankLine());
        m_lines.push_back(MakeKeyLine(key));
        m_lines.push_back(MakeValueLine(name, value));
        m_lines.push_back(MakeBlankLine());
    }
    // The line just written comes after every line that could override it.
    m_values[{foldedKey, foldedName}] = value;
    return true;
}

bool RegistryDocument::Remove(std::string_view key, std::string_view name) {
    const auto current = m_values.find({FoldKey(key), FoldCase(name)});
    if (current == m_values.end()) return false;
    const Placement placement = Locate(current->first.first, current->first.second);
    for (auto it = placement.valueLines.rbegin(); it != placement.valueLines.rend(); ++it) {
        if (m_lines[*it].type == LineType::Value)
            m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(*it));
    }
    m_values.erase(current);
    return true;
}

void RegistryDocument::EnsureHeader() {
    for (const auto& line : m_lines)
        if (line.type == LineType::Header) return;
    m_lines.insert(m_lines.begin(), {MakeHeaderLine(), MakeBlankLine()});
}

void RegistryDocument::Reindex() {
    m_values.clear();
    std::optional<std::string> section;
    for (const auto& line : m_lines) {
        switch (line.type) {
            case LineType::Key:
                section = FoldKey(line.key);
                break;
            case LineType::BadKey:
                section.reset();
                break;
            case LineType::KeyDeletion: {
                section.reset();
                const std::string deleted = FoldKey(line.key);
                auto it = m_values.lower_bound({deleted, {}});
                while (it != m_values.end() && it->first.first.starts_with(deleted)) {
                    if (IsSameOrBelow(it->first.first, deleted))
                        it = m_values.erase(it);
                    else
                        ++it;
                }
                break;
            }
            case LineType::Value:
                if (section) m_values[{*section, FoldCase(line.name)}] = line.value;
                break;
            case LineType::ValueDeletion:
                if (section) m_values.erase({*section, FoldCase(line.name)});
                break;
            default:
                break;
        }
    }
}

}  // namespace vx::registry
