#include "runtime/module/MoCatalogue.h"

#include <cstdint>
#include <cstdio>
#include <optional>

namespace vx {
namespace {

constexpr std::uint32_t kMagic = 0x950412de;
constexpr char kContextEnd = '\x04';  // between a message's context and its original text

class Reader {
public:
    Reader(std::string_view bytes, bool littleEndian)
        : m_bytes(bytes), m_littleEndian(littleEndian) {}

    std::optional<std::uint32_t> Word(std::size_t offset) const {
        if (offset > m_bytes.size() || m_bytes.size() - offset < 4) return std::nullopt;
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i) {
            const std::size_t at = offset + static_cast<std::size_t>(m_littleEndian ? 3 - i : i);
            const auto byte = static_cast<unsigned char>(m_bytes[at]);
            value = (value << 8) | byte;
        }
        return value;
    }

    // String `index` of the table at `table`: a length and an offset per string.
    std::optional<std::string_view> String(std::uint32_t table, std::uint32_t index) const {
        const std::size_t entry = table + std::size_t{8} * index;
        const auto length = Word(entry);
        const auto offset = Word(entry + 4);
        if (!length || !offset || *offset > m_bytes.size() ||
            m_bytes.size() - *offset < std::size_t{*length})
            return std::nullopt;
        return m_bytes.substr(*offset, *length);
    }

private:
    std::string_view m_bytes;
    bool m_littleEndian;
};

// The string number a context names, when it is one.
std::optional<unsigned> StringNumber(std::string_view context) {
    if (context.empty() || context.size() > 9) return std::nullopt;
    unsigned value = 0;
    for (char c : context) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + static_cast<unsigned>(c - '0');
    }
    return value;
}

// Whether the catalogue was written little-endian: its magic number tells.
std::optional<bool> LittleEndian(std::string_view bytes) {
    for (bool little : {true, false})
        if (Reader(bytes, little).Word(0) == kMagic) return little;
    return std::nullopt;
}

}  // namespace

bool MoCatalogue::Parse(std::string_view bytes) {
    m_texts.clear();
    m_header.clear();
    const std::optional<bool> little = LittleEndian(bytes);
    if (!little) return false;
    const Reader reader(bytes, *little);
    const auto revision = reader.Word(4);
    const auto count = reader.Word(8);
    const auto originals = reader.Word(12);
    const auto translations = reader.Word(16);
    if (!revision || (*revision >> 16) > 1 || !count || !originals || !translations) return false;
    for (std::uint32_t i = 0; i < *count; ++i) {
        const auto original = reader.String(*originals, i);
        const auto translation = reader.String(*translations, i);
        if (!original || !translation) {
            m_texts.clear();
            m_header.clear();
            return false;
        }
        if (original->empty()) {
            m_header = *translation;
            continue;
        }
        const std::size_t end = original->find(kContextEnd);
        if (end == std::string_view::npos) continue;
        // A plural form carries its variants after a zero byte; the string table has none.
        const std::string_view text = translation->substr(0, translation->find('\0'));
        if (const auto id = StringNumber(original->substr(0, end)); id && !text.empty())
            m_texts[*id] = std::string(text);
    }
    return true;
}

const std::string* MoCatalogue::Find(unsigned id) const {
    auto found = m_texts.find(id);
    return found == m_texts.end() ? nullptr : &found->second;
}

std::string MoCatalogue::HeaderField(std::string_view name) const {
    std::string_view header = m_header;
    while (!header.empty()) {
        const std::size_t end = header.find('\n');
        std::string_view line = header.substr(0, end);
        header = end == std::string_view::npos ? std::string_view() : header.substr(end + 1);
        if (line.size() > name.size() && line.substr(0, name.size()) == name &&
            line[name.size()] == ':') {
            line.remove_prefix(name.size() + 1);
            while (!line.empty() && line.front() == ' ')
                line.remove_prefix(1);
            return std::string(line);
        }
    }
    return {};
}

bool MoCatalogue::Version(int& major, int& minor) const {
    const std::string project = HeaderField("Project-Id-Version");
    const char* text = project.c_str();
    while (*text != '\0' && (*text < '0' || *text > '9'))
        ++text;
    return *text != '\0' && std::sscanf(text, "%d.%d", &major, &minor) == 2;
}

}  // namespace vx
