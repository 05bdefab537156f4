#include "vxutil/platform/LegacyProfile.h"

#include "support/TempHome.h"

namespace vx {
namespace {

using LegacyProfileTest = test::HomeTest;

// A section of its own, so that a run on Windows leaves the users of the real profile alone.
constexpr const char* kSection = "VXUserTest";

TEST_F(LegacyProfileTest, ReadsAndWritesThroughTheProfileRules) {
    ASSERT_TRUE(LegacyProfileWriteString(kSection, "USER1", "alice"));
#ifndef _WIN32
    EXPECT_EQ(LegacyProfilePath(), home.file("win.ini"));
    EXPECT_EQ(test::ReadBytes(home.file("win.ini")), "[VXUserTest]\r\nUSER1=alice\r\n");
#endif
    ASSERT_TRUE(LegacyProfileWriteString(kSection, "Vxpath1", "/home/alice/vx"));
    ASSERT_TRUE(LegacyProfileWriteString(kSection, "LastUserLoggedIn", "1"));

    char buffer[128];
    EXPECT_EQ(LegacyProfileGetString(kSection, "user1", "", buffer, sizeof buffer), 5u);
    EXPECT_STREQ(buffer, "alice");
    EXPECT_EQ(LegacyProfileGetString(kSection, "VXPATH1", "", buffer, 6), 5u);
    EXPECT_STREQ(buffer, "/home");
    EXPECT_EQ(LegacyProfileGetString(kSection, "USER2", "none  ", buffer, sizeof buffer), 4u);
    EXPECT_STREQ(buffer, "none");
    EXPECT_EQ(LegacyProfileGetInt(kSection, "LastUserLoggedIn", -1), 1u);

    ASSERT_TRUE(LegacyProfileWriteString(kSection, nullptr, nullptr));
    EXPECT_EQ(LegacyProfileGetInt(kSection, "LastUserLoggedIn", -1), 4294967295u);
}

}  // namespace
}  // namespace vx
