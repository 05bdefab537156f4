// The multi-word decimal: a 96-bit two's-complement mantissa in three 32-bit words, the most
// significant (signed) word first, and a scale of 0 to 28 decimal places.
//
// Arithmetic keeps every digit it can. A result that needs more than 28 places or more digits
// than the mantissa holds is rounded half away from zero to fewer places ("inexact"); one whose
// integral part does not fit is an overflow and gives the bad value. Both are reported to the
// error handler with their catalogue message and returned as the operation's status.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "vxutil/decimal/TKDecimalPortable.h"
#include "vxutil/export.h"

enum class TKStatus {
    kExact = 0,
    kInexact = 1,     // rounded to fewer places
    kOverflow = 2,    // the result is the bad value
    kNotANumber = 3,  // an operand was the bad value, or the source no number; no message
};

class VXUTIL_API TKDecimal {
public:
    // The name the catalogue messages give the type.
    static constexpr const char* kTypeName = "TKDecimal";
    static constexpr int kMaxScale = 28;

    TKDecimal() = default;  // zero
    // A scale outside 0..28 reports "[POWRANGE]" and gives the bad value.
    TKDecimal(std::int32_t high, std::uint32_t middle, std::uint32_t low, int scale)
        : m_nHigh(high), m_nMiddle(middle), m_nLow(low), m_nScale(scale) {
        if (scale < 0 || scale > kMaxScale) *this = OutOfRange(scale);
    }
    static TKDecimal FromInteger(std::int64_t value);
    // The mantissa with high word -2147483648 and zero low words: the result of an overflow.
    static TKDecimal BadValue();

    std::int32_t GetHigh() const { return m_nHigh; }
    std::uint32_t GetMiddle() const { return m_nMiddle; }
    std::uint32_t GetLow() const { return m_nLow; }
    int GetScale() const { return m_nScale; }
    bool IsBad() const { return m_nHigh == kBadHigh && m_nMiddle == 0 && m_nLow == 0; }
    bool IsNegative() const { return m_nHigh < 0; }

    // Conversions; a result that does not fit exactly is rounded or, when too large, the bad
    // value, reported with the "[FROMPORT...]" or "[FROMDBL...]" messages.
    static TKStatus FromPortable(const TKDecimalPortable& portable, TKDecimal& result);
    static TKStatus FromText(std::string_view text, TKDecimal& result);
    static TKStatus FromReal(double value, TKDecimal& result);
    TKDecimalPortable ToPortable() const;

    static TKStatus Add(const TKDecimal& a, const TKDecimal& b, TKDecimal& result);
    static TKStatus Subtract(const TKDecimal& a, const TKDecimal& b, TKDecimal& result);
    static TKStatus Multiply(const TKDecimal& a, const TKDecimal& b, TKDecimal& result);
    // Division by zero is an overflow.
    static TKStatus Divide(const TKDecimal& a, const TKDecimal& b, TKDecimal& result);

    // At most `places` decimal places (0 when negative), rounding half away from zero: 2.5
    // gives 3 and -2.5 gives -3. Not a fault, so nothing is reported.
    TKDecimal Round(int places) const;
    // Numeric order (-1, 0, 1) whatever the scales: 1.50 equals 1.5. The bad value sorts
    // below every number and equals itself.
    static int Compare(const TKDecimal& a, const TKDecimal& b);

    // "(bad value)" for the bad value; else the digits, a leading "-" when negative and a "."
    // before the last `scale` digits (1250 with scale 2 is "12.50", 5 with scale 2 "0.05").
    std::string asString() const;

private:
    static constexpr std::int32_t kBadHigh = -2147483647 - 1;

    // Reports a scale outside 0..28 and gives the bad value.
    static TKDecimal OutOfRange(int scale);

    std::int32_t m_nHigh = 0;
    std::uint32_t m_nMiddle = 0;
    std::uint32_t m_nLow = 0;
    std::int32_t m_nScale = 0;
};
