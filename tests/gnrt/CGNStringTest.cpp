#include "vxutil/gnrt/CGNString.h"

#include <string>

#include "support/TempHome.h"

namespace {

using CGNStringTest = vx::test::HomeTest;

int Sign(int value) {
    return (value > 0) - (value < 0);
}

TEST_F(CGNStringTest, NullTextIsEmpty) {
    CGNString text(nullptr);
    EXPECT_TRUE(text.IsEmpty());
    text = "x";
    text = static_cast<const char*>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(text == static_cast<const char*>(nullptr));
}

TEST_F(CGNStringTest, ComparesBytesUnsignedAndFoldsOnlyAscii) {
    struct Case {
        const char* a;
        const char* b;
        int compare;
        int compareNoCase;
    };
    const Case cases[] = {
        {"abc", "abc", 0, 0},   {"abc", "ABC", 1, 0}, {"ab", "abc", -1, -1},    {"\x80", "a", 1, 1},
        {"\xE9", "\xC9", 1, 1}, {"", nullptr, 0, 0},  {"Zeta", "alpha", -1, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.a);
        EXPECT_EQ(Sign(CGNString(c.a).Compare(c.b)), c.compare);
        EXPECT_EQ(Sign(CGNString(c.a).CompareNoCase(c.b)), c.compareNoCase);
    }
}

TEST_F(CGNStringTest, SubstringsClampToTheText) {
    const CGNString text("hello");
    EXPECT_EQ(text.Left(2), "he");
    EXPECT_EQ(text.Left(99), "hello");
    EXPECT_EQ(text.Mid(1, 3), "ell");
    EXPECT_EQ(text.Mid(9), "");
    EXPECT_EQ(text.Right(3), "llo");
    EXPECT_EQ(text.Right(99), "hello");
}

TEST_F(CGNStringTest, FindsBytesAndTexts) {
    const CGNString text("a\\b\\c");
    EXPECT_EQ(text.Find('\\'), 1);
    EXPECT_EQ(text.Find('\\', 2), 3);
    EXPECT_EQ(text.Find('\\', 4), -1);
    EXPECT_EQ(text.Find('\0'), -1);
    EXPECT_EQ(text.ReverseFind('\\'), 3);
    EXPECT_EQ(text.ReverseFind('x'), -1);
    EXPECT_EQ(text.Find("b\\c"), 2);
    EXPECT_EQ(text.Find("b", 3), -1);
    EXPECT_EQ(text.Find(""), 0);
}

#ifndef _WIN32
TEST_F(CGNStringTest, SearchesNeverMatchInsideACharacter) {
    const CGNString text("\xC3\xA9\xA9\xC3\xA9");  // é, a stray 0xA9, é
    EXPECT_EQ(text.Find('\xA9'), 2);
    EXPECT_EQ(text.ReverseFind('\xA9'), 2);
    EXPECT_EQ(text.Find("\xA9\xC3"), 2);
    EXPECT_EQ(text.CharCount(), 3u);
}
#endif

TEST_F(CGNStringTest, TrimsOnlyBlanks) {
    CGNString text(" \t a b \r\n");
    EXPECT_EQ(CGNString(text).TrimLeft(), "a b \r\n");
    EXPECT_EQ(CGNString(text).TrimRight(), " \t a b");
    EXPECT_EQ(text.Trim(), "a b");
    EXPECT_EQ(CGNString(" \n ").Trim(), "");
    EXPECT_EQ(CGNString("\va\v").Trim(), "\va\v");
}

TEST_F(CGNStringTest, ChangesCaseOfAsciiOnly) {
    EXPECT_EQ(CGNString("aB\xE9z").MakeUpper(), "AB\xE9Z");
    EXPECT_EQ(CGNString("aB\xC9Z").MakeLower(), "ab\xC9z");
}

TEST_F(CGNStringTest, FormatsAnyLength) {
    CGNString text("old");
    text.Format("%s-%d-%05.1f%%", "ab", 42, 2.5);
    EXPECT_EQ(text, "ab-42-002.5%");
    const std::string longText(5000, 'x');
    text.Format("[%s]", longText.c_str());
    EXPECT_EQ(text.str(), "[" + longText + "]");
    text.Format("%s", "");
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(CGNStringTest, ExpandsSpecials) {
    const std::pair<std::string, const char*> cases[] = {
        {"plain text", "plain text"},     {"a\\b \"q\"", "a\\\\b \\\"q\\\""},
        {"l1\nl2\r\t", "l1\\nl2\\r\\t"},  {std::string("\x01\x1F\0z", 4), "\\x01\\x1F\\x00z"},
        {"\x7F\xC3\xA9", "\x7F\xC3\xA9"},
    };
    for (const auto& [input, expected] : cases) {
        EXPECT_EQ(CGNString(input).ExpandSpecials(), expected);
    }
}

TEST_F(CGNStringTest, ClientFormatGivesNativeLineEnds) {
    CGNString text("a\nb\r\nc\n");
    text.ClientFormat();
#ifdef _WIN32
    EXPECT_EQ(text, "a\r\nb\r\nc\r\n");
#else
    EXPECT_EQ(text, "a\nb\r\nc\n");
#endif
}

}  // namespace
