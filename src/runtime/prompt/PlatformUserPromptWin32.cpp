#include <windows.h>

#include "runtime/prompt/PlatformUserPrompt.h"
#include "vxutil/platform/RApplication.h"

namespace vx {
namespace {

// Captioned, unless the caller names a caption, with the client tool's name, as the
// framework's message boxes are.
class MessageBoxPrompt : public RUserPrompt {
public:
    int Show(WindowHandle parent, const char* text, const char* caption, unsigned style) override {
        RApplication* app = RApplication::Current();
        if (caption == nullptr) caption = app != nullptr ? app->GetAppName().c_str() : "vxutil";
        return ::MessageBoxA(static_cast<HWND>(parent), text != nullptr ? text : "", caption,
                             style);
    }
};

}  // namespace

RUserPrompt& PlatformUserPrompt() {
    static MessageBoxPrompt prompt;
    return prompt;
}

}  // namespace vx
