#include "vxutil/gnrt/CGNString.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "gnrt/MultiByte.h"

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

char FoldUpper(char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}
char FoldLower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string_view OrEmpty(const char* text) {
    return text != nullptr ? text : "";
}

// Byte index of the first character start for which `accept` is true, or -1. Walking whole
// characters keeps a search from matching inside a multi-byte character.
template <typename Accept>
int FirstCharStart(std::string_view text, Accept accept) {
    for (std::size_t pos = 0; pos < text.size();
         pos += vx::mb::CharLength(text.data() + pos, text.size() - pos)) {
        if (accept(pos)) {
            return static_cast<int>(pos);
        }
    }
    return -1;
}

}  // namespace

CGNString::CGNString(const char* text) : m_str(OrEmpty(text)) {}

CGNString::CGNString(const char* text, std::size_t length)
    : m_str(text != nullptr ? std::string(text, length) : std::string()) {}

CGNString::CGNString(std::string_view text) : m_str(text) {}

CGNString::CGNString(std::string text) : m_str(std::move(text)) {}

CGNString& CGNString::operator=(const char* text) {
    m_str = OrEmpty(text);
    return *this;
}

CGNString& CGNString::operator+=(const CGNString& other) {
    m_str += other.m_str;
    return *this;
}

CGNString& CGNString::operator+=(const char* text) {
    m_str += OrEmpty(text);
    return *this;
}

CGNString& CGNString::operator+=(char c) {
    m_str += c;
    return *this;
}

CGNString operator+(const CGNString& a, const CGNString& b) {
    return CGNString(a.m_str + b.m_str);
}

bool operator==(const CGNString& a, const char* b) {
    return a.view() == OrEmpty(b);
}

int CGNString::Compare(const char* text) const {
    return view().compare(OrEmpty(text));
}

int CGNString::CompareNoCase(const char* text) const {
    const std::string_view other = OrEmpty(text);
    const std::size_t common = std::min(m_str.size(), other.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto a = static_cast<unsigned char>(FoldLower(m_str[i]));
        const auto b = static_cast<unsigned char>(FoldLower(other[i]));
        if (a != b) {
            return a < b ? -1 : 1;
        }
    }
    if (m_str.size() == other.size()) {
        return 0;
    }
    return m_str.size() < other.size() ? -1 : 1;
}

CGNString CGNString::Left(std::size_t count) const {
    return Mid(0, count);
}

CGNString CGNString::Mid(std::size_t start, std::size_t count) const {
    if (start >= m_str.size()) {
        return {};
    }
    return CGNString(m_str.substr(start, count));
}

CGNString CGNString::Right(std::size_t count) const {
    count = std::min(count, m_str.size());
    return Mid(m_str.size() - count);
}

int CGNString::Find(char c, std::size_t start) const {
    return FirstCharStart(m_str, [&](std::size_t pos) { return pos >= start && m_str[pos] == c; });
}

int CGNString::Find(const char* text, std::size_t start) const {
    const std::string_view needle = OrEmpty(text);
    if (needle.empty()) {
        return start <= m_str.size() ? static_cast<int>(start) : -1;
    }
    return FirstCharStart(m_str, [&](std::size_t pos) {
        return pos >= start && view().substr(pos).starts_with(needle);
    });
}

int CGNString::ReverseFind(char c) const {
    int found = -1;
    FirstCharStart(m_str, [&](std::size_t pos) {
        if (m_str[pos] == c) {
            found = static_cast<int>(pos);
        }
        return false;
    });
    return found;
}

CGNString& CGNString::TrimLeft() {
    m_str.erase(0, std::min(m_str.find_first_not_of(kBlanks), m_str.size()));
    return *this;
}

CGNString& CGNString::TrimRight() {
    const std::size_t last = m_str.find_last_not_of(kBlanks);
    m_str.erase(last == std::string::npos ? 0 : last + 1);
    return *this;
}

CGNString& CGNString::Trim() {
    return TrimRight().TrimLeft();
}

CGNString& CGNString::MakeUpper() {
    std::transform(m_str.begin(), m_str.end(), m_str.begin(), FoldUpper);
    return *this;
}

CGNString& CGNString::MakeLower() {
    std::transform(m_str.begin(), m_str.end(), m_str.begin(), FoldLower);
    return *this;
}

void CGNString::Format(const char* format, ...) {
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

void CGNString::FormatV(const char* format, va_list args) {
    m_str.clear();
    if (format == nullptr) {
        return;
    }
    va_list measure;
    va_copy(measure, args);
    const int length = std::vsnprintf(nullptr, 0, format, measure);
    va_end(measure);
    if (length <= 0) {
        return;
    }
    m_str.resize(static_cast<std::size_t>(length) + 1);
    std::vsnprintf(m_str.data(), m_str.size(), format, args);
    m_str.resize(static_cast<std::size_t>(length));
}

std::size_t CGNString::CharCount() const {
    return vx::mb::CharCount(m_str.data(), m_str.size());
}

CGNString& CGNString::ClientFormat() {
#ifdef _WIN32
    std::string converted;
    converted.reserve(m_str.size());
    for (std::size_t i = 0; i < m_str.size(); ++i) {
        if (m_str[i] == '\n' && (i == 0 || m_str[i - 1] != '\r')) {
            converted += '\r';
        }
        converted += m_str[i];
    }
    m_str = std::move(converted);
#endif
    return *this;
}

CGNString& CGNString::ExpandSpecials() {
    // The escapes of a quoted literal, position for position.
    static constexpr std::string_view kEscaped = "\\\"\n\r\t";
    static constexpr std::string_view kLetters = "\\\"nrt";
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string expanded;
    expanded.reserve(m_str.size());
    for (const char c : m_str) {
        const std::size_t escape = kEscaped.find(c);
        if (escape != std::string_view::npos) {
            expanded += '\\';
            expanded += kLetters[escape];
        } else if (static_cast<unsigned char>(c) < 0x20) {
            expanded += "\\x";
            expanded += kHex[(c >> 4) & 0x0F];
            expanded += kHex[c & 0x0F];
        } else {
            expanded += c;
        }
    }
    m_str = std::move(expanded);
    return *this;
}
