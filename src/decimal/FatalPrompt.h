// Shows a fatal message to the user before the process ends.
#pragma once

namespace vx::decimal {

// "Fatal Error" and the text in a task-modal box with the stop icon (kTKFatalBoxStyle),
// through the library's message-box service.
void ShowFatalPrompt(const char* text);

}  // namespace vx::decimal
