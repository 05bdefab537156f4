#include "foundation/value/EncodedFields.h"

#include <cstring>
#include <string>
#include <utility>

#include "foundation/Number32.h"
#include "gnrt/MultiByte.h"

namespace vx::encoded {

CGNString ClientText(std::string_view text, bool lineFeeds) {
    std::string bytes(text);
    if (lineFeeds) {
        for (char& c : bytes) {
            if (c == '\x01') c = '\n';
        }
    }
    CGNString client(std::move(bytes));
    client.ClientFormat();
    return client;
}

void SkipField(const char*& cursor) {
    if (*cursor == '\\') {  // the common case: the field's number ends at its backslash
        ++cursor;
        return;
    }
    const char* backslash = vx::mb::FindChar(cursor, '\\');
    cursor = backslash != nullptr ? backslash + 1 : cursor + std::strlen(cursor);
}

bool ReadLong(const char*& cursor, std::int32_t& value) {
    const char* end = nullptr;
    value = vx::number32::ToLong(cursor, &end);
    if (end == cursor) return false;
    cursor = end;
    SkipField(cursor);
    return true;
}

bool ReadUnsignedLong(const char*& cursor, std::uint32_t& value) {
    const char* end = nullptr;
    value = vx::number32::ToUnsignedLong(cursor, &end);
    if (end == cursor) return false;
    cursor = end;
    SkipField(cursor);
    return true;
}

}  // namespace vx::encoded
