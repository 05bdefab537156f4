#include "vxutil/runtime/RTrace.h"

#include <initializer_list>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TempHome.h"
#include "vxutil/platform/RApplication.h"
#include "vxutil/runtime/RMethodTrace.h"

namespace {

constexpr unsigned long kAll = kTraceAllLevels;
using Texts = std::vector<std::string>;

// Each test gets a fresh profile, a current application object and a fresh module-wide trace
// built the way the library builds its own.
class RTraceTest : public vx::test::HomeTest {
protected:
    ~RTraceTest() override {
        RTrace::SetModule(m_previousTrace);
        RApplication::SetCurrent(m_previousApp);
    }

    // The texts of the section's entries `names`, empty for missing ones.
    Texts Entries(std::initializer_list<const char*> names) {
        Texts texts;
        for (const char* name : names)
            texts.push_back(app.GetProfileString("Debug", name).str());
        return texts;
    }
    void SwitchTrace(int on) { EXPECT_EQ(trace.WriteSwitch(on), 1); }

    RApplication app{"Demo", "vxtracetest"};
    RTrace trace{1, kAll, "Debug", "Trace", 1};

private:
    RApplication* m_previousApp = RApplication::SetCurrent(&app);
    RTrace* m_previousTrace = RTrace::SetModule(&trace);
};

TEST_F(RTraceTest, SwitchIsReadAfreshAndOffWritesNothing) {
    app.WriteProfileString("Debug", "1", "old run");
    for (int value : {-1, 0}) {
        SwitchTrace(value);
        EXPECT_EQ(trace.Trace("text", kAll), 0);
        EXPECT_EQ(trace.Trace(5, kAll), 0);
    }
    app.WriteProfileString("Debug", "Trace", nullptr);
    { RMethodTrace scope("RAppEnvironment", "CAppEnv::AddUser", kAll); }
    EXPECT_EQ(Entries({"1", "Timestamp1"}), (Texts{"old run", ""}));

    SwitchTrace(1);
    trace.Trace("a", kAll);
    SwitchTrace(0);
    EXPECT_EQ(trace.Trace("b", kAll), 0);
    SwitchTrace(1);
    trace.Trace("c", kAll);
    EXPECT_EQ(Entries({"1", "2", "3"}), (Texts{"a", "c", ""}));
}

TEST_F(RTraceTest, MethodScopeAndValuesAreNumberedInOrderAfterATimestamp) {
    SwitchTrace(1);
    {
        RMethodTrace scope("RAppEnvironment", "CAppEnv::AddUser", kAll);
        EXPECT_EQ(scope.Trace(42, kAll), 1);
        EXPECT_EQ(scope.Trace(nullptr, kAll), 0);
    }
    EXPECT_NE(Entries({"Timestamp1"}), Texts{""});
    EXPECT_EQ(app.GetProfileInt("Debug", "2", 0), 42u);
    EXPECT_EQ(Entries({"1", "3", "4"}), (Texts{"RAppEnvironment:CAppEnv::AddUser:Enter",
                                               "RAppEnvironment:CAppEnv::AddUser:Exit", ""}));
}

TEST_F(RTraceTest, FirstEntryOfARunClearsThePreviousRunUpToItsFirstGap) {
    for (const char* name : {"1", "2", "3", "5"})
        app.WriteProfileString("Debug", name, "old");
    app.WriteProfileString("Debug", "Timestamp1", "yesterday");
    SwitchTrace(1);
    trace.Trace("new", kAll);
    EXPECT_EQ(Entries({"1", "2", "3", "5"}), (Texts{"new", "", "", "old"}));
    EXPECT_NE(Entries({"Timestamp1"}), Texts{"yesterday"});
    // Nothing is cleared again during the run.
    trace.Trace("second", kAll);
    EXPECT_EQ(Entries({"1", "2"}), (Texts{"new", "second"}));
}

TEST_F(RTraceTest, LevelIsReloadedAtTheStartOfEachRun) {
    // The entry that opens a run passed the level check with the previous mask, before the
    // run's "Level" was read, so it is written even when that level masks it.
    EXPECT_EQ(trace.GetStoredLevel(), kAll);  // none stored: the current mask
    EXPECT_EQ(trace.WriteStoredLevel(0x10), 1);
    EXPECT_EQ(trace.GetStoredLevel(), 0x10u);
    SwitchTrace(1);
    EXPECT_EQ(trace.Trace("opens the run", 0x01), 1);
    EXPECT_EQ(trace.GetLevel(), 0x10u);
    EXPECT_EQ(trace.Trace("masked", 0x01), 0);
    EXPECT_EQ(trace.Trace("kept", 0x10), 1);
    EXPECT_EQ(Entries({"2"}), Texts{"kept"});

    trace.WriteStoredLevel(0);
    trace.Clear();
    EXPECT_EQ(trace.Trace("opens the next run", 0x10), 1);
    EXPECT_EQ(trace.Trace("masked", kAll), 0);
    EXPECT_EQ(Entries({"1", "2"}), (Texts{"opens the next run", ""}));
}

TEST_F(RTraceTest, NumberingAndTimestampStartAtTheStartNumber) {
    RTrace custom(0, kAll, "Debug", "Trace", 7);
    SwitchTrace(1);
    custom.Trace("x", kAll);
    EXPECT_EQ(Entries({"7"}), Texts{"x"});
    EXPECT_NE(Entries({"Timestamp7"}), Texts{""});
}

TEST_F(RTraceTest, NothingIsWrittenWithoutAnApplicationProfile) {
    SwitchTrace(1);
    RApplication nameless("Demo", "");
    RApplication::SetCurrent(&nameless);
    EXPECT_EQ(trace.IsTracing(), 0);
    EXPECT_EQ(trace.Trace("x", kAll), 0);
    EXPECT_EQ(trace.WriteSwitch(1) + trace.WriteStoredLevel(1), 0);
    RApplication::SetCurrent(nullptr);
    EXPECT_EQ(trace.Trace("x", kAll), 0);
    RApplication::SetCurrent(&app);
    EXPECT_EQ(Entries({"1"}), Texts{""});
}

}  // namespace
