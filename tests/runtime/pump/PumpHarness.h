// A station over a real message queue for the pump tests, with a window that records what is
// dispatched to it: the in-process queue and timers everywhere, and on Windows the Win32 ones.
#pragma once

#include <chrono>
#include <memory>
#include <utility>
#include <vector>

#include "vxutil/runtime/LocalMessageQueue.h"
#include "vxutil/runtime/LocalTimerSource.h"
#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/WindowMessages.h"

namespace vx::test {

// (message, tag) in the order dispatched.
using Dispatched = std::vector<std::pair<unsigned, unsigned>>;

class LocalHarness : private LocalMessageTarget {
public:
    LocalHarness() : m_timers(m_queue), m_station(250, m_queue, m_timers) {}

    RMessageStation& Station() { return m_station; }
    LocalMessageQueue& Queue() { return m_queue; }
    LocalTimerSource& Timers() { return m_timers; }

    void Post(unsigned message, unsigned tag) { m_queue.Post(*this, message, tag); }
    // Lets every timer run out and dispatches the first timer message, as a message loop
    // waiting for the timer would; false when no timer ticked.
    bool Tick() {
        m_timers.PostDue(LocalTimerSource::Clock::now() + std::chrono::hours(1));
        return m_queue.DispatchNext(kWmTimer, kWmTimer);
    }

    Dispatched dispatched;

private:
    void OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t) override {
        dispatched.emplace_back(message, static_cast<unsigned>(wParam));
    }

    LocalMessageQueue m_queue;
    LocalTimerSource m_timers;
    RMessageStation m_station;
};

#ifdef _WIN32
// The station's real hidden window and timers, and a real window of the thread to post to.
class Win32Harness {
public:
    Win32Harness();
    ~Win32Harness();
    Win32Harness(const Win32Harness&) = delete;
    Win32Harness& operator=(const Win32Harness&) = delete;

    RMessageStation& Station() { return *m_station; }
    void Post(unsigned message, unsigned tag);
    // Waits (at most a few seconds) for the next timer message and dispatches it.
    bool Tick();

    Dispatched dispatched;

private:
    struct Backend;
    std::unique_ptr<Backend> m_backend;
    std::unique_ptr<RMessageStation> m_station;
    void* m_window = nullptr;
};
#endif

}  // namespace vx::test
