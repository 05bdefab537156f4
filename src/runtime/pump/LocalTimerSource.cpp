#include "runtime/pump/LocalTimerSource.h"

#include <algorithm>

#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/WindowMessages.h"

namespace vx {

LocalTimerSource::~LocalTimerSource() {
    Destroy();
}

bool LocalTimerSource::Create(RMessageStation& station) {
    m_station = &station;
    return true;
}

bool LocalTimerSource::Set(unsigned id, unsigned milliseconds) {
    if (!Exists()) return false;
    const std::chrono::milliseconds period(milliseconds);
    auto timer =
        std::find_if(m_timers.begin(), m_timers.end(), [id](const Timer& t) { return t.id == id; });
    if (timer == m_timers.end()) {
        m_timers.push_back({id, period, Clock::now() + period});
    } else {
        *timer = {id, period, Clock::now() + period};
    }
    return true;
}

void LocalTimerSource::Kill(unsigned id) {
    std::erase_if(m_timers, [id](const Timer& t) { return t.id == id; });
    m_queue.Discard(*this, kWmTimer, id);
}

void LocalTimerSource::Destroy() {
    if (!Exists()) return;
    m_station->OnDestroy();
    for (const Timer& timer : m_timers)
        m_queue.Discard(*this, kWmTimer, timer.id);
    m_timers.clear();
    m_station = nullptr;
}

void LocalTimerSource::PostDue(Clock::time_point now) {
    for (Timer& timer : m_timers) {
        if (timer.due > now || m_queue.IsWaiting(*this, kWmTimer, timer.id)) continue;
        m_queue.Post(*this, kWmTimer, timer.id);
        timer.due = now + timer.period;
    }
}

void LocalTimerSource::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t) {
    if (message == kWmTimer && m_station != nullptr)
        m_station->OnTimer(static_cast<unsigned>(wParam));
}

}  // namespace vx
