#include "vxutil/decimal/TKDecimalPortable.h"

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdio>

#include "decimal/NumericLocaleScope.h"
#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/decimal/TKExternalErr.h"

namespace {

// Exponents beyond this are refused rather than spelt out as thousands of zeros.
constexpr int kMaxExponent = 9999;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view TakeDigits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count]))
        ++count;
    std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

bool TakeSign(std::string_view& text) {
    if (text.empty() || (text[0] != '-' && text[0] != '+')) return false;
    bool negative = text[0] == '-';
    text.remove_prefix(1);
    return negative;
}

bool TakeExponent(std::string_view& text, int& exponent) {
    exponent = 0;
    if (text.empty() || (text[0] != 'e' && text[0] != 'E')) return true;
    text.remove_prefix(1);
    bool negative = TakeSign(text);
    std::string_view digits = TakeDigits(text);
    if (digits.empty()) return false;
    for (char c : digits) {
        exponent = exponent * 10 + (c - '0');
        if (exponent > kMaxExponent) return false;
    }
    if (negative) exponent = -exponent;
    return true;
}

// Splits `digits` with the point after `point` digits (which may lie outside them).
void PlacePoint(const std::string& digits, long point, std::string& whole, std::string& fraction) {
    const long size = static_cast<long>(digits.size());
    if (point <= 0) {
        whole.clear();
        fraction = std::string(static_cast<std::size_t>(-point), '0') + digits;
    } else if (point >= size) {
        whole = digits + std::string(static_cast<std::size_t>(point - size), '0');
        fraction.clear();
    } else {
        whole = digits.substr(0, static_cast<std::size_t>(point));
        fraction = digits.substr(static_cast<std::size_t>(point));
    }
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
}

bool Parse(std::string_view text, bool& negative, std::string& whole, std::string& fraction) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    negative = TakeSign(text);
    std::string_view wholeDigits = TakeDigits(text);
    std::string_view fractionDigits;
    if (!text.empty() && text[0] == '.') {
        text.remove_prefix(1);
        fractionDigits = TakeDigits(text);
    }
    int exponent = 0;
    if (wholeDigits.empty() && fractionDigits.empty()) return false;
    if (!TakeExponent(text, exponent) || !text.empty()) return false;
    std::string digits(wholeDigits);
    digits += fractionDigits;
    PlacePoint(digits, static_cast<long>(wholeDigits.size()) + exponent, whole, fraction);
    return true;
}

}  // namespace

TKDecimalPortable::TKDecimalPortable(State state, bool negative, std::string whole,
                                     std::string fraction)
    : m_nState(state),
      m_bNegative(negative ? 1 : 0),
      m_strWhole(std::move(whole)),
      m_strFraction(std::move(fraction)) {}

TKDecimalPortable TKDecimalPortable::FromText(std::string_view text) {
    TKDecimalPortable portable;
    bool negative = false;
    if (!Parse(text, negative, portable.m_strWhole, portable.m_strFraction)) {
        std::string got(1, '"');
        got.append(text).append(1, '"');
        TKReportError(
            TKMakeMessage<TKExternalErr>(tkcore::kSynStream, "a decimal number", got.c_str()));
        return TKDecimalPortable(kCtorError, false, {}, {});
    }
    portable.m_bNegative = negative ? 1 : 0;
    return portable;
}

TKDecimalPortable TKDecimalPortable::FromInteger(int value) {
    char text[16];
    std::snprintf(text, sizeof text, "%d", value);
    return FromText(text);
}

TKDecimalPortable TKDecimalPortable::FromReal(double value) {
    if (std::isnan(value)) return TKDecimalPortable(kNaN, false, {}, {});
    if (std::isinf(value)) return TKDecimalPortable(kCtorError, false, {}, {});
    char buffer[64];
    {
        NumericLocaleScope classic;
        std::snprintf(buffer, sizeof buffer, "%.17lg", value);
    }
    // Belt and braces, kept from older clients: a separator of the user's locale becomes ".".
    std::string text = buffer;
    const char* separator = std::localeconv()->decimal_point;
    if (separator != nullptr && *separator != '\0' && std::string_view(separator) != ".") {
        for (std::size_t at = text.find(separator); at != std::string::npos;
             at = text.find(separator, at + 1))
            text.replace(at, std::string_view(separator).size(), 1, '.');
    }
    return FromText(text);
}

std::string TKDecimalPortable::asString() const {
    switch (m_nState) {
        case kNormal:
            break;
        case kNull:
            return "(null)";
        case kNaN:
            return "(NaN)";
        case kCtorError:
            return "(ctorError)";
        case kMissing:
            return "(missing)";
        default:
            return "(Impossible value)";
    }
    std::string text;
    if (m_bNegative != 0 && !(m_strWhole.empty() && m_strFraction.empty())) text += '-';
    text += m_strWhole.empty() ? "0" : m_strWhole;
    if (!m_strFraction.empty()) text.append(1, '.').append(m_strFraction);
    return text;
}
