#include "foundation/value/RealText.h"

#include <clocale>
#include <cmath>
#include <cstdlib>

#include "vxutil/decimal/NumericLocaleScope.h"

namespace vx::value {

CGNString FormatReal(double value, int precision, bool general) {
    CGNString text;
    const double magnitude = std::fabs(value);
    if (general && magnitude != 0 && (magnitude < 0.000001 || magnitude > 999999999)) {
        if (precision == -1) {
            text.Format("%lg", value);
        } else {
            text.Format("%.*lg", precision + 1, value);
        }
    } else if (precision == -1) {
        text.Format("%lf", value);
        if (text.Find('.') >= 0) {
            std::size_t keep = text.GetLength();
            while (keep > 0 && text[keep - 1] == '0')
                --keep;
            text = text.Left(keep);
        }
    } else {
        text.Format("%.*lf", precision, value);
    }
    return text;
}

double ParseReal(const char* text, char** end) {
    const lconv* numeric = std::localeconv();
    if (numeric->decimal_point[0] == '.' && numeric->decimal_point[1] == '\0')
        return std::strtod(text, end);
    NumericLocaleScope classic;
    return std::strtod(text, end);
}

}  // namespace vx::value
