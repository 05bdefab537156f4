#include <climits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/ScriptedPrompt.h"
#include "vxutil/listctrl/RHexEditLogic.h"
#include "vxutil/listctrl/RpcNumberRule.h"
#include "vxutil/listctrl/VirtualKeys.h"

namespace {

using vx::EditMessage;

// An edit control over a string, 100 pixels wide: the logic sees each message
// first, and a keystroke that passes is applied as a Win32 edit control applies it. Its log
// shows a beep as "!" and a posted key-down as "^".
struct FakeEditWindow : vx::EditWindow {
    bool Exists() const override { return exists; }
    CGNString GetText() const override { return CGNString(text); }
    void GetSel(int& s, int& e) const override { s = start, e = end; }
    bool ClientContains(vx::ClientPoint p) const override { return p.x >= 0 && p.x < 100; }
    void PostKeyDown(unsigned key) override { log += '^', posted.push_back(key); }
    void Beep() override { log += '!'; }
    vx::WindowHandle PromptParent() const override { return const_cast<std::string*>(&log); }

    // Keys are characters but for "\x7f" and "\r", key-downs of Delete and Enter, and "@" and
    // "#", clicks inside and outside the window. Posted key-downs are delivered after each.
    void Type(RBaseEditLogic& logic, std::string_view keys) {
        for (const char key : keys) {
            const bool back = key == '\b', del = key == '\x7f', typed = !back && !del;
            EditMessage m = EditMessage::Char(static_cast<unsigned char>(key));
            if (del || key == '\r') m = EditMessage::KeyDown(del ? vx::kVkDelete : vx::kVkReturn);
            if (key == '@' || key == '#') m = EditMessage::LButtonDown({key == '@' ? 50 : 150, 10});
            const vx::EditFilterResult result = logic.PreTranslateMessage(m);
            for (; !posted.empty(); posted.erase(posted.begin()))
                logic.PreTranslateMessage(EditMessage::KeyDown(posted.front()));
            if (result.swallowed || (m.message != vx::kWmChar && !del)) continue;
            if (start == end && back && start > 0) --start;
            if (start == end && del && end < static_cast<int>(text.size())) ++end;
            const int ch = result.replacementChar >= 0 ? result.replacementChar : key;
            text.replace(start, end - start, typed ? 1 : 0, static_cast<char>(ch));
            end = start += typed ? 1 : 0;
        }
    }

    std::string text, log;
    int start = 0, end = 0;
    bool exists = true;
    std::vector<unsigned> posted;
};

class EditLogicTest : public ::testing::Test {
protected:
    // The texts of the messages shown since the last call, each checked to have been shown
    // over the edit window with `style`.
    std::vector<std::string> Shown(unsigned style) {
        std::vector<std::string> texts;
        for (const auto& [text, asked, parent] : std::exchange(prompt.asked, {})) {
            EXPECT_EQ(asked, style);
            EXPECT_EQ(parent, window.PromptParent());
            texts.push_back(text);
        }
        return texts;
    }

    FakeEditWindow window;
    RHexEditLogic hex{&window};
    vx::test::ScriptedPrompt prompt;
};

TEST_F(EditLogicTest, AllowMaskAdmitsExactlyItsCharacterClasses) {
    EXPECT_EQ(RBaseEditLogic().GetAllowMask(), vx::kAllowAll);
    EXPECT_TRUE(hex.GetAllowMask() == 0x7 && hex.GetMaxRange() == INT_MAX);
    const std::string_view classes[] = {"0123456789", "AMZ", "amz", " ", "-", ",",  ".", "+",
                                        "[",          "]",   "(",   ")", "/", "\\", ":"};
    RBaseEditLogic logic;
    for (std::uint32_t bit = 0; bit < std::size(classes); ++bit) {
        logic.SetAllowMask(1u << bit);
        for (std::uint32_t other = 0; other < std::size(classes); ++other)
            for (char c : classes[other])
                EXPECT_EQ(logic.IsValidChar(static_cast<unsigned char>(c)), other == bit) << c;
        EXPECT_TRUE(logic.IsValidChar(vx::kVkBack));
    }
    logic.SetAllowMask(vx::kAllowAll);
    for (unsigned unlisted : {0x21u, 0x5Fu, 0x7Eu, 0x7Fu, 0xE4u, 0x120u})
        EXPECT_FALSE(logic.IsValidChar(unlisted)) << unlisted;
}

// Keys into a text with a selection, by default in the range 10 to 0xFFFF.
TEST_F(EditLogicTest, EachKeystrokeIsCheckedOnTheTextItWouldProduce) {
    constexpr std::string_view k10To65535 =
        "Decimal range is 10 to 65535.\nHexadecimal range is 0xA to 0xFFFF.";
    const struct {
        std::string_view before;
        int start, end;
        std::string_view keys, after, log, range = "";  // the range message, if any
        std::uint32_t mask = 0x7;
        int minimum = 10, maximum = 0xFFFF;
    } cases[] = {
        {"", 0, 0, "0X1F", "0x1F", ""},        // "X" after a leading "0" is typed as "x"
        {"", 0, 0, "0xfffff", "0xffff", "!"},  // one digit beyond the maximum
        {"", 0, 0, "0xAg", "0xA", "!"},        // only "a" to "f", and only after the prefix
        {"", 0, 0, "1aX", "1", "!!"},          // "x" only right after a leading "0"
        {"", 0, 0, "x00x1", "001", "!!"},
        {"0x12", 0, 0, "5", "0x12", "!"},  // no digit before the prefix
        {"99", 0, 2, "7", "7", ""},
        {"0x1f", 2, 2, "\b", "0x1f", "!"},    // checked on "01f"
        {"0x1f", 1, 1, "\x7f", "0x1f", "!"},  // Delete inside is checked on "01f" too
        {"0x1f", 4, 4, "\x7f", "0x1f", ""},   // Delete at the end passes
        // A typed "." has the code of Delete: once the mask allows it, it is checked as a
        // deletion of the next character, and inserted when that passes.
        {"0x1f", 4, 4, ".", "0x1f", "!"},
        {"0x1f", 4, 4, ".", "0x1f.", "", "", 0x7 | vx::kAllowPeriod},
        {"0x1f", 0, 0, ".", "0x1f", "!", "", 0x7 | vx::kAllowPeriod},
        // Enter refuses a number out of range with the range message.
        {"10", 0, 0, "\r", "10", ""},
        {"0xFFFF", 0, 0, "\r", "0xFFFF", ""},
        {"9", 0, 0, "\r", "9", "!", k10To65535},
        {"0X10000", 0, 0, "\r", "0X10000", "!", k10To65535},
        {"0", 0, 0, "\r", "0", "!",
         "Decimal range is -16 to -1.\nHexadecimal range is 0xFFFFFFF0 to 0xFFFFFFFF.", 0x7, -16,
         -1},
        // A click inside a well-formed number posts Enter for the range check.
        {"3", 0, 0, "@", "3", "^!", k10To65535},
        {"3", 0, 0, "#", "3", ""},
        {"0xx1", 0, 0, "@", "0xx1", "!"},  // malformed: a beep, no range check
    };
    for (const auto& c : cases) {
        hex.SetAllowMask(c.mask);
        hex.SetRange(c.minimum, c.maximum);
        window.text = c.before, window.start = c.start, window.end = c.end, window.log = "";
        window.Type(hex, c.keys);
        EXPECT_EQ(window.text, c.after) << c.before << " + " << c.keys;
        EXPECT_EQ(window.log, c.log) << c.before << " + " << c.keys;
        const std::string message = "Invalid number, " + std::string(c.after) +
                                    ".\nDecimal numbers have the format of \"1234\".\n"
                                    "Hexadecimal numbers have the format of \"0x1234\".\n"
                                    "Please enter a valid number.\n\n" +
                                    std::string(c.range);
        EXPECT_EQ(Shown(vx::kMbIconExclamation),
                  c.range.empty() ? std::vector<std::string>{} : std::vector{message});
    }
    // Nothing is checked in a window that is gone, nor without a window, nor for other messages.
    window.exists = false, window.log = "";
    window.Type(hex, "@");
    EXPECT_EQ(window.log, "");
    EXPECT_FALSE(RHexEditLogic().PreTranslateMessage(EditMessage::Char('!')).swallowed);
    EXPECT_FALSE(hex.PreTranslateMessage({vx::kWmMouseMove, '!', {}}).swallowed);
}

TEST(VerifyHexNumberTest, TheWholeTextMustBeAnExactNumber) {
    for (const char* verified : {"", "0x", "123", "0X1f", "2147483647", "0x007FFFFFFF"})
        EXPECT_TRUE(RHexEditLogic::VerifyHexNumber(verified)) << verified;
    for (const char* refused : {"2147483648", "0x80000000", "0xx1", "12a", "0x1g", "-1", " 1"})
        EXPECT_FALSE(RHexEditLogic::VerifyHexNumber(refused)) << refused;
}

TEST_F(EditLogicTest, PrivateRpcNumberIs390600Or390680To390694) {
    for (const char* accepted : {"0", "390600", "390680", "390694", "0x5F5C8"})
        EXPECT_TRUE(vx::CheckPrivateRpcNumber(accepted, window.PromptParent())) << accepted;
    EXPECT_TRUE(Shown(0x10).empty());
    for (const char* refused : {"390679", "390695", "0x5F627"}) {
        EXPECT_FALSE(vx::CheckPrivateRpcNumber(refused, window.PromptParent())) << refused;
        EXPECT_EQ(Shown(0x10), std::vector<std::string>{"A private server's RPC socket number "
                                                        "must be 390600 or in the range of "
                                                        "390680-390694."});
    }
}

}  // namespace
