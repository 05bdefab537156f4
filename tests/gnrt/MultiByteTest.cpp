#include "gnrt/MultiByte.h"

#include <cstring>
#include <string>

#include "support/TempHome.h"

namespace {

using MultiByteTest = vx::test::HomeTest;

TEST_F(MultiByteTest, AsciiBytesAreSingleCharacters) {
    EXPECT_EQ(vx::mb::CharLength("ab", 2), 1u);
    EXPECT_EQ(vx::mb::CharLength("ab", 0), 0u);
    EXPECT_EQ(vx::mb::CharLength(nullptr, 4), 0u);
    EXPECT_EQ(vx::mb::CharCount("abc", 3), 3u);
    EXPECT_EQ(vx::mb::CutLength("abc", 3, 2), 2u);
}

TEST_F(MultiByteTest, FindCharHandlesEdges) {
    const char* text = "a;b;";
    EXPECT_EQ(vx::mb::FindChar(text, ';'), text + 1);
    EXPECT_EQ(vx::mb::FindChar(text, 'x'), nullptr);
    EXPECT_EQ(vx::mb::FindChar(text, '\0'), nullptr);
    EXPECT_EQ(vx::mb::FindChar(nullptr, ';'), nullptr);
}

TEST_F(MultiByteTest, BoundedCopyAlwaysTerminates) {
    char target[4] = {'x', 'x', 'x', 'x'};
    EXPECT_EQ(vx::mb::BoundedCopy(target, sizeof target, "abcdef"), 3u);
    EXPECT_STREQ(target, "abc");
    EXPECT_EQ(vx::mb::BoundedCopy(target, sizeof target, nullptr), 0u);
    EXPECT_STREQ(target, "");
    EXPECT_EQ(vx::mb::BoundedCopy(target, 0, "abc"), 0u);
}

TEST_F(MultiByteTest, CollateOrdersAndTreatsNullAsEmpty) {
    EXPECT_LT(vx::mb::Collate("a", "b"), 0);
    EXPECT_GT(vx::mb::Collate("b", "a"), 0);
    EXPECT_EQ(vx::mb::Collate("abc", "abc"), 0);
    EXPECT_EQ(vx::mb::Collate(nullptr, ""), 0);
}

#ifndef _WIN32
// One character each of two, three and four bytes.
const std::string kMultiByteChars[] = {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"};

TEST_F(MultiByteTest, Utf8CharactersAreWholeAndTruncatedOnesAreBytes) {
    for (const std::string& c : kMultiByteChars) {
        SCOPED_TRACE(c.size());
        EXPECT_EQ(vx::mb::CharLength(c.data(), c.size() + 1), c.size());
        for (std::size_t cut = 1; cut < c.size(); ++cut) {
            EXPECT_EQ(vx::mb::CharLength(c.data(), cut), 1u);
            EXPECT_EQ(vx::mb::CharCount(c.data(), cut), cut);
            EXPECT_EQ(vx::mb::CutLength(c.data(), c.size(), cut), 0u);
            const std::string text = "a" + c;
            char target[8];
            EXPECT_EQ(vx::mb::BoundedCopy(target, cut + 2, text.c_str()), 1u);
            EXPECT_STREQ(target, "a");
        }
        EXPECT_EQ(vx::mb::CutLength(c.data(), c.size(), c.size()), c.size());
    }
    EXPECT_EQ(vx::mb::CharCount("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", 10), 4u);
}

TEST_F(MultiByteTest, InvalidUtf8CountsAsSingleBytes) {
    const char* invalid[] = {
        "\x80\x80",          // stray continuation bytes
        "\xC0\x80",          // overlong two-byte form
        "\xE0\x80\x80",      // overlong three-byte form
        "\xF0\x80\x80\x80",  // overlong four-byte form
        "\xED\xA0\x80",      // surrogate
        "\xF4\x90\x80\x80",  // beyond U+10FFFF
        "\xF5\x80\x80\x80",  // no such lead byte
        "\xC3\x41",          // lead byte without its trail byte
    };
    for (const char* text : invalid) {
        SCOPED_TRACE(text);
        EXPECT_EQ(vx::mb::CharLength(text, std::strlen(text)), 1u);
        EXPECT_EQ(vx::mb::CharCount(text, std::strlen(text)), std::strlen(text));
    }
}

TEST_F(MultiByteTest, FindCharSkipsTrailBytes) {
    // 0xA9 is the trail byte of U+00E9 and also stands alone after it.
    const char* text = "\xC3\xA9\xA9";
    EXPECT_EQ(vx::mb::FindChar(text, '\xA9'), text + 2);
    EXPECT_EQ(vx::mb::FindChar("\xC3\xA9", '\xA9'), nullptr);
}
#endif

}  // namespace
