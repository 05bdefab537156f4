// The message station's queue and timers over Qt's event loop.
//
// Qt offers no "take the first waiting event of this kind", so the queue answers the pumps'
// visual messages (painting, sizing, moving, cursor) as a whole: the first such request in a
// timer tick lays out and repaints what is pending and handles the window system's events,
// keeping user input for later; the request says nothing was taken, so a pump's pass ends there.
// Other identifiers name nothing Qt would queue and are never found.
#pragma once

#include <QObject>
#include <map>

#include "runtime/pump/MessageBackend.h"

namespace vx {

class QtTimerSource final : public QObject, public TimerSource {
public:
    bool Create(RMessageStation& station) override;
    bool Exists() const override { return m_station != nullptr; }
    bool Set(unsigned id, unsigned milliseconds) override;
    void Kill(unsigned id) override;
    void Destroy() override;

    // Counts the ticks, so that the queue flushes at most once per tick.
    unsigned long Tick() const { return m_tick; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    RMessageStation* m_station = nullptr;
    std::map<unsigned, int> m_timers;  // station id -> Qt timer id
    unsigned long m_tick = 0;
};

class QtMessageQueue final : public MessageQueue {
public:
    explicit QtMessageQueue(const QtTimerSource& timers) : m_timers(timers) {}
    bool DispatchFirst(unsigned message) override;

private:
    const QtTimerSource& m_timers;
    unsigned long m_flushedTick = ~0ul;
};

}  // namespace vx
