#include "decimal/FatalPrompt.h"

#include <string>

#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace vx::decimal {

// The message-box service takes no caption of its own (it shows the application's name), so
// the title goes in front of the text.
void ShowFatalPrompt(const char* text) {
    const std::string shown = std::string("Fatal Error: ") + (text != nullptr ? text : "");
    RUserPrompt::Current().Show(nullptr, shown.c_str(), kTKFatalBoxStyle);
}

}  // namespace vx::decimal
