#include "vxutil/foundation/CVXServerNameList.h"

#include <memory>
#include <string>
#include <vector>

#include "support/TempHome.h"
#include "vxutil/foundation/CVXSchemaList.h"

namespace {

using ServerNameListTest = vx::test::HomeTest;

std::vector<std::string> Names(const CVXServerNameList& list) {
    std::vector<std::string> names;
    for (int i = 0; i < list.GetCount(); ++i) {
        const CVXServerNameType* name = list.GetServer(i);
        names.push_back(name != nullptr ? name->GetName() : "<null>");
    }
    return names;
}

TEST_F(ServerNameListTest, HoldsCopiesInOrder) {
    CVXServerNameList list;
    CVXServerNameType name("alpha");
    EXPECT_TRUE(list.AddServer(name));
    name.SetName("gamma");
    EXPECT_TRUE(list.AddServer(name));
    name.SetName("beta");
    EXPECT_TRUE(list.InsertServer(1, name));
    EXPECT_FALSE(list.InsertServer(4, name));
    EXPECT_NE(list.GetServer(1), &name);
    EXPECT_EQ(Names(list), (std::vector<std::string>{"alpha", "beta", "gamma"}));

    CVXServerNameList copy(list);
    list.Free();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(Names(copy), (std::vector<std::string>{"alpha", "beta", "gamma"}));
    EXPECT_EQ(copy.GetServer(3), nullptr);
}

TEST_F(ServerNameListTest, DeletingTheFirstNameLeavesItAlive) {
    CVXServerNameList list;
    for (const char* text : {"one", "two", "three"})
        list.AddServer(CVXServerNameType(text));

    EXPECT_TRUE(list.DeleteServer(1));  // destroyed with its slot
    EXPECT_FALSE(list.DeleteServer(2));
    // Index 0 only loses its slot: callers fetch the first name, delete the slot and keep the
    // name, so the list must not destroy it. This test takes it over to free it.
    std::unique_ptr<CVXServerNameType> first(list.GetServer(0));
    EXPECT_TRUE(list.DeleteServer(0));
    EXPECT_STREQ(first->GetName(), "one");
    EXPECT_EQ(Names(list), (std::vector<std::string>{"three"}));
}

TEST_F(ServerNameListTest, SchemaListFollowsTheSameRules) {
    CVXSchemaList list;
    CVXSchemaPair pair{CVXNameType("Tickets"), CVXServerNameType("north")};
    EXPECT_TRUE(list.AddSchema(pair));
    pair.schema.SetName("Assets");
    EXPECT_TRUE(list.InsertSchema(0, pair));
    pair.server.SetName("south");
    EXPECT_TRUE(list.AddSchema(pair));
    ASSERT_EQ(list.GetCount(), 3);
    EXPECT_STREQ(list.GetSchema(0)->schema.GetName(), "Assets");
    EXPECT_STREQ(list.GetSchema(1)->server.GetName(), "north");

    EXPECT_TRUE(list.DeleteSchema(2));
    std::unique_ptr<CVXSchemaPair> first(list.GetSchema(0));  // as above: index 0 survives
    EXPECT_TRUE(list.DeleteSchema(0));
    EXPECT_EQ(list.GetCount(), 1);
    EXPECT_STREQ(list.GetSchema(0)->schema.GetName(), "Tickets");
}

}  // namespace
