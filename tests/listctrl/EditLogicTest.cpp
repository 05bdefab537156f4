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

// An edit control over a string: the logic sees each message first, and a message that
// passes is then applied as a Win32 edit control would apply it.
class FakeEditWindow : public vx::EditWindow {
public:
    bool Exists() const override { return exists; }
    CGNString GetText() const override { return CGNString(text); }
    void GetSel(int& selStart, int& selEnd) const override {
        selStart = start;
        selEnd = end;
    }
    bool ClientContains(vx::ClientPoint p) const override {
        return p.x >= 0 && p.x < 100 && p.y >= 0 && p.y < 20;
    }
    void PostKeyDown(unsigned virtualKey) override { posted.push_back(virtualKey); }
    void Beep() override { ++beeps; }
    vx::WindowHandle PromptParent() const override { return const_cast<int*>(&parentTag); }

    void Set(std::string newText, int selStart, int selEnd) {
        text = std::move(newText);
        start = selStart;
        end = selEnd;
    }
    void SetCaretAtEnd(std::string newText) {
        const int length = static_cast<int>(newText.size());
        Set(std::move(newText), length, length);
    }

    vx::EditFilterResult Send(RBaseEditLogic& logic, const EditMessage& message) {
        const vx::EditFilterResult result = logic.PreTranslateMessage(message);
        if (result.swallowed) return result;
        if (message.message == vx::kWmChar && message.code == vx::kVkBack) {
            Erase(true);
        } else if (message.message == vx::kWmChar) {
            const int ch = result.replacementChar >= 0 ? result.replacementChar
                                                       : static_cast<int>(message.code);
            text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start), 1,
                         static_cast<char>(ch));
            end = ++start;
        } else if (message.message == vx::kWmKeyDown && message.code == vx::kVkDelete) {
            Erase(false);
        }
        return result;
    }
    void Type(RBaseEditLogic& logic, std::string_view keys) {
        for (char c : keys)
            Send(logic, EditMessage::Char(static_cast<unsigned char>(c)));
    }
    // Delivers the queued key-downs to the logic, as the adapter does later.
    void RunPosted(RBaseEditLogic& logic) {
        std::vector<unsigned> keys;
        keys.swap(posted);
        for (unsigned key : keys)
            logic.PreTranslateMessage(EditMessage::KeyDown(key));
    }

    std::string text;
    int start = 0;
    int end = 0;
    bool exists = true;
    int beeps = 0;
    std::vector<unsigned> posted;
    int parentTag = 0;

private:
    void Erase(bool backward) {
        if (start == end) {
            if (backward && start > 0) --start;
            if (!backward && end < static_cast<int>(text.size())) ++end;
        }
        text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
        end = start;
    }
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
    EXPECT_EQ(RHexEditLogic().GetMinRange(), 0);
    EXPECT_EQ(RHexEditLogic().GetMaxRange(), INT_MAX);

    const struct {
        std::uint32_t bit;
        std::string_view chars;
    } classes[] = {
        {0x1, "0123456789"}, {0x2, "AMZ"}, {0x4, "amz"},  {0x8, " "},     {0x10, "-"},
        {0x20, ","},         {0x40, "."},  {0x80, "+"},   {0x100, "["},   {0x200, "]"},
        {0x400, "("},        {0x800, ")"}, {0x1000, "/"}, {0x2000, "\\"}, {0x4000, ":"},
    };
    RBaseEditLogic logic;
    for (const auto& owner : classes) {
        logic.SetAllowMask(owner.bit);
        for (const auto& other : classes)
            for (char c : other.chars)
                EXPECT_EQ(logic.IsValidChar(static_cast<unsigned char>(c)), &other == &owner)
                    << "mask " << owner.bit << " char " << c;
        EXPECT_TRUE(logic.IsValidChar(vx::kVkBack));
    }
    logic.SetAllowMask(vx::kAllowAll);
    const unsigned unlisted[] = {'!', '"', '_', '@', '`', '{', '~', 0x7F, 0xE4, 0x20AC};
    for (unsigned refused : unlisted)
        EXPECT_FALSE(logic.IsValidChar(refused)) << refused;

    // Through the message filter: a refused character beeps and is swallowed, backspace passes.
    RBaseEditLogic digits(&window);
    digits.SetAllowMask(vx::kAllowDigits);
    window.SetCaretAtEnd("12");
    window.Type(digits, "-a3\b");
    EXPECT_EQ(window.text, "12");
    EXPECT_EQ(window.beeps, 2);
}

// Typing into an empty hexadecimal cell of range 0 to 0xFFFF.
TEST_F(EditLogicTest, TypedNumbersKeepTheirFormatAndRange) {
    const struct {
        std::string_view keys;
        std::string_view text;
        int beeps;
    } cases[] = {
        {"0X1F", "0x1F", 0},       // "X" after a leading "0" is typed as "x"
        {"0xffff", "0xffff", 0},   //
        {"0xfffff", "0xffff", 1},  // one digit beyond the maximum
        {"65536", "6553", 1},      //
        {"0xAg", "0xA", 1},        // only "a" to "f" after the prefix
        {"0xG", "0x", 1},          //
        {"12x", "12", 1},          // "x" only right after a leading "0"
        {"00x1", "001", 1},        //
        {"x0", "0", 1},            //
        {"1a", "1", 1},            // letters only after the prefix
        {"-5 .", "5", 3},          // not in the mask
        {"0x\b\b7", "7", 0},       // backspace is checked on the shortened text
        {"12\b\b\b", "", 0},       // and passes at the start
    };
    for (const auto& c : cases) {
        window.Set("", 0, 0);
        window.beeps = 0;
        window.Type(hex, c.keys);
        EXPECT_EQ(window.text, c.text) << c.keys;
        EXPECT_EQ(window.beeps, c.beeps) << c.keys;
    }
    EXPECT_TRUE(prompt.shown.empty());
}

// One message into a text with a given selection.
TEST_F(EditLogicTest, EachKeystrokeIsCheckedOnTheTextItWouldProduce) {
    const auto del = EditMessage::KeyDown(vx::kVkDelete);
    const auto typed = [](char c) { return EditMessage::Char(static_cast<unsigned char>(c)); };
    const std::uint32_t withPeriod = 0x7 | vx::kAllowPeriod;
    constexpr std::string_view kRefused = "(refused)";
    const struct {
        std::string_view before;
        int start, end;
        EditMessage message;
        std::string_view after;  // the text once the edit control applied the message
        int replacement = -1;
        std::uint32_t mask = 0x7;
    } cases[] = {
        {"0x1f", 1, 1, del, kRefused},  // Delete inside runs the chain on "01f"
        {"0x1f", 0, 0, del, kRefused},
        {"0x1f", 2, 2, del, "0xf"},
        {"0x1f", 4, 4, del, "0x1f"},  // Delete at the end passes
        {"0x1f", 0, 4, del, ""},      // (the whole selection goes)
        {"0x1f", 2, 2, typed('\b'), kRefused},
        {"0x12", 0, 0, typed('5'), kRefused},  // no digit before the prefix
        {"0x12", 2, 2, typed('5'), "0x512"},
        {"99", 0, 2, typed('7'), "7"},
        {"0", 1, 1, typed('X'), "0x", 'x'},
        {"0", 1, 1, typed('x'), "0x"},
        {"1", 1, 1, typed('X'), kRefused},
        {"0x", 2, 2, typed('F'), "0xF"},
        {"0x", 2, 2, typed('f'), "0xf"},
        {"0x", 2, 2, typed('G'), kRefused},
        {"0x", 2, 2, typed('g'), kRefused},
        {"12", 2, 2, typed('x'), kRefused},
        // A typed "." has the code of Delete: it is tested as a deletion of the next
        // character, and inserted when that passes.
        {"0x1f", 0, 0, typed('.'), kRefused, -1, withPeriod},
        {"0x1f", 4, 4, typed('.'), "0x1f.", -1, withPeriod},
        // Key-downs of printing keys are left to their character message; other keys pass.
        {"12", 0, 0, EditMessage::KeyDown('X'), "12"},
        {"12", 0, 0, EditMessage::KeyDown(0x25), "12"},  // left arrow
        {"12", 0, 0, EditMessage::KeyDown(0xBE), "12"},  // the "." key
        {"12", 0, 0, EditMessage{vx::kWmMouseMove, '!', {}}, "12"},
    };
    for (const auto& c : cases) {
        hex.SetAllowMask(c.mask);
        window.Set(std::string(c.before), c.start, c.end);
        window.beeps = 0;
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
        std::string_view message;  // empty when the number is accepted
    } cases[] = {
        {10, 0x1FF, "10", ""},
        {10, 0x1FF, "0x1FF", ""},
        {10, 0x1FF, "9",
         "Invalid number, 9.\nDecimal numbers have the format of \"1234\".\nHexadecimal numbers "
         "have the format of \"0x1234\".\nPlease enter a valid number.\n\nDecimal range is 10 to "
         "511.\nHexadecimal range is 0xA to 0x1FF."},
        {10, 0x1FF, "0X200",
         "Invalid number, 0X200.\nDecimal numbers have the format of \"1234\".\nHexadecimal "
         "numbers have the format of \"0x1234\".\nPlease enter a valid number.\n\nDecimal range "
         "is 10 to 511.\nHexadecimal range is 0xA to 0x1FF."},
        {-16, -1, "0",
         "Invalid number, 0.\nDecimal numbers have the format of \"1234\".\nHexadecimal numbers "
         "have the format of \"0x1234\".\nPlease enter a valid number.\n\nDecimal range is -16 "
         "to -1.\nHexadecimal range is 0xFFFFFFF0 to 0xFFFFFFFF."},
    };
    for (const auto& c : cases) {
        hex.SetRange(c.minimum, c.maximum);
        window.SetCaretAtEnd(std::string(c.text));
        window.beeps = 0;
        prompt.shown.clear();
        const bool swallowed = window.Send(hex, EditMessage::KeyDown(vx::kVkReturn)).swallowed;
        EXPECT_EQ(swallowed, !c.message.empty()) << c.text;
        EXPECT_EQ(window.beeps, swallowed ? 1 : 0) << c.text;
        if (c.message.empty()) {
            EXPECT_TRUE(prompt.shown.empty()) << c.text;
            continue;
        }
        ASSERT_EQ(prompt.shown.size(), 1u) << c.text;
        EXPECT_EQ(prompt.shown[0].text, c.message);
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
        std::vector<unsigned> posted;
        int beeps;
    } cases[] = {
        {"0x14", inside, true, {vx::kVkReturn}, 0},
        {"3", inside, true, {vx::kVkReturn}, 0},
        {"0x14", outside, true, {}, 0},
        {"0x14", inside, false, {}, 0},
        {"0xx1", inside, true, {}, 1},  // malformed: a beep, no range check
        {"1x", inside, true, {}, 1},
    };
    for (const auto& c : cases) {
        window.SetCaretAtEnd(std::string(c.text));
        window.exists = c.exists;
        window.beeps = 0;
        EXPECT_FALSE(window.Send(hex, EditMessage::LButtonDown(c.at)).swallowed) << c.text;
        EXPECT_EQ(window.posted, c.posted) << c.text;
        EXPECT_EQ(window.beeps, c.beeps) << c.text;
        window.posted.clear();
    }

    // The posted Enter, delivered later, shows the range message for "3".
    window.exists = true;
    window.SetCaretAtEnd("3");
    window.Send(hex, EditMessage::LButtonDown(inside));
    window.RunPosted(hex);
    ASSERT_EQ(prompt.shown.size(), 1u);
    EXPECT_EQ(prompt.shown[0].text.rfind("Invalid number, 3.\n", 0), 0u);

    // The base logic does nothing with a click, and nothing is filtered without a window.
    RBaseEditLogic base(&window);
    window.Send(base, EditMessage::LButtonDown(inside));
    EXPECT_TRUE(window.posted.empty());
    RHexEditLogic unattached;
    EXPECT_FALSE(unattached.PreTranslateMessage(EditMessage::Char('!')).swallowed);
    EXPECT_FALSE(unattached.PreTranslateMessage(EditMessage::LButtonDown(inside)).swallowed);
}

TEST(VerifyHexNumberTest, TheWholeTextMustBeAnExactNumber) {
    const struct {
        const char* text;
        bool verified;
    } cases[] = {
        {"", true},
        {"0x", true},
        {"123", true},
        {"0x1F", true},
        {"0X1f", true},
        {"2147483647", true},
        {"0x7FFFFFFF", true},
        {"0x00000000001", true},
        {"2147483648", false},
        {"0x80000000", false},
        {"0xx1", false},
        {"12a", false},
        {"0x1g", false},
        {"-1", false},
        {" 1", false},
        {"1x", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(RHexEditLogic::VerifyHexNumber(c.text), c.verified) << c.text;
}

}  // namespace
