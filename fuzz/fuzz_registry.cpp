// Drives the registry file parser with arbitrary bytes. Besides not crashing, it checks that
// a document either refuses to be written or writes out what it read, that reading it again
// changes nothing, and that an edit changes the one value it names and no other.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/registry/RegistryDocument.h"
#include "platform/registry/RegistryPath.h"

using namespace vx::registry;

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

RegistryDocument::ValueMap::key_type Folded(const std::string& key, const std::string& name) {
    return {FoldCase(NormalizeKeyPath(key)), FoldCase(name)};
}

std::string Bytes(const RegistryDocument& document) {
    std::string bytes;
    std::string why;
    Require(document.ToBytes(bytes, why));
    return bytes;
}

// The document after a trip through its bytes; the trip is stable after the first one.
RegistryDocument Reread(const RegistryDocument& document) {
    const std::string bytes = Bytes(document);
    RegistryDocument reread = RegistryDocument::FromBytes(bytes);
    Require(Bytes(reread) == bytes);
    return reread;
}

void CheckSet(const RegistryDocument& original, const std::string& key, const std::string& name,
              const RegistryValue& value) {
    RegistryDocument document = original;
    document.Set(key, name, value);
    RegistryDocument::ValueMap expected = original.values();
    expected[Folded(key, name)] = value;
    Require(Reread(document).values() == expected);
}

void CheckRemove(const RegistryDocument& original, const std::string& key,
                 const std::string& name) {
    RegistryDocument document = original;
    RegistryDocument::ValueMap expected = original.values();
    Require(document.Remove(key, name) == (expected.erase(Folded(key, name)) == 1));
    Require(Reread(document).values() == expected);
}

// Input bytes as a text that a quoted value can hold and that any encoding of the file can
// carry: printable ASCII, quotes and backslashes included.
std::string QuotableText(std::string_view bytes) {
    std::string text;
    for (char c : bytes.substr(0, 24))
        if (c >= 0x20 && c < 0x7F) text += c;
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const RegistryDocument read = RegistryDocument::FromBytes(bytes);
    std::string written;
    std::string why;
    // A file that would not come back as it was is refused, never damaged.
    if (!read.ToBytes(written, why)) return 0;
    const RegistryDocument document = Reread(read);

    // A value of the file itself, to edit in place, and one of a key the file may lack.
    std::string key = "HKEY_CURRENT_USER\\SOFTWARE\\Korvel\\VXUser\\Users";
    std::string name = "USER1";
    std::string section;
    for (const RegistryLine& line : document.lines()) {
        if (line.type == LineType::Key) section = line.key;
        if (line.type == LineType::Value && !section.empty()) {
            key = section;
            name = line.name;
            break;
        }
    }
    std::uint32_t number = 7;
    if (size >= sizeof number) std::memcpy(&number, data, sizeof number);
    CheckSet(document, key, name, StringValue(QuotableText(bytes)));
    CheckSet(document, key, name, DwordValue(number));
    CheckSet(document, "HKEY_CURRENT_USER\\SOFTWARE\\Korvel\\VXUser\\Users", "Note",
             StringValue("two\r\nlines"));
    CheckRemove(document, key, name);
    return 0;
}
