// The prompt used until a host installs its own.
#pragma once

#include "vxutil/runtime/RUserPrompt.h"

namespace vx {

// A MessageBoxA prompt on Windows; the default answer elsewhere.
RUserPrompt& PlatformUserPrompt();

}  // namespace vx
