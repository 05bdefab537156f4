// The test suites' entry point: every suite runs with a settings home of its own, so that no
// test can touch the settings of the person running it.
#include <gtest/gtest.h>

#include "support/TempHome.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    vx::test::TempHome suiteHome;
    return RUN_ALL_TESTS();
}
