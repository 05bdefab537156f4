#include "foundation/value/EncodedFields.h"

#include <cstdlib>
#include <cstring>
#include <string>

#include "vxutil/gnrt/MultiByte.h"

namespace vx::encoded {

CGNString ClientText(const char* text, bool lineFeeds) {
    std::string bytes = text != nullptr ? text : "";
    if (lineFeeds) {
        for (char& c : bytes) {
            if (c == '\x01') c = '\n';
        }
    }
    CGNString client(bytes);
    client.ClientFormat();
    return client;
}

void SkipField(const char*& cursor) {
    const char* backslash = vx::mb::FindChar(cursor, '\\');
    cursor = backslash != nullptr ? backslash + 1 : cursor + std::strlen(cursor);
}

bool ReadLong(const char*& cursor, long& value) {
    char* end = nullptr;
    value = std::strtol(cursor, &end, 10);
    if (end == cursor) return false;
    cursor = end;
    SkipField(cursor);
    return true;
}

bool ReadUnsignedLong(const char*& cursor, unsigned long& value) {
    char* end = nullptr;
    value = std::strtoul(cursor, &end, 10);
    if (end == cursor) return false;
    cursor = end;
    SkipField(cursor);
    return true;
}

}  // namespace vx::encoded
