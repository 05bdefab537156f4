#include "vxutil/runtime/RUserPrompt.h"

#include <gtest/gtest.h>

#include "vxutil/runtime/MessageText.h"

#ifdef _WIN32
#include <windows.h>

#include <thread>

#include "vxutil/platform/RApplication.h"
#endif

namespace {

TEST(UserPromptTest, DefaultAnswerIsTheButtonTheStyleNames) {
    struct Case {
        unsigned style;
        int answer;
        std::size_t buttons;
    } cases[] = {
        {0x0, vx::kIdOk, 1},       {0x101, vx::kIdCancel, 2},
        {0x202, vx::kIdIgnore, 3}, {0x203, vx::kIdCancel, 3},
        {0x134, vx::kIdNo, 2},  // Yes/No, exclamation, second button
        {0x105, vx::kIdCancel, 2}, {0x206, vx::kIdContinue, 3},
        {0x301, vx::kIdOk, 2},  // names a fourth button the style has not: the first
        {0xF, vx::kIdOk, 1},    // unknown buttons: OK
    };
    for (const Case& c : cases) {
        EXPECT_EQ(RUserPrompt::DefaultAnswer(c.style), c.answer) << std::hex << c.style;
        EXPECT_EQ(RUserPrompt::Buttons(c.style).size(), c.buttons) << std::hex << c.style;
    }
}

// Hosts without a message box answer with the default button, and still tell what was asked.
TEST(UserPromptTest, DefaultPromptAnswersAndWritesTheQuestionToStandardError) {
    RDefaultUserPrompt prompt;
    testing::internal::CaptureStderr();
    EXPECT_EQ(prompt.Show(nullptr, "Create?", "Demo", 0x134), vx::kIdNo);
    EXPECT_EQ(prompt.Show(nullptr, "Done.", nullptr, 0x0), vx::kIdOk);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Demo: Create?\n[answered: No]\nDone.\n[answered: OK]\n");
}

TEST(MessageTextTest, InsertsFillTheirNumberedPoints) {
    struct Case {
        const char* pattern;
        const char* expected;
    } cases[] = {
        {"copy '%1' to '%2'", "copy 'one' to 'two'"},
        {"%2%1%2", "twoonetwo"},
        {"%3 is missing", " is missing"},
        {"100% sure, %0 and %a stay", "100% sure, %0 and %a stay"},
        {"%%1", "%one"},
        {"ends in %", "ends in %"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(vx::FillInserts(c.pattern, {"one", "two"}), c.expected) << c.pattern;
    EXPECT_EQ(vx::LoadMessageText(3055, {"C:\\x"}),
              "C:\\x\n\nThis folder does not exist - create?");
}

#ifdef _WIN32
// The question really is a message box: another thread finds it by its caption (the client
// tool's name) and clicks Yes, which is not the default answer.
TEST(UserPromptTest, WindowsAsksWithAMessageBox) {
    RApplication app("VX prompt test", "");
    RApplication* previous = RApplication::SetCurrent(&app);
    std::thread clicker([] {
        for (int attempt = 0; attempt < 1000; ++attempt) {
            if (HWND box = ::FindWindowA("#32770", "VX prompt test")) {
                ::PostMessageA(box, WM_COMMAND, IDYES, 0);
                return;
            }
            ::Sleep(10);
        }
    });
    const int answer = RUserPrompt::Current().Show(nullptr, "Create the folder?", nullptr, 0x134);
    clicker.join();
    RApplication::SetCurrent(previous);
    EXPECT_EQ(answer, vx::kIdYes);
}
#endif

}  // namespace
