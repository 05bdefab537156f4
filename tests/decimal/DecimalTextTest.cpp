// Decimal text: the portable decimal's states and digits, the multi-word decimal's text and
// the conversions from text, integers and real numbers.
#include <clocale>
#include <limits>
#include <string>

#include "CommaLocale.h"
#include "DecimalTestSupport.h"
#include "decimal/NumericLocaleScope.h"
#include "support/TempHome.h"

namespace {

using vx::test::CapturedMessages;
using vx::test::Dec;
using DecimalTextTest = vx::test::HomeTest;

TEST_F(DecimalTextTest, PortableTextByStateAndSign) {
    using P = TKDecimalPortable;
    struct {
        P value;
        const char* text;
    } const cases[] = {
        {P(P::kNull, false, "1", ""), "(null)"},
        {P(P::kNaN, false, "", ""), "(NaN)"},
        {P(P::kCtorError, false, "", ""), "(ctorError)"},
        {P(P::kMissing, false, "", ""), "(missing)"},
        {P(static_cast<P::State>(3), false, "1", ""), "(Impossible value)"},
        {P(P::kNormal, true, "", ""), "0"},
        {P(P::kNormal, true, "12", "50"), "-12.50"},
        {P(P::kNormal, true, "", "5"), "-0.5"},
        {P(P::kNormal, false, "", ""), "0"},
        {P(P::kNormal, false, "7", ""), "7"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.value.asString(), c.text);
}

TEST_F(DecimalTextTest, MultiWordText) {
    struct {
        std::int32_t high;
        std::uint32_t middle, low;
        int scale;
        const char* text;
    } const cases[] = {
        {0, 0, 1250, 2, "12.50"},
        {0, 0, 5, 2, "0.05"},
        {0, 0, 0, 3, "0.000"},
        {-1, 0xFFFFFFFFu, 0xFFFFFFFFu, 0, "-1"},
        {-1, 0xFFFFFFFFu, 0xFFFFFFFEu, 1, "-0.2"},
        {0x7FFFFFFF, 0xFFFFFFFFu, 0xFFFFFFFFu, 0, "39614081257132168796771975167"},
        {-0x7FFFFFFF - 1, 0, 1, 28, "-3.9614081257132168796771975167"},
        {-0x7FFFFFFF - 1, 0, 0, 0, "(bad value)"},
        {-0x7FFFFFFF - 1, 0, 0, 5, "(bad value)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TKDecimal(c.high, c.middle, c.low, c.scale).asString(), c.text);
}

TEST_F(DecimalTextTest, ScaleOutOfRangeIsReportedAndGivesTheBadValue) {
    CapturedMessages messages;
    EXPECT_TRUE(TKDecimal(0, 0, 1, 29).IsBad());
    EXPECT_TRUE(TKDecimal(0, 0, 1, -1).IsBad());
    ASSERT_EQ(messages.texts().size(), 2u);
    EXPECT_EQ(messages.texts()[0], "[POWRANGE] TKDecimal: power out of range (29>28)");
}

TEST_F(DecimalTextTest, ParsesDecimalText) {
    struct {
        const char* text;
        const char* value;
        TKStatus status;
    } const cases[] = {
        {"12.50", "12.50", TKStatus::kExact},
        {"  -007.5\t", "-7.5", TKStatus::kExact},
        {"+.5", "0.5", TKStatus::kExact},
        {"5.", "5", TKStatus::kExact},
        {"-0", "0", TKStatus::kExact},
        {"1.5e3", "1500", TKStatus::kExact},
        {"1.25E-2", "0.0125", TKStatus::kExact},
        {"1e-30", "0.0000000000000000000000000000", TKStatus::kInexact},
        {"0.00000000000000000000000000015", "0.0000000000000000000000000002", TKStatus::kInexact},
        {"39614081257132168796771975167.4", "39614081257132168796771975167", TKStatus::kInexact},
        {"39614081257132168796771975167.5", "(bad value)", TKStatus::kOverflow},
        {"1e29", "(bad value)", TKStatus::kOverflow},
        {"000000000000000000000000000000001", "1", TKStatus::kExact},
        {"", "(bad value)", TKStatus::kNotANumber},
        {".", "(bad value)", TKStatus::kNotANumber},
        {"1.2.3", "(bad value)", TKStatus::kNotANumber},
        {"1e", "(bad value)", TKStatus::kNotANumber},
        {"1e99999", "(bad value)", TKStatus::kNotANumber},
        {"12abc", "(bad value)", TKStatus::kNotANumber},
        {"- 1", "(bad value)", TKStatus::kNotANumber},
    };
    CapturedMessages quiet;
    for (const auto& c : cases) {
        TKDecimal value;
        EXPECT_EQ(TKDecimal::FromText(c.text, value), c.status) << c.text;
        EXPECT_EQ(value.asString(), c.value) << c.text;
    }
}

TEST_F(DecimalTextTest, ConversionFaultsAreReported) {
    CapturedMessages messages;
    TKDecimal value;
    TKDecimal::FromText("12x", value);
    TKDecimal::FromText("1e40", value);
    TKDecimal::FromText("0.12345678901234567890123456789", value);
    TKDecimal::FromReal(1e40, value);
    TKDecimal::FromReal(1e-30, value);
    const std::vector<std::string> expected = {
        "[SYNSTREAM] Syntax error in input stream: expected a decimal number, got \"12x\"",
        "[FROMPORTOVER] TKDecimal: overflow converting from portable decimal",
        "[FROMPORTINEXACT] TKDecimal: inexact result converting from portable decimal",
        "[FROMDBLOVER] TKDecimal: overflow converting from double (1e+40)",
        "[FROMDBLINEXACT] TKDecimal: inexact result converting from double (1e-30)",
    };
    EXPECT_EQ(messages.texts(), expected);
}

TEST_F(DecimalTextTest, ConvertsIntegersAndReals) {
    EXPECT_EQ(TKDecimalPortable::FromInteger(-2147483647 - 1).asString(), "-2147483648");
    EXPECT_EQ(TKDecimal::FromInteger(-9223372036854775807LL - 1).asString(),
              "-9223372036854775808");
    // "%.17lg" gives the digits of the nearest double, not the decimal the user typed.
    EXPECT_EQ(TKDecimalPortable::FromReal(0.1).asString(), "0.10000000000000001");
    EXPECT_EQ(TKDecimalPortable::FromReal(-1.5e-5).asString(), "-0.000015");
    EXPECT_EQ(TKDecimalPortable::FromReal(1e20).asString(), "100000000000000000000");
    EXPECT_EQ(TKDecimalPortable::FromReal(std::numeric_limits<double>::quiet_NaN()).asString(),
              "(NaN)");
    TKDecimal value;
    EXPECT_EQ(TKDecimal::FromReal(2.5, value), TKStatus::kExact);
    EXPECT_EQ(value.asString(), "2.5");
    CapturedMessages quiet;
    EXPECT_EQ(TKDecimal::FromReal(std::numeric_limits<double>::infinity(), value),
              TKStatus::kOverflow);
    EXPECT_EQ(TKDecimal::FromReal(std::numeric_limits<double>::quiet_NaN(), value),
              TKStatus::kNotANumber);
}

TEST_F(DecimalTextTest, RealConversionIgnoresTheUsersLocale) {
    vx::test::CommaLocale comma;
    if (!comma.active()) GTEST_SKIP() << "no locale with a decimal comma is available";
    std::string user = std::setlocale(LC_NUMERIC, nullptr);
    EXPECT_EQ(TKDecimalPortable::FromReal(1234.5).asString(), "1234.5");
    EXPECT_EQ(TKDecimalPortable::FromReal(-0.1).asString(), "-0.10000000000000001");
    {
        NumericLocaleScope classic;
        EXPECT_STREQ(std::localeconv()->decimal_point, ".");
    }
    EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), user);
}

}  // namespace
