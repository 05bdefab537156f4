// The portable decimal: a decimal number as sign and digit texts, the form used to convert
// decimals from and to text and other value types. It holds any number of digits.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "vxutil/export.h"

class VXUTIL_API TKDecimalPortable {
public:
    // The states are single bits; their numbers are fixed.
    enum State : std::int32_t {
        kNormal = 0,
        kNull = 1,
        kNaN = 2,
        kCtorError = 4,
        kMissing = 8,
    };

    TKDecimalPortable() = default;  // normal, zero
    TKDecimalPortable(State state, bool negative, std::string whole, std::string fraction);

    // Parses decimal text: optional blanks and sign, digits with at most one ".", an optional
    // exponent ("e" or "E", optional sign, digits), optional blanks. Anything else gives a
    // construction error and reports "[SYNSTREAM]" as an external error.
    static TKDecimalPortable FromText(std::string_view text);
    // Integer and time values: the number printed with "%d".
    static TKDecimalPortable FromInteger(int value);
    // Real values: printed with "%.17lg" in the "C" numeric locale, so the digits are those of
    // the nearest double (0.1 gives 0.10000000000000001). Not-a-number gives the NaN state;
    // infinities are not numbers either.
    static TKDecimalPortable FromReal(double value);

    State GetState() const { return static_cast<State>(m_nState); }
    bool IsNegative() const { return m_bNegative != 0; }
    const std::string& GetWhole() const { return m_strWhole; }
    const std::string& GetFraction() const { return m_strFraction; }

    // "(null)", "(NaN)", "(ctorError)", "(missing)" for the special states, else the number;
    // a negative number without digits is "0".
    std::string asString() const;

private:
    std::int32_t m_nState = kNormal;
    std::int32_t m_bNegative = 0;
    std::string m_strWhole;
    std::string m_strFraction;
};
