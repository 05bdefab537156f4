#include "vxutil/gnrt/CGNStringList.h"

#include <string>
#include <vector>

#include "support/TempHome.h"

namespace {

using CGNStringListTest = vx::test::HomeTest;

std::vector<std::string> Items(const CGNStringList& list) {
    std::vector<std::string> items;
    for (const CGNString& item : list) {
        items.push_back(item.str());
    }
    return items;
}

TEST_F(CGNStringListTest, ParseSkipsEmptyPiecesAndKeepsBlanks) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"a;;b;", {"a", "b"}}, {"", {}}, {";", {}}, {" a ;b", {" a ", "b"}}, {"abc", {"abc"}},
    };
    for (const auto& [text, expected] : cases) {
        SCOPED_TRACE(text);
        CGNStringList list;
        list.Parse(text, ';');
        EXPECT_EQ(Items(list), expected);
    }
}

TEST_F(CGNStringListTest, ParseAppendsAndJoinRoundTrips) {
    CGNStringList list;
    list.Add("first");
    list.Parse("x;y", ';');
    EXPECT_EQ(list.Join(';'), "first;x;y");
    EXPECT_EQ(CGNStringList().Join(';'), "");
}

TEST_F(CGNStringListTest, EditsRespectBounds) {
    CGNStringList list(1);
    EXPECT_TRUE(list.InsertAt(0, "b"));
    EXPECT_TRUE(list.InsertAt(0, "a"));
    EXPECT_TRUE(list.InsertAt(2, "c"));
    EXPECT_FALSE(list.InsertAt(4, "x"));
    EXPECT_FALSE(list.InsertAt(-1, "x"));
    EXPECT_FALSE(list.SetAt(3, "x"));
    EXPECT_FALSE(list.RemoveAt(3));
    EXPECT_TRUE(list.RemoveAt(1));
    EXPECT_EQ(Items(list), (std::vector<std::string>{"a", "c"}));
    EXPECT_EQ(list.GetAt(-1), "");
    EXPECT_EQ(list.GetAt(2), "");
}

TEST_F(CGNStringListTest, AddUniqueIsCaseSensitive) {
    CGNStringList list;
    EXPECT_TRUE(list.AddUnique("a"));
    EXPECT_TRUE(list.AddUnique("A"));
    EXPECT_FALSE(list.AddUnique("a"));
    EXPECT_EQ(list.Find("A"), 1);
    EXPECT_EQ(list.Find("b"), -1);
}

}  // namespace
