#include "vxutil/foundation/CVXCoreList.h"

#include <functional>
#include <memory>
#include <vector>

#include "TaggedItem.h"
#include "support/TempHome.h"
#include "vxutil/foundation/CVXInternalId.h"

namespace {

using vx::test::Fill;
using vx::test::TaggedItem;
using vx::test::TaggedRecord;
using vx::test::Tags;
using CoreListTest = vx::test::HomeTest;

struct EditCase {
    const char* name;
    int size;  // the list starts with items tagged 1..size; the cache is on the last one
    std::function<bool(CVXCoreList&)> edit;
    bool result;
    std::vector<int> tags;
    int cacheIndex;
};

bool Insert(CVXCoreList& list, int index) {
    TaggedItem item(99);
    return list.InsertItem(index, &item);
}

TEST_F(CoreListTest, EditsFollowTheIndexRules) {
    const EditCase cases[] = {
        // Inserting at -1 appends, except into an empty list, where it fails: AddItem is the
        // way to start a list, and callers depend on the difference.
        {"insert -1 into empty", 0, [](auto& l) { return Insert(l, -1); }, false, {}, -1},
        {"insert -1 appends", 3, [](auto& l) { return Insert(l, -1); }, true, {1, 2, 3, 99}, 3},
        {"insert 0 into empty", 0, [](auto& l) { return Insert(l, 0); }, true, {99}, 0},
        {"insert 0 is the head", 3, [](auto& l) { return Insert(l, 0); }, true, {99, 1, 2, 3}, 0},
        {"insert in the middle", 3, [](auto& l) { return Insert(l, 2); }, true, {1, 2, 99, 3}, 2},
        {"insert at count", 3, [](auto& l) { return Insert(l, 3); }, true, {1, 2, 3, 99}, 3},
        {"insert past count", 3, [](auto& l) { return Insert(l, 4); }, false, {1, 2, 3}, 2},
        {"insert at -2", 3, [](auto& l) { return Insert(l, -2); }, false, {1, 2, 3}, 2},
        {"delete the head", 3, [](auto& l) { return l.DeleteItem(0); }, true, {2, 3}, -1},
        {"delete the last", 3, [](auto& l) { return l.DeleteItem(2); }, true, {1, 2}, -1},
        {"delete the middle", 3, [](auto& l) { return l.DeleteItem(1); }, true, {1, 3}, -1},
        {"delete at count", 3, [](auto& l) { return l.DeleteItem(3); }, false, {1, 2, 3}, 2},
        {"delete at -1", 3, [](auto& l) { return l.DeleteItem(-1); }, false, {1, 2, 3}, 2},
        {"delete from empty", 0, [](auto& l) { return l.DeleteItem(0); }, false, {}, -1},
        {"swap ends", 3, [](auto& l) { return l.SwapItems(0, 2); }, true, {3, 2, 1}, 2},
        {"swap with itself", 3, [](auto& l) { return l.SwapItems(1, 1); }, true, {1, 2, 3}, 2},
        {"swap past the end", 3, [](auto& l) { return l.SwapItems(0, 3); }, false, {1, 2, 3}, 2},
        {"swap at -1", 3, [](auto& l) { return l.SwapItems(-1, 0); }, false, {1, 2, 3}, 2},
    };
    for (const EditCase& c : cases) {
        SCOPED_TRACE(c.name);
        CVXCoreList list;
        Fill(list, c.size);
        EXPECT_EQ(c.edit(list), c.result);
        EXPECT_EQ(list.GetCurrentIndex(), c.cacheIndex);
        EXPECT_EQ(Tags(list), c.tags);
        EXPECT_EQ(list.GetCount(), static_cast<int>(c.tags.size()));
    }
}

TEST_F(CoreListTest, RemoveItemHandsTheNodeToTheCaller) {
    CVXCoreList list;
    Fill(list, 3);
    CVXListItem* node = nullptr;
    ASSERT_TRUE(list.RemoveItem(1, node));
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(static_cast<TaggedItem*>(node->GetItem())->tag(), 2);
    EXPECT_EQ(Tags(list), (std::vector<int>{1, 3}));
    delete node;  // the caller owns it, with its item

    CVXListItem* untouched = nullptr;
    EXPECT_FALSE(list.RemoveItem(2, untouched));
    EXPECT_EQ(untouched, nullptr);
}

TEST_F(CoreListTest, PositionCacheFollowsReads) {
    CVXCoreList list;
    Fill(list, 5);
    for (int i = 0; i < 5; ++i) {
        ASSERT_EQ(static_cast<TaggedItem*>(list.GetItem(i))->tag(), i + 1);
        EXPECT_EQ(list.GetCurrentIndex(), i);
    }
    // A backward step restarts from the head and still lands on the right node.
    EXPECT_EQ(static_cast<TaggedItem*>(list.GetItem(1))->tag(), 2);
    EXPECT_EQ(static_cast<TaggedItem*>(list.GetCurrentItem())->tag(), 2);
    // A bad index leaves the cache alone.
    EXPECT_EQ(list.GetItem(5), nullptr);
    EXPECT_EQ(list.GetItem(-1), nullptr);
    EXPECT_EQ(list.GetCurrentIndex(), 1);

    list.RemoveAll();
    EXPECT_EQ(list.GetCurrentIndex(), -1);
    EXPECT_EQ(list.GetCurrentItem(), nullptr);
}

TEST_F(CoreListTest, ItemsAreDuplicatedOrAdopted) {
    CVXCoreList list;
    TaggedItem original(7);
    ASSERT_TRUE(list.AddItem(&original));
    EXPECT_NE(list.GetItem(0), &original);
    original.setTag(8);
    EXPECT_EQ(Tags(list), (std::vector<int>{7}));

    auto* owned = new TaggedItem(9);
    ASSERT_TRUE(list.AddOwnedItem(owned));
    EXPECT_EQ(list.GetItem(1), owned);
    EXPECT_FALSE(list.AddItem(nullptr));

    list.AddList(list);  // appending a list to itself doubles it once
    EXPECT_EQ(Tags(list), (std::vector<int>{7, 9, 7, 9}));
}

TEST_F(CoreListTest, CopiesCarryThePositionAndRebuildTheArray) {
    CVXCoreList source;
    Fill(source, 3);
    ASSERT_NE(source.BuildArray(), nullptr);
    source.GetItem(1);

    CVXCoreList copy(source);
    EXPECT_EQ(copy.GetCurrentIndex(), 1);
    ASSERT_NE(copy.GetArray(), nullptr);
    EXPECT_NE(copy.GetArray(), source.GetArray());
    EXPECT_EQ(static_cast<TaggedRecord*>(copy.GetArray())[2].tag, 3);
    EXPECT_EQ(Tags(copy), Tags(source));
    EXPECT_NE(copy.GetItem(0), source.GetItem(0));

    CVXCoreList assigned;
    Fill(assigned, 5);
    assigned = copy;
    EXPECT_EQ(Tags(assigned), (std::vector<int>{1, 2, 3}));
    ASSERT_NE(assigned.GetArray(), nullptr);
    EXPECT_NE(assigned.GetArray(), copy.GetArray());

    // Without an array in the source, none is built; a source without position gives none.
    CVXCoreList plain;
    Fill(plain, 2);
    plain.DeleteItem(1);  // resets the position
    CVXCoreList plainCopy(plain);
    EXPECT_EQ(plainCopy.GetArray(), nullptr);
    EXPECT_EQ(plainCopy.GetCurrentIndex(), -1);

    assigned = CVXCoreList();
    EXPECT_EQ(assigned.GetCount(), 0);
    EXPECT_EQ(assigned.GetArray(), nullptr);
    CVXCoreList& self = assigned;
    assigned = self;
    EXPECT_EQ(assigned.GetCount(), 0);
}

TEST_F(CoreListTest, BuildArrayLaysOutRecordsInListOrder) {
    CVXCoreList list;
    EXPECT_EQ(list.BuildArray(), nullptr);
    Fill(list, 3);
    auto* records = static_cast<TaggedRecord*>(list.BuildArray());
    ASSERT_NE(records, nullptr);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(records[i].tag, i + 1);

    // Emptied item by item, the list keeps its last array: only RemoveAll frees it.
    while (list.GetCount() > 0)
        list.DeleteItem(0);
    EXPECT_EQ(list.BuildArray(), nullptr);
    EXPECT_EQ(list.GetArray(), records);
    list.RemoveAll();
    EXPECT_EQ(list.GetArray(), nullptr);
}

TEST_F(CoreListTest, BuildArrayRefusesItemsOfAnotherSize) {
    CVXCoreList list;
    Fill(list, 1);
    CVXInternalId smaller(5);
    list.AddItem(&smaller);
    EXPECT_EQ(list.BuildArray(), nullptr);
    EXPECT_EQ(list.GetArray(), nullptr);
}

TEST_F(CoreListTest, EqualityIsShallow) {
    CVXCoreList a;
    CVXCoreList b;
    Fill(a, 3);
    for (int tag : {7, 8, 9}) {
        TaggedItem item(tag);
        b.AddItem(&item);
    }
    EXPECT_TRUE(a.IsEqual(b));  // same class, same count: content is not compared here
    b.DeleteItem(0);
    EXPECT_FALSE(a.IsEqual(b));
    CVXInternalId other(1);
    b.AddItem(&other);
    EXPECT_FALSE(a.IsEqual(b));  // record sizes differ at index 2
}

TEST_F(CoreListTest, DisplayTextJoinsItemsWithCommas) {
    CVXCoreList list;
    CGNString text("stale");
    list.ToText(text);
    EXPECT_EQ(text, "");
    Fill(list, 3);
    list.ToText(text);
    EXPECT_EQ(text, "1,2,3");

    CVXCoreList silent;
    CVXInternalId id;
    for (int i = 0; i < 3; ++i)
        silent.AddItem(&id);
    silent.ToText(text);
    EXPECT_EQ(text, ",,");
}

TEST_F(CoreListTest, NodesDuplicateButDoNotLink) {
    TaggedItem item(4);
    CVXListItem node(&item);
    CVXListItem next;
    node.SetNext(&next);

    CVXListItem copy(node);
    EXPECT_EQ(copy.GetNext(), nullptr);
    ASSERT_NE(copy.GetItem(), nullptr);
    EXPECT_NE(copy.GetItem(), node.GetItem());
    EXPECT_EQ(copy.GetSize(), sizeof(TaggedRecord));

    copy = next;  // a node without item
    EXPECT_EQ(copy.GetItem(), nullptr);
    EXPECT_EQ(copy.GetSize(), 0u);
    TaggedRecord record{};
    EXPECT_FALSE(copy.CopyTo(&record));
    EXPECT_TRUE(node.CopyTo(&record));
    EXPECT_EQ(record.tag, 4);
}

TEST_F(CoreListTest, DuplicateMakesDefaultOrCopyOfTheSameClassOnly) {
    TaggedItem item(3);
    std::unique_ptr<CVXListItemStruct> copy(item.Duplicate(&item));
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(static_cast<TaggedItem*>(copy.get())->tag(), 3);
    std::unique_ptr<CVXListItemStruct> fresh(item.Duplicate(nullptr));
    EXPECT_EQ(static_cast<TaggedItem*>(fresh.get())->tag(), 0);
    CVXInternalId foreign(1);
    EXPECT_EQ(item.Duplicate(&foreign), nullptr);
}

}  // namespace
