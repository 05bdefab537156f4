#include "runtime/prompt/PlatformUserPrompt.h"

#ifdef _WIN32
#include <windows.h>

#include "vxutil/platform/RApplication.h"
#endif

namespace vx {

#ifdef _WIN32
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
#else
RUserPrompt& PlatformUserPrompt() {
    static RDefaultUserPrompt prompt;
    return prompt;
}
#endif

}  // namespace vx
