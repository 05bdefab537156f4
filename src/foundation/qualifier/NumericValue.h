// Values seen as numbers, for a qualifier's arithmetic and comparisons: integers (with times,
// enumerated, bitmask and unsigned values), reals and decimals. Two numbers are taken in the
// wider of their kinds: decimal over real over integer.
#pragma once

#include "vxutil/decimal/TKDecimal.h"
#include "vxutil/foundation/CVXValueStruct.h"

namespace vx::qualifier {

struct Numeric {
    enum Kind { kInteger, kReal, kDecimal };
    Kind kind = kInteger;
    long long integer = 0;
    double real = 0;
    TKDecimal decimal;
};

// False for values that are no numbers, and for decimal text that is no decimal number.
bool ToNumeric(const CVXValueStruct& value, Numeric& number);
Numeric::Kind CommonKind(const Numeric& a, const Numeric& b);
TKDecimal AsDecimal(const Numeric& number);
double AsReal(const Numeric& number);
// -1, 0 or 1, in the common kind of the two.
int CompareNumbers(const Numeric& a, const Numeric& b);

}  // namespace vx::qualifier
