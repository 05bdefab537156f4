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
using Signed = Kernel::Sig;
using vx::decimal::Outcome;

Signed ToSigned(const TKDecimal& value) {
    return Kernel::SignedFromWords(value.GetHigh(), value.GetMiddle(), value.GetLow(),
                                   value.GetScale());
}

Number ToNumber(const TKDecimal& value) {
    return Kernel::FromSigned(ToSigned(value));
}

TKDecimal FromSigned(const Signed& number) {
    std::int32_t high = 0;
    std::uint32_t middle = 0, low = 0;
    Kernel::ToWords(number, high, middle, low);
    return TKDecimal(high, middle, low, number.scale);
}

TKDecimal FromNumber(const Number& number) {
    return FromSigned(Kernel::ToSigned(number));
}

TKStatus Store(Outcome outcome, const Number& number, TKDecimal& result) {
    switch (outcome) {
        case Outcome::kOverflow:
            result = TKDecimal::BadValue();
            return TKStatus::kOverflow;
        case Outcome::kInexact:
            result = FromNumber(number);
            return TKStatus::kInexact;
        case Outcome::kExact:
            break;
    }
    result = FromNumber(number);
    return TKStatus::kExact;
}

// The catalogue messages of one operation. Their texts name nothing but the type, so each is
// made once, not at every rounded result.
class Faults {
public:
    Faults(const TKMessage& overflow, const TKMessage& inexact)
        : m_overflow(TKMakeMessage(overflow, TKDecimal::kTypeName)),
          m_inexact(TKMakeMessage(inexact, TKDecimal::kTypeName)) {}

    TKStatus Report(TKStatus status) const {
        if (status == TKStatus::kOverflow) TKReportError(m_overflow);
        if (status == TKStatus::kInexact) TKReportError(m_inexact);
        return status;
    }

private:
    TKxmsg m_overflow;
    TKxmsg m_inexact;
};

enum class Operation { kAdd, kSubtract, kMultiply, kDivide, kFromPortable };

const Faults& FaultsOf(Operation operation) {
    static const Faults kFaults[] = {
        {tkdcml::kAddOver, tkdcml::kAddInexact},           {tkdcml::kSubOver, tkdcml::kSubInexact},
        {tkdcml::kMulOver, tkdcml::kMulInexact},           {tkdcml::kDivOver, tkdcml::kDivInexact},
        {tkdcml::kFromPortOver, tkdcml::kFromPortInexact},
    };
    return kFaults[static_cast<int>(operation)];
}

// The operations that need more than their quick common case; out of line, so that the quick
// case keeps its numbers in registers.
template <Outcome (*compute)(const Number&, const Number&, Number&)>
[[gnu::noinline]] TKStatus Compute(Operation operation, const TKDecimal& a, const TKDecimal& b,
                                   TKDecimal& result) {
    Number number;
    const TKStatus status = Store(compute(ToNumber(a), ToNumber(b), number), number, result);
    return status == TKStatus::kExact ? status : FaultsOf(operation).Report(status);
}

template <bool (*quick)(const Signed&, const Signed&, Signed&),
          Outcome (*compute)(const Number&, const Number&, Number&)>
TKStatus Apply(Operation operation, const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    if (a.IsBad() || b.IsBad()) {
        result = TKDecimal::BadValue();
        return TKStatus::kNotANumber;
    }
    const Signed x = ToSigned(a), y = ToSigned(b);
    Signed exact;
    if (!quick(x, y, exact)) return Compute<compute>(operation, a, b, result);
    result = FromSigned(exact);
    return TKStatus::kExact;
}

bool AllDigits(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// The portable decimal's digits as a multi-word decimal; not reported.
TKStatus FromDigits(const TKDecimalPortable& portable, TKDecimal& result) {
    if (portable.GetState() != TKDecimalPortable::kNormal || !AllDigits(portable.GetWhole()) ||
        !AllDigits(portable.GetFraction())) {
        result = TKDecimal::BadValue();
        return TKStatus::kNotANumber;
    }
    Number number;
    Outcome outcome = Kernel::FromDigits(portable.GetWhole(), portable.GetFraction(),
                                         portable.IsNegative(), number);
    return Store(outcome, number, result);
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

TKDecimal TKDecimal::OutOfRange(int scale) {
    TKReportError(
        TKMakeMessage(tkdcml::kPowRange, kTypeName, scale, static_cast<unsigned>(kMaxScale)));
    return BadValue();
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

TKStatus TKDecimal::FromPortable(const TKDecimalPortable& portable, TKDecimal& result) {
    return FaultsOf(Operation::kFromPortable).Report(FromDigits(portable, result));
}

TKStatus TKDecimal::FromText(std::string_view text, TKDecimal& result) {
    return FromPortable(TKDecimalPortable::FromText(text), result);
}

TKStatus TKDecimal::FromReal(double value, TKDecimal& result) {
    TKStatus status = TKStatus::kOverflow;
    if (std::isinf(value)) {
        result = BadValue();
    } else {
        status = FromDigits(TKDecimalPortable::FromReal(value), result);
    }
    // These texts show the value, so they are made each time.
    if (status == TKStatus::kOverflow)
        TKReportError(TKMakeMessage(tkdcml::kFromDblOver, kTypeName, value));
    if (status == TKStatus::kInexact)
        TKReportError(TKMakeMessage(tkdcml::kFromDblInexact, kTypeName, value));
    return status;
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
    return Apply<Kernel::QuickAdd, Kernel::Add>(Operation::kAdd, a, b, result);
}

TKStatus TKDecimal::Subtract(const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    return Apply<Kernel::QuickSubtract, Kernel::Subtract>(Operation::kSubtract, a, b, result);
}

TKStatus TKDecimal::Multiply(const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    return Apply<Kernel::QuickMultiply, Kernel::Multiply>(Operation::kMultiply, a, b, result);
}

TKStatus TKDecimal::Divide(const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    return Apply<Kernel::QuickDivide, Kernel::Divide>(Operation::kDivide, a, b, result);
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
    // The digits came least significant first; write them out the other way round.
    const std::size_t scale = static_cast<std::size_t>(m_nScale);
    if (digits.size() <= scale) digits.append(scale + 1 - digits.size(), '0');
    std::string text;
    if (IsNegative()) text.push_back('-');
    for (std::size_t i = digits.size(); i-- > 0;) {
        text.push_back(digits[i]);
        if (i == scale && scale > 0) text.push_back('.');
    }
    return text;
}
