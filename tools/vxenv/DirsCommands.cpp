// vxenv dirs and hex: the library's folder utilities and its reading of typed numbers.
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "Commands.h"
#include "Json.h"
#include "gnrt/StringTable.h"
#include "vxutil/runtime/MessageText.h"
#include "vxutil/runtime/RUserPrompt.h"
#include "vxutil/runtime/RUtils.h"

namespace vxenv {
namespace {

bool StandardInputIsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stdin)) != 0;
#else
    return ::isatty(STDIN_FILENO) != 0;
#endif
}

// Asks the library's questions on the terminal. Without a terminal to answer from, the
// question's default answer is taken (and the question logged).
class TerminalPrompt : public RDefaultUserPrompt {
public:
    TerminalPrompt() : m_previous(RUserPrompt::SetCurrent(this)) {}
    ~TerminalPrompt() override { RUserPrompt::SetCurrent(m_previous); }

    int Show(vx::WindowHandle parent, const char* text, const char* caption,
             unsigned style) override {
        if (!StandardInputIsTerminal())
            return RDefaultUserPrompt::Show(parent, text, caption, style);
        const std::vector<vx::PromptButton> buttons = Buttons(style);
        std::string choices;
        for (const vx::PromptButton& button : buttons) {
            if (!choices.empty()) choices += '/';
            choices += button.id == DefaultAnswer(style) ? "[" + std::string(button.label) + "]"
                                                         : std::string(button.label);
        }
        std::fprintf(stderr, "%s\n", text);
        for (;;) {
            std::fprintf(stderr, "%s? ", choices.c_str());
            std::string answer;
            if (!std::getline(std::cin, answer) || answer.empty()) return DefaultAnswer(style);
            for (const vx::PromptButton& button : buttons)
                if (CGNString(button.label).Left(answer.size()).CompareNoCase(answer.c_str()) == 0)
                    return button.id;
        }
    }

private:
    RUserPrompt* m_previous;
};

int Validate(Context& context, Args& args) {
    int code = kOk;
    const std::string* separator = args.Value("--sep");
    if (separator != nullptr && separator->size() != 1)
        return context.UsageError("--sep needs one character");
    if (!context.CheckCount(args, 1, 1, code)) return code;
    CGNString firstInvalid;
    const bool valid = RValidatePaths(args[0].c_str(), firstInvalid,
                                      separator != nullptr ? (*separator)[0] : ';') != 0;
    if (context.json()) {
        context.Print(JsonObject()
                          .Add("valid", valid)
                          .AddRaw("first_invalid", valid ? "null" : JsonString(firstInvalid.view()))
                          .Text());
    } else {
        context.Print(valid ? "valid" : "missing: " + firstInvalid.str());
    }
    return valid ? kOk : kFailed;
}

int Create(Context& context, Args& args) {
    int code = kOk;
    const bool ask = args.Has("--ask");
    if (!context.CheckCount(args, 1, 1, code)) return code;
    const CGNString path(args[0]);
    if (ask) {
        TerminalPrompt prompt;
        // The library has told the user already why there is no folder.
        return RValidatePathWithCreate(path, nullptr) ? kOk : kFailed;
    }
    return RCreateDirectory(path) ? kOk : context.Fail("could not create " + args[0]);
}

int Copy(Context& context, Args& args) {
    int code = kOk;
    const bool recurse = args.Has("--recurse");
    if (!context.CheckCount(args, 2, 2, code)) return code;
    if (RCopyDirectory(args[0].c_str(), args[1].c_str(), recurse ? 1 : 0)) return kOk;
    return context.Fail(vx::LoadMessageText(vx::kStrFolderCopyFailed, {args[0], args[1]}).view());
}

int Case(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    const CGNString spelled = RGetDiskCaseOfDirectory(args[0].c_str());
    if (context.json()) {
        context.Print(JsonObject().Add("path", spelled.view()).Text());
    } else {
        context.Print(spelled.view());
    }
    return kOk;
}

constexpr Command kCommands[] = {
    {"validate",
     "PATHS [--sep C]",
     "check that every path of the list (separated by ';' or C) exists",
     Validate,
     {}},
    {"create",
     "PATH [--ask]",
     "create the folder and its missing parents (--ask: only if the user agrees)",
     Create,
     {}},
    {"copy",
     "SOURCE TARGET [--recurse]",
     "copy the files (and with --recurse the folders) not beginning with '.'; existing files "
     "are kept",
     Copy,
     {}},
    {"case", "PATH", "the path spelled as stored on disk", Case, {}},
};

}  // namespace

std::span<const Command> DirsCommands() {
    return kCommands;
}

int RunHex(Context& context, Args& args) {
    int code = kOk;
    if (!context.CheckCount(args, 1, 1, code)) return code;
    const int value = RHexToInt(args[0].c_str());
    if (context.json()) {
        context.Print(JsonObject().Add("value", static_cast<long long>(value)).Text());
    } else {
        context.Print(std::to_string(value));
    }
    return kOk;
}

}  // namespace vxenv
