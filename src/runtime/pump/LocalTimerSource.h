// Timers for a LocalMessageQueue: a timer that has run out posts a WM_TIMER message to the
// station's target in the queue, and dispatching that message ticks the station, as the timer
// messages of a Win32 window do.
#pragma once

#include <chrono>
#include <vector>

#include "runtime/pump/LocalMessageQueue.h"
#include "runtime/pump/MessageBackend.h"
#include "vxutil/export.h"

namespace vx {

class VXUTIL_API LocalTimerSource : public TimerSource, private LocalMessageTarget {
public:
    using Clock = std::chrono::steady_clock;

    explicit LocalTimerSource(LocalMessageQueue& queue) : m_queue(queue) {}
    ~LocalTimerSource() override;

    bool Create(RMessageStation& station) override;
    bool Exists() const override { return m_station != nullptr; }
    bool Set(unsigned id, unsigned milliseconds) override;
    void Kill(unsigned id) override;
    void Destroy() override;

    // Posts one WM_TIMER message for every timer whose period has run out by `now` and that
    // has none waiting yet: like Windows, timer messages never pile up in the queue.
    void PostDue(Clock::time_point now = Clock::now());

private:
    struct Timer {
        unsigned id;
        std::chrono::milliseconds period;
        Clock::time_point due;
    };

    void OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) override;

    LocalMessageQueue& m_queue;
    RMessageStation* m_station = nullptr;
    std::vector<Timer> m_timers;
};

}  // namespace vx
