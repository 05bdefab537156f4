#include "vxutil/foundation/DefinitionText.h"

#include <string>

#include "vxutil/gnrt/MultiByte.h"

namespace vx::definition {
namespace {

constexpr std::uint64_t kUnsignedMax = 0xFFFFFFFFu;
// Magnitudes are kept up to this bound, far enough above every 32-bit limit to saturate.
constexpr std::uint64_t kMagnitudeCap = kUnsignedMax * 4;

struct Number {
    bool negative = false;
    std::uint64_t magnitude = 0;
};

// The decimal conversion at the cursor, then the step past the field's backslash.
bool ReadNumber(const char*& cursor, Number& number) {
    if (cursor == nullptr || *cursor == '\0') return false;
    const char* p = cursor;
    if (*p == '+' || *p == '-') number.negative = (*p++ == '-');
    for (; *p >= '0' && *p <= '9'; ++p) {
        number.magnitude = number.magnitude * 10 + static_cast<std::uint64_t>(*p - '0');
        if (number.magnitude > kMagnitudeCap) number.magnitude = kMagnitudeCap;
    }
    const char* backslash = vx::mb::FindChar(cursor, '\\');
    cursor = backslash != nullptr ? backslash + 1 : nullptr;
    return true;
}

}  // namespace

void WriteUnsigned(CGNString& out, std::uint32_t value) {
    CGNString field;
    field.Format("%lu\\", static_cast<unsigned long>(value));
    out += field;
}

void WriteSigned(CGNString& out, std::int32_t value) {
    CGNString field;
    field.Format("%ld\\", static_cast<long>(value));
    out += field;
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
    Number number;
    if (!ReadNumber(cursor, number)) return false;
    if (number.negative) {
        value = number.magnitude > 0x80000000u
                    ? INT32_MIN
                    : static_cast<std::int32_t>(-static_cast<std::int64_t>(number.magnitude));
    } else {
        value = number.magnitude > 0x7FFFFFFFu ? INT32_MAX
                                               : static_cast<std::int32_t>(number.magnitude);
    }
    return true;
}

bool ReadUnsigned(const char*& cursor, std::uint32_t& value) {
    Number number;
    if (!ReadNumber(cursor, number)) return false;
    if (number.magnitude > kUnsignedMax) {
        value = static_cast<std::uint32_t>(kUnsignedMax);
    } else {
        const auto magnitude = static_cast<std::uint32_t>(number.magnitude);
        value = number.negative ? 0u - magnitude : magnitude;
    }
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
