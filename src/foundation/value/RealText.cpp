#include "foundation/value/RealText.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>

#include "decimal/NumericLocaleScope.h"

namespace vx::value {
namespace {

bool InGeneralNotation(double value, bool general) {
    const double magnitude = std::fabs(value);
    return general && magnitude != 0 && (magnitude < 0.000001 || magnitude > 999999999);
}

// "12.500000" becomes "12.5", "12.000000" "12.".
void CutTrailingZeros(CGNString& text) {
    std::size_t keep = text.GetLength();
    while (keep > 0 && text[keep - 1] == '0')
        --keep;
    text = text.Left(keep);
}

}  // namespace

CGNString FormatReal(double value, int precision, bool general) {
    CGNString text;
    if (InGeneralNotation(value, general)) {
        if (precision == -1) {
            text.Format("%lg", value);
        } else {
            text.Format("%.*lg", precision + 1, value);
        }
    } else if (precision == -1) {
        text.Format("%lf", value);
        if (text.Find('.') >= 0) CutTrailingZeros(text);
    } else {
        text.Format("%.*lf", precision, value);
    }
    return text;
}

// std::to_chars writes what printf writes in the "C" locale, without printf's cost.
CGNString FormatClassicReal(double value) {
    char text[64];
    const bool generalForm = InGeneralNotation(value, true);
    const auto written =
        generalForm
            ? std::to_chars(text, text + sizeof text - 1, value, std::chars_format::general, 6)
            : std::to_chars(text, text + sizeof text - 1, value, std::chars_format::fixed, 6);
    *written.ptr = '\0';
    CGNString formatted(text);
    if (!generalForm && formatted.Find('.') >= 0) CutTrailingZeros(formatted);
    return formatted;
}

double ParseReal(const char* text, char** end) {
    const char* point = std::localeconv()->decimal_point;
    if (point[0] == '.' && point[1] == '\0') return std::strtod(text, end);
    NumericLocaleScope classic;
    return std::strtod(text, end);
}

}  // namespace vx::value
