// Values from text: the validating setters' accept and refuse paths, set-from-text, the
// integer range check and the date parser behind time input.
#include <string>

#include "decimal/CommaLocale.h"
#include "support/TempHome.h"
#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/CGNAssert.h"
#include "vxutil/gnrt/CGNDateTime.h"

namespace {

using ValueInputTest = vx::test::HomeTest;

std::string Encoded(const CVXValueStruct& value) {
    CGNString text;
    value.GetEncodedText(text);
    return text.str();
}

struct InputCase {
    const char* text;
    bool accepted;
    const char* encoded;  // the value afterwards
    std::uint32_t error;
};

// Every case starts from the integer 99, so "unchanged" shows as 2\99.
void ExpectCases(bool (*set)(CVXValueStruct&, const char*), const InputCase* begin,
                 const InputCase* end) {
    for (const InputCase* c = begin; c != end; ++c) {
        CVXValueStruct value;
        value.SetInteger(99);
        EXPECT_EQ(set(value, c->text), c->accepted) << c->text;
        EXPECT_EQ(Encoded(value), c->encoded) << c->text;
        EXPECT_EQ(value.GetLastError(), c->error) << c->text;
        EXPECT_EQ(value.GetLastErrorText(), c->accepted ? "" : c->text) << c->text;
    }
}

TEST_F(ValueInputTest, IntegerSetter) {
    const InputCase cases[] = {
        {"42", true, "2\\42", 0},
        {" -7 ", true, "2\\-7", 0},
        {"2147483647", true, "2\\2147483647", 0},
        {"-2147483647", true, "2\\-2147483647", 0},
        {"12.9", true, "2\\12", 0},  // real text is truncated toward zero
        {"-1.5e1", true, "2\\-15", 0},
        {"", true, "0", 0},
        {"2147483648", false, "4\\10\\2147483648", 1547},
        {"-2147483648", false, "4\\11\\-2147483648", 1547},
        {"99999999999999999999", false, "4\\20\\99999999999999999999", 1547},
        {"3e10", false, "4\\4\\3e10", 1547},
        {"12abc", false, "4\\5\\12abc", 25244},
        {"abc", false, "4\\3\\abc", 25244},
    };
    ExpectCases([](CVXValueStruct& v, const char* t) { return v.SetIntegerFromUser(t); },
                std::begin(cases), std::end(cases));
}

TEST_F(ValueInputTest, UnsignedSetter) {
    const InputCase cases[] = {
        {"4294967295", true, "40\\4294967295", 0},
        {"0", true, "40\\0", 0},
        {"", true, "0", 0},
        {"4294967296", false, "2\\99", 25244},
        {"-1", false, "2\\99", 25244},
        {"12x", false, "2\\99", 25244},
    };
    ExpectCases([](CVXValueStruct& v,
                   const char* t) { return v.SetUnsignedFromUser(VX_DATA_TYPE_ULONG, t); },
                std::begin(cases), std::end(cases));
    CVXValueStruct value;
    ASSERT_TRUE(value.SetUnsignedFromUser(VX_DATA_TYPE_ENUM, "3"));
    EXPECT_EQ(Encoded(value), "6\\3");
}

TEST_F(ValueInputTest, RealSetter) {
    const InputCase cases[] = {
        {"2.5", true, "3\\2.5", 0},
        {"-1e-3", true, "3\\-0.001", 0},
        {"", true, "0", 0},
        {"2.5kg", false, "4\\5\\2.5kg", 25246},
    };
    ExpectCases([](CVXValueStruct& v, const char* t) { return v.SetRealFromUser(t); },
                std::begin(cases), std::end(cases));
}

// Client tools run in the user's locale; typed and stored numbers still use the point.
TEST_F(ValueInputTest, RealTextIsReadWithThePointInAnyLocale) {
    vx::test::CommaLocale comma;
    if (!comma.active()) GTEST_SKIP() << "no locale with a decimal comma is available";
    const InputCase reals[] = {
        {"2.5", true, "3\\2.5", 0},
        {"2,5", false, "4\\3\\2,5", 25246},
    };
    ExpectCases([](CVXValueStruct& v, const char* t) { return v.SetRealFromUser(t); },
                std::begin(reals), std::end(reals));
    const InputCase integers[] = {{"12.7", true, "2\\12", 0}};
    ExpectCases([](CVXValueStruct& v, const char* t) { return v.SetIntegerFromUser(t); },
                std::begin(integers), std::end(integers));
    CVXValueStruct value;
    ASSERT_TRUE(value.SetFromText(VX_DATA_TYPE_REAL, "2.5"));
    EXPECT_EQ(Encoded(value), "3\\2.5");
}

TEST_F(ValueInputTest, DecimalSetter) {
    const InputCase cases[] = {
        {"12.50", true, "10\\5\\12.50", 0},
        {"1.5e3", true, "10\\4\\1500", 0},  // exponent form becomes plain digits
        {"-2E-2", true, "10\\5\\-0.02", 0},
        {"", true, "0", 0},
        {"1,5", false, "2\\99", 25247},
        {"abc", false, "2\\99", 25247},
    };
    const TKErrorHandler quiet = TKSetErrorHandler([](const TKxmsg&) {});
    ExpectCases([](CVXValueStruct& v, const char* t) { return v.SetDecimalFromUser(t); },
                std::begin(cases), std::end(cases));
    TKSetErrorHandler(quiet);
}

TEST_F(ValueInputTest, TimeSetters) {
    CVXValueStruct value;
    EXPECT_FALSE(value.SetTimeFromUser(-1));
    EXPECT_EQ(value.GetLastError(), 25248u);
    EXPECT_EQ(value.GetLastErrorText(), "-1");
    EXPECT_TRUE(value.SetTimeFromUser(60));
    EXPECT_EQ(Encoded(value), "7\\60");

    struct {
        int option;
        std::uint32_t error;
    } const refusals[] = {{2, 25248}, {3, 25249}, {4, 25263}, {1, 25245}};
    for (const auto& r : refusals) {
        CVXValueStruct refused;
        refused.SetInteger(99);
        EXPECT_FALSE(refused.SetTimeFromUser("soon", r.option, true));
        EXPECT_EQ(refused.GetLastError(), r.error) << r.option;
        EXPECT_EQ(Encoded(refused), "2\\99");
    }
    CVXValueStruct silent;
    EXPECT_FALSE(silent.SetTimeFromUser("soon", 3, false));
    EXPECT_EQ(silent.GetLastError(), 0u);
    EXPECT_TRUE(silent.SetTimeFromUser("1970-01-02", 3, true));
    EXPECT_EQ(Encoded(silent), "7\\86400");
    EXPECT_TRUE(silent.SetTimeFromUser("3600", 3, true));  // seconds are taken too
    EXPECT_EQ(Encoded(silent), "7\\3600");
}

TEST_F(ValueInputTest, SetFromTextConvertsWithoutValidating) {
    struct {
        std::uint32_t type;
        const char* text;
        const char* encoded;
    } const cases[] = {
        {VX_DATA_TYPE_KEYWORD, "3", "1\\3"},
        {VX_DATA_TYPE_INTEGER, "12abc", "2\\12"},
        {VX_DATA_TYPE_INTEGER, "99999999999", "2\\2147483647"},  // saturates, never wraps
        {VX_DATA_TYPE_KEYWORD, "-4294967297", "1\\-2147483648"},
        {VX_DATA_TYPE_BITMASK, "4294967296", "8\\4294967295"},
        {VX_DATA_TYPE_REAL, "2.5", "3\\2.5"},
        {VX_DATA_TYPE_ENUM, "7", "6\\7"},
        {VX_DATA_TYPE_BITMASK, "9", "8\\9"},
        {VX_DATA_TYPE_ULONG, "10", "40\\10"},
        {VX_DATA_TYPE_CHAR, "a\x01z", "4\\3\\a\nz"},
        {VX_DATA_TYPE_DECIMAL, "1\x01", "10\\2\\1\x01"},
        {VX_DATA_TYPE_TIME, "1970-01-01 00:01", "7\\60"},
        {VX_DATA_TYPE_TIME, "120", "7\\120"},
        {VX_DATA_TYPE_NULL, "x", "0"},
    };
    for (const auto& c : cases) {
        CVXValueStruct value;
        ASSERT_TRUE(value.SetFromText(c.type, c.text)) << c.text;
        CGNString expected(c.encoded);
#ifdef _WIN32
        expected.ClientFormat();  // line feeds become the client's line ends
        if (c.type == VX_DATA_TYPE_CHAR) expected = "4\\4\\a\r\nz";
#endif
        EXPECT_EQ(Encoded(value), expected.str()) << c.text;
    }
    const auto quiet = CGNAssert::SetHandler([](const char*, int, const char*) {});
    CVXValueStruct value;
    value.SetInteger(1);
    EXPECT_FALSE(value.SetFromText(VX_DATA_TYPE_BYTES, "1"));
    EXPECT_FALSE(value.SetFromText(VX_DATA_TYPE_COORDS, "1"));
    EXPECT_EQ(Encoded(value), "2\\1");
    CGNAssert::SetHandler(quiet);
}

TEST_F(ValueInputTest, IntegerRangeCheck) {
    struct {
        const char* text;
        bool inRange;
    } const cases[] = {
        {"2147483647", true},  {"2147483648", false},
        {"-2147483647", true}, {"-2147483648", false},
        {"999999999", true},   {"10000000000", false},
        {"0", true},           {"abc", false},
        {"-", false},          {"", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CVXValueStruct::IsIntegerTextInRange(c.text), c.inRange) << c.text;
}

TEST_F(ValueInputTest, ParsesDatesAndTimes) {
    struct {
        const char* text;
        int option;
        long long seconds;  // -1: refused
    } const cases[] = {
        {"2038-01-19 03:14:07", 3, 2147483647},
        {"2038-01-19T03:14:07Z", 1, 2147483647},
        {"2038-01-19 03:14:08", 3, -1},  // beyond the server's range
        {"1970-01-02", 2, 86400},
        {"1970-01-02 00:00", 2, -1},  // a date alone
        {"01/02/1970", 3, 86400},     // month first, as the display styles write it
        {"01/02/70 00:00:01", 3, 86401},
        {"12:30", 4, 45000},
        {"12:30", 3, -1},
        {"12:30:15", 1, 45015},
        {"24:00", 4, -1},
        {"1970-02-30", 3, -1},
        {"1972-02-29", 2, 68169600},
        {"1970-01-01 x", 3, -1},
        {"", 1, -1},
    };
    for (const auto& c : cases) {
        CGNDateTime instant(5);
        const bool parsed = instant.parseDateTime(c.text, c.option);
        EXPECT_EQ(parsed, c.seconds >= 0) << c.text;
        EXPECT_EQ(instant.GetSeconds(), parsed ? c.seconds : 5) << c.text;
    }
}

}  // namespace
