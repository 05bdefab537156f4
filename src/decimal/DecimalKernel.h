// The arithmetic of decimal numbers with a 96-bit mantissa and 0 to 28 decimal places.
//
// A number is a magnitude below 2^95, a sign and a scale (value = magnitude / 10^scale). Every
// operation first computes its exact result in a wider integer and then fits it back: it keeps
// as many decimal places as the operation's natural scale allows (at most 28) and, when the
// mantissa would not hold the result, gives up places one by one, rounding half away from zero.
// The result is "inexact" when a dropped digit was not zero and "overflow" when not even the
// integral part fits.
//
// The common cases whose exact result surely fits take a quick path first, on the mantissa's
// two's-complement form (Signed), and leave everything else to the general operations.
//
// The kernel is written once over its 128-bit type U: the compiler's unsigned __int128 where
// there is one, Portable128 elsewhere (or when VXUTIL_DECIMAL_PORTABLE is defined, to try the
// portable path on a compiler that has both). Both must give identical results.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string_view>

#include "decimal/Portable128.h"
#include "decimal/Wide256.h"

namespace vx::decimal {

#if defined(__SIZEOF_INT128__) && !defined(VXUTIL_DECIMAL_PORTABLE)
__extension__ typedef unsigned __int128 Native128;
#else
using Native128 = Portable128;
#endif

inline constexpr int kMaxScale = 28;

enum class Outcome { kExact, kInexact, kOverflow };

// 10^0 to 10^19, every power of ten within 64 bits.
inline constexpr auto kPowersOfTen = [] {
    std::array<std::uint64_t, 20> powers{};
    powers[0] = 1;
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

template <class U>
struct Number {
    U magnitude = 0;
    bool negative = false;
    int scale = 0;
};

// The same number as its two's-complement mantissa sign-extended to U. U wraps like a signed
// type, so sums and products of these values are those of the numbers while the true results
// stay within 127 bits, and no sign needs handling: the form of the quick common cases.
template <class U>
struct Signed {
    U value = 0;
    int scale = 0;
};

template <class U>
class Kernel {
public:
    using Num = Number<U>;
    using Sig = Signed<U>;

    // The largest magnitude: 2^95 - 1. (-2^95 is the mantissa's "bad value".)
    static U MaxMagnitude() { return (U(1) << 95) - U(1); }

    // The two's-complement mantissa words, most significant (signed) first.
    static Sig SignedFromWords(std::int32_t high, std::uint32_t middle, std::uint32_t low,
                               int scale) {
        const auto extended = static_cast<std::uint64_t>(static_cast<std::int64_t>(high));
        return {(U(extended) << 64) | U((static_cast<std::uint64_t>(middle) << 32) | low), scale};
    }
    static void ToWords(const Sig& number, std::int32_t& high, std::uint32_t& middle,
                        std::uint32_t& low) {
        high = static_cast<std::int32_t>(
            static_cast<std::uint32_t>(static_cast<std::uint64_t>(number.value >> 64)));
        middle = static_cast<std::uint32_t>(static_cast<std::uint64_t>(number.value >> 32));
        low = static_cast<std::uint32_t>(static_cast<std::uint64_t>(number.value));
    }
    static Num FromWords(std::int32_t high, std::uint32_t middle, std::uint32_t low, int scale) {
        return FromSigned(SignedFromWords(high, middle, low, scale));
    }
    static void ToWords(const Num& number, std::int32_t& high, std::uint32_t& middle,
                        std::uint32_t& low) {
        ToWords(ToSigned(number), high, middle, low);
    }

    static Num FromSigned(const Sig& number) {
        Num result;
        result.negative = (number.value >> 127) != U(0);
        result.magnitude = result.negative ? U(0) - number.value : number.value;
        result.scale = number.scale;
        return result;
    }
    static Sig ToSigned(const Num& number) {
        return {number.negative ? U(0) - number.magnitude : number.magnitude, number.scale};
    }

    // The quick common cases: the exact result when it surely fits as it is, else false and
    // the general operation decides. The operands are not the bad value.
    static bool QuickAdd(const Sig& a, const Sig& b, Sig& result) {
        // As in Add: places that differ by at most nine align within 127 bits.
        const int shift = a.scale - b.scale;
        if (shift < -9 || shift > 9) return false;
        U left = a.value, right = b.value;
        if (shift < 0) left = left * U(Pow10(-shift));
        if (shift > 0) right = right * U(Pow10(shift));
        return Exactly(left + right, std::max(a.scale, b.scale), result);
    }
    static bool QuickSubtract(const Sig& a, const Sig& b, Sig& result) {
        return QuickAdd(a, {U(0) - b.value, b.scale}, result);
    }
    static bool QuickMultiply(const Sig& a, const Sig& b, Sig& result) {
        // Two factors within 64 bits make a product within 127 bits.
        if (!WithinInt64(a.value) || !WithinInt64(b.value)) return false;
        return Exactly(a.value * b.value, a.scale + b.scale, result);
    }
    // A division that comes out even, within 64 bits, keeps the places of a.scale - b.scale.
    static bool QuickDivide(const Sig& a, const Sig& b, Sig& result) {
        if (a.scale < b.scale || b.value == U(0) || !WithinInt64(a.value) || !WithinInt64(b.value))
            return false;
        const std::int64_t dividend = ToInt64(a.value), divisor = ToInt64(b.value);
        // The one quotient beyond 64 bits: -2^63 / -1.
        if (dividend == INT64_MIN || dividend % divisor != 0) return false;
        result = {FromInt64(dividend / divisor), a.scale - b.scale};
        return true;
    }

    static Outcome Add(const Num& a, const Num& b, Num& result) {
        const int scale = std::max(a.scale, b.scale);
        // Places that differ by at most nine align within U: 2^95 * 10^9 < 2^126, and the sum
        // stays below 2^127.
        const int shift = a.scale - b.scale;
        if (shift < -9 || shift > 9) return AddAligned(a, b, scale, result);
        U left = a.magnitude, right = b.magnitude;
        if (shift < 0) left = left * U(Pow10(-shift));
        if (shift > 0) right = right * U(Pow10(shift));
        const bool negative = SignedSum(left, right, a.negative, b.negative);
        return FitNarrow(left, negative, scale, result);
    }

    static Outcome Subtract(const Num& a, const Num& b, Num& result) {
        Num negated = b;
        negated.negative = !b.negative;
        return Add(a, negated, result);
    }

    static Outcome Multiply(const Num& a, const Num& b, Num& result) {
        // Most mantissas have 64 bits or fewer, and then their product fits in U.
        if ((a.magnitude >> 64) == U(0) && (b.magnitude >> 64) == U(0)) {
            const U product = U(static_cast<std::uint64_t>(a.magnitude)) *
                              U(static_cast<std::uint64_t>(b.magnitude));
            return FitNarrow(product, a.negative != b.negative, a.scale + b.scale, result);
        }
        return Fit(Wide256<U>::Product(a.magnitude, b.magnitude), a.negative != b.negative,
                   a.scale + b.scale, kMaxScale, Dropped(), result);
    }

    // The quotient keeps the places of a.scale - b.scale (none when negative) and takes more
    // only while the division has a remainder. Division by zero is an overflow.
    static Outcome Divide(const Num& a, const Num& b, Num& result) {
        if (b.magnitude == U(0)) return Outcome::kOverflow;
        U quotient, remainder;
        DivideWithRemainder(a.magnitude, b.magnitude, quotient, remainder);
        int scale = a.scale - b.scale;
        Dropped dropped;
        if ((remainder != U(0) || scale < 0) &&
            !MoreDigits(b.magnitude, quotient, remainder, scale, dropped))
            return Outcome::kOverflow;
        return FitNarrow(quotient, a.negative != b.negative, scale, result, dropped);
    }

    // Cuts to at most `places` decimal places, rounding half away from zero.
    static Outcome Round(const Num& a, int places, Num& result) {
        if (a.scale <= places) {
            result = a;
            return Outcome::kExact;
        }
        return Fit(Wide256<U>(a.magnitude), a.negative, a.scale, std::max(places, 0), Dropped(),
                   result);
    }

    static int Compare(const Num& a, const Num& b) {
        bool aZero = a.magnitude == U(0), bZero = b.magnitude == U(0);
        if (aZero && bZero) return 0;
        bool aNegative = a.negative && !aZero, bNegative = b.negative && !bZero;
        if (aNegative != bNegative) return aNegative ? -1 : 1;
        int scale = std::max(a.scale, b.scale);
        int order = Aligned(a, scale).CompareTo(Aligned(b, scale));
        return aNegative ? -order : order;
    }

    // The number written with the digits `whole` '.' `fraction` (ASCII digits only).
    static Outcome FromDigits(std::string_view whole, std::string_view fraction, bool negative,
                              Num& result) {
        whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
        // 10^29 is above the largest magnitude: more integral digits can never fit.
        if (whole.size() > 29) return Outcome::kOverflow;
        Wide256<U> value;
        for (char c : whole)
            value.MultiplyAdd(10, static_cast<std::uint64_t>(c - '0'));
        int scale = 0;
        Dropped dropped;
        for (char c : fraction) {
            int digit = c - '0';
            if (scale < kMaxScale) {
                value.MultiplyAdd(10, static_cast<std::uint64_t>(digit));
                ++scale;
            } else if (dropped.digit < 0) {
                dropped.digit = digit;
            } else {
                dropped.sticky = dropped.sticky || digit != 0;
            }
        }
        return Fit(value, negative, scale, kMaxScale, dropped, result);
    }

private:
    // What was cut off the right of a number: the first dropped digit decides the rounding
    // (-1: none yet), the later ones only whether anything was lost.
    struct Dropped {
        int digit = -1;
        bool sticky = false;
    };

    static bool WithinInt64(U value) { return ((value + (U(1) << 63)) >> 64) == U(0); }
    static std::int64_t ToInt64(U value) {
        return static_cast<std::int64_t>(static_cast<std::uint64_t>(value));
    }
    static U FromInt64(std::int64_t value) {
        const U bits(static_cast<std::uint64_t>(value));
        return value < 0 ? bits - (U(1) << 64) : bits;
    }

    // Stores the value when it is a mantissa, -(2^95 - 1) to 2^95 - 1: moved up by 2^95 - 1,
    // exactly those values lie in 0 to 2^96 - 2, and every other one (also a negative one,
    // which wraps) lies above.
    static bool Exactly(U value, int scale, Sig& result) {
        if (scale > kMaxScale || value + MaxMagnitude() > (MaxMagnitude() << 1)) return false;
        result = {value, scale};
        return true;
    }

    // left = (left with its sign) + (right with its sign), as a magnitude; returns its sign.
    template <class T>
    static bool SignedSum(T& left, const T& right, bool leftNegative, bool rightNegative) {
        if (leftNegative == rightNegative) {
            left = left + right;
            return leftNegative;
        }
        if (!(left < right)) {
            left = left - right;
            return leftNegative;
        }
        left = right - left;
        return rightNegative;
    }

    // The sum of operands whose places differ too much to align within U.
    [[gnu::noinline]] static Outcome AddAligned(const Num& a, const Num& b, int scale,
                                                Num& result) {
        Wide256<U> left = Aligned(a, scale);
        const bool negative = SignedSum(left, Aligned(b, scale), a.negative, b.negative);
        return Fit(left, negative, scale, kMaxScale, Dropped(), result);
    }

    // 10^exponent for 0 <= exponent <= 19.
    static constexpr std::uint64_t Pow10(int exponent) {
        return kPowersOfTen[static_cast<std::size_t>(exponent)];
    }

    static Wide256<U> Aligned(const Num& number, int scale) {
        Wide256<U> value(number.magnitude);
        for (int shift = scale - number.scale; shift > 0; shift -= 19)
            value.MultiplyAdd(Pow10(std::min(shift, 19)), 0);
        return value;
    }

    static int BitLength(U value) {
        const auto high = static_cast<std::uint64_t>(value >> 64);
        return high != 0 ? 128 - std::countl_zero(high)
                         : 64 - std::countl_zero(static_cast<std::uint64_t>(value));
    }

    // Long division, while there is a remainder or the quotient lacks places (scale < 0): as
    // many digits at a time as surely fit, then one more while it happens to fit; when even
    // that one does not, it is the first digit dropped. False when not even the integral
    // part fits.
    static bool MoreDigits(U divisor, U& quotient, U& remainder, int& scale, Dropped& dropped) {
        const int preferred = std::max(scale, 0);
        while (scale < kMaxScale && (scale < 0 || remainder != U(0))) {
            const int most = std::min(scale < 0 ? -scale : kMaxScale - scale, ChunkFor(remainder));
            const int step = std::max(RoomFor(quotient, most), 1);
            U digits, rest;
            ScaledDivision(divisor, remainder, step, digits, rest);
            const U extended = quotient * U(Pow10(step)) + digits;
            if (extended > MaxMagnitude()) {
                if (scale < 0) return false;
                dropped =
                    Dropped{static_cast<int>(static_cast<std::uint64_t>(digits)), rest != U(0)};
                return true;
            }
            quotient = extended;
            remainder = rest;
            scale += step;
        }
        // A chunk may have run past the point where the division came out even.
        while (remainder == U(0) && scale > preferred && quotient % U(10) == U(0)) {
            quotient = quotient / U(10);
            --scale;
        }
        if (remainder != U(0)) {
            U digit, rest;
            ScaledDivision(divisor, remainder, 1, digit, rest);
            dropped = Dropped{static_cast<int>(static_cast<std::uint64_t>(digit)), rest != U(0)};
        }
        return true;
    }

    // The most digits, up to `most`, that can follow `quotient` < 2^95 whatever they are.
    // k digits fit while quotient < 2^95 / 10^k: surely for k up to (95 - bits) * log10(2)
    // (1233 / 4096 is just below it), and never for two more.
    static int RoomFor(U quotient, int most) {
        static constexpr auto kLimits = [] {
            std::array<U, 20> limits{};
            for (int k = 0; k < 20; ++k)
                limits[static_cast<std::size_t>(k)] = (U(1) << 95) / U(Pow10(k));
            return limits;
        }();
        int room = std::min(((95 - BitLength(quotient)) * 1233) >> 12, 18);
        if (quotient < kLimits[static_cast<std::size_t>(room) + 1]) ++room;
        return std::min(room, most);
    }

    // In 64 bits when both fit there: far cheaper than dividing 128 bits.
    static void DivideWithRemainder(U dividend, U divisor, U& quotient, U& remainder) {
        if (((dividend | divisor) >> 64) == U(0)) {
            const auto narrowDividend = static_cast<std::uint64_t>(dividend);
            const auto narrowDivisor = static_cast<std::uint64_t>(divisor);
            quotient = U(narrowDividend / narrowDivisor);
            remainder = U(narrowDividend % narrowDivisor);
            return;
        }
        quotient = dividend / divisor;
        remainder = dividend - quotient * divisor;
    }

    // digits, rest = remainder * 10^count divided by the divisor, for remainder < divisor and
    // count at most ChunkFor(remainder).
    static void ScaledDivision(U divisor, U remainder, int count, U& digits, U& rest) {
        DivideWithRemainder(remainder * U(Pow10(count)), divisor, digits, rest);
    }

    // How many digits to take at once: as many as keep remainder * 10^count within 64 bits,
    // where dividing is far cheaper, or else within 128 bits (at least nine, as the
    // remainder is below 2^95).
    static int ChunkFor(U remainder) {
        const int bits = BitLength(remainder);
        return bits <= 34 ? ((64 - bits) * 1233) >> 12 : std::min(((128 - bits) * 1233) >> 12, 19);
    }

    // Removes `count` digits from the right of `value`, noting them in `dropped`.
    static void DropDigits(Wide256<U>& value, int count, Dropped& dropped) {
        bool sticky = dropped.sticky || dropped.digit > 0;
        for (int rest = count - 1; rest > 0; rest -= 19)
            sticky = value.DivideSmall(Pow10(std::min(rest, 19))) != 0 || sticky;
        dropped.digit = static_cast<int>(value.DivideSmall(10));
        dropped.sticky = sticky;
    }

    // A lower bound of the digits to drop before `value` fits: it has at least
    // (bits - 96) * log10(2) digits more than the largest magnitude.
    static int ExcessDigits(const Wide256<U>& value) {
        int bits = value.BitLength();
        return bits <= 96 ? 0 : ((bits - 96) * 1233) >> 12;
    }

    // Fit for a value within U, with the common cases first: it fits as it is, or once rounded
    // up by one.
    static Outcome FitNarrow(U value, bool negative, int scale, Num& result,
                             Dropped dropped = Dropped()) {
        if (scale > kMaxScale || value >= MaxMagnitude())
            return Fit(Wide256<U>(value), negative, scale, kMaxScale, dropped, result);
        if (dropped.digit >= 5) {
            value = value + U(1);
            dropped = Dropped{0, true};
        }
        result.magnitude = value;
        result.negative = negative && value != U(0);
        result.scale = scale;
        return dropped.digit > 0 || dropped.sticky ? Outcome::kInexact : Outcome::kExact;
    }

    // Out of line, like the other rare paths, so that the common ones stay small enough to
    // keep their numbers in registers.
    [[gnu::noinline]] static Outcome Fit(Wide256<U> value, bool negative, int scale, int maxScale,
                                         Dropped dropped, Num& result) {
        int skip = std::max(scale - maxScale, ExcessDigits(value));
        if (skip > scale) return Outcome::kOverflow;
        if (skip > 0) {
            DropDigits(value, skip, dropped);
            scale -= skip;
        }
        for (;;) {
            while (!value.AtMost(MaxMagnitude())) {
                if (scale == 0) return Outcome::kOverflow;
                DropDigits(value, 1, dropped);
                --scale;
            }
            if (dropped.digit < 5) break;
            // Rounded up; what was dropped now only tells that the result is inexact. Only
            // the largest magnitude plus one fails to fit, and loses one more digit.
            value += Wide256<U>(U(1));
            dropped = Dropped{0, true};
        }
        result.magnitude = value.Low();
        result.negative = negative && result.magnitude != U(0);
        result.scale = scale;
        return dropped.digit > 0 || dropped.sticky ? Outcome::kInexact : Outcome::kExact;
    }
};

}  // namespace vx::decimal
