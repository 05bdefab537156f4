// Decimal text of the common runtime, as the user sees it: the server's decimal text (digits
// with "." as the point) rewritten in the user's regional number format.
#pragma once

#include <string>

#include "vxutil/export.h"

class VXUTIL_API CGNDecimal {
public:
    CGNDecimal() = default;
    explicit CGNDecimal(const char* text);

    // Rewrites the text for the user's locale: the "." becomes the locale's decimal separator
    // (from localeconv on POSIX, the user's regional settings on Windows). With `grouping`
    // set, the integral digits are also grouped with the locale's thousands separator as the
    // locale's grouping rule says ("1234567.5" -> "1,234,567.5" in English). Fails, leaving the
    // text as it was, unless it is a decimal number: an optional sign, digits and at most one
    // "." (at least one digit in all).
    bool ConvertToRegionalLocale(bool grouping);
    // The text: as built, or in the regional format after a successful conversion.
    const char* GetDisplayBuffer() const { return m_strText.c_str(); }

private:
    std::string m_strText;
};
