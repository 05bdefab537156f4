// Shows a fatal message to the user before the process ends.
#pragma once

namespace vx::decimal {

// The text in a task-modal box titled "Fatal Error" with the stop icon (kTKFatalBoxStyle).
void ShowFatalPrompt(const char* text);

}  // namespace vx::decimal
