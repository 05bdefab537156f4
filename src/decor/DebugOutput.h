// Messages for a developer watching the program: the debugger's output on Windows, standard
// error elsewhere. Users never see them.
#pragma once

namespace vx::decor {

void WriteDebugOutput(const char* text);

}  // namespace vx::decor
