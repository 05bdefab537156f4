#include "runtime/module/ResourceName.h"

#include <gtest/gtest.h>

namespace {

TEST(ResourceNameTest, ResGoesBeforeTheFirstDigitOrAtTheEnd) {
    struct Case {
        const char* module;
        const char* expected;
    } cases[] = {
        {"abc40.dll", "abcRes40.dll"},
        {"/usr/lib/x86_64-linux-gnu/libvxutil.so.0.1.0", "libvxutil.so.Res0.1.0"},
        {"lib/libvxutil.so", "libvxutil.soRes"},
        {"9lives.dll", "Res9lives.dll"},
        {"dir2/abc.dll", "abc.dllRes"},  // digits of folders do not count
        {"noext", "noextRes"},
        {"", "Res"},
        {"trailing/", "Res"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(vx::LocalizedResourceName(c.module), c.expected) << c.module;
}

#ifdef _WIN32
TEST(ResourceNameTest, BothSeparatorsEndTheFolderOnWindows) {
    EXPECT_EQ(vx::LocalizedResourceName("C:\\Program Files\\VX2\\vxutil.dll"), "vxutil.dllRes");
    EXPECT_EQ(vx::LocalizedResourceName("C:/VX\\bin/kx32.dll"), "kxRes32.dll");
}
#endif

}  // namespace
