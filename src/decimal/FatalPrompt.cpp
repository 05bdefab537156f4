#include "decimal/FatalPrompt.h"

#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace vx::decimal {

void ShowFatalPrompt(const char* text) {
    RUserPrompt::Current().Show(nullptr, text != nullptr ? text : "", "Fatal Error",
                                kTKFatalBoxStyle);
}

}  // namespace vx::decimal
