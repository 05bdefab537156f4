#include <clocale>
#include <cstring>
#include <string>
#include <vector>

#include "support/TempHome.h"
#include "vxutil/foundation/CVXInternalIdList.h"
#include "vxutil/foundation/CVXNameList.h"
#include "vxutil/foundation/CVXPermissionList.h"
#include "vxutil/foundation/CVXServerNameType.h"

namespace {

using NamesTest = vx::test::HomeTest;

std::vector<std::string> Names(const CVXNameList& list) {
    std::vector<std::string> names;
    for (int i = 0; i < list.GetCount(); ++i) {
        names.push_back(static_cast<const CVXNameType*>(list.GetItem(i))->GetName());
    }
    return names;
}

CVXNameList ListOf(std::initializer_list<const char*> names) {
    CVXNameList list;
    for (const char* name : names) {
        CVXNameType item(name);
        list.AddItem(&item);
    }
    return list;
}

TEST_F(NamesTest, NamesAreCutBetweenCharacters) {
    struct Case {
        std::string text;
        std::size_t name;        // bytes kept by CVXNameType
        std::size_t serverName;  // bytes kept by CVXServerNameType
    } cases[] = {
        {std::string(40, 'a'), 30, 40},
        {std::string(70, 's'), 30, 64},
        {std::string(30, 'a'), 30, 30},
#ifndef _WIN32
        // UTF-8 is the client's character set on POSIX (\xC3\xA9 is one character); the ANSI code
        // page of the Windows test machines is single-byte, where every byte is a character.
        {std::string(29, 'a') + "\xC3\xA9", 29, 31},  // the 30th byte would split the character
        {std::string(63, 'a') + "\xC3\xA9", 30, 63},
#endif
        {"", 0, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(std::strlen(CVXNameType(c.text.c_str()).GetName()), c.name);
        EXPECT_EQ(std::strlen(CVXServerNameType(c.text.c_str()).GetName()), c.serverName);
    }
    EXPECT_STREQ(CVXNameType(static_cast<const char*>(nullptr)).GetName(), "");
}

TEST_F(NamesTest, RecordsAreReadWithinTheirBufferAndFilledWhole) {
    VXNameType unterminated;
    std::memset(unterminated.name, 'n', sizeof unterminated.name);
    const CVXNameType name(unterminated);
    EXPECT_EQ(std::string(name.GetName()), std::string(30, 'n'));

    VXServerNameType record;
    std::memset(&record, 'x', sizeof record);
    ASSERT_TRUE(CVXServerNameType("north").CopyTo(&record));
    EXPECT_STREQ(record.name, "north");
    for (std::size_t i = 5; i < sizeof record.name; ++i)
        ASSERT_EQ(record.name[i], '\0');
    EXPECT_FALSE(name.CopyTo(nullptr));
}

TEST_F(NamesTest, SortIsStableAndFollowsTheCollation) {
    const std::string previous = std::setlocale(LC_COLLATE, nullptr);
    std::setlocale(LC_COLLATE, "C");  // byte order: capitals before small letters
    struct Case {
        std::initializer_list<const char*> input;
        std::vector<std::string> sorted;
    } cases[] = {
        {{}, {}},
        {{"only"}, {"only"}},
        {{"beta", "alpha", "gamma", "alpha"}, {"alpha", "alpha", "beta", "gamma"}},
#ifndef _WIN32
        // strcoll in the "C" locale orders bytes; Windows collates by the user's locale.
        {{"beta", "Gamma", "alpha"}, {"Gamma", "alpha", "beta"}},
#endif
        {{"c", "b", "a"}, {"a", "b", "c"}},
    };
    for (const Case& c : cases) {
        CVXNameList list = ListOf(c.input);
        list.Sort();
        EXPECT_EQ(Names(list), c.sorted);
    }

    CVXNameList equal = ListOf({"same", "other", "same"});
    const CVXListItemStruct* first = equal.GetItem(0);
    const CVXListItemStruct* second = equal.GetItem(2);
    equal.Sort();
    EXPECT_EQ(equal.GetItem(1), first);
    EXPECT_EQ(equal.GetItem(2), second);
    std::setlocale(LC_COLLATE, previous.c_str());
}

TEST_F(NamesTest, ListsConvertToAndFromRecords) {
    CVXNameList names = ListOf({"Tickets", "Assets"});
    VXNameList record{99, nullptr};
    ASSERT_TRUE(names.GetNameList(record));
    ASSERT_EQ(record.numItems, 2u);
    EXPECT_STREQ(record.nameList[1].name, "Assets");

    CVXNameList copy(record);  // the array is copied, not adopted
    names.RemoveAll();
    EXPECT_EQ(Names(copy), (std::vector<std::string>{"Tickets", "Assets"}));

    copy = VXNameList{5, nullptr};
    EXPECT_EQ(copy.GetCount(), 0);
    VXNameList empty{7, nullptr};
    EXPECT_TRUE(copy.GetNameList(empty));
    EXPECT_EQ(empty.numItems, 0u);
    EXPECT_EQ(empty.nameList, nullptr);
}

TEST_F(NamesTest, AddUniqueKeepsOneOfEachIdentifier) {
    CVXInternalIdList list;
    EXPECT_TRUE(list.AddUnique(CVXInternalId(7)));
    EXPECT_TRUE(list.AddUnique(CVXInternalId(9)));
    EXPECT_TRUE(list.AddUnique(CVXInternalId(7)));
    ASSERT_EQ(list.GetCount(), 2);
    EXPECT_EQ(static_cast<CVXInternalId*>(list.GetItem(1))->GetId(), 9u);
}

TEST_F(NamesTest, PermissionsFromGroupsHaveValueOne) {
    CVXInternalIdList groups;
    for (std::uint32_t id : {10u, 20u, 30u})
        groups.AddUnique(CVXInternalId(id));
    const CVXPermissionList permissions(groups);
    ASSERT_EQ(permissions.GetCount(), 3);
    for (int i = 0; i < 3; ++i) {
        const auto* permission = static_cast<const CVXPermissionStruct*>(permissions.GetItem(i));
        EXPECT_EQ(permission->GetGroupId(), 10u * static_cast<std::uint32_t>(i + 1));
        EXPECT_EQ(permission->GetPermissions(), 1u);
    }
}

}  // namespace
