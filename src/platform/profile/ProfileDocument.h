// A profile ("INI") file in memory: its lines as they stand, each with what it means.
//
// Lookups follow the rules of the Windows profile functions: section and key names compare
// without regard to (ASCII) case, blanks around names and values do not count, and one pair
// of matching quotes around a value is removed. Edits touch only the lines they concern, so
// comments, lines of unknown meaning, bytes before the first section and each line's own line
// ending survive a rewrite unchanged, and the file keeps its encoding (a UTF-8 byte-order mark,
// UTF-16 with or without one: see TextEncoding.h).
//
// Where a name occurs twice, the first section of that name and its first key of that name
// are the ones that count, as with the Windows functions.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/file/TextEncoding.h"

namespace vx {

// A file larger than this is no profile: it is read only up to here and never rewritten, so
// that a stray huge file costs bounded memory and loses nothing.
constexpr std::size_t kMaxProfileBytes = std::size_t{4} << 20;

class ProfileDocument {
public:
    // Any text makes a document; what does not parse is kept as lines without meaning.
    static ProfileDocument Parse(std::string_view text);
    std::string Serialize() const;

    // The file's bytes in their encoding, up to kMaxProfileBytes of them.
    static ProfileDocument FromBytes(std::string_view bytes);
    // False, with the cause in `why`, for a file that cannot be written back without damage:
    // one beyond the size limit, or in UTF-16 that cannot carry what it holds.
    bool ToBytes(std::string& bytes, std::string& why) const;

    // The value of `key` in section `section`, without its surrounding blanks and quotes.
    std::optional<std::string> Find(std::string_view section, std::string_view key) const;
    // The names of all sections in file order; nameless sections are left out.
    std::vector<std::string> SectionNames() const;
    // The names of the keys of section `section`; comments, lines without "=" and keys
    // without a name are left out.
    std::vector<std::string> KeyNames(std::string_view section) const;

    // Whether the names and value can be written as one line that reads back the same: no line
    // breaks anywhere, no "=" in the key, and a key that cannot be taken for a section header
    // or a comment.
    static bool CanStore(std::string_view section, std::string_view key, std::string_view value);

    // Edits; each returns true when the document changed. A new key goes after the last key
    // of its section, a new section at the end of the document.
    bool SetValue(std::string_view section, std::string_view key, std::string_view value);
    // Removes the key from the section (every line of that name there).
    bool RemoveKey(std::string_view section, std::string_view key);
    // Removes every section of that name with all its lines.
    bool RemoveSection(std::string_view section);

private:
    enum class LineKind { Other, Comment, Section, Key };
    struct Line {
        std::string text;    // without the line ending
        std::string ending;  // "\r\n", "\n", "\r", or "" for a last line without one
        LineKind kind = LineKind::Other;
        std::string name;  // section or key name, blanks removed
    };

    static Line ParseLine(std::string text, std::string ending);
    std::size_t FindSection(std::string_view section) const;
    std::size_t SectionEnd(std::size_t header) const;
    std::size_t FindKey(std::size_t header, std::string_view key) const;
    void Insert(std::size_t at, std::string text);
    void IndexSections();

    std::vector<Line> m_lines;
    // Section name with ASCII letters folded -> the line of its first header.
    std::unordered_map<std::string, std::size_t> m_sections;
    std::string m_newLine = "\r\n";  // for lines we add: the file's first line ending
    TextEncoding m_encoding = TextEncoding::Plain;
    bool m_faithful = true;  // the bytes read can be written back as they were
    bool m_tooLarge = false;
};

}  // namespace vx
