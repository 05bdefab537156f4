// Recording why a settings write failed (see vxutil/platform/StoreError.h).
#pragma once

#include <string>

namespace vx {

// Records `cause` for `location` and returns false, so that a failing path can end with it.
bool StoreFailure(const std::string& location, const std::string& cause);
// The system's text for an error number (errno on POSIX, GetLastError on Windows).
std::string SystemErrorText(unsigned long code);
// The same for the calling thread's last system error.
std::string LastSystemErrorText();

}  // namespace vx
