#include "vxutil/runtime/RUserPrompt.h"

#include <cstdio>

#include "runtime/prompt/PlatformUserPrompt.h"

namespace {

RUserPrompt* g_installedPrompt = nullptr;

constexpr vx::PromptButton kOk{vx::kIdOk, "OK"};
constexpr vx::PromptButton kCancel{vx::kIdCancel, "Cancel"};
constexpr vx::PromptButton kAbort{vx::kIdAbort, "Abort"};
constexpr vx::PromptButton kRetry{vx::kIdRetry, "Retry"};
constexpr vx::PromptButton kIgnore{vx::kIdIgnore, "Ignore"};
constexpr vx::PromptButton kYes{vx::kIdYes, "Yes"};
constexpr vx::PromptButton kNo{vx::kIdNo, "No"};
constexpr vx::PromptButton kTryAgain{vx::kIdTryAgain, "Try Again"};
constexpr vx::PromptButton kContinue{vx::kIdContinue, "Continue"};

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
            return {kOk, kCancel};
        case vx::kMbAbortRetryIgnore:
            return {kAbort, kRetry, kIgnore};
        case vx::kMbYesNoCancel:
            return {kYes, kNo, kCancel};
        case vx::kMbYesNo:
            return {kYes, kNo};
        case vx::kMbRetryCancel:
            return {kRetry, kCancel};
        case vx::kMbCancelTryContinue:
            return {kCancel, kTryAgain, kContinue};
        default:
            return {kOk};
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
    const char* label = "";
    for (const vx::PromptButton& button : Buttons(style))
        if (button.id == answer) label = button.label;
    if (caption != nullptr) std::fprintf(stderr, "%s: ", caption);
    std::fprintf(stderr, "%s\n[answered: %s]\n", text != nullptr ? text : "", label);
    return answer;
}
