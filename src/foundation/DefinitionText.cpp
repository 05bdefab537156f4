#include "foundation/DefinitionText.h"

#include <string>

#include "foundation/Number32.h"
#include "gnrt/MultiByte.h"

namespace vx::definition {
namespace {

// The decimal conversion at the cursor, then the step past the field's backslash.
bool ReadNumber(const char*& cursor, vx::number32::Scanned& number) {
    if (cursor == nullptr || *cursor == '\0') return false;
    number = vx::number32::Scan(cursor);
    const char* backslash = vx::mb::FindChar(cursor, '\\');
    cursor = backslash != nullptr ? backslash + 1 : nullptr;
    return true;
}

}  // namespace

void WriteUnsigned(CGNString& out, std::uint32_t value) {
    vx::number32::AppendUnsigned(out, value);
    out += '\\';
}

void WriteSigned(CGNString& out, std::int32_t value) {
    vx::number32::AppendSigned(out, value);
    out += '\\';
}

void WriteString(CGNString& out, const char* text) {
    // The server's line end is the line feed: CR LF pairs lose their CR before counting.
    std::string converted = text != nullptr ? text : "";
    for (std::size_t crlf = converted.find("\r\n"); crlf != std::string::npos;
         crlf = converted.find("\r\n", crlf)) {
        converted.erase(crlf, 1);
    }
    WriteUnsigned(out, static_cast<std::uint32_t>(converted.size()));
    out += converted.c_str();
    out += '\\';
}

bool ReadSigned(const char*& cursor, std::int32_t& value) {
    vx::number32::Scanned number;
    if (!ReadNumber(cursor, number)) return false;
    value = vx::number32::Signed(number);
    return true;
}

bool ReadUnsigned(const char*& cursor, std::uint32_t& value) {
    vx::number32::Scanned number;
    if (!ReadNumber(cursor, number)) return false;
    value = vx::number32::Unsigned(number);
    return true;
}

bool ReadString(const char*& cursor, CGNString& value) {
    std::uint32_t length = 0;
    if (!ReadUnsigned(cursor, length) || cursor == nullptr) return false;
    std::size_t available = 0;
    while (available < length && cursor[available] != '\0')
        ++available;
    if (available < length) return false;
    const char* end = cursor + length;
    if (*end != '\\' && *end != '\0') return false;
    value = CGNString(cursor, length);
    cursor = *end == '\\' ? end + 1 : nullptr;
    return true;
}

void SkipLineFeed(const char*& cursor) {
    if (cursor != nullptr && *cursor == '\n') ++cursor;
}

}  // namespace vx::definition
