#include "vxutil/runtime/RTrace.h"

#include <string>

#include <gtest/gtest.h>

#include "support/TempHome.h"
#include "vxutil/platform/RApplication.h"
#include "vxutil/runtime/RMethodTrace.h"

namespace {

// Each test gets a fresh profile, a current application object and a fresh module-wide trace
// built the way the library builds its own.
class RTraceTest : public vx::test::HomeTest {
protected:
    RTraceTest() {
        m_previousApp = RApplication::SetCurrent(&app);
        m_previousTrace = RTrace::SetModule(&trace);
    }
    ~RTraceTest() override {
        RTrace::SetModule(m_previousTrace);
        RApplication::SetCurrent(m_previousApp);
    }

    std::string Entry(const char* name) {
        return app.GetProfileString("Debug", name, "<absent>").str();
    }
    void SwitchTrace(int on) { app.WriteProfileInt("Debug", "Trace", on); }

    RApplication app{"Demo", "vxtracetest"};
    RTrace trace{1, kTraceAllLevels, "Debug", "Trace", 1};

private:
    RApplication* m_previousApp;
    RTrace* m_previousTrace;
};

TEST_F(RTraceTest, SwitchedOffWritesNothingAndKeepsTheOldRun) {
    app.WriteProfileString("Debug", "1", "old run");
    for (int value : {-1, 0}) {
        SwitchTrace(value);
        EXPECT_EQ(trace.Trace("text", kTraceAllLevels), 0);
        EXPECT_EQ(trace.Trace(5, kTraceAllLevels), 0);
    }
    app.WriteProfileString("Debug", "Trace", nullptr);
    { RMethodTrace scope("RAppEnvironment", "CAppEnv::AddUser", kTraceAllLevels); }
    EXPECT_EQ(Entry("1"), "old run");
    EXPECT_EQ(Entry("Timestamp1"), "<absent>");
}

TEST_F(RTraceTest, MethodScopeWritesEnterAndExitAfterATimestamp) {
    SwitchTrace(1);
    { RMethodTrace scope("RAppEnvironment", "CAppEnv::AddUser", kTraceAllLevels); }
    EXPECT_NE(Entry("Timestamp1"), "<absent>");
    EXPECT_FALSE(Entry("Timestamp1").empty());
    EXPECT_EQ(Entry("1"), "RAppEnvironment:CAppEnv::AddUser:Enter");
    EXPECT_EQ(Entry("2"), "RAppEnvironment:CAppEnv::AddUser:Exit");
    EXPECT_EQ(Entry("3"), "<absent>");
}

TEST_F(RTraceTest, NumbersAndTextsAreNumberedInOrder) {
    SwitchTrace(1);
    EXPECT_EQ(trace.Trace("first", kTraceAllLevels), 1);
    EXPECT_EQ(trace.Trace(42, kTraceAllLevels), 1);
    EXPECT_EQ(trace.Trace(nullptr, kTraceAllLevels), 0);
    EXPECT_EQ(Entry("1"), "first");
    EXPECT_EQ(app.GetProfileInt("Debug", "2", 0), 42u);
    EXPECT_EQ(trace.GetNextNumber(), 3);
}

TEST_F(RTraceTest, FirstEntryOfARunClearsEveryEntryOfThePreviousRun) {
    for (const char* name : {"1", "2", "3", "4", "5"})
        app.WriteProfileString("Debug", name, "old");
    app.WriteProfileString("Debug", "Timestamp1", "yesterday");
    SwitchTrace(1);
    trace.Trace("new", kTraceAllLevels);
    EXPECT_EQ(Entry("1"), "new");
    for (const char* name : {"2", "3", "4", "5"})
        EXPECT_EQ(Entry(name), "<absent>") << name;
    EXPECT_NE(Entry("Timestamp1"), "yesterday");
    // Nothing is cleared again during the run.
    trace.Trace("second", kTraceAllLevels);
    EXPECT_EQ(Entry("1"), "new");
}

TEST_F(RTraceTest, ClearStopsAtTheFirstMissingEntry) {
    for (const char* name : {"1", "2", "4"})
        app.WriteProfileString("Debug", name, "old");
    trace.Clear();
    EXPECT_EQ(Entry("1"), "<absent>");
    EXPECT_EQ(Entry("2"), "<absent>");
    EXPECT_EQ(Entry("4"), "old");
}

TEST_F(RTraceTest, LevelIsReloadedAtTheStartOfEachRun) {
    app.WriteProfileInt("Debug", "Level", 0x10);
    SwitchTrace(1);
    EXPECT_EQ(trace.Trace("opens the run", 0x01), 1);
    EXPECT_EQ(trace.GetLevel(), 0x10u);
    EXPECT_EQ(trace.Trace("masked", 0x01), 0);
    EXPECT_EQ(trace.Trace("kept", 0x10), 1);
    EXPECT_EQ(Entry("2"), "kept");
}

TEST_F(RTraceTest, LevelZeroStopsEveryEntryAfterTheOneThatOpensTheRun) {
    // The entry that opens a run passed the level check with the previous mask, before the
    // run's "Level" was read, so it is still written.
    app.WriteProfileInt("Debug", "Level", 0);
    SwitchTrace(1);
    EXPECT_EQ(trace.Trace("opens the run", kTraceAllLevels), 1);
    EXPECT_EQ(trace.Trace("masked", kTraceAllLevels), 0);
    EXPECT_EQ(Entry("2"), "<absent>");
}

TEST_F(RTraceTest, SwitchIsReadAfreshAtEveryEntry) {
    SwitchTrace(1);
    trace.Trace("a", kTraceAllLevels);
    SwitchTrace(0);
    EXPECT_EQ(trace.Trace("b", kTraceAllLevels), 0);
    SwitchTrace(1);
    trace.Trace("c", kTraceAllLevels);
    EXPECT_EQ(Entry("1"), "a");
    EXPECT_EQ(Entry("2"), "c");
}

TEST_F(RTraceTest, NothingIsWrittenWithoutAnApplicationProfile) {
    SwitchTrace(1);
    RApplication nameless("Demo", "");
    RApplication::SetCurrent(&nameless);
    EXPECT_EQ(trace.IsTracing(), 0);
    EXPECT_EQ(trace.Trace("x", kTraceAllLevels), 0);
    RApplication::SetCurrent(nullptr);
    EXPECT_EQ(trace.Trace("x", kTraceAllLevels), 0);
    RApplication::SetCurrent(&app);
    EXPECT_EQ(Entry("1"), "<absent>");
}

TEST_F(RTraceTest, TimestampEntryIsNamedAfterTheStartNumber) {
    RTrace custom(0, kTraceAllLevels, "Debug", "Trace", 7);
    EXPECT_EQ(custom.GetTimestampEntry(), "Timestamp7");
    SwitchTrace(1);
    custom.Trace("x", kTraceAllLevels);
    EXPECT_EQ(Entry("7"), "x");
    EXPECT_NE(Entry("Timestamp7"), "<absent>");
}

}  // namespace
