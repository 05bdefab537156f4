// A compiled gettext message catalogue (.mo) that holds translations of the string table: the
// context of each message is the number of the string it translates, and its original text is
// the English one, for the translators.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace vx {

class MoCatalogue {
public:
    // Reads the catalogue's bytes, in either byte order. False for anything that is not a
    // well-formed catalogue; the catalogue is then empty.
    bool Parse(std::string_view bytes);

    // The translation of string `id`, or null.
    const std::string* Find(unsigned id) const;
    // A field of the catalogue's header ("Language", "Project-Id-Version"); empty when absent.
    std::string HeaderField(std::string_view name) const;
    // The "major.minor" at the first digit of the header's "Project-Id-Version" ("vxutil 0.1");
    // false when it has none.
    bool Version(int& major, int& minor) const;
    std::size_t Size() const { return m_texts.size(); }

private:
    std::unordered_map<unsigned, std::string> m_texts;
    std::string m_header;
};

}  // namespace vx
