#include "foundation/DefinitionText.h"

#include <climits>
#include <string>

#include "TaggedItem.h"
#include "support/TempHome.h"

namespace {

using namespace vx::definition;
using vx::test::TaggedItem;
using vx::test::Tags;
using DefinitionTextTest = vx::test::HomeTest;

// Where the cursor stands after a read, as text ("<null>" when it became null).
std::string Rest(const char* cursor) {
    return cursor != nullptr ? cursor : "<null>";
}

TEST_F(DefinitionTextTest, FieldsAreWrittenWithClosingBackslashes) {
    CGNString out;
    WriteUnsigned(out, 4294967295u);
    WriteSigned(out, -5);
    WriteString(out, "a\\b");       // the length lets the text hold backslashes
    WriteString(out, "x\r\ny\rz");  // CR LF counts as one line feed; a lone CR stays
    WriteString(out, nullptr);
    EXPECT_EQ(out, "4294967295\\-5\\3\\a\\b\\5\\x\ny\rz\\0\\\\");
}

TEST_F(DefinitionTextTest, NumbersFollowTheCursorRules) {
    struct Case {
        const char* text;
        bool read;
        std::int32_t value;
        const char* rest;
    } cases[] = {
        {"12\\next", true, 12, "next"},
        {"-7\\", true, -7, ""},
        {"+3\\", true, 3, ""},
        {"12", true, 12, "<null>"},  // the last field may lack its backslash
        {"12x\\y", true, 12, "y"},   // the conversion stops, the cursor goes on to the backslash
        {"abc\\z", true, 0, "z"},
        {"99999999999\\", true, INT32_MAX, ""},
        {"-99999999999\\", true, INT32_MIN, ""},
        {"", false, 0, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        const char* cursor = c.text;
        std::int32_t value = 0;
        EXPECT_EQ(ReadSigned(cursor, value), c.read);
        EXPECT_EQ(value, c.value);
        EXPECT_EQ(Rest(cursor), c.rest);
    }

    const char* cursor = "-1\\4294967296\\";
    std::uint32_t value = 0;
    EXPECT_TRUE(ReadUnsigned(cursor, value));
    EXPECT_EQ(value, 4294967295u);
    EXPECT_TRUE(ReadUnsigned(cursor, value));
    EXPECT_EQ(value, 4294967295u);

    cursor = nullptr;
    EXPECT_FALSE(ReadUnsigned(cursor, value));
}

TEST_F(DefinitionTextTest, StringsAreReadByTheirLength) {
    struct Case {
        const char* text;
        bool read;
        const char* value;
        const char* rest;
    } cases[] = {
        {"3\\a\\b\\next", true, "a\\b", "next"},
        {"3\\abc", true, "abc", "<null>"},
        {"0\\\\", true, "", ""},
        {"5\\abc", false, "", ""},    // fewer bytes than promised
        {"2\\abc\\", false, "", ""},  // the bytes must end the field
        {"", false, "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        const char* cursor = c.text;
        CGNString value;
        EXPECT_EQ(ReadString(cursor, value), c.read);
        EXPECT_EQ(value, c.value);
        if (c.read) {
            EXPECT_EQ(Rest(cursor), c.rest);
        }
    }
}

TEST_F(DefinitionTextTest, WrittenFieldsReadBack) {
    CGNString text;
    WriteSigned(text, INT32_MIN);
    WriteString(text, "line\\with\nbreaks");
    WriteUnsigned(text, 0);
    const char* cursor = text.c_str();
    std::int32_t number = 0;
    CGNString string;
    std::uint32_t zero = 1;
    ASSERT_TRUE(ReadSigned(cursor, number));
    ASSERT_TRUE(ReadString(cursor, string));
    ASSERT_TRUE(ReadUnsigned(cursor, zero));
    EXPECT_EQ(number, INT32_MIN);
    EXPECT_EQ(string, "line\\with\nbreaks");
    EXPECT_EQ(zero, 0u);
    EXPECT_EQ(Rest(cursor), "");
}

bool ReadTag(TaggedItem& item, const char*& cursor) {
    std::int32_t tag = 0;
    if (!ReadSigned(cursor, tag)) return false;
    item.setTag(tag);
    return true;
}

TEST_F(DefinitionTextTest, ListsReadTheirCountOfItemsAndOneLineFeed) {
    CVXCoreList written;
    vx::test::Fill(written, 2);
    CGNString text;
    WriteList<TaggedItem>(text, written, [](const TaggedItem& item, CGNString& out) {
        WriteSigned(out, item.tag());
    });
    EXPECT_EQ(text, "2\\1\\2\\");
    text += "\n9\\";

    const char* cursor = text.c_str();
    CVXCoreList read;
    ASSERT_TRUE(ReadList<TaggedItem>(cursor, read, ReadTag));
    EXPECT_EQ(Tags(read), (std::vector<int>{1, 2}));
    EXPECT_EQ(Rest(cursor), "9\\");

    // A failing item ends the read; the items before it stay.
    cursor = "3\\5\\6\\";
    CVXCoreList partial;
    EXPECT_FALSE(ReadList<TaggedItem>(cursor, partial, ReadTag));
    EXPECT_EQ(Tags(partial), (std::vector<int>{5, 6}));

    cursor = nullptr;
    EXPECT_FALSE(ReadList<TaggedItem>(cursor, partial, ReadTag));
}

}  // namespace
