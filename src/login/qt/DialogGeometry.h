// Dialog sizes and places remembered in the client tool's profile, section "Desktop". They are
// read when a dialog opens and written only when it closes, so that opening a dialog writes
// nothing.
#pragma once

class QWidget;

namespace vx {

// Gives `dialog` the geometry stored under `entry`; false when none is stored (or no client
// profile is set up), leaving the dialog as it was.
bool RestoreDialogGeometry(QWidget& dialog, const char* entry);
void SaveDialogGeometry(const QWidget& dialog, const char* entry);

}  // namespace vx
