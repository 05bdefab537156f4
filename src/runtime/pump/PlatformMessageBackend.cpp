#include "runtime/pump/PlatformMessageBackend.h"

#ifdef _WIN32
#include "runtime/pump/Win32MessageBackend.h"
#else
#include "vxutil/runtime/LocalMessageQueue.h"
#include "vxutil/runtime/LocalTimerSource.h"
#endif

namespace vx {

MessageBackendPair CreatePlatformMessageBackend() {
#ifdef _WIN32
    return {std::make_unique<Win32MessageQueue>(), std::make_unique<Win32TimerSource>()};
#else
    auto queue = std::make_unique<LocalMessageQueue>();
    auto timers = std::make_unique<LocalTimerSource>(*queue);
    return {std::move(queue), std::move(timers)};
#endif
}

}  // namespace vx
