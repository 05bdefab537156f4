// Decimal text as the user sees it: places, rounding and the regional number format.
#include <string>

#include "CommaLocale.h"
#include "DecimalTestSupport.h"
#include "support/TempHome.h"
#include "vxutil/decimal/DecimalDisplay.h"
#include "vxutil/gnrt/CGNDecimal.h"

namespace {

using DecimalDisplayTest = vx::test::HomeTest;

std::string Display(const char* text, int precision, bool grouping = false) {
    std::string display = "(unchanged)";
    FormatDecimalForDisplay(text, precision, grouping, display);
    return display;
}

TEST_F(DecimalDisplayTest, PadsOrRoundsToThePrecision) {
    struct {
        const char* text;
        int precision;
        const char* display;
    } const cases[] = {
        {"5", 2, "5.00"},
        {"5", 0, "5."},
        {"12.345", -1, "12.345"},
        {"1.5", 4, "1.5000"},
        {"1.005", 2, "1.01"},
        {"-1.005", 2, "-1.01"},
        {"-2.5", 0, "-3"},
        {"9.995", 2, "10.00"},
        {"-0.004", 2, "0.00"},
        {"0.125", 2, "0.13"},
        {"1234567.5", 1, "1234567.5"},
        {"abc", 2, "(unchanged)"},
        {"abc", -1, "(unchanged)"},
        {"1.2.3", 1, "(unchanged)"},
        {"", -1, "(unchanged)"},
    };
    vx::test::CapturedMessages quiet;
    for (const auto& c : cases) {
        // The expected digits, in the user's format as the last step of the rule puts them.
        CGNDecimal expected(c.display);
        expected.ConvertToRegionalLocale(false);
        EXPECT_EQ(Display(c.text, c.precision), expected.GetDisplayBuffer())
            << c.text << " / " << c.precision;
    }
}

TEST_F(DecimalDisplayTest, RegionalFormatRefusesWhatIsNoDecimalNumber) {
    for (const char* text : {"", "-", ".", "1.2.3", "1e5", " 1", "1,5", "--1"}) {
        CGNDecimal decimal(text);
        EXPECT_FALSE(decimal.ConvertToRegionalLocale(true)) << text;
        EXPECT_STREQ(decimal.GetDisplayBuffer(), text);
    }
#ifndef _WIN32  // Windows takes the user's regional settings, which a test cannot choose
    CGNDecimal plain("-1234.50");
    ASSERT_TRUE(plain.ConvertToRegionalLocale(true));  // the "C" locale groups nothing
    EXPECT_STREQ(plain.GetDisplayBuffer(), "-1234.50");
#endif
}

#ifndef _WIN32
TEST_F(DecimalDisplayTest, UsesTheUsersSeparatorsAndGrouping) {
    vx::test::CommaLocale comma;
    if (!comma.active()) GTEST_SKIP() << "no locale with a decimal comma is available";
    struct {
        const char* text;
        bool grouping;
        const char* display;
    } const cases[] = {
        {"1234567.25", false, "1234567,25"},
        {"1234567.25", true, "1.234.567,25"},
        {"-123456", true, "-123.456"},
        {"+999.5", true, "+999,5"},
        {".5", true, ",5"},
        {"1000", true, "1.000"},
    };
    for (const auto& c : cases) {
        CGNDecimal decimal(c.text);
        ASSERT_TRUE(decimal.ConvertToRegionalLocale(c.grouping)) << c.text;
        EXPECT_STREQ(decimal.GetDisplayBuffer(), c.display);
    }
    EXPECT_EQ(Display("5", 2), "5,00");
}
#endif

}  // namespace
