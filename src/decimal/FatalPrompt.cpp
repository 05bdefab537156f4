#include "decimal/FatalPrompt.h"

#include "vxutil/decimal/TKErrorHandlers.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdio>
#endif

namespace vx::decimal {

// TODO(prompt): route through the library's message-box service once it is available.
void ShowFatalPrompt(const char* text) {
#ifdef _WIN32
    MessageBoxA(nullptr, text, "Fatal Error", kTKFatalBoxStyle);
#else
    std::fprintf(stderr, "Fatal Error: %s\n", text);
#endif
}

}  // namespace vx::decimal
