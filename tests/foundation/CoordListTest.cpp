#include "vxutil/foundation/CVXCoordList.h"

#include <cstdlib>
#include <string>
#include <vector>

#include "support/TempHome.h"

namespace {

using CoordListTest = vx::test::HomeTest;

CVXCoordList Points(std::vector<VXCoordStruct> points) {
    return CVXCoordList(VXCoordList{static_cast<std::uint32_t>(points.size()), points.data()});
}

TEST_F(CoordListTest, DefinitionTextIsExact) {
    struct Case {
        std::vector<VXCoordStruct> points;
        const char* text;
    } cases[] = {
        {{}, "0\\\\"},
        {{{10, 20}, {10, 80}}, "2\\10\\20\\10\\80\\"},
        {{{-5, 0}}, "1\\-5\\0\\"},
    };
    for (const Case& c : cases) {
        CVXCoordList list = Points(c.points);
        ASSERT_NE(list.GetText(), nullptr);
        EXPECT_EQ(*list.GetText(), c.text);

        CVXCoordList read;
        const char* cursor = c.text;
        ASSERT_TRUE(read.ReadText(cursor)) << c.text;
        EXPECT_TRUE(read.IsEqual(list)) << c.text;
        EXPECT_STREQ(cursor, "");
    }
}

TEST_F(CoordListTest, ReaderRefusesIncompletePointsAndKeepsTheList) {
    CVXCoordList list = Points({{1, 2}});
    for (const char* text : {"2\\1\\2\\3\\", "1\\7\\", ""}) {
        SCOPED_TRACE(text);
        const char* cursor = text;
        EXPECT_FALSE(list.ReadText(cursor));
        EXPECT_EQ(cursor, text);
        EXPECT_TRUE(list.IsEqual(Points({{1, 2}})));
    }
    const char* huge = "4294967295\\1\\2\\";
    EXPECT_FALSE(list.ReadText(huge));
    const char* last = "1\\5\\6";  // the final field may lack its backslash
    EXPECT_TRUE(list.ReadText(last));
    EXPECT_EQ(last, nullptr);
    EXPECT_TRUE(list.IsEqual(Points({{5, 6}})));
}

TEST_F(CoordListTest, LinesAreTwoAlignedPoints) {
    struct Case {
        std::vector<VXCoordStruct> points;
        bool line;
        std::int32_t x, y, length;
        int vertical;
    } cases[] = {
        {{{30, 5}, {10, 5}}, true, 10, 5, 20, 0},  {{{10, 5}, {30, 5}}, true, 10, 5, 20, 0},
        {{{4, 90}, {4, 10}}, true, 4, 10, 80, 1},  {{{7, 7}, {7, 7}}, true, 7, 7, 0, 0},
        {{{10, 20}, {30, 40}}, false, 0, 0, 0, 0}, {{{1, 1}}, false, 0, 0, 0, 0},
    };
    for (const Case& c : cases) {
        std::int32_t x = 0, y = 0, length = 0;
        int vertical = 0;
        ASSERT_EQ(Points(c.points).GetLine(x, y, length, vertical), c.line);
        if (!c.line) continue;
        EXPECT_EQ(x, c.x);
        EXPECT_EQ(y, c.y);
        EXPECT_EQ(length, c.length);
        EXPECT_EQ(vertical, c.vertical);
    }
}

TEST_F(CoordListTest, BoxesAreFourAlignedPointsWithArea) {
    std::int32_t left = 0, top = 0, width = 0, height = 0;
    ASSERT_TRUE(Points({{0, 0}, {10, 0}, {10, 5}, {0, 5}}).GetBox(left, top, width, height));
    EXPECT_EQ(left, 0);
    EXPECT_EQ(top, 0);
    EXPECT_EQ(width, 10);
    EXPECT_EQ(height, 5);
    EXPECT_FALSE(Points({{0, 3}, {4, 3}, {8, 3}, {9, 3}}).GetBox(left, top, width, height));
    EXPECT_FALSE(Points({{0, 0}, {10, 1}, {10, 5}, {0, 5}}).GetBox(left, top, width, height));
    EXPECT_FALSE(Points({{0, 0}, {10, 0}, {10, 5}}).GetBox(left, top, width, height));
}

TEST_F(CoordListTest, ShapesSetAndReadBack) {
    CVXCoordList list;
    std::int32_t a = 0, b = 0, c = 0, d = 0;
    int vertical = 0;
    ASSERT_TRUE(list.SetLine(3, 4, 50, 1));
    EXPECT_TRUE(list.IsEqual(Points({{3, 4}, {3, 54}})));
    ASSERT_TRUE(list.GetLine(a, b, c, vertical));
    EXPECT_EQ(c, 50);

    ASSERT_TRUE(list.SetBox(1, 2, 30, 40));
    EXPECT_TRUE(list.IsEqual(Points({{1, 2}, {31, 2}, {31, 42}, {1, 42}})));
    ASSERT_TRUE(list.GetBox(a, b, c, d));
    EXPECT_EQ(c, 30);
    EXPECT_EQ(d, 40);

    ASSERT_TRUE(list.SetPosition(5, 6, -1, -1));
    ASSERT_EQ(list.GetCount(), 1u);
    ASSERT_TRUE(list.GetPosition(a, b, c, d));
    EXPECT_EQ(c, -1);
    EXPECT_EQ(d, -1);
    ASSERT_TRUE(list.SetPosition(5, 6, 0, 7));
    ASSERT_TRUE(list.GetPosition(a, b, c, d));
    EXPECT_EQ(a, 5);
    EXPECT_EQ(b, 6);
    EXPECT_EQ(c, 0);
    EXPECT_EQ(d, 7);
}

TEST_F(CoordListTest, MoveToKeepsTheSizeAndOffsetMovesAll) {
    CVXCoordList pair = Points({{50, 60}, {10, 20}});
    ASSERT_TRUE(pair.MoveTo(0, 0));
    EXPECT_TRUE(pair.IsEqual(Points({{0, 0}, {40, 40}})));
    CVXCoordList box = Points({{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    EXPECT_FALSE(box.MoveTo(5, 5));
    EXPECT_TRUE(box.Offset(2, -3));
    EXPECT_TRUE(box.IsEqual(Points({{2, -3}, {3, -3}, {3, -2}, {2, -2}})));
    CVXCoordList empty;
    EXPECT_TRUE(empty.Offset(1, 1));
    std::int32_t x = 0, y = 0;
    EXPECT_FALSE(empty.GetFirstPoint(x, y));
    EXPECT_FALSE(empty.SetFirstPoint(x, y));
}

TEST_F(CoordListTest, EqualityComparesEveryPoint) {
    EXPECT_TRUE(Points({{1, 2}, {3, 4}}).IsEqual(Points({{1, 2}, {3, 4}})));
    EXPECT_FALSE(Points({{1, 2}, {3, 4}}).IsEqual(Points({{1, 2}, {3, 5}})));
    EXPECT_FALSE(Points({{1, 2}}).IsEqual(Points({{1, 2}, {3, 4}})));
}

TEST_F(CoordListTest, RecordCountWithoutPointsIsKept) {
    // Records from older clients may carry a count and no array; the count is kept as it is.
    CVXCoordList list(VXCoordList{3, nullptr});
    EXPECT_EQ(list.GetCount(), 3u);
    EXPECT_EQ(list.GetPoint(0), nullptr);
    std::int32_t a = 0, b = 0, c = 0, d = 0;
    EXPECT_FALSE(list.GetPosition(a, b, c, d));
    EXPECT_FALSE(list.GetBox(a, b, c, d));
}

TEST_F(CoordListTest, ExportLeavesThePointerPastTheBlock) {
    // The export steps the record's own pointer along the block and fills only the first
    // slot from the list; client tools step back by the count and read the first point, so
    // both behaviours stay.
    CVXCoordList list = Points({{8, 9}, {10, 11}, {12, 13}});
    VXCoordList record{};
    ASSERT_TRUE(list.ExportTo(&record));
    ASSERT_EQ(record.numItems, 3u);
    VXCoordStruct* block = record.coords - record.numItems;
    EXPECT_EQ(block[0].x, 8);
    EXPECT_EQ(block[0].y, 9);
    std::free(block);
    EXPECT_FALSE(list.ExportTo(nullptr));
}

}  // namespace
