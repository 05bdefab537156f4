// The window-update locker of the platform, used until a toolkit installs its own.
#pragma once

#include "vxutil/runtime/RLockWindowUpdate.h"

namespace vx {

// LockWindowUpdate on Windows; null elsewhere, where there are no windows without a toolkit.
WindowUpdateLocker* PlatformWindowLocker();

}  // namespace vx
