// Preferences in the application profile, the language-library switch and the macro paths.
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/runtime/RTrace.h"

namespace {

using PreferencesTest = vx::test::AppEnvTest;

// The profile entries of the preferences, in the order in which Read() gives them.
// clang-format off
const char* const kEntries[][2] = {
    {"Menus", "Style"}, {"Menus", "ItemsThreshold"}, {"Menus", "LevelThreshold"},
    {"Menus", "OpenListAtStart"}, {"Move", "StepSize"}, {"Query", "MaxInQuery"},
    {"Query", "LimitItemsReturn"}, {"Submit", "CloseAfterSubmit"},
    {"Network", "RPCTimeout Normal"}, {"Network", "RPCTimeout Long"},
    {"Network", "RPCTimeout Extra Long"}, {"User", "ShowLangDLLNotFound"}};
// clang-format on

template <typename... Values>
std::string Joined(Values... values) {
    std::string text;
    ((text += (text.empty() ? "" : " ") + std::to_string(+values)), ...);
    return text;
}

// Every preference as its getter gives it.
std::string Read() {
    unsigned level = 0, items = 0;
    CAppEnv::GetMenuThresholds(level, items);
    return Joined(CAppEnv::GetMenuDisplayMethod(), items, level,
                  CAppEnv::ExpandMenuItemsAtStartup(), CAppEnv::GetArrowKeyStepSize(),
                  CAppEnv::GetMaxInQuery(), CAppEnv::GetIsLimitedQuery(),
                  CAppEnv::GetCloseAfterSubmitAction(), CAppEnv::GetRPCTimeoutNormal(),
                  CAppEnv::GetRPCTimeoutLong(), CAppEnv::GetRPCTimeoutXLong(),
                  CAppEnv::GetShouldShowLangDLLNotFound());
}

constexpr const char* kDefaults = "1 200 4 0 10 1000 1 0 0 0 0 1";

TEST_F(PreferencesTest, EachGetterReadsItsEntryWithItsDefault) {
    EXPECT_EQ(Read(), kDefaults);
    int value = 20;
    for (const auto& [section, key] : kEntries)
        app.WriteProfileInt(section, key, value++);
    EXPECT_EQ(Read(), "20 21 22 23 24 25 26 27 28 29 30 31");
    // A flag read is the low byte of the stored number.
    app.WriteProfileInt("Query", "LimitItemsReturn", 0x102);
    EXPECT_EQ(CAppEnv::GetIsLimitedQuery(), 2);

    // Without an application object reads give the defaults and writes do nothing.
    RApplication::SetCurrent(nullptr);
    EXPECT_EQ(Read(), kDefaults);
    CAppEnv::SetMaxInQuery(5);
    RApplication::SetCurrent(&app);
    EXPECT_EQ(CAppEnv::GetMaxInQuery(), 25);
}

TEST_F(PreferencesTest, SettersStoreTheirEntry) {
    CAppEnv::SetMenuDisplayMethod(3);
    CAppEnv::SetMenuThresholds(3, 150);  // the level threshold is the first argument
    CAppEnv::SetArrowKeyStepSize(-4);
    CAppEnv::SetMaxInQuery(250);
    // Flags are stored as 0 or 1 whatever nonzero value they are given.
    CAppEnv::SetIsLimitedQuery(7);
    CAppEnv::ExpandMenuItemsAtStartup(200);
    std::string stored;
    for (const auto& [section, key] : kEntries)
        stored += std::to_string(static_cast<int>(app.GetProfileInt(section, key, -9))) + " ";
    EXPECT_EQ(stored, "3 150 3 1 -4 250 1 -9 -9 -9 -9 -9 ");
}

TEST_F(PreferencesTest, LanguageLibraryWarningPrefersTheRegistry) {
    SetRegNumber("ShowLangDLLNotFound", 5);
    EXPECT_EQ(CAppEnv::GetShouldShowLangDLLNotFound(), 1);
    SetRegNumber("ShowLangDLLNotFound", 0);
    app.WriteProfileInt("User", "ShowLangDLLNotFound", 1);
    EXPECT_EQ(CAppEnv::GetShouldShowLangDLLNotFound(), 0);

    DeleteReg("ShowLangDLLNotFound");
    CAppEnv::SetShouldShowLangDLLNotFound(9);
    EXPECT_EQ(Reg("ShowLangDLLNotFound"), "1");
    app.WriteProfileInt("User", "ShowLangDLLNotFound", 0);
    EXPECT_EQ(CAppEnv::GetShouldShowLangDLLNotFound(), 1);
}

TEST_F(PreferencesTest, MacroPathsComeFromVXPathOrTheHomeCommandFolder) {
    const CGNString homeFolder = Folder("ann").c_str();
    const CGNString commands = MakeFilePath(homeFolder, "vxcmds");
    struct Case {
        const char* vxPath;
        CGNString paths;  // joined by "|"
    };
    for (const Case& c : {Case{"", commands}, Case{";", commands},
                          Case{"/srv/macros;;/opt/cmds;", "/srv/macros|/opt/cmds"}}) {
        app.WriteProfileString("User", "VXPath", c.vxPath);
        CGNStringList macros, reports;
        macros.Add("stale");
        EXPECT_EQ(CAppEnv::GetMacroPathList(homeFolder, macros), 1);
        EXPECT_EQ(CAppEnv::GetReportPathList(homeFolder, reports), 1);
        EXPECT_EQ(macros.Join('|'), c.paths) << c.vxPath;
        EXPECT_EQ(reports.Join('|'), c.paths) << c.vxPath;
    }
}

TEST_F(PreferencesTest, OperationsOpenTheirMethodTrace) {
    RTrace trace(1, kTraceAllLevels, "Debug", "Trace", 1);
    RTrace* previous = RTrace::SetModule(&trace);
    app.WriteProfileInt("Debug", "Trace", 1);
    CAppEnv::ExpandMenuItemsAtStartup(1);
    CGNStringList paths;
    CAppEnv::GetReportPathList("", paths);
    RTrace::SetModule(previous);
    std::string entries;
    for (const char* n : {"1", "2", "3", "4", "5", "6"})
        entries += app.GetProfileString("Debug", n, "").str() + "\n";
    EXPECT_EQ(entries,
              "RAppEnvironment:CAppEnv::ExpandMenuItemsAtStartup:Enter\n"
              "RAppEnvironment:CAppEnv::ExpandMenuItemsAtStartup:Exit\n"
              "RAppEnvironment:CAppEnv::GetReportPathList:Enter\n"
              "RAppEnvironment:CAppEnv::GetMacroPathList:Enter\n"
              "RAppEnvironment:CAppEnv::GetMacroPathList:Exit\n"
              "RAppEnvironment:CAppEnv::GetReportPathList:Exit\n");
}

}  // namespace
