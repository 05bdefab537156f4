// The Qt implementations of the core's services: message boxes for RUserPrompt, Qt timers and
// events for the message station, setUpdatesEnabled for RLockWindowUpdate, captions and centring
// of widgets for the core's window service, and the string table as a translator (with Qt's own
// translations in the same language).
//
// A Qt application that loads vxutil_widgets gets them installed when its QCoreApplication is
// constructed (or at once, when the library is loaded later) and removed when it is destroyed.
// On Windows the Win32 pump and locker stay: Qt's windows are native windows there, and the
// thread's queue is the one the pumps must read.
#pragma once

#include "vxutil/widgets_export.h"

namespace vx {

// Installs the services; a second call changes nothing. Needs a QApplication.
VXUTIL_WIDGETS_API void InstallQtServices();
// Puts back what was installed before.
VXUTIL_WIDGETS_API void RemoveQtServices();

}  // namespace vx
