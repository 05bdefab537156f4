#include "vxutil/gnrt/CGNList.h"

#include <cstdint>
#include <vector>

#include "support/TempHome.h"

namespace {

using CGNListTest = vx::test::HomeTest;

void* Item(std::intptr_t value) {
    return reinterpret_cast<void*>(value);
}

std::vector<std::intptr_t> Items(CGNList& list) {
    std::vector<std::intptr_t> items;
    void** slots = list.GetItemListPtr();
    for (int i = 0; i < list.GetCount(); ++i) {
        items.push_back(reinterpret_cast<std::intptr_t>(slots[i]));
    }
    return items;
}

TEST_F(CGNListTest, GrowsBeyondItsInitialSizeKeepingOrder) {
    CGNList list(2, 3);
    std::vector<std::intptr_t> expected;
    for (std::intptr_t i = 1; i <= 100; ++i) {
        ASSERT_TRUE(list.AddItem(Item(i)));
        expected.push_back(i);
    }
    EXPECT_EQ(Items(list), expected);
}

TEST_F(CGNListTest, EditsRespectBounds) {
    CGNList list(0, 1);
    EXPECT_EQ(list.GetItemListPtr(), nullptr);
    EXPECT_TRUE(list.InsertItem(0, Item(2)));
    EXPECT_TRUE(list.InsertItem(0, Item(1)));
    EXPECT_TRUE(list.InsertItem(2, Item(4)));
    EXPECT_TRUE(list.InsertItem(2, Item(3)));
    EXPECT_FALSE(list.InsertItem(5, Item(9)));
    EXPECT_FALSE(list.InsertItem(-1, Item(9)));
    EXPECT_EQ(Items(list), (std::vector<std::intptr_t>{1, 2, 3, 4}));

    EXPECT_TRUE(list.SwapItems(0, 3));
    EXPECT_FALSE(list.SwapItems(0, 4));
    EXPECT_TRUE(list.DeleteItem(1));
    EXPECT_FALSE(list.DeleteItem(3));
    EXPECT_TRUE(list.SetItem(0, Item(7)));
    EXPECT_FALSE(list.SetItem(3, Item(7)));
    EXPECT_EQ(Items(list), (std::vector<std::intptr_t>{7, 3, 1}));
    EXPECT_EQ(list.GetItem(3), nullptr);
    EXPECT_EQ(list.GetItem(-1), nullptr);
}

// A list that owns its elements, the way the foundation lists use the base.
class OwningList : public CGNList {
public:
    OwningList() : CGNList(10, 10) {}
    ~OwningList() override { Free(); }
    void Free() override {
        for (int i = 0; i < GetCount(); ++i) {
            delete static_cast<int*>(GetItem(i));
        }
        CGNList::Free();
    }
};

TEST_F(CGNListTest, FreeReleasesSlotsAndTheListStaysUsable) {
    OwningList list;
    list.AddItem(new int(1));
    list.AddItem(nullptr);
    CGNList& base = list;
    base.Free();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetItemListPtr(), nullptr);
    EXPECT_TRUE(list.AddItem(new int(2)));
    EXPECT_EQ(*static_cast<int*>(list.GetItem(0)), 2);
}

}  // namespace
