// Why the last settings write of the calling thread failed, for a person to read: the file (or
// registry key) and the cause ("/home/ann/.config/korvel/vx.ini: Permission denied").
//
// The stores and CAppEnv report a refused or failed write through their flag results; a tool
// that wants to tell its user why clears the record before a call and reads it afterwards.
#pragma once

#include <string>

#include "vxutil/export.h"

namespace vx {

// "FILE: CAUSE" of the last failed write since ClearStoreError; "" when there was none.
VXUTIL_API std::string LastStoreError();
VXUTIL_API void ClearStoreError();

}  // namespace vx
