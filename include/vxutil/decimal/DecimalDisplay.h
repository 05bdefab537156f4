// How a decimal value is shown to the user.
#pragma once

#include <string>
#include <string_view>

#include "vxutil/export.h"

// The display text of decimal text `text` with `precision` places (-1: as it is): short
// fractions are padded with zeros ("5" with 2 places is "5.00"; with 0 places "5.", the point
// kept), long ones rounded half away from zero; then the text is put into the user's regional
// format (CGNDecimal::ConvertToRegionalLocale with `grouping`). False, leaving `display` as it
// was, when the text is no decimal number.
VXUTIL_API bool FormatDecimalForDisplay(std::string_view text, int precision, bool grouping,
                                        std::string& display);
