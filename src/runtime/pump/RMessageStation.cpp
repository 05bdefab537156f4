#include "vxutil/runtime/RMessageStation.h"

#include <algorithm>
#include <atomic>

#include "runtime/pump/MessageBackend.h"
#include "vxutil/runtime/RMessagePump.h"

namespace {
std::atomic<RMessageStation*> g_moduleStation{nullptr};
}  // namespace

RMessageStation::RMessageStation(unsigned frequency, vx::MessageQueue& queue,
                                 vx::TimerSource& timers)
    : m_nFrequency(frequency), m_queue(queue), m_timers(timers) {}

RMessageStation::~RMessageStation() {
    if (m_timers.Exists()) {
        m_timers.Destroy();  // calls OnDestroy while the timers still exist
    } else {
        OnDestroy();
    }
    RMessageStation* self = this;
    g_moduleStation.compare_exchange_strong(self, nullptr);
}

RMessageStation* RMessageStation::Module() {
    return g_moduleStation.load();
}

RMessageStation* RMessageStation::SetModule(RMessageStation* station) {
    return g_moduleStation.exchange(station);
}

unsigned RMessageStation::StartPump(RMessagePump& pump) {
    // The window is made by the first start, so a module that never pumps never has one.
    if (!m_timers.Exists() && !m_timers.Create(*this)) return 0;
    const unsigned id = ++m_nLastTimerID;
    if (!m_timers.Set(id, m_nFrequency)) return 0;
    m_pumps.push_back(&pump);
    return id;
}

void RMessageStation::StopPump(unsigned id) {
    if (!m_timers.Exists() || id == 0) return;
    m_timers.Kill(id);
    auto pump = std::find_if(m_pumps.begin(), m_pumps.end(),
                             [id](const RMessagePump* p) { return p->GetID() == id; });
    if (pump != m_pumps.end()) m_pumps.erase(pump);
}

void RMessageStation::OnTimer(unsigned id) {
    auto pump = std::find_if(m_pumps.begin(), m_pumps.end(),
                             [id](const RMessagePump* p) { return p->GetID() == id; });
    if (pump != m_pumps.end()) (*pump)->Pump();
}

void RMessageStation::OnDestroy() {
    while (!m_pumps.empty()) {
        RMessagePump* pump = m_pumps.front();
        pump->Stop();
        // Without timers StopPump forgets nothing; the pump is stopped all the same.
        if (!m_pumps.empty() && m_pumps.front() == pump) m_pumps.erase(m_pumps.begin());
    }
}
