// Decimal arithmetic against a table computed independently with exact rational arithmetic,
// and the portable 128-bit path against the compiler's own.
#include <cstdint>
#include <random>
#include <string>

#include "DecimalTestSupport.h"
#include "decimal/DecimalKernel.h"
#include "support/TempHome.h"

namespace {

using vx::test::CapturedMessages;
using vx::test::Dec;

struct ArithmeticCase {
    const char* a;
    char op;
    const char* b;
    const char* expected;
    TKStatus status;
};

constexpr ArithmeticCase kCases[] = {
#include "ArithmeticCases.inc"
};

TKStatus Apply(char op, const TKDecimal& a, const TKDecimal& b, TKDecimal& result) {
    switch (op) {
        case '+':
            return TKDecimal::Add(a, b, result);
        case '-':
            return TKDecimal::Subtract(a, b, result);
        case '*':
            return TKDecimal::Multiply(a, b, result);
        default:
            return TKDecimal::Divide(a, b, result);
    }
}

using DecimalArithmeticTest = vx::test::HomeTest;

TEST_F(DecimalArithmeticTest, MatchesTheExactRationalTable) {
    CapturedMessages quiet;
    for (const ArithmeticCase& c : kCases) {
        TKDecimal result;
        TKStatus status = Apply(c.op, Dec(c.a), Dec(c.b), result);
        EXPECT_EQ(result.asString(), c.expected) << c.a << " " << c.op << " " << c.b;
        EXPECT_EQ(status, c.status) << c.a << " " << c.op << " " << c.b;
    }
}

TEST_F(DecimalArithmeticTest, ReportsFaultsWithTheirCatalogueMessages) {
    const TKDecimal max = Dec("39614081257132168796771975167");
    struct {
        char op;
        TKDecimal b;
        const char* message;
    } const cases[] = {
        {'+', Dec("1"), "[ADDOVER] TKDecimal: overflow in addition"},
        {'-', Dec("-1"), "[SUBOVER] TKDecimal: overflow in subtraction"},
        {'*', Dec("10"), "[MULOVER] TKDecimal: overflow in multiplication"},
        {'/', Dec("0.1"), "[DIVOVER] TKDecimal: overflow in division"},
        {'/', Dec("0"), "[DIVOVER] TKDecimal: overflow in division"},
        {'+', Dec("0.1"), "[ADDINEXACT] TKDecimal: inexact result in addition"},
        {'-', Dec("0.1"), "[SUBINEXACT] TKDecimal: inexact result in subtraction"},
        {'*', Dec("0.11"), "[MULINEXACT] TKDecimal: inexact result in multiplication"},
        {'/', Dec("7"), "[DIVINEXACT] TKDecimal: inexact result in division"},
    };
    for (const auto& c : cases) {
        CapturedMessages messages;
        TKDecimal result;
        Apply(c.op, max, c.b, result);
        ASSERT_EQ(messages.texts().size(), 1u) << c.message;
        EXPECT_EQ(messages.texts()[0], c.message);
    }
}

TEST_F(DecimalArithmeticTest, BadOperandsGiveTheBadValueWithoutAnotherMessage) {
    CapturedMessages messages;
    TKDecimal result;
    EXPECT_EQ(TKDecimal::Add(TKDecimal::BadValue(), Dec("1"), result), TKStatus::kNotANumber);
    EXPECT_TRUE(result.IsBad());
    EXPECT_EQ(TKDecimal::Divide(Dec("1"), TKDecimal::BadValue(), result), TKStatus::kNotANumber);
    EXPECT_TRUE(messages.texts().empty());
}

TEST_F(DecimalArithmeticTest, RoundsHalfAwayFromZero) {
    struct {
        const char* value;
        int places;
        const char* expected;
    } const cases[] = {
        {"2.5", 0, "3"},
        {"-2.5", 0, "-3"},
        {"2.4999", 0, "2"},
        {"1.005", 2, "1.01"},
        {"-1.005", 2, "-1.01"},
        {"9.995", 2, "10.00"},
        {"0.05", 1, "0.1"},
        {"0.04", 1, "0.0"},
        {"-0.04", 1, "0.0"},
        {"12.5", 3, "12.5"},
        {"12.5", -1, "13"},
        {"1.00", 1, "1.0"},
        {"3961408125713216879677197516.7", 0, "3961408125713216879677197517"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Dec(c.value).Round(c.places).asString(), c.expected)
            << c.value << " to " << c.places;
    }
    EXPECT_TRUE(TKDecimal::BadValue().Round(2).IsBad());
}

TEST_F(DecimalArithmeticTest, ComparesNumericallyAcrossScales) {
    struct {
        const char* a;
        const char* b;
        int order;
    } const cases[] = {
        {"1.5", "1.50", 0},
        {"-0", "0.000", 0},
        {"-1", "0", -1},
        {"2", "1.99999", 1},
        {"-2", "-1.9", -1},
        {"0.0000000000000000000000000001", "0", 1},
        {"39614081257132168796771975167", "3961408125713216879677197516.7", 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TKDecimal::Compare(Dec(c.a), Dec(c.b)), c.order) << c.a << " vs " << c.b;
        EXPECT_EQ(TKDecimal::Compare(Dec(c.b), Dec(c.a)), -c.order) << c.b << " vs " << c.a;
    }
    EXPECT_EQ(TKDecimal::Compare(TKDecimal::BadValue(), Dec("-39614081257132168796771975167")), -1);
    EXPECT_EQ(TKDecimal::Compare(TKDecimal::BadValue(), TKDecimal::BadValue()), 0);
}

// The same table straight through a kernel, so that the portable path is checked against
// the independent results on every platform, not only against the native path.
template <class U>
vx::decimal::Number<U> Parse(const char* text) {
    TKDecimalPortable portable = TKDecimalPortable::FromText(text);
    vx::decimal::Number<U> number;
    vx::decimal::Kernel<U>::FromDigits(portable.GetWhole(), portable.GetFraction(),
                                       portable.IsNegative(), number);
    return number;
}

// The outcome's number and the result's text, as the table writes them.
template <class U>
std::string Describe(vx::decimal::Outcome outcome, const vx::decimal::Number<U>& number) {
    std::string text = "(bad value)";
    if (outcome != vx::decimal::Outcome::kOverflow) {
        std::int32_t high = 0;
        std::uint32_t middle = 0, low = 0;
        vx::decimal::Kernel<U>::ToWords(number, high, middle, low);
        text = TKDecimal(high, middle, low, number.scale).asString();
    }
    return std::to_string(static_cast<int>(outcome)) + " " + text;
}

// An operation's general form and its quick common case.
template <class U>
struct KernelOperation {
    using Kernel = vx::decimal::Kernel<U>;
    decltype(&Kernel::Add) general;
    decltype(&Kernel::QuickAdd) quick;

    static KernelOperation Of(char op) {
        switch (op) {
            case '+':
                return {Kernel::Add, Kernel::QuickAdd};
            case '-':
                return {Kernel::Subtract, Kernel::QuickSubtract};
            case '*':
                return {Kernel::Multiply, Kernel::QuickMultiply};
            default:
                return {Kernel::Divide, Kernel::QuickDivide};
        }
    }

    // The quick case's result as Describe writes it, or "-" where it leaves the operation to
    // the general form.
    std::string Quick(const vx::decimal::Number<U>& a, const vx::decimal::Number<U>& b) const {
        vx::decimal::Signed<U> exact;
        if (!quick(Kernel::ToSigned(a), Kernel::ToSigned(b), exact)) return "-";
        return Describe(vx::decimal::Outcome::kExact, Kernel::FromSigned(exact));
    }
};

template <class U>
void ExpectTableThroughKernel() {
    for (const ArithmeticCase& c : kCases) {
        const auto operation = KernelOperation<U>::Of(c.op);
        const auto a = Parse<U>(c.a), b = Parse<U>(c.b);
        vx::decimal::Number<U> result;
        const std::string expected = std::to_string(static_cast<int>(c.status)) + " " + c.expected;
        EXPECT_EQ(Describe(operation.general(a, b, result), result), expected)
            << c.a << " " << c.op << " " << c.b;
        const std::string quick = operation.Quick(a, b);
        if (quick != "-") {
            EXPECT_EQ(quick, expected) << "quick: " << c.a << " " << c.op << " " << c.b;
        }
    }
}

TEST(DecimalKernelTest, PortablePathMatchesTheTable) {
    ExpectTableThroughKernel<vx::decimal::Portable128>();
}

#if defined(__SIZEOF_INT128__)

__extension__ typedef unsigned __int128 Compiler128;
using vx::decimal::Portable128;

Compiler128 ToCompiler(Portable128 value) {
    return (Compiler128(value.High()) << 64) | value.Low();
}

// Random 128-bit patterns of every size, so that small and wide cases both occur.
class RandomSource {
public:
    std::uint64_t Word() { return m_engine(); }
    Portable128 Wide() {
        Portable128 value(Word(), Word());
        return value >> static_cast<int>(Word() % 128);
    }

private:
    std::mt19937_64 m_engine{20261122};
};

// A kernel operand drawn from a random pattern: magnitude, sign and scale.
template <class U>
vx::decimal::Number<U> Operand(Portable128 bits) {
    Portable128 magnitude = (bits >> 7) % (Portable128(1) << 95);
    vx::decimal::Number<U> number;
    number.magnitude = U(magnitude.High()) << 64 | U(magnitude.Low());
    number.negative = (bits.Low() & 1) != 0 && magnitude != Portable128(0);
    number.scale = static_cast<int>((bits.Low() >> 1) % 29);
    return number;
}

TEST(Portable128Test, AgreesWithTheCompilersType) {
    RandomSource random;
    for (int i = 0; i < 20000; ++i) {
        Portable128 a = random.Wide(), b = random.Wide();
        Compiler128 x = ToCompiler(a), y = ToCompiler(b);
        int shift = static_cast<int>(random.Word() % 128);
        ASSERT_EQ(ToCompiler(a + b), x + y);
        ASSERT_EQ(ToCompiler(a - b), x - y);
        ASSERT_EQ(ToCompiler(a * b), x * y);
        ASSERT_EQ(ToCompiler(a << shift), x << shift);
        ASSERT_EQ(ToCompiler(a >> shift), x >> shift);
        ASSERT_EQ(a < b, x < y);
        if (y != 0) {
            ASSERT_EQ(ToCompiler(a / b), x / y);
            ASSERT_EQ(ToCompiler(a % b), x % y);
        }
    }
}

// Every kernel operation on one pair of operands, as text.
template <class U>
std::string RunAll(Portable128 a, Portable128 b, int places) {
    using Kernel = vx::decimal::Kernel<U>;
    const auto x = Operand<U>(a), y = Operand<U>(b);
    std::string text;
    vx::decimal::Number<U> result;
    for (char op : {'+', '-', '*', '/'}) {
        const auto operation = KernelOperation<U>::Of(op);
        text +=
            Describe(operation.general(x, y, result), result) + "|" + operation.Quick(x, y) + "|";
    }
    text += Describe(Kernel::Round(x, places, result), result) + "|";
    return text + std::to_string(Kernel::Compare(x, y));
}

TEST(DecimalKernelTest, PortableAndNativePathsGiveIdenticalResults) {
    RandomSource random;
    for (int i = 0; i < 10000; ++i) {
        Portable128 a = random.Wide(), b = random.Wide();
        int places = static_cast<int>(random.Word() % 29);
        ASSERT_EQ(RunAll<Portable128>(a, b, places), RunAll<Compiler128>(a, b, places))
            << "case " << i;
    }
}

#endif

}  // namespace
