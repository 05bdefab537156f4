#include "vxutil/runtime/RMessagePump.h"

#include <optional>

#include <gtest/gtest.h>

#include "pump/PumpHarness.h"
#include "vxutil/runtime/RVisualPump.h"
#include "vxutil/runtime/WindowMessages.h"

namespace {

using vx::test::Dispatched;

constexpr unsigned kA = vx::kWmUser + 1;
constexpr unsigned kB = vx::kWmUser + 2;
constexpr unsigned kC = vx::kWmUser + 3;

// The same behaviour over every real queue: the in-process one, and Win32's under Windows.
template <typename Harness>
class PumpTest : public testing::Test {
protected:
    PumpTest() { m_previous = RMessageStation::SetModule(&harness.Station()); }
    ~PumpTest() override { RMessageStation::SetModule(m_previous); }

    Harness harness;

private:
    RMessageStation* m_previous;
};

#ifdef _WIN32
using Harnesses = testing::Types<vx::test::LocalHarness, vx::test::Win32Harness>;
#else
using Harnesses = testing::Types<vx::test::LocalHarness>;
#endif
TYPED_TEST_SUITE(PumpTest, Harnesses);

TYPED_TEST(PumpTest, OneTickDispatchesEveryWaitingMessageWhateverTheLimit) {
    RMessagePump pump(vx::kWmMouseMove, 10, 1);
    ASSERT_NE(pump.GetID(), 0u);
    for (unsigned i = 0; i < 100; ++i)
        this->harness.Post(vx::kWmMouseMove, i);
    ASSERT_TRUE(this->harness.Tick());
    ASSERT_EQ(this->harness.dispatched.size(), 100u);
    for (unsigned i = 0; i < 100; ++i)
        EXPECT_EQ(this->harness.dispatched[i].second, i);
}

TYPED_TEST(PumpTest, FirstIdentifierFirstAndOtherMessagesStayQueued) {
    RMessagePump pump({kB, kA}, -1, 1);
    this->harness.Post(kA, 1);
    this->harness.Post(kC, 2);
    this->harness.Post(kB, 3);
    this->harness.Post(kA, 4);
    this->harness.Post(kB, 5);
    ASSERT_TRUE(this->harness.Tick());
    EXPECT_EQ(this->harness.dispatched, (Dispatched{{kB, 3}, {kB, 5}, {kA, 1}, {kA, 4}}));

    RMessagePump other(kC, -1, 1);
    this->harness.dispatched.clear();
    other.Pump();
    EXPECT_EQ(this->harness.dispatched, (Dispatched{{kC, 2}}));
}

TYPED_TEST(PumpTest, LimitOfZeroOrBelowDispatchesNothing) {
    for (int limit : {0, -2}) {
        RMessagePump pump(kA, limit, 1);
        this->harness.Post(kA, 1);
        ASSERT_TRUE(this->harness.Tick());
        EXPECT_TRUE(this->harness.dispatched.empty()) << limit;
    }
    RMessagePump defaultLimit(kA, -1, 0);
    defaultLimit.Pump();
    EXPECT_EQ(this->harness.dispatched.size(), 2u);
}

TYPED_TEST(PumpTest, TickPumpsOnlyThePumpOfItsTimer) {
    RMessagePump first(kA, -1, 1);
    RMessagePump second(kB, -1, 1);
    EXPECT_EQ(first.GetID(), 1u);
    EXPECT_EQ(second.GetID(), 2u);
    this->harness.Post(kA, 1);
    this->harness.Post(kB, 2);
    this->harness.Station().OnTimer(second.GetID());
    EXPECT_EQ(this->harness.dispatched, (Dispatched{{kB, 2}}));
    second.Stop();
    EXPECT_EQ(second.GetID(), 0u);
    this->harness.Station().OnTimer(2);  // a stopped pump's tick finds nothing
    EXPECT_EQ(this->harness.dispatched.size(), 1u);
    EXPECT_EQ(this->harness.Station().GetPumpCount(), 1u);
}

using StationTest = PumpTest<vx::test::LocalHarness>;

TEST_F(StationTest, PumpKeepsItsIdentifiersOnceEachInOrder) {
    RMessagePump pump({kA, kB, kA, 0}, -1, 0);
    pump.AddMessage(kB);
    pump.AddMessage(kC);
    EXPECT_EQ(pump.GetMessageIndex(kA), 0);
    EXPECT_EQ(pump.GetMessageIndex(kB), 1);
    EXPECT_EQ(pump.GetMessageIndex(0), 2);
    EXPECT_EQ(pump.GetMessageIndex(kC), 3);
    pump.RemoveMessage(kA);
    EXPECT_EQ(pump.IsMessage(kA), 0);
    EXPECT_EQ(pump.GetMessageIndex(kB), 0);
}

TEST_F(StationTest, StartGivesTimerIdsInTurnAndOnlyOnce) {
    RMessagePump empty(0u, -1, 1);
    EXPECT_EQ(empty.GetID(), 0u);  // no messages, no start
    EXPECT_EQ(empty.Start(), 0);

    RMessagePump first(kA);
    EXPECT_EQ(first.Start(), 1);
    EXPECT_EQ(first.Start(), 0);
    EXPECT_EQ(first.GetID(), 1u);
    RVisualPump second(-1, 1);
    EXPECT_EQ(second.GetID(), 2u);
    first.Stop();
    EXPECT_EQ(first.Start(), 1);
    EXPECT_EQ(first.GetID(), 3u);  // ids are never reused
}

TEST_F(StationTest, DestroyedStationStopsItsPumps) {
    RMessagePump pump(kA, -1, 1);
    std::optional<RMessagePump> destroyedFirst(std::in_place, kB, -1, 1);
    destroyedFirst.reset();  // a destroyed pump leaves the station
    EXPECT_EQ(harness.Station().GetPumpCount(), 1u);
    harness.Timers().Destroy();
    EXPECT_EQ(pump.GetID(), 0u);
    EXPECT_EQ(harness.Station().GetPumpCount(), 0u);
    EXPECT_EQ(harness.Queue().Size(), 0u);
}

// A timer source whose timers are always refused.
class RefusingTimers : public vx::LocalTimerSource {
public:
    using LocalTimerSource::LocalTimerSource;
    bool Set(unsigned, unsigned) override { return false; }
};

TEST(StationFailureTest, RefusedTimerLeavesThePumpStopped) {
    vx::LocalMessageQueue queue;
    RefusingTimers timers(queue);
    RMessageStation station(250, queue, timers);
    RMessageStation* previous = RMessageStation::SetModule(&station);
    RMessagePump pump(kA);
    EXPECT_EQ(pump.Start(), 0);
    EXPECT_EQ(pump.GetID(), 0u);
    EXPECT_EQ(station.GetPumpCount(), 0u);
    RMessageStation::SetModule(previous);
}

TEST(StationFailureTest, WithoutStationNothingStarts) {
    RMessageStation* previous = RMessageStation::SetModule(nullptr);
    RMessagePump pump(kA, -1, 1);
    EXPECT_EQ(pump.GetID(), 0u);
    pump.Pump();  // nothing to pump from, and no crash
    RMessageStation::SetModule(previous);
}

}  // namespace
