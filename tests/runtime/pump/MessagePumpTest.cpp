#include "vxutil/runtime/RMessagePump.h"

#include <chrono>
#include <optional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/pump/LocalMessageQueue.h"
#include "runtime/pump/LocalTimerSource.h"
#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/RVisualPump.h"
#include "vxutil/runtime/WindowMessages.h"

#ifdef _WIN32
#include <windows.h>

#include "runtime/pump/Win32MessageBackend.h"
#endif

namespace {

constexpr unsigned kA = vx::kWmUser + 1;
constexpr unsigned kB = vx::kWmUser + 2;
constexpr unsigned kC = vx::kWmUser + 3;

// (message, tag) in the order dispatched.
using Dispatched = std::vector<std::pair<unsigned, unsigned>>;

// A station over the in-process queue and timers, with a target that records what is
// dispatched to it.
class LocalHarness : private vx::LocalMessageTarget {
public:
    RMessageStation& Station() { return station; }
    void Post(unsigned message, unsigned tag) { queue.Post(*this, message, tag); }
    // Lets every timer run out and dispatches the first timer message, as a message loop
    // waiting for the timer would; false when no timer ticked.
    bool Tick() {
        timers.PostDue(vx::LocalTimerSource::Clock::now() + std::chrono::hours(1));
        return queue.DispatchNext(vx::kWmTimer, vx::kWmTimer);
    }

    vx::LocalMessageQueue queue;
    vx::LocalTimerSource timers{queue};
    RMessageStation station{250, queue, timers};
    Dispatched dispatched;

private:
    void OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t) override {
        dispatched.emplace_back(message, static_cast<unsigned>(wParam));
    }
};

#ifdef _WIN32
// The station's real hidden window and timers, and a real window of the thread to post to.
class Win32Harness {
public:
    Win32Harness() {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = RecordingProc;
        windowClass.hInstance = ::GetModuleHandleA(nullptr);
        windowClass.lpszClassName = "VXPumpTestWindow";
        ::RegisterClassA(&windowClass);
        m_window = ::CreateWindowExA(0, windowClass.lpszClassName, "", WS_POPUP, 0, 0, 0, 0,
                                     nullptr, nullptr, windowClass.hInstance, nullptr);
        ::SetWindowLongPtrA(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&dispatched));
    }
    ~Win32Harness() {
        m_station.reset();
        ::DestroyWindow(m_window);
        // Nothing posted by a test outlives it in the thread's queue.
        MSG msg;
        while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        }
    }

    RMessageStation& Station() { return *m_station; }
    void Post(unsigned message, unsigned tag) { ::PostMessageA(m_window, message, tag, 0); }
    // Waits (at most a few seconds) for the next timer message and dispatches it.
    bool Tick() {
        const ULONGLONG deadline = ::GetTickCount64() + 5000;
        MSG msg;
        while (::GetTickCount64() < deadline) {
            if (::PeekMessageA(&msg, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) {
                ::DispatchMessageA(&msg);
                return true;
            }
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_TIMER);
        }
        return false;
    }

    Dispatched dispatched;

private:
    static LRESULT CALLBACK RecordingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* dispatched =
            reinterpret_cast<Dispatched*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
        if (dispatched == nullptr || message < WM_MOUSEMOVE || message == WM_TIMER)
            return ::DefWindowProcA(window, message, wParam, lParam);
        dispatched->emplace_back(message, static_cast<unsigned>(wParam));
        return 0;
    }

    vx::Win32MessageQueue m_queue;
    vx::Win32TimerSource m_timers;
    // A short period: the tests wait for real ticks.
    std::optional<RMessageStation> m_station{std::in_place, 10, m_queue, m_timers};
    HWND m_window = nullptr;
};
#endif

// The same behaviour over every real queue: the in-process one, and Win32's under Windows.
template <typename Harness>
class PumpTest : public testing::Test {
protected:
    ~PumpTest() override { RMessageStation::SetModule(m_previous); }

    Harness harness;

private:
    RMessageStation* m_previous = RMessageStation::SetModule(&harness.Station());
};

#ifdef _WIN32
using Harnesses = testing::Types<LocalHarness, Win32Harness>;
#else
using Harnesses = testing::Types<LocalHarness>;
#endif
TYPED_TEST_SUITE(PumpTest, Harnesses);

// The per-tick limit never ends a tick (kept for compatibility with tuned client tools): one
// tick empties the queue of the pump's messages, while a limit of 0 or below (but -1) pumps
// nothing at all.
TYPED_TEST(PumpTest, LimitOnlyDecidesWhetherATickPumpsAtAll) {
    RMessagePump pump(vx::kWmMouseMove, 10, 1);
    ASSERT_NE(pump.GetID(), 0u);
    for (unsigned i = 0; i < 100; ++i)
        this->harness.Post(vx::kWmMouseMove, i);
    ASSERT_TRUE(this->harness.Tick());
    ASSERT_EQ(this->harness.dispatched.size(), 100u);
    for (unsigned i = 0; i < 100; ++i)
        EXPECT_EQ(this->harness.dispatched[i].second, i);
    pump.Stop();

    this->harness.dispatched.clear();
    for (int limit : {0, -2}) {
        RMessagePump limited(kA, limit, 1);
        this->harness.Post(kA, 1);
        ASSERT_TRUE(this->harness.Tick());
        EXPECT_TRUE(this->harness.dispatched.empty()) << limit;
    }
    RMessagePump defaultLimit(kA, -1, 0);
    defaultLimit.Pump();
    EXPECT_EQ(this->harness.dispatched.size(), 2u);
}

TYPED_TEST(PumpTest, FirstIdentifierFirstAndOtherMessagesStayQueued) {
    RMessagePump pump({kB, kA}, -1, 1);
    for (auto [message, tag] : Dispatched{{kA, 1}, {kC, 2}, {kB, 3}, {kA, 4}, {kB, 5}})
        this->harness.Post(message, tag);
    ASSERT_TRUE(this->harness.Tick());
    EXPECT_EQ(this->harness.dispatched, (Dispatched{{kB, 3}, {kB, 5}, {kA, 1}, {kA, 4}}));

    RMessagePump other(kC, -1, 1);
    this->harness.dispatched.clear();
    other.Pump();
    EXPECT_EQ(this->harness.dispatched, (Dispatched{{kC, 2}}));
}

using StationTest = PumpTest<LocalHarness>;

TEST_F(StationTest, PumpKeepsItsIdentifiersOnceEachInOrder) {
    RMessagePump pump({kA, kB, kA}, -1, 0);
    pump.AddMessage(kB);
    pump.AddMessage(kC);
    EXPECT_EQ(pump.GetMessageIndex(kC), 2);
    pump.RemoveMessage(kA);
    EXPECT_EQ(pump.IsMessage(kA), 0);
    EXPECT_EQ(pump.GetMessageIndex(kC), 1);
}

TEST_F(StationTest, StartedPumpsGetTimerIdsInTurnAndOnlyTheirOwnTicks) {
    RMessagePump empty(0u, -1, 1);
    EXPECT_EQ(empty.Start(), 0);  // no messages, no start
    RMessagePump first(kA);
    EXPECT_EQ(first.Start(), 1);
    EXPECT_EQ(first.Start(), 0);
    RVisualPump visual(-1, 1);
    RMessagePump second(kB, -1, 1);
    EXPECT_EQ(second.GetID(), 3u);

    harness.Post(kA, 1);
    harness.Post(kB, 2);
    harness.station.OnTimer(3);
    EXPECT_EQ(harness.dispatched, (Dispatched{{kB, 2}}));
    second.Stop();
    EXPECT_EQ(second.GetID(), 0u);
    harness.station.OnTimer(3);  // a stopped pump's tick finds nothing
    EXPECT_EQ(harness.dispatched.size(), 1u);
    EXPECT_EQ(harness.station.GetPumpCount(), 2u);
    EXPECT_EQ(second.Start(), 1);
    EXPECT_EQ(second.GetID(), 4u);  // ids are never reused
}

TEST_F(StationTest, DestroyedStationStopsItsPumps) {
    RMessagePump pump(kA, -1, 1);
    std::optional<RMessagePump> destroyedFirst(std::in_place, kB, -1, 1);
    destroyedFirst.reset();  // a destroyed pump leaves the station
    EXPECT_EQ(harness.station.GetPumpCount(), 1u);
    harness.timers.Destroy();
    EXPECT_EQ(pump.GetID(), 0u);
    EXPECT_EQ(harness.station.GetPumpCount(), 0u);
    EXPECT_EQ(harness.queue.Size(), 0u);
}

// A timer source whose timers are always refused.
class RefusingTimers : public vx::LocalTimerSource {
public:
    using LocalTimerSource::LocalTimerSource;
    bool Set(unsigned, unsigned) override { return false; }
};

TEST(StationFailureTest, WithoutStationOrTimerThePumpStaysStopped) {
    RMessageStation* previous = RMessageStation::SetModule(nullptr);
    RMessagePump orphan(kA, -1, 1);
    EXPECT_EQ(orphan.GetID(), 0u);
    orphan.Pump();  // nothing to pump from, and no crash

    vx::LocalMessageQueue queue;
    RefusingTimers timers(queue);
    RMessageStation station(250, queue, timers);
    RMessageStation::SetModule(&station);
    RMessagePump pump(kA);
    EXPECT_EQ(pump.Start(), 0);
    EXPECT_EQ(pump.GetID(), 0u);
    EXPECT_EQ(station.GetPumpCount(), 0u);
    RMessageStation::SetModule(previous);
}

}  // namespace
