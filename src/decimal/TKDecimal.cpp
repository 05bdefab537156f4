#include "vxutil/decimal/TKDecimal.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "decimal/DecimalKernel.h"
#include "vxutil/decimal/TKErrorHandlers.h"

namespace {

using Kernel = vx::decimal::Kernel<vx::decimal::Native128>;
using Number = Kernel::Num;
using vx::decimal::Outcome;

constexpr std::int32_t kBadHigh = -2147483647 - 1;

Number ToNumber(const TKDecimal& value) {
    return Kernel::FromWords(value.GetHigh(), value.GetMiddle(), value.GetLow(), value.GetScale());
}

TKDecimal FromNumber(const Number& number) {
    std::int32_t high = 0;
    std::uint32_t middle = 0, low = 0;
    Kernel::ToWords(number, high, middle, low);
    return TKDecimal(high, middle, low, number.scale);
}

// The catalogue messages of one operation.
struct Faults {
    const TKMessage& overflow;
    const TKMessage& inexact;
};

constexpr Faults kAddFaults{tkdcml::kAddOver, tkdcml::kAddInexact};
constexpr Faults kSubtractFaults{tkdcml::kSubOver, tkdcml::kSubInexact};
constexpr Faults kMultiplyFaults{tkdcml::kMulOver, tkdcml::kMulInexact};
constexpr Faults kDivideFaults{tkdcml::kDivOver, tkdcml::kDivInexact};
constexpr Faults kPortableFaults{tkdcml::kFromPortOver, tkdcml::kFromPortInexact};
constexpr Faults kRealFaults{tkdcml::kFromDblOver, tkdcml::kFromDblInexact};

// `real` fills the "%g" of the conversions from double; the other texts ignore it.
TKStatus Finish(Outcome outcome, const Number& number, const Faults& faults, double real,
                TKDecimal& result) {
    switch (outcome) {
        case Outcome::kOverflow:
            result = TKDecimal::BadValue();
            TKReportError(TKMakeMessage(faults.overflow, TKDecimal::kTypeName, real));
            return TKStatus::kOverflow;
        case Outcome::kInexact:
            result = FromNumber(number);
            TKReportError(TKMakeMessage(faults.inexact, TKDecimal::kTypeName, real));
            return TKStatus::kInexact;
        case Outcome::kExact:
            break;
    }
    result = FromNumber(number);
    return TKStatus::kExact;
}

TKStatus Apply(Outcome (*operation)(const Number&, const Number&, Number&), const TKDecimal& a,
               const TKDecimal& b, const Faults& faults, TKDecimal& result) {
    if (a.IsBad() || b.IsBad()) {
        result = TKDecimal::BadValue();
        return TKStatus::kNotANumber;
    }
    Number number;
    Outcome outcome = operation(ToNumber(a), ToNumber(b), number);
    return Finish(outcome, number, faults, 0.0, result);
}

bool AllDigits(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

TKStatus FromDigits(const TKDecimalPortable& portable, const Faults& faults, double real,
                    TKDecimal& result) {
    if (portable.GetState() != TKDecimalPortable::kNormal || !AllDigits(portable.GetWhole()) ||
        !AllDigits(portable.GetFraction())) {
        result = TKDecimal::BadValue();
        return TKStatus::kNotANumber;
    }
    Number number;
    Outcome outcome = Kernel::FromDigits(portable.GetWhole(), portable.GetFraction(),
                                         portable.IsNegative(), number);
    return Finish(outcome, number, faults, real, result);
}

// One step of the decimal shift right: divides the non-negative 96-bit magnitude in `words`
// (most significant first) by ten. Fails when the words hold no such magnitude.
bool ShiftRight(std::uint32_t (&words)[3], int& digit) {
    if ((words[0] & 0x80000000u) != 0) return false;
    std::uint64_t remainder = 0;
    for (std::uint32_t& word : words) {
        std::uint64_t current = (remainder << 32) | word;
        word = static_cast<std::uint32_t>(current / 10);
        remainder = current % 10;
    }
    digit = static_cast<int>(remainder);
    return true;
}

// The magnitude of the two's-complement mantissa, most significant word first.
void Magnitude(const TKDecimal& value, std::uint32_t (&words)[3]) {
    words[0] = static_cast<std::uint32_t>(value.GetHigh());
    words[1] = value.GetMiddle();
    words[2] = value.GetLow();
    if (!value.IsNegative()) return;
    std::uint32_t carry = 1;
    for (int i = 2; i >= 0; --i) {
        words[i] = ~words[i] + carry;
        carry = carry != 0 && words[i] == 0 ? 1 : 0;
    }
}

}  // namespace

TKDecimal::TKDecimal(std::int32_t high, std::uint32_t middle, std::uint32_t low, int scale)
    : m_nHigh(high), m_nMiddle(middle), m_nLow(low), m_nScale(scale) {
    if (scale < 0 || scale > kMaxScale) {
        TKReportError(
            TKMakeMessage(tkdcml::kPowRange, kTypeName, scale, static_cast<unsigned>(kMaxScale)));
        *this = BadValue();
    }
}

TKDecimal TKDecimal::FromInteger(std::int64_t value) {
    Number number;
    number.negative = value < 0;
    std::uint64_t magnitude = static_cast<std::uint64_t>(value);
    number.magnitude = number.negative ? ~magnitude + 1 : magnitude;
    return FromNumber(number);
}

TKDecimal TKDecimal::BadValue() {
    TKDecimal bad;
    bad.m_nHigh = kBadHigh;
    return bad;
}

bool TKDecimal::IsBad() const {
    return m_nHigh == kBadHigh && m_nMiddle == 0 && m_nLow == 0;
}

TKStatus TKDecimal::FromPortable(const TKDecimalPortable& portable, TKDecimal& result) {
    return FromDigits(portable, kPortableFaults, 0.0, result);
}

TKStatus TKDecimal::FromText(std::string_view text, TKDecimal& result) {
    return FromPortable(TKDecimalPortable::FromText(text), result);
}

TKStatus TKDecimal::FromReal(double value, TKDecimal& result) {
    if (std::isinf(value)) {
        result = BadValue();
        TKReportError(TKMakeMessage(tkdcml::kFromDblOver, kTypeName, value));
        return TKStatus::kOverflow;
    }
    return FromDigits(TKDecimalPortable::FromReal(value), kRealFaults, value, result);
}

TKDecimalPortable TKDecimal::ToPortable() const {
    if (IsBad()) return TKDecimalPortable(TKDecimalPortable::kNaN, false, {}, {});
    std::string text = asString();
    bool negative = text[0] == '-';
    if (negative) text.erase(0, 1);
    std::size_t point = text.find('.');
    std::string whole = text.substr(0, point);
    std::string fraction = point == std::string::npos ? std::string() : text.substr(point + 1);
    if (whole == "0") whole.clear();
    return TKDecimalPortable(TKDecimalPortable::kNormal, negative, whole, fraction);
}

TKStatus TKDecimal::Add(const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    return Apply(Kernel::Add, a, b, kAddFaults, result);
}

TKStatus TKDecimal::Subtract(const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    return Apply(Kernel::Subtract, a, b, kSubtractFaults, result);
}

TKStatus TKDecimal::Multiply(const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    return Apply(Kernel::Multiply, a, b, kMultiplyFaults, result);
}

TKStatus TKDecimal::Divide(const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    return Apply(Kernel::Divide, a, b, kDivideFaults, result);
}

TKDecimal TKDecimal::Round(int places) const {
    if (IsBad()) return *this;
    Number rounded;
    Kernel::Round(ToNumber(*this), std::max(places, 0), rounded);
    return FromNumber(rounded);
}

int TKDecimal::Compare(const TKDecimal& a, const TKDecimal& b) {
    if (a.IsBad() || b.IsBad()) return static_cast<int>(b.IsBad()) - static_cast<int>(a.IsBad());
    return Kernel::Compare(ToNumber(a), ToNumber(b));
}

std::string TKDecimal::asString() const {
    if (IsBad()) return "(bad value)";
    std::uint32_t words[3];
    Magnitude(*this, words);
    std::string digits;
    do {
        int digit = 0;
        if (!ShiftRight(words, digit)) {
            // Deliberately not the fatal handler: the value itself is corrupt.
            std::fputs("asString(): Fatal: Bad decimal shift right!\n", stderr);
            std::exit(-1);
        }
        digits.push_back(static_cast<char>('0' + digit));
    } while ((words[0] | words[1] | words[2]) != 0);
    const std::size_t scale = static_cast<std::size_t>(m_nScale);
    if (digits.size() <= scale) digits.append(scale + 1 - digits.size(), '0');
    std::reverse(digits.begin(), digits.end());
    if (scale > 0) digits.insert(digits.size() - scale, ".");
    if (IsNegative()) digits.insert(0, "-");
    return digits;
}
