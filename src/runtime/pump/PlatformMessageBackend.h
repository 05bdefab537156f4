// The message queue and timer source the module-wide station starts with.
#pragma once

#include <memory>

#include "runtime/pump/MessageBackend.h"

namespace vx {

struct MessageBackendPair {
    std::unique_ptr<MessageQueue> queue;
    std::unique_ptr<TimerSource> timers;
};

// The Win32 pair on Windows. Elsewhere the in-process pair, until a toolkit installs its own
// station (the widgets library does, over Qt's event loop).
MessageBackendPair CreatePlatformMessageBackend();

}  // namespace vx
