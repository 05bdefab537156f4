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
    std::string result;
    std::size_t end = digits.size(), group = 0;
    for (;;) {
        int size = format.groups[std::min(group, format.groups.size() - 1)];
        bool grouping = group < format.groups.size() || format.repeatLast;
        if (!grouping || size <= 0 || end <= static_cast<std::size_t>(size)) break;
        result.insert(0, format.thousands + std::string(digits.substr(end - size, size)));
        end -= static_cast<std::size_t>(size);
        ++group;
    }
    return std::string(digits.substr(0, end)) + result;
}

}  // namespace

CGNDecimal::CGNDecimal(const char* text) : m_strText(text != nullptr ? text : "") {}

bool CGNDecimal::ConvertToRegionalLocale(bool grouping) {
    if (!IsDecimalText(m_strText)) return false;
    const RegionalFormat format = UserFormat();
    std::string_view text = m_strText;
    std::string sign;
    if (text[0] == '-' || text[0] == '+') {
        sign = text.substr(0, 1);
        text.remove_prefix(1);
    }
    std::size_t point = text.find('.');
    std::string_view whole = text.substr(0, point);
    std::string converted = sign + (grouping ? Grouped(whole, format) : std::string(whole));
    if (point != std::string_view::npos)
        converted += format.decimalPoint + std::string(text.substr(point + 1));
    m_strText = converted;
    return true;
}
