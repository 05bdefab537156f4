#include "runtime/pump/PlatformMessageBackend.h"
#include "runtime/pump/Win32MessageBackend.h"

namespace vx {

MessageBackendPair CreatePlatformMessageBackend() {
    return {std::make_unique<Win32MessageQueue>(), std::make_unique<Win32TimerSource>()};
}

}  // namespace vx
