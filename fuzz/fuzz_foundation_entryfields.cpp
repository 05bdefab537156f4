// Reads arbitrary text as an encoded entry-list field list, and its second half as a
// description line. Whatever decodes must encode to the same list again, and every column
// text must stay within the line.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "vxutil/foundation/CVXEntryListStruct.h"

#include "FuzzCheck.h"

using vx::fuzz::Check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    CVXEntryListFieldList fields;
    if (!fields.Decode(text.c_str())) return 0;
    CGNString first, second;
    fields.GetEncodedText(first);
    CVXEntryListFieldList again;
    Check(again.Decode(first.c_str()));
    again.GetEncodedText(second);
    Check(first == second);

    std::string line = text.substr(size / 2);
    VXEntryListStruct record{};
    record.shortDesc = line.data();
    const CVXEntryListStruct entry(record);
    for (int column = -1; column <= fields.GetCount(); ++column) {
        Check(entry.GetColumnText(fields, column).GetLength() <= line.size());
        Check(entry.GetColumnTextChars(fields, column).GetLength() <= line.size());
    }
    return 0;
}
