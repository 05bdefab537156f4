#include "foundation/Number32.h"

#include <charconv>

namespace vx::number32 {
namespace {

constexpr std::uint64_t kUnsignedMax = 0xFFFFFFFFu;
constexpr std::uint64_t kMagnitudeCap = kUnsignedMax * 4;

// isspace in the "C" locale, which is what the conversions skip.
bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

const char* SkipBlanks(const char* text) {
    while (IsBlank(*text))
        ++text;
    return text;
}

// Blanks, then the number; `end` as the C conversions set it.
Scanned ScanAfterBlanks(const char* text, const char** end) {
    const char* start = SkipBlanks(text);
    const Scanned number = Scan(start);
    if (end != nullptr) *end = number.end == start ? text : number.end;
    return number;
}

template <class Number>
void Append(CGNString& out, Number value) {
    char digits[16];
    const auto result = std::to_chars(digits, digits + sizeof digits - 1, value);
    *result.ptr = '\0';
    out += digits;
}

}  // namespace

Scanned Scan(const char* text) {
    Scanned number;
    const char* p = text;
    if (*p == '+' || *p == '-') number.negative = (*p++ == '-');
    const char* digits = p;
    for (; *p >= '0' && *p <= '9'; ++p) {
        number.magnitude = number.magnitude * 10 + static_cast<std::uint64_t>(*p - '0');
        if (number.magnitude > kMagnitudeCap) number.magnitude = kMagnitudeCap;
    }
    number.end = p == digits ? text : p;
    return number;
}

std::int32_t Signed(const Scanned& number) {
    if (number.negative) {
        return number.magnitude > 0x80000000u
                   ? INT32_MIN
                   : static_cast<std::int32_t>(-static_cast<std::int64_t>(number.magnitude));
    }
    return number.magnitude > 0x7FFFFFFFu ? INT32_MAX : static_cast<std::int32_t>(number.magnitude);
}

std::uint32_t Unsigned(const Scanned& number) {
    if (number.magnitude > kUnsignedMax) return static_cast<std::uint32_t>(kUnsignedMax);
    const auto magnitude = static_cast<std::uint32_t>(number.magnitude);
    return number.negative ? 0u - magnitude : magnitude;
}

std::int32_t ToLong(const char* text, const char** end) {
    return Signed(ScanAfterBlanks(text, end));
}

std::uint32_t ToUnsignedLong(const char* text, const char** end) {
    return Unsigned(ScanAfterBlanks(text, end));
}

void AppendSigned(CGNString& out, std::int32_t value) {
    Append(out, value);
}

void AppendUnsigned(CGNString& out, std::uint32_t value) {
    Append(out, value);
}

}  // namespace vx::number32
