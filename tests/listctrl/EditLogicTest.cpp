#include <climits>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "RecordingPrompt.h"
#include "vxutil/listctrl/RHexEditLogic.h"
#include "vxutil/listctrl/VirtualKeys.h"

namespace {

using vx::EditMessage;
constexpr std::string_view kRefused = "(refused)";

// An edit control over a string: the logic sees each message first, and a message that passes
// is applied as a Win32 edit control applies it. The client area is 100 x 20.
struct FakeEditWindow : vx::EditWindow {
    bool Exists() const override { return exists; }
    CGNString GetText() const override { return CGNString(text); }
    void GetSel(int& s, int& e) const override { s = start, e = end; }
    bool ClientContains(vx::ClientPoint p) const override {
        return p.x >= 0 && p.x < 100 && p.y >= 0 && p.y < 20;
    }
    void PostKeyDown(unsigned key) override { posted.push_back(key); }
    void Beep() override { ++beeps; }
    vx::WindowHandle PromptParent() const override { return const_cast<int*>(&beeps); }

    // A negative start puts the caret at the end.
    void Set(std::string_view newText, int selStart = -1, int selEnd = -1) {
        text = newText;
        start = selStart < 0 ? static_cast<int>(text.size()) : selStart;
        end = selEnd < 0 ? start : selEnd;
        beeps = 0;
        posted.clear();
    }
    vx::EditFilterResult Send(RBaseEditLogic& logic, const EditMessage& m) {
        const vx::EditFilterResult result = logic.PreTranslateMessage(m);
        const bool back = m.message == vx::kWmChar && m.code == vx::kVkBack;
        const bool typed = m.message == vx::kWmChar && !back;
        const bool del = m.message == vx::kWmKeyDown && m.code == vx::kVkDelete;
        if (result.swallowed || !(typed || back || del)) return result;
        if (start == end && back && start > 0) --start;
        if (start == end && del && end < static_cast<int>(text.size())) ++end;
        const int ch = result.replacementChar >= 0 ? result.replacementChar : int(m.code);
        text.replace(start, end - start, typed ? 1 : 0, static_cast<char>(ch));
        end = start += typed ? 1 : 0;
        return result;
    }
    void Type(RBaseEditLogic& logic, std::string_view keys) {
        for (char c : keys)
            Send(logic, EditMessage::Char(static_cast<unsigned char>(c)));
    }

    std::string text;
    int start = 0, end = 0, beeps = 0;
    bool exists = true;
    std::vector<unsigned> posted;
};

class EditLogicTest : public ::testing::Test {
protected:
    EditLogicTest() { hex.SetRange(0, 0xFFFF); }

    FakeEditWindow window;
    RHexEditLogic hex{&window};
    vx::test::RecordingPrompt prompt;
};

TEST_F(EditLogicTest, AllowMaskAdmitsExactlyItsCharacterClasses) {
    EXPECT_EQ(RBaseEditLogic().GetAllowMask(), vx::kAllowAll);
    EXPECT_EQ(RHexEditLogic().GetAllowMask(), 0x7u);
    EXPECT_EQ(RHexEditLogic().GetMaxRange(), INT_MAX);
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
    for (unsigned unlisted : {0x21u, 0x5Fu, 0x7Eu, 0x7Fu, 0xE4u, 0x20ACu})
        EXPECT_FALSE(logic.IsValidChar(unlisted)) << unlisted;
}

// Typing into an empty cell of range 0 to 0xFFFF.
TEST_F(EditLogicTest, TypedNumbersKeepTheirFormatAndRange) {
    const struct {
        std::string_view keys, text;
        int beeps;
    } cases[] = {
        {"0X1F", "0x1F", 0},                           // "X" after a leading "0" is typed as "x"
        {"0xfffff", "0xffff", 1},                      // one digit beyond the maximum
        {"65536", "6553", 1},     {"0xAg", "0xA", 1},  // only "a" to "f" after the prefix
        {"12x", "12", 1},                              // "x" only right after a leading "0"
        {"00x1", "001", 1},       {"x0", "0", 1},
        {"1a", "1", 1},       // letters only after the prefix
        {"-5 .", "5", 3},     // not in the mask
        {"0x\b\b7", "7", 0},  // backspace is checked on the shortened text
    };
    for (const auto& c : cases) {
        window.Set("");
        window.Type(hex, c.keys);
        EXPECT_EQ(window.text, c.text) << c.keys;
        EXPECT_EQ(window.beeps, c.beeps) << c.keys;
    }
    EXPECT_TRUE(prompt.shown.empty());
}

// One message into a text with a given selection.
TEST_F(EditLogicTest, EachKeystrokeIsCheckedOnTheTextItWouldProduce) {
    const auto del = EditMessage::KeyDown(vx::kVkDelete);
    const auto ch = [](char c) { return EditMessage::Char(static_cast<unsigned char>(c)); };
    const struct {
        std::string_view before;
        int start, end;
        EditMessage message;
        std::string_view after;
        int replacement = -1;
        std::uint32_t mask = 0x7;
    } cases[] = {
        {"0x1f", 1, 1, del, kRefused},  // Delete inside runs the chain on "01f"
        {"0x1f", 2, 2, del, "0xf"},
        {"0x1f", 4, 4, del, "0x1f"},  // Delete at the end passes
        {"0x1f", 0, 4, del, ""},
        {"0x1f", 2, 2, ch('\b'), kRefused},
        {"0x12", 0, 0, ch('5'), kRefused},  // no digit before the prefix
        {"0x12", 2, 2, ch('5'), "0x512"},
        {"99", 0, 2, ch('7'), "7"},
        {"0", 1, 1, ch('X'), "0x", 'x'},
        {"1", 1, 1, ch('X'), kRefused},
        // A typed "." has the code of Delete: it is tested as a deletion of the next
        // character, and inserted when that passes.
        {"0x1f", 0, 0, ch('.'), kRefused, -1, 0x47},
        {"0x1f", 4, 4, ch('.'), "0x1f.", -1, 0x47},
        // Printing keys are checked at their character message; other keys pass.
        {"12", 0, 0, EditMessage::KeyDown('X'), "12"},
        {"12", 0, 0, EditMessage::KeyDown(0xBE), "12"},  // the "." key
        {"12", 0, 0, EditMessage{vx::kWmMouseMove, '!', {}}, "12"},
    };
    for (const auto& c : cases) {
        hex.SetAllowMask(c.mask);
        window.Set(c.before, c.start, c.end);
        const vx::EditFilterResult result = window.Send(hex, c.message);
        const std::string label = std::string(c.before) + " " + std::to_string(c.message.code);
        EXPECT_EQ(result.swallowed, c.after == kRefused) << label;
        EXPECT_EQ(window.beeps, result.swallowed ? 1 : 0) << label;
        EXPECT_EQ(result.replacementChar, c.replacement) << label;
        EXPECT_EQ(window.text, result.swallowed ? c.before : c.after) << label;
    }
}

TEST_F(EditLogicTest, EnterRefusesANumberOutOfRangeWithTheRangeMessage) {
    const struct {
        int minimum, maximum;
        std::string_view text;
        std::string_view range;  // empty when the number is accepted
    } cases[] = {
        {10, 0x1FF, "10", ""},
        {10, 0x1FF, "0x1FF", ""},
        {10, 0x1FF, "0X200", "Decimal range is 10 to 511.\nHexadecimal range is 0xA to 0x1FF."},
        {-16, -1, "0",
         "Decimal range is -16 to -1.\nHexadecimal range is 0xFFFFFFF0 to 0xFFFFFFFF."},
    };
    for (const auto& c : cases) {
        hex.SetRange(c.minimum, c.maximum);
        window.Set(c.text);
        prompt.shown.clear();
        const bool swallowed = window.Send(hex, EditMessage::KeyDown(vx::kVkReturn)).swallowed;
        EXPECT_EQ(swallowed, !c.range.empty()) << c.text;
        EXPECT_EQ(window.beeps, swallowed ? 1 : 0) << c.text;
        ASSERT_EQ(prompt.shown.size(), swallowed ? 1u : 0u) << c.text;
        if (!swallowed) continue;
        EXPECT_EQ(prompt.shown[0].text,
                  "Invalid number, " + std::string(c.text) +
                      ".\nDecimal numbers have the format of \"1234\".\nHexadecimal numbers have "
                      "the format of \"0x1234\".\nPlease enter a valid number.\n\n" +
                      std::string(c.range));
        EXPECT_EQ(prompt.shown[0].style, vx::kMbIconExclamation);
        EXPECT_EQ(prompt.shown[0].parent, window.PromptParent());
    }
}

TEST_F(EditLogicTest, ClickInsideAWellFormedNumberPostsEnterForTheRangeCheck) {
    hex.SetRange(10, 20);
    const vx::ClientPoint inside{50, 10}, outside{150, 10};
    const struct {
        std::string_view text;
        vx::ClientPoint at;
        bool exists;
        int posted, beeps;
    } cases[] =
        {
            {"0x14", inside, true, 1, 0},  {"3", inside, true, 1, 0},
            {"0x14", outside, true, 0, 0}, {"0x14", inside, false, 0, 0},
            {"0xx1", inside, true, 0, 1},  // malformed: a beep, no range check
        };
    for (const auto& c : cases) {
        window.Set(c.text);
        window.exists = c.exists;
        EXPECT_FALSE(window.Send(hex, EditMessage::LButtonDown(c.at)).swallowed) << c.text;
        EXPECT_EQ(window.posted, std::vector<unsigned>(c.posted, vx::kVkReturn)) << c.text;
        EXPECT_EQ(window.beeps, c.beeps) << c.text;
    }
    // The posted Enter, delivered later, shows the range message for "3".
    window.Set("3");
    window.exists = true;
    window.Send(hex, EditMessage::LButtonDown(inside));
    window.Send(hex, EditMessage::KeyDown(window.posted.at(0)));
    ASSERT_EQ(prompt.shown.size(), 1u);
    EXPECT_EQ(prompt.shown[0].text.rfind("Invalid number, 3.\n", 0), 0u);
    // Nothing is filtered without a window.
    EXPECT_FALSE(RHexEditLogic().PreTranslateMessage(EditMessage::Char('!')).swallowed);
}

TEST(VerifyHexNumberTest, TheWholeTextMustBeAnExactNumber) {
    for (const char* verified : {"", "0x", "123", "0X1f", "2147483647", "0x007FFFFFFF"})
        EXPECT_TRUE(RHexEditLogic::VerifyHexNumber(verified)) << verified;
    for (const char* refused : {"2147483648", "0x80000000", "0xx1", "12a", "0x1g", "-1", " 1"})
        EXPECT_FALSE(RHexEditLogic::VerifyHexNumber(refused)) << refused;
}

}  // namespace
