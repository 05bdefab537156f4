#include "vxutil/runtime/RUserPrompt.h"

#include <cstdio>
#include <initializer_list>
#include <string>

#include "gnrt/StringTable.h"
#include "runtime/prompt/PlatformUserPrompt.h"
#include "vxutil/gnrt/OSLoadString.h"
#include "vxutil/runtime/MessageText.h"

namespace {

RUserPrompt* g_installedPrompt = nullptr;

// A button's answer and the string of its label.
struct ButtonText {
    int id;
    unsigned label;
};

constexpr ButtonText kOk{vx::kIdOk, vx::kStrButtonOk};
constexpr ButtonText kCancel{vx::kIdCancel, vx::kStrButtonCancel};
constexpr ButtonText kAbort{vx::kIdAbort, vx::kStrButtonAbort};
constexpr ButtonText kRetry{vx::kIdRetry, vx::kStrButtonRetry};
constexpr ButtonText kIgnore{vx::kIdIgnore, vx::kStrButtonIgnore};
constexpr ButtonText kYes{vx::kIdYes, vx::kStrButtonYes};
constexpr ButtonText kNo{vx::kIdNo, vx::kStrButtonNo};
constexpr ButtonText kTryAgain{vx::kIdTryAgain, vx::kStrButtonTryAgain};
constexpr ButtonText kContinue{vx::kIdContinue, vx::kStrButtonContinue};

std::vector<vx::PromptButton> Labelled(std::initializer_list<ButtonText> buttons) {
    std::vector<vx::PromptButton> labelled;
    for (const ButtonText& button : buttons) {
        CGNString label;
        OSLoadString(button.label, label);
        labelled.push_back({button.id, label.str()});
    }
    return labelled;
}

constexpr unsigned kButtonsMask = 0xF;
constexpr unsigned kDefaultButtonMask = 0xF00;
constexpr unsigned kDefaultButtonShift = 8;

}  // namespace

RUserPrompt::~RUserPrompt() = default;

RUserPrompt& RUserPrompt::Current() {
    return g_installedPrompt != nullptr ? *g_installedPrompt : vx::PlatformUserPrompt();
}

RUserPrompt* RUserPrompt::SetCurrent(RUserPrompt* prompt) {
    RUserPrompt* previous = g_installedPrompt;
    g_installedPrompt = prompt;
    return previous;
}

std::vector<vx::PromptButton> RUserPrompt::Buttons(unsigned style) {
    switch (style & kButtonsMask) {
        case vx::kMbOkCancel:
            return Labelled({kOk, kCancel});
        case vx::kMbAbortRetryIgnore:
            return Labelled({kAbort, kRetry, kIgnore});
        case vx::kMbYesNoCancel:
            return Labelled({kYes, kNo, kCancel});
        case vx::kMbYesNo:
            return Labelled({kYes, kNo});
        case vx::kMbRetryCancel:
            return Labelled({kRetry, kCancel});
        case vx::kMbCancelTryContinue:
            return Labelled({kCancel, kTryAgain, kContinue});
        default:
            return Labelled({kOk});
    }
}

int RUserPrompt::DefaultAnswer(unsigned style) {
    const std::vector<vx::PromptButton> buttons = Buttons(style);
    const unsigned index = (style & kDefaultButtonMask) >> kDefaultButtonShift;
    return index < buttons.size() ? buttons[index].id : buttons.front().id;
}

int RDefaultUserPrompt::Show(vx::WindowHandle, const char* text, const char* caption,
                             unsigned style) {
    const int answer = DefaultAnswer(style);
    std::string label;
    for (const vx::PromptButton& button : Buttons(style))
        if (button.id == answer) label = button.label;
    if (caption != nullptr) std::fprintf(stderr, "%s: ", caption);
    std::fprintf(stderr, "%s\n%s\n", text != nullptr ? text : "",
                 vx::LoadMessageText(vx::kStrAnswered, {label}).c_str());
    return answer;
}
