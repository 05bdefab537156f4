#include "runtime/pump/LocalMessageQueue.h"
#include "runtime/pump/LocalTimerSource.h"
#include "runtime/pump/PlatformMessageBackend.h"

namespace vx {

MessageBackendPair CreatePlatformMessageBackend() {
    auto queue = std::make_unique<LocalMessageQueue>();
    auto timers = std::make_unique<LocalTimerSource>(*queue);
    return {std::move(queue), std::move(timers)};
}

}  // namespace vx
