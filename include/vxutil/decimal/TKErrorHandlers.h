// Where the decimal subsystem's messages go.
//
// Non-fatal messages (arithmetic overflow and inexact results, unreadable input) go to the
// error handler; the operation that raised one still returns its result flag. The default
// error handler writes the message text to the library's trace log.
//
// Fatal messages go to the process-wide fatal handler. The default one shows "Fatal Error" and
// the text through the library's message-box service (RUserPrompt), task-modal with the stop
// icon, and ends the process with exit status 1; a handler that returns lets the failing
// operation return its failure flag.
#pragma once

#include "vxutil/decimal/TKxmsg.h"
#include "vxutil/export.h"

using TKErrorHandler = void (*)(const TKxmsg& message);

// Installs `handler` (null: the default) and returns the previous one.
VXUTIL_API TKErrorHandler TKSetErrorHandler(TKErrorHandler handler);
VXUTIL_API TKErrorHandler TKSetFatalHandler(TKErrorHandler handler);

VXUTIL_API void TKReportError(const TKxmsg& message);
VXUTIL_API void TKReportFatal(const TKxmsg& message);

// The message box style of the default fatal handler: stop icon (0x10), task-modal (0x2000).
inline constexpr unsigned int kTKFatalBoxStyle = 0x2010;
