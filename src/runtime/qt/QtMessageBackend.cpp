#include "runtime/qt/QtMessageBackend.h"

#include <QCoreApplication>
#include <QTimerEvent>

#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/WindowMessages.h"

namespace vx {

bool QtTimerSource::Create(RMessageStation& station) {
    m_station = &station;
    return true;
}

bool QtTimerSource::Set(unsigned id, unsigned milliseconds) {
    if (!Exists()) return false;
    Kill(id);
    // Qt never queues a second tick of a timer behind the first, as Windows never does.
    const int timer = startTimer(static_cast<int>(milliseconds), Qt::CoarseTimer);
    if (timer == 0) return false;
    m_timers[id] = timer;
    return true;
}

void QtTimerSource::Kill(unsigned id) {
    if (auto timer = m_timers.find(id); timer != m_timers.end()) {
        killTimer(timer->second);
        m_timers.erase(timer);
    }
}

void QtTimerSource::Destroy() {
    if (!Exists()) return;
    m_station->OnDestroy();
    for (const auto& [id, timer] : m_timers)
        killTimer(timer);
    m_timers.clear();
    m_station = nullptr;
}

void QtTimerSource::timerEvent(QTimerEvent* event) {
    for (const auto& [id, timer] : m_timers) {
        if (timer != event->timerId()) continue;
        ++m_tick;
        m_station->OnTimer(id);
        return;
    }
}

namespace {

bool IsVisualMessage(unsigned message) {
    switch (message) {
        case kWmPaint:
        case kWmEraseBkgnd:
        case kWmNcPaint:
        case kWmSetCursor:
        case kWmNcHitTest:
        case kWmNcMouseMove:
        case kWmMouseMove:
        case kWmNcCalcSize:
        case kWmSize:
        case kWmMove:
            return true;
        default:
            return false;
    }
}

}  // namespace

bool QtMessageQueue::DispatchFirst(unsigned message) {
    if (!IsVisualMessage(message) || m_flushedTick == m_timers.Tick()) return false;
    m_flushedTick = m_timers.Tick();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
    return false;
}

}  // namespace vx
