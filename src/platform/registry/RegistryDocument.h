// A registry file in regedit's text form, held as its lines: the values it defines can be
// looked up and edited, and everything else in it (other keys, comments, value kinds this
// library does not read) is written back as it stood.
//
// Lookups follow what importing the file with regedit would leave behind: lines are applied in
// order, "[-path]" removes a key with everything below it and "name"=- removes a value. Key
// paths are full paths as they stand between the brackets ("HKEY_CURRENT_USER\SOFTWARE\...").
// Key paths and names given to Set must not hold line breaks.
//
// A file is written back in the encoding it came in. regedit reads a version-5 file without a
// byte-order mark as ANSI, so a file that held only ASCII (a new one among them) and gains other
// characters is written as regedit writes its own exports: UTF-16LE with a byte-order mark.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/file/TextEncoding.h"
#include "platform/registry/RegistryLine.h"
#include "platform/registry/RegistryValue.h"

namespace vx::registry {

class RegistryDocument {
public:
    // Folded key path and folded name -> the value in force; looked up without copies.
    struct KeyNameLess {
        using is_transparent = void;
        template <class A, class B>
        bool operator()(const A& a, const B& b) const {
            return std::pair<std::string_view, std::string_view>(a.first, a.second) <
                   std::pair<std::string_view, std::string_view>(b.first, b.second);
        }
    };
    using ValueMap = std::map<std::pair<std::string, std::string>, RegistryValue, KeyNameLess>;

    // Never fails: a truncated or binary file gives the lines that make sense.
    static RegistryDocument FromBytes(std::string_view bytes);
    // CR LF line ends, in the file's encoding. False, with the cause in `why`, when the file
    // cannot be written back without damage.
    bool ToBytes(std::string& bytes, std::string& why) const;

    // The value in force, or null when absent.
    const RegistryValue* Find(std::string_view key, std::string_view name) const;
    // The same for a key path and name already folded (FoldCase(NormalizeKeyPath(key))).
    const RegistryValue* FindFolded(std::string_view foldedKey, std::string_view foldedName) const;
    // Sets a value, keeping the spelling of an existing key and name; false when the value was
    // already so and nothing changed.
    bool Set(std::string_view key, std::string_view name, const RegistryValue& value);
    // Removes a value; false when it was absent.
    bool Remove(std::string_view key, std::string_view name);

    const std::vector<RegistryLine>& lines() const { return m_lines; }
    const ValueMap& values() const { return m_values; }

private:
    struct Placement;
    Placement Locate(const std::string& foldedKey, const std::string& foldedName) const;
    void EnsureHeader();
    void Reindex();
    TextEncoding EncodingToWrite(std::string_view text) const;

    std::vector<RegistryLine> m_lines;
    TextEncoding m_encoding = TextEncoding::Plain;
    bool m_faithful = true;   // the bytes read can be written back as they were
    bool m_asciiOnly = true;  // the bytes read held nothing but ASCII
    ValueMap m_values;
};

}  // namespace vx::registry
