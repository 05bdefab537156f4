#include "vxutil/platform/RApplication.h"

#include <gtest/gtest.h>

#include "support/TempHome.h"

namespace {

class RApplicationTest : public vx::test::HomeTest {
protected:
    RApplication app{"Demo", "vxapptest"};
};

TEST_F(RApplicationTest, ValuesReadBackAsWrittenAndDefaultsOtherwise) {
    EXPECT_EQ(app.GetProfileInt("Menus", "Style", 7), 7u);
    EXPECT_EQ(app.GetProfileInt("Menus", "Style", -1), 4294967295u);
    EXPECT_EQ(app.GetProfileString("User", "VXPath", "dflt"), "dflt");
    EXPECT_EQ(app.GetProfileString("User", "VXPath"), "");

    ASSERT_TRUE(app.WriteProfileInt("Query", "MaxInQuery", 250));
    ASSERT_TRUE(app.WriteProfileInt("Query", "Negative", -3));
    ASSERT_TRUE(app.WriteProfileString("User", "VXPath", "/a;/b"));
    ASSERT_TRUE(app.WriteProfileString("User", "Empty", ""));
    EXPECT_EQ(app.GetProfileInt("Query", "MaxInQuery", 0), 250u);
    EXPECT_EQ(static_cast<int>(app.GetProfileInt("Query", "Negative", 0)), -3);
    EXPECT_EQ(app.GetProfileString("User", "VXPath", ""), "/a;/b");
    EXPECT_EQ(app.GetProfileString("User", "Empty", "dflt"), "");
    // Numbered trace entries may be numbers; they must still read as present text.
    EXPECT_EQ(app.GetProfileString("Query", "MaxInQuery", ""), "250");
}

TEST_F(RApplicationTest, NullValueDeletesAnEntryAndNullEntryTheSection) {
    app.WriteProfileString("Debug", "1", "one");
    app.WriteProfileString("Debug", "2", "two");
    app.WriteProfileString("Other", "keep", "yes");

    EXPECT_TRUE(app.WriteProfileString("Debug", "1", nullptr));
    EXPECT_EQ(app.GetProfileString("Debug", "1", "gone"), "gone");
    EXPECT_EQ(app.GetProfileString("Debug", "2", ""), "two");

    EXPECT_TRUE(app.WriteProfileString("Debug", nullptr, nullptr));
    EXPECT_EQ(app.GetProfileString("Debug", "2", "gone"), "gone");
    EXPECT_EQ(app.GetProfileString("Other", "keep", ""), "yes");
}

TEST_F(RApplicationTest, EachProfileNameHasAProfileOfItsOwn) {
    RApplication other("Other", "vxapptest-other");
    app.WriteProfileInt("Menus", "Style", 2);
    EXPECT_EQ(other.GetProfileInt("Menus", "Style", 1), 1u);
    EXPECT_NE(app.GetProfileLocation(), other.GetProfileLocation());

    RApplication nameless("Demo", "");
    EXPECT_FALSE(nameless.WriteProfileString("User", "VXPath", "x"));
    EXPECT_FALSE(nameless.WriteProfileInt("Menus", "Style", 2));
    EXPECT_EQ(nameless.GetProfileInt("Menus", "Style", 1), 1u);
    EXPECT_EQ(nameless.GetProfileLocation(), "");
}

TEST(RApplicationCurrent, DestroyingTheCurrentObjectUnsetsIt) {
    RApplication* before = RApplication::Current();
    {
        RApplication app("Demo", "vxapptest");
        RApplication::SetCurrent(&app);
        EXPECT_EQ(RApplication::Current(), &app);
    }
    EXPECT_EQ(RApplication::Current(), nullptr);
    RApplication::SetCurrent(before);
}

}  // namespace
