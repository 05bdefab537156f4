#include "vxutil/listctrl/RpcNumberRule.h"

#include <gtest/gtest.h>

#include "RecordingPrompt.h"

namespace {

TEST(RpcNumberRuleTest, AcceptsOnlyThePrivateNumbersAndReportsTheOthers) {
    const struct {
        const char* text;
        bool accepted;
    } cases[] = {
        {"0", true},        {"", true},         {"390600", true},    {" 390680 ", true},
        {"390694", true},   {"390679", false},  {"390695", false},   {"390601", false},
        {"0x5F5C8", true},  {"0x5f618", true},  {"0X5F626", true},   {"0x5F617", false},
        {"0x5F627", false}, {"-390680", false}, {"390680abc", true},  // atoi stops at "a"
    };
    int parentTag = 0;
    vx::WindowHandle parent = &parentTag;
    for (const auto& [text, accepted] : cases) {
        vx::test::RecordingPrompt prompt;
        EXPECT_EQ(vx::CheckPrivateRpcNumber(text, parent), accepted) << text;
        ASSERT_EQ(prompt.shown.size(), accepted ? 0u : 1u) << text;
        if (accepted) continue;
        EXPECT_EQ(prompt.shown[0].text,
                  "A private server's RPC socket number must be 390600 or in the range of "
                  "390680-390694.");
        EXPECT_EQ(prompt.shown[0].style, 0x10u);
        EXPECT_EQ(prompt.shown[0].parent, parent);
    }
}

}  // namespace
