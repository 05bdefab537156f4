#include "vxutil/gnrt/CGNDecimal.h"

#include <algorithm>
#include <climits>
#include <string_view>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <clocale>
#endif

namespace {

// The user's decimal and thousands separators and digit group sizes, right to left; the last
// size repeats when `repeatLast` is set.
struct RegionalFormat {
    std::string decimalPoint = ".";
    std::string thousands;
    std::vector<int> groups;
    bool repeatLast = false;
};

#ifdef _WIN32
std::string LocaleInfo(LCTYPE type) {
    char buffer[16] = {};
    return GetLocaleInfoA(LOCALE_USER_DEFAULT, type, buffer, sizeof buffer) > 0 ? buffer : "";
}

// Windows writes the grouping as "3;0" (threes, repeated) or "3;2;0"; a final group without
// the trailing 0 is not repeated.
RegionalFormat UserFormat() {
    RegionalFormat format;
    format.decimalPoint = LocaleInfo(LOCALE_SDECIMAL);
    format.thousands = LocaleInfo(LOCALE_STHOUSAND);
    for (char c : LocaleInfo(LOCALE_SGROUPING)) {
        if (c < '0' || c > '9') continue;
        if (c == '0') {
            format.repeatLast = true;
            break;
        }
        format.groups.push_back(c - '0');
    }
    return format;
}
#else
// localeconv's grouping: one byte per group; 0 repeats the previous size, CHAR_MAX ends the
// grouping.
RegionalFormat UserFormat() {
    RegionalFormat format;
    const std::lconv* conventions = std::localeconv();
    format.decimalPoint = conventions->decimal_point;
    format.thousands = conventions->thousands_sep;
    format.repeatLast = true;
    for (const char* size = conventions->grouping; *size != '\0'; ++size) {
        if (*size == CHAR_MAX || *size < 0) {
            format.repeatLast = false;
            break;
        }
        format.groups.push_back(*size);
    }
    return format;
}
#endif

bool IsDecimalText(std::string_view text) {
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
    bool digit = false, point = false;
    for (char c : text) {
        if (c >= '0' && c <= '9') {
            digit = true;
        } else if (c == '.' && !point) {
            point = true;
        } else {
            return false;
        }
    }
    return digit;
}

std::string Grouped(std::string_view digits, const RegionalFormat& format) {
    if (format.thousands.empty() || format.groups.empty()) return std::string(digits);
    // Group sizes from the right; the first group is the leftmost, whatever remains.
    std::vector<std::size_t> sizes;
    std::size_t rest = digits.size();
    for (std::size_t group = 0; group < format.groups.size() || format.repeatLast; ++group) {
        int size = format.groups[std::min(group, format.groups.size() - 1)];
        if (size <= 0 || rest <= static_cast<std::size_t>(size)) break;
        sizes.push_back(static_cast<std::size_t>(size));
        rest -= static_cast<std::size_t>(size);
    }
    std::string result(digits.substr(0, rest));
    for (std::size_t i = sizes.size(); i-- > 0;) {
        result.append(format.thousands).append(digits.substr(rest, sizes[i]));
        rest += sizes[i];
    }
    return result;
}

}  // namespace

CGNDecimal::CGNDecimal(const char* text) : m_strText(text != nullptr ? text : "") {}

bool CGNDecimal::ConvertToRegionalLocale(bool grouping) {
    if (!IsDecimalText(m_strText)) return false;
    const RegionalFormat format = UserFormat();
    std::string_view text = m_strText;
    std::string converted;
    if (text[0] == '-' || text[0] == '+') {
        converted.push_back(text[0]);
        text.remove_prefix(1);
    }
    std::size_t point = text.find('.');
    std::string_view whole = text.substr(0, point);
    converted.append(grouping ? Grouped(whole, format) : std::string(whole));
    if (point != std::string_view::npos)
        converted.append(format.decimalPoint).append(text.substr(point + 1));
    m_strText = converted;
    return true;
}
