// The definition text: the backslash-separated encoding in which foundation objects are written
// to strings and read back.
//
// Every field ends with a backslash and nothing else separates fields: a number is written in
// decimal ("12\"), a string as its byte length and its bytes ("3\abc\"), so that the text itself
// may hold backslashes, and a list as its item count followed by each item's fields.
//
// Readers move a cursor (a pointer into a zero-terminated text) along the fields:
// - a number is converted at the cursor (sign and leading digits; no digits read as 0), then the
//   cursor moves past the next backslash, or becomes null when no backslash follows: that last
//   field still counts as read;
// - every read at a null cursor, or at the end of the text, returns false;
// - no read ever looks beyond the terminating zero.
#pragma once

#include <cstdint>
#include <new>

#include "vxutil/foundation/CVXCoreList.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx::definition {

// "%lu\"
void WriteUnsigned(CGNString& out, std::uint32_t value);
// "%ld\"
void WriteSigned(CGNString& out, std::int32_t value);
// Length, backslash, bytes, backslash. Windows line ends (CR LF) are written as line feeds
// first and the length counts the converted text. A null text is written as the empty text.
void WriteString(CGNString& out, const char* text);

// A number outside the 32-bit range saturates (the unsigned reader, like the C conversion it
// follows, takes "-1" as 4294967295).
bool ReadSigned(const char*& cursor, std::int32_t& value);
bool ReadUnsigned(const char*& cursor, std::uint32_t& value);
// Reads a counted string. False when the text holds fewer bytes than the count, or when anything
// but a backslash or the end of the text follows them.
bool ReadString(const char*& cursor, CGNString& value);
// Steps over one line feed at the cursor, which a list's writer may have put after its items.
void SkipLineFeed(const char*& cursor);

// Writes the count of `list` and then each item's fields with `writeFields(const Item&, out)`.
// Every item of `list` must be an `Item`.
template <class Item, class WriteFields>
void WriteList(CGNString& out, const CVXCoreList& list, WriteFields writeFields) {
    WriteUnsigned(out, static_cast<std::uint32_t>(list.GetCount()));
    for (int i = 0; i < list.GetCount(); ++i) {
        if (const CVXListItemStruct* item = list.GetItem(i)) {
            writeFields(static_cast<const Item&>(*item), out);
        }
    }
}

// Reads a count and then that many items: each a new `Item` that reads its own fields with
// `readFields(Item&, cursor)` and is appended with AddOwnedItem. When an item fails, it is
// destroyed and the read returns false; the items appended before it stay in the list.
template <class Item, class ReadFields>
bool ReadList(const char*& cursor, CVXCoreList& list, ReadFields readFields) {
    std::int32_t count = 0;
    if (!ReadSigned(cursor, count)) return false;
    for (std::int32_t i = 0; i < count; ++i) {
        Item* item = new (std::nothrow) Item;
        if (item == nullptr || !readFields(*item, cursor) || !list.AddOwnedItem(item)) {
            delete item;
            return false;
        }
    }
    SkipLineFeed(cursor);
    return true;
}

}  // namespace vx::definition
