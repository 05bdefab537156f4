// The library's message-box service: the few questions and errors the library shows itself go
// through the current prompt. Windows shows them with MessageBoxA; the widgets library installs
// a Qt message box, vxenv a terminal prompt; other hosts get the default answer.
#pragma once

#include <string>
#include <vector>

#include "vxutil/export.h"
#include "vxutil/runtime/WindowHandle.h"

namespace vx {

// Message-box styles and answers, with their Win32 values.
inline constexpr unsigned kMbOk = 0x0;
inline constexpr unsigned kMbOkCancel = 0x1;
inline constexpr unsigned kMbAbortRetryIgnore = 0x2;
inline constexpr unsigned kMbYesNoCancel = 0x3;
inline constexpr unsigned kMbYesNo = 0x4;
inline constexpr unsigned kMbRetryCancel = 0x5;
inline constexpr unsigned kMbCancelTryContinue = 0x6;
inline constexpr unsigned kMbIconStop = 0x10;
inline constexpr unsigned kMbIconQuestion = 0x20;
inline constexpr unsigned kMbIconExclamation = 0x30;
inline constexpr unsigned kMbIconInformation = 0x40;
inline constexpr unsigned kMbDefButton2 = 0x100;
inline constexpr unsigned kMbDefButton3 = 0x200;

inline constexpr int kIdOk = 1;
inline constexpr int kIdCancel = 2;
inline constexpr int kIdAbort = 3;
inline constexpr int kIdRetry = 4;
inline constexpr int kIdIgnore = 5;
inline constexpr int kIdYes = 6;
inline constexpr int kIdNo = 7;
inline constexpr int kIdTryAgain = 10;
inline constexpr int kIdContinue = 11;

// A button of a question: its answer, and its label in the user's language.
struct PromptButton {
    int id;
    std::string label;
};

}  // namespace vx

class VXUTIL_API RUserPrompt {
public:
    RUserPrompt() = default;
    RUserPrompt(const RUserPrompt&) = delete;
    RUserPrompt& operator=(const RUserPrompt&) = delete;
    virtual ~RUserPrompt();

    // Shows `text` over `parent` under `caption` (null: the client tool's name) with the
    // buttons, icon and default button of the message-box `style` and returns the id of the
    // button chosen.
    virtual int Show(vx::WindowHandle parent, const char* text, const char* caption,
                     unsigned style) = 0;

    // The installed prompt, else the platform's own.
    static RUserPrompt& Current();
    // Installs `prompt` (null: the platform's own again; the caller keeps ownership); returns
    // the previously installed one.
    static RUserPrompt* SetCurrent(RUserPrompt* prompt);

    // The buttons of `style`, in their order on screen.
    static std::vector<vx::PromptButton> Buttons(unsigned style);
    // The answer of the default button that `style` names (the first button when it names one
    // the style does not have).
    static int DefaultAnswer(unsigned style);
};

// Answers every question with its default button, and writes the text and the answer to
// standard error so that nothing a user would have been told is lost.
class VXUTIL_API RDefaultUserPrompt : public RUserPrompt {
public:
    int Show(vx::WindowHandle parent, const char* text, const char* caption,
             unsigned style) override;
};
