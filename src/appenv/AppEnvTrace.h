// The method trace every CAppEnv operation opens on entry.
#pragma once

#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"

namespace vx::appenv {

class AppEnvTrace : public RMethodTrace {
public:
    // `method` is "CAppEnv::" and the operation's name.
    explicit AppEnvTrace(const char* method)
        : RMethodTrace("RAppEnvironment", method, kTraceAllLevels) {}
};

}  // namespace vx::appenv
