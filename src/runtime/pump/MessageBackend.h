// The two services the message pumps and their station work against: the thread's message
// queue and a timer source. Windows has its own backend (PeekMessageA and SetTimer on a hidden
// window); the widgets library brings one over Qt's event loop; LocalMessageQueue and
// LocalTimerSource are an in-process pair for hosts without a toolkit.
#pragma once

#include "vxutil/export.h"

class RMessageStation;

namespace vx {

class VXUTIL_API MessageQueue {
public:
    virtual ~MessageQueue();
    // Removes the first waiting message whose identifier is exactly `message`, translates and
    // dispatches it; false when no such message waits.
    virtual bool DispatchFirst(unsigned message) = 0;
};

// Timers that tick through the thread's message queue into a station's OnTimer.
class VXUTIL_API TimerSource {
public:
    virtual ~TimerSource();
    // Creates what the timers need (on Windows the station's hidden window), delivering ticks to
    // `station`; false when that fails.
    virtual bool Create(RMessageStation& station) = 0;
    virtual bool Exists() const = 0;
    // Starts (or restarts) timer `id` with a period of `milliseconds`; false when refused.
    virtual bool Set(unsigned id, unsigned milliseconds) = 0;
    virtual void Kill(unsigned id) = 0;
    // Tears down what Create made; the station's OnDestroy runs while the timers still exist.
    virtual void Destroy() = 0;
};

}  // namespace vx
