// The method trace every CAppEnv operation opens on entry.
#pragma once

#include "vxutil/runtime/RMethodTrace.h"

namespace vx::appenv {

inline constexpr char kTraceSource[] = "RAppEnvironment";
// Opened with "CAppEnv::" and the operation's name.
using AppEnvTrace = RSourceTrace<kTraceSource>;

}  // namespace vx::appenv
