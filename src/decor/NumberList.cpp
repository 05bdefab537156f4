#include "decor/NumberList.h"

#include <algorithm>
#include <limits>

namespace vx::decor {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Reads one number at `at`, moving `at` past it; false when there is none or it does not fit.
bool ReadNumber(std::string_view text, std::size_t& at, std::int32_t& number) {
    while (at < text.size() && IsBlank(text[at]))
        ++at;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    if (at >= text.size() || !IsDigit(text[at])) return false;
    // One beyond the largest magnitude allowed is still counted, so that the overflow shows.
    const std::int64_t limit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    std::int64_t magnitude = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at)
        magnitude = std::min(magnitude * 10 + (text[at] - '0'), limit + 1);
    if (magnitude > (negative ? limit : limit - 1)) return false;
    number = static_cast<std::int32_t>(negative ? -magnitude : magnitude);
    return true;
}

}  // namespace

std::size_t ScanNumbers(std::string_view text, std::span<std::int32_t> numbers) {
    std::size_t at = 0;
    std::size_t count = 0;
    while (count < numbers.size()) {
        if (count > 0) {
            if (at >= text.size() || text[at] != ',') break;
            ++at;
        }
        if (!ReadNumber(text, at, numbers[count])) break;
        ++count;
    }
    return count;
}

}  // namespace vx::decor
