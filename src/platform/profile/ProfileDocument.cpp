#include "platform/profile/ProfileDocument.h"

namespace vx {
namespace {

constexpr std::size_t kNone = std::string::npos;

// Ctrl-Z counts as a blank: old editors ended text files with one.
bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f' || c == '\x1a';
}

std::string_view TrimLeft(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

std::string_view Trim(std::string_view text) {
    text = TrimLeft(text);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string Folded(std::string_view name) {
    std::string folded(name);
    for (char& c : folded)
        c = AsciiLower(c);
    return folded;
}

// Only ASCII letters fold: names in other scripts compare byte for byte.
bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (AsciiLower(a[i]) != AsciiLower(b[i])) return false;
    return true;
}

// A value in a pair of matching double or single quotes reads without them.
std::string_view Unquoted(std::string_view value) {
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
        value.back() == value.front())
        return value.substr(1, value.size() - 2);
    return value;
}

// The value of a key line as a reader sees it.
std::string_view ValueOf(std::string_view keyLine) {
    return Unquoted(Trim(keyLine.substr(keyLine.find('=') + 1)));
}

bool HasLineBreak(std::string_view text) {
    return text.find_first_of("\r\n") != kNone;
}

}  // namespace

ProfileDocument ProfileDocument::FromBytes(std::string_view bytes) {
    const bool tooLarge = bytes.size() > kMaxProfileBytes;
    const DecodedText decoded = DecodeText(bytes.substr(0, kMaxProfileBytes));
    ProfileDocument document = Parse(decoded.text);
    document.m_encoding = decoded.encoding;
    document.m_faithful = decoded.faithful;
    document.m_tooLarge = tooLarge;
    return document;
}

bool ProfileDocument::ToBytes(std::string& bytes, std::string& why) const {
    if (m_tooLarge) {
        why = "is larger than 4 MiB and is not rewritten";
        return false;
    }
    if (!m_faithful) {
        why = "is in an encoding that cannot be written back unchanged";
        return false;
    }
    if (EncodeText(Serialize(), m_encoding, bytes)) return true;
    why = "is UTF-16 and cannot hold the value given";
    return false;
}

ProfileDocument ProfileDocument::Parse(std::string_view bytes) {
    ProfileDocument document;
    bool endingSeen = false;
    std::size_t start = 0;
    while (start < bytes.size()) {
        std::size_t end = bytes.find_first_of("\r\n", start);
        std::string_view ending;
        if (end == kNone)
            end = bytes.size();
        else
            ending = bytes.substr(end, bytes.substr(end, 2) == "\r\n" ? 2 : 1);
        if (!endingSeen && !ending.empty()) {
            document.m_newLine = ending;
            endingSeen = true;
        }
        document.m_lines.push_back(
            ParseLine(std::string(bytes.substr(start, end - start)), std::string(ending)));
        start = end + ending.size();
    }
    document.IndexSections();
    return document;
}

ProfileDocument::Line ProfileDocument::ParseLine(std::string text, std::string ending) {
    Line line;
    line.text = std::move(text);
    line.ending = std::move(ending);
    const std::string_view body = TrimLeft(line.text);
    if (!body.empty() && body.front() == '[') {
        const std::size_t close = body.rfind(']');
        if (close != kNone) {
            line.kind = LineKind::Section;
            line.name = Trim(body.substr(1, close - 1));
            return line;
        }
    }
    if (!body.empty() && body.front() == ';') {
        line.kind = LineKind::Comment;
        return line;
    }
    const std::size_t equals = body.find('=');
    if (equals != kNone) {
        line.kind = LineKind::Key;
        line.name = Trim(body.substr(0, equals));
    }
    return line;
}

std::string ProfileDocument::Serialize() const {
    std::size_t size = 0;
    for (const Line& line : m_lines)
        size += line.text.size() + line.ending.size();
    std::string bytes;
    bytes.reserve(size);
    for (const Line& line : m_lines) {
        bytes += line.text;
        bytes += line.ending;
    }
    return bytes;
}

std::size_t ProfileDocument::FindSection(std::string_view section) const {
    const auto found = m_sections.find(Folded(Trim(section)));
    return found == m_sections.end() ? kNone : found->second;
}

void ProfileDocument::IndexSections() {
    m_sections.clear();
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        if (m_lines[i].kind == LineKind::Section)
            m_sections.try_emplace(Folded(m_lines[i].name), i);
}

std::size_t ProfileDocument::SectionEnd(std::size_t header) const {
    std::size_t end = header + 1;
    while (end < m_lines.size() && m_lines[end].kind != LineKind::Section)
        ++end;
    return end;
}

std::size_t ProfileDocument::FindKey(std::size_t header, std::string_view key) const {
    key = Trim(key);
    const std::size_t end = SectionEnd(header);
    for (std::size_t i = header + 1; i < end; ++i)
        if (m_lines[i].kind == LineKind::Key && EqualsIgnoringCase(m_lines[i].name, key)) return i;
    return kNone;
}

std::optional<std::string> ProfileDocument::Find(std::string_view section,
                                                 std::string_view key) const {
    const std::size_t header = FindSection(section);
    if (header == kNone) return std::nullopt;
    const std::size_t line = FindKey(header, key);
    if (line == kNone) return std::nullopt;
    return std::string(ValueOf(m_lines[line].text));
}

std::vector<std::string> ProfileDocument::SectionNames() const {
    std::vector<std::string> names;
    for (const Line& line : m_lines)
        if (line.kind == LineKind::Section && !line.name.empty()) names.push_back(line.name);
    return names;
}

std::vector<std::string> ProfileDocument::KeyNames(std::string_view section) const {
    std::vector<std::string> names;
    const std::size_t header = FindSection(section);
    if (header == kNone) return names;
    const std::size_t end = SectionEnd(header);
    for (std::size_t i = header + 1; i < end; ++i)
        if (m_lines[i].kind == LineKind::Key && !m_lines[i].name.empty())
            names.push_back(m_lines[i].name);
    return names;
}

bool ProfileDocument::CanStore(std::string_view section, std::string_view key,
                               std::string_view value) {
    const std::string_view name = Trim(key);
    return !HasLineBreak(section) && !HasLineBreak(key) && !HasLineBreak(value) &&
           key.find('=') == kNone && (name.empty() || (name.front() != '[' && name.front() != ';'));
}

void ProfileDocument::Insert(std::size_t at, std::string text) {
    if (at > 0 && m_lines[at - 1].ending.empty()) m_lines[at - 1].ending = m_newLine;
    m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(at),
                   ParseLine(std::move(text), m_newLine));
    IndexSections();
}

bool ProfileDocument::SetValue(std::string_view section, std::string_view key,
                               std::string_view value) {
    const std::string name(Trim(key));
    const std::size_t header = FindSection(section);
    if (header == kNone) {
        Insert(m_lines.size(), "[" + std::string(Trim(section)) + "]");
        Insert(m_lines.size(), name + "=" + std::string(value));
        return true;
    }
    const std::size_t existing = FindKey(header, name);
    if (existing != kNone) {
        Line& line = m_lines[existing];
        if (ValueOf(line.text) == Unquoted(Trim(value))) return false;
        // The file's own spelling of the key is kept.
        line = ParseLine(line.name + "=" + std::string(value), std::move(line.ending));
        return true;
    }
    std::size_t after = header;
    const std::size_t end = SectionEnd(header);
    for (std::size_t i = header + 1; i < end; ++i)
        if (m_lines[i].kind == LineKind::Key) after = i;
    Insert(after + 1, name + "=" + std::string(value));
    return true;
}

bool ProfileDocument::RemoveKey(std::string_view section, std::string_view key) {
    const std::size_t header = FindSection(section);
    if (header == kNone) return false;
    bool removed = false;
    for (std::size_t line = FindKey(header, key); line != kNone; line = FindKey(header, key)) {
        m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(line));
        removed = true;
    }
    if (removed) IndexSections();
    return removed;
}

bool ProfileDocument::RemoveSection(std::string_view section) {
    bool removed = false;
    for (std::size_t header = FindSection(section); header != kNone;
         header = FindSection(section)) {
        m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(header),
                      m_lines.begin() + static_cast<std::ptrdiff_t>(SectionEnd(header)));
        removed = true;
        IndexSections();
    }
    return removed;
}

}  // namespace vx
