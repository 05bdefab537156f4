// Each type's display, literal, qualifier and encoded texts, and decoding.
#include <cmath>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "decimal/CommaLocale.h"
#include "foundation/value/RealText.h"
#include "support/TempHome.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/gnrt/CGNAssert.h"
#include "vxutil/gnrt/CGNDateTime.h"

namespace {

using ValueTextTest = vx::test::HomeTest;

CVXValueStruct Make(const std::function<void(CVXValueStruct&)>& set) {
    CVXValueStruct value;
    set(value);
    return value;
}

std::string Display(const CVXValueStruct& value) {
    CGNString text;
    value.ToText(text);
    return text.str();
}

std::string Literal(const CVXValueStruct& value) {
    CGNString text;
    value.GetLiteralText(text);
    return text.str();
}

std::string Qualifier(const CVXValueStruct& value) {
    CGNString text;
    value.GetQualifierText(text);
    return text.str();
}

std::string Encoded(const CVXValueStruct& value) {
    CGNString text;
    return value.GetEncodedText(text) ? text.str() : "(fails)";
}

struct TextCase {
    const char* name;
    CVXValueStruct value;
    const char* display;
    const char* literal;
    const char* qualifier;
    const char* encoded;
};

TEST_F(ValueTextTest, EveryTypeInEveryForm) {
    const TextCase cases[] = {
        {"null", Make([](auto&) {}), "", "", "$NULL$", "0"},
        {"keyword", Make([](auto& v) { v.SetKeyword(1); }), "$USER$", "TODO:", "$-1$", "1\\1"},
        {"keyword NULL", Make([](auto& v) { v.SetKeyword(-1); }), "$NULL$", "TODO:", "$--1$",
         "1\\-1"},
        {"keyword unknown", Make([](auto& v) { v.SetKeyword(22); }), "", "TODO:", "$-22$", "1\\22"},
        {"integer", Make([](auto& v) { v.SetInteger(-5); }), "-5", "-5", "-5", "2\\-5"},
        {"real", Make([](auto& v) { v.SetReal(12.0); }), "12.000000", "12.000000000000000",
         "12.000000", "3\\12."},
        {"real small", Make([](auto& v) { v.SetReal(1e-7); }), "1e-07", "1e-07", "0.000000",
         "3\\1e-07"},
        {"character", Make([](auto& v) { v.SetChar("a\"b"); }), "a\"b", "\"a\\\"b\"", "\"a\"b\"",
         "4\\3\\a\"b"},
        {"diary", Make([](auto& v) { v.SetDiary("x\\y"); }), "x\\y", "\"x\\\\y\"", "\"x\\y\"",
         "5\\3\\x\\y"},
        {"enumerated", Make([](auto& v) { v.SetEnum(3); }), "3", "3", "3", "6\\3"},
        {"time", Make([](auto& v) { v.SetTime(86400); }), "1970-01-02 00:00:00", "86400", "86400",
         "7\\86400"},
        {"bitmask", Make([](auto& v) { v.SetBitmask(4294967295u); }), "4294967295", "TODO:", "TODO",
         "8\\4294967295"},
        {"decimal", Make([](auto& v) { v.SetDecimal("12.345"); }), "12.345", "\"12.345\"",
         "\"12.345\"", "10\\6\\12.345"},
        {"attachment", Make([](auto& v) { v.SetAttachment("c:\\d\\f.txt", 1, 2, 3); }),
         "c:\\d\\f.txt", "\"c:\\\\d\\\\f.txt\"", "\"c:\\d\\f.txt\"", "11\\10\\c:\\d\\f.txt"},
        {"unsigned", Make([](auto& v) { v.SetUnsigned(7); }), "7", "TODO:", "TODO", "40\\7"},
        {"bytes", Make([](auto& v) { v.SetBytes(CVXByteList()); }), "", "TODO:", "TODO", "(fails)"},
        {"coordinates", Make([](auto& v) { v.SetCoords(CVXCoordList()); }), "", "TODO:", "TODO",
         "(fails)"},
    };
    const auto quiet = CGNAssert::SetHandler([](const char*, int, const char*) {});
    for (const TextCase& c : cases) {
        EXPECT_EQ(Display(c.value), c.display) << c.name;
        EXPECT_EQ(Literal(c.value), c.literal) << c.name;
        EXPECT_EQ(Qualifier(c.value), c.qualifier) << c.name;
        EXPECT_EQ(Encoded(c.value), c.encoded) << c.name;
    }
    CGNAssert::SetHandler(quiet);
}

TEST_F(ValueTextTest, RealNumberRule) {
    struct {
        double value;
        int precision;
        const char* display;
    } const cases[] = {
        {12.0, -1, "12.000000"},  // display uses 6 places when none are set
        {12.5, 2, "12.50"},       {1e-7, 2, "1e-07"},
        {-1e-7, 2, "-1e-07"},     {999999999, 2, "999999999.00"},
        {1000000000, 2, "1e+09"}, {0.000001, 3, "0.000"},
        {0, 2, "0.00"},
    };
    for (const auto& c : cases) {
        CVXValueStruct value;
        value.SetReal(c.value);
        value.SetPrecision(c.precision);
        EXPECT_EQ(Display(value), c.display) << c.value << " / " << c.precision;
    }
}

// The encoded text writes reals with std::to_chars, the other texts with printf: the two must
// agree on every value, at the rounding ties and the switches to exponent form included.
TEST_F(ValueTextTest, EncodedRealsAreWrittenAsPrintfWritesThem) {
    std::vector<double> values = {
        0.0,        -0.0,           12.0,      0.5,       1.0 / 3,           0.0000005, 0.000001,
        0.00000099, 2.5e-7,         0.1234565, 999999999, 999999999.0000005, 1e9,       -1e300,
        1e-300,     123456.0000005, HUGE_VAL,  -HUGE_VAL};
    std::mt19937_64 random(11);
    for (int i = 0; i < 5000; ++i) {
        const auto mantissa = static_cast<double>(random() % 2000001) - 1000000;
        values.push_back(std::ldexp(mantissa, static_cast<int>(random() % 90) - 70));
    }
    for (const double value : values) {
        EXPECT_EQ(vx::value::FormatClassicReal(value), vx::value::FormatReal(value, -1, true))
            << value;
    }
}

TEST_F(ValueTextTest, DecimalDisplayUsesThePrecision) {
    CVXValueStruct value;
    value.SetDecimal("5");
    value.SetPrecision(2);
    EXPECT_EQ(Display(value), "5.00");
    value.SetDecimal("2.345");
    value.SetPrecision(2);
    EXPECT_EQ(Display(value), "2.35");
    value.SetDecimal("not a number");
    EXPECT_EQ(Display(value), "");
}

TEST_F(ValueTextTest, TimeDisplayFollowsTheTimeOption) {
    CVXValueStruct value;
    value.SetTime(0);
    value.SetTimeOption(CGNDateTime::kDateNumeric);
    EXPECT_EQ(Display(value), "01/01/1970 00:00:00");
}

TEST_F(ValueTextTest, Decodes) {
    struct {
        const char* text;
        const char* encoded;  // of the decoded value; null when decoding fails
        const char* rest;     // what the cursor points at afterwards
    } const cases[] = {
        {"4\\3\\abc", "4\\3\\abc", ""},
        {"4\\3\\abc\\2\\1", "4\\3\\abc", "2\\1"},
        {"0", "0", ""},
        {"0\\", "0", ""},
        {"2\\5", "2\\5", ""},
        {"2\\5\\", "2\\5", ""},
        {"2\\-7\\x", "2\\-7", "x"},
        {"3\\2.5\\", "3\\2.5", ""},
        {"40\\4294967295", "40\\4294967295", ""},
        {"10\\4\\-1.5", "10\\4\\-1.5", ""},
        // Beyond 32 bits a number saturates, as a 32-bit long does, instead of wrapping.
        {"2\\99999999999", "2\\2147483647", ""},
        {"2\\-99999999999", "2\\-2147483648", ""},
        {"8\\4294967296", "8\\4294967295", ""},
        {"7\\4294967396", "7\\2147483647", ""},
        {"40\\-1", "40\\4294967295", ""},
        {"4294967300\\1", nullptr, nullptr},  // not the type 4 of a wrapped 2^32 + 4
        {"2", nullptr, nullptr},
        {"4\\5\\abc", nullptr, nullptr},
        {"4\\2\\abc", nullptr, nullptr},
        {"12\\1", nullptr, nullptr},
        {"x", nullptr, nullptr},
    };
    const auto quiet = CGNAssert::SetHandler([](const char*, int, const char*) {});
    for (const auto& c : cases) {
        CVXValueStruct value;
        const char* cursor = c.text;
        const bool decoded = value.Decode(cursor);
        ASSERT_EQ(decoded, c.encoded != nullptr) << c.text;
        if (!decoded) continue;
        EXPECT_EQ(Encoded(value), c.encoded) << c.text;
        EXPECT_STREQ(cursor, c.rest) << c.text;
    }
    CGNAssert::SetHandler(quiet);
}

#ifndef _WIN32  // Windows counts the characters of the ANSI code page
TEST_F(ValueTextTest, CountsCharactersNotBytes) {
    CVXValueStruct value;
    value.SetChar("\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(Encoded(value), "4\\3\\\xC3\xA9t\xC3\xA9");
    const char* cursor = "4\\2\\\xC3\xA9x\\";
    ASSERT_TRUE(value.Decode(cursor));
    EXPECT_EQ(value.GetText(), "\xC3\xA9x");
}
#endif

TEST_F(ValueTextTest, CharacterTextsTurnMarkersIntoLineFeeds) {
    CVXValueStruct value;
    const char* cursor = "4\\3\\a\x01z";
    ASSERT_TRUE(value.Decode(cursor));
    CGNString expected("a\nz");
    expected.ClientFormat();
    EXPECT_EQ(value.GetText(), expected);
    cursor = "10\\3\\1\x01z";  // decimal text keeps the byte
    ASSERT_TRUE(value.Decode(cursor));
    EXPECT_EQ(value.GetText(), "1\x01z");
}

TEST_F(ValueTextTest, RealsAreWrittenAndReadInTheCLocale) {
    vx::test::CommaLocale comma;
    if (!comma.active()) GTEST_SKIP() << "no locale with a decimal comma is available";
    CVXValueStruct value;
    value.SetReal(2.5);
    EXPECT_EQ(Encoded(value), "3\\2.5");
    EXPECT_EQ(Literal(value), "2.500000000000000");
    const char* cursor = "3\\0.5\\";
    ASSERT_TRUE(value.Decode(cursor));
    EXPECT_EQ(value.GetReal(), 0.5);
    value.SetPrecision(1);
    EXPECT_EQ(Display(value), "0,5");  // the user sees the user's separator
}

}  // namespace
