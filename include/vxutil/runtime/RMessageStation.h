// The hidden window whose timer drives the started message pumps.
//
// The module-wide station is created at module start-up with a period of 250 ms and destroyed
// at unload, which stops every pump still started. Its window is made by the first start.
#pragma once

#include <vector>

#include "vxutil/export.h"

class RMessagePump;
namespace vx {
class MessageQueue;
class TimerSource;
}  // namespace vx

class VXUTIL_API RMessageStation {
public:
    // The station takes messages from `queue` and its ticks from `timers`; it owns neither.
    RMessageStation(unsigned frequency, vx::MessageQueue& queue, vx::TimerSource& timers);
    RMessageStation(const RMessageStation&) = delete;
    RMessageStation& operator=(const RMessageStation&) = delete;
    virtual ~RMessageStation();

    // The module-wide station; null while the module is not loaded.
    static RMessageStation* Module();
    // Replaces the module-wide station (the caller keeps ownership); returns the previous one.
    // Pumps started before keep their station.
    static RMessageStation* SetModule(RMessageStation* station);

    // Gives `pump` the next timer id (1, 2, ...) and a timer of the station's period; 0 when
    // the window or the timer could not be made.
    unsigned StartPump(RMessagePump& pump);
    // Kills timer `id` and forgets the first pump started with it.
    void StopPump(unsigned id);
    // The period of timers set from now on, in milliseconds.
    void SetFrequency(unsigned milliseconds) { m_nFrequency = milliseconds; }
    unsigned GetFrequency() const { return m_nFrequency; }

    vx::MessageQueue& Queue() { return m_queue; }
    std::size_t GetPumpCount() const { return m_pumps.size(); }

    // Handlers called by the timer source: a tick of timer `id` pumps the first pump started
    // with it; destruction of the window stops every pump.
    void OnTimer(unsigned id);
    void OnDestroy();

private:
    unsigned m_nLastTimerID = 0;
    unsigned m_nFrequency;
    std::vector<RMessagePump*> m_pumps;  // started pumps, not owned
    vx::MessageQueue& m_queue;
    vx::TimerSource& m_timers;
};
