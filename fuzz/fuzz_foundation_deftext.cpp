// Reads arbitrary text as a sequence of definition-text fields and as a list, and checks what
// must always hold: a read never fails to stop, whatever was read writes back to a text that
// reads back to the same values.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "foundation/DefinitionText.h"
#include "vxutil/foundation/CVXCoreList.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

namespace {

namespace definition = vx::definition;

// An item of one signed field and one string field, like most records written as text.
class Item : public CVXListItemStruct {
public:
    Item() : CVXListItemStruct(sizeof(std::int32_t)) {}
    CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const override {
        return DuplicateAs<Item>(source);
    }
    bool CopyTo(void* record) const override { return record != nullptr; }

    bool Read(const char*& cursor) {
        return definition::ReadSigned(cursor, number) && definition::ReadString(cursor, text);
    }
    void Write(CGNString& out) const {
        definition::WriteSigned(out, number);
        definition::WriteString(out, text.c_str());
    }

    std::int32_t number = 0;
    CGNString text;
};

bool ReadItem(Item& item, const char*& cursor) {
    return item.Read(cursor);
}

void WriteItem(const Item& item, CGNString& out) {
    item.Write(out);
}

// Reads fields by the kinds named in `kinds` until one fails; returns them rewritten.
CGNString ReadFields(const char* text, const std::string& kinds, std::vector<std::string>& values) {
    CGNString rewritten;
    const char* cursor = text;
    for (char kind : kinds) {
        std::int32_t number = 0;
        std::uint32_t unsignedNumber = 0;
        CGNString string;
        bool read = false;
        switch (kind % 3) {
            case 0:
                read = definition::ReadSigned(cursor, number);
                if (read) definition::WriteSigned(rewritten, number);
                if (read) values.push_back(std::to_string(number));
                break;
            case 1:
                read = definition::ReadUnsigned(cursor, unsignedNumber);
                if (read) definition::WriteUnsigned(rewritten, unsignedNumber);
                if (read) values.push_back(std::to_string(unsignedNumber));
                break;
            default:
                read = definition::ReadString(cursor, string);
                // The writer turns CR LF into LF; such texts do not come back unchanged.
                if (read && string.Find("\r\n") >= 0) return rewritten;
                if (read) definition::WriteString(rewritten, string.c_str());
                if (read) values.push_back(string.str());
                break;
        }
        if (!read) break;
    }
    return rewritten;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // The first bytes choose the kinds of the fields; the rest is the text.
    const std::size_t kindCount = size > 0 ? std::min<std::size_t>(data[0] % 8, size - 1) : 0;
    const std::string kinds(reinterpret_cast<const char*>(data) + (size > 0 ? 1 : 0), kindCount);
    const std::size_t start = size > 0 ? 1 + kindCount : 0;
    const std::string text(reinterpret_cast<const char*>(data) + start, size - start);

    std::vector<std::string> values;
    const CGNString rewritten = ReadFields(text.c_str(), kinds, values);
    std::vector<std::string> again;
    ReadFields(rewritten.c_str(), kinds, again);
    Check(again == values);

    CVXCoreList list;
    const char* cursor = text.c_str();
    definition::ReadList<Item>(cursor, list, ReadItem);
    CGNString written;
    definition::WriteList<Item>(written, list, WriteItem);
    CVXCoreList reread;
    const char* at = written.c_str();
    bool lineEnds = false;
    for (int i = 0; i < list.GetCount(); ++i) {
        lineEnds = lineEnds || static_cast<Item*>(list.GetItem(i))->text.Find("\r\n") >= 0;
    }
    if (!lineEnds) {
        Check(definition::ReadList<Item>(at, reread, ReadItem));
        Check(reread.GetCount() == list.GetCount());
        for (int i = 0; i < list.GetCount(); ++i) {
            const auto* a = static_cast<Item*>(list.GetItem(i));
            const auto* b = static_cast<Item*>(reread.GetItem(i));
            Check(a->number == b->number && a->text == b->text);
        }
    }
    return 0;
}
