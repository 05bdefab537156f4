#include "decor/DebugOutput.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdio>
#endif

namespace vx::decor {

void WriteDebugOutput(const char* text) {
#ifdef _WIN32
    ::OutputDebugStringA(text);
#else
    std::fputs(text, stderr);
#endif
}

}  // namespace vx::decor
