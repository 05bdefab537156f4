// Preferences in the application profile, the language-library switch and the macro paths.
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/runtime/RTrace.h"

namespace {

using PreferencesTest = vx::test::AppEnvTest;

unsigned Threshold(bool level) {
    unsigned levelThreshold = 0, itemsThreshold = 0;
    CAppEnv::GetMenuThresholds(levelThreshold, itemsThreshold);
    return level ? levelThreshold : itemsThreshold;
}

// Every preference getter with its default, as the profile says "Section/Key".
struct Preference {
    const char* entry;
    std::function<unsigned long()> get;
    unsigned long def;
};
const Preference kPreferences[] = {
    {"Menus/Style", CAppEnv::GetMenuDisplayMethod, 1},
    {"Menus/ItemsThreshold", [] { return Threshold(false); }, 200},
    {"Menus/LevelThreshold", [] { return Threshold(true); }, 4},
    {"Menus/OpenListAtStart", [] { return CAppEnv::ExpandMenuItemsAtStartup(); }, 0},
    {"Move/StepSize", CAppEnv::GetArrowKeyStepSize, 10},
    {"Query/MaxInQuery", CAppEnv::GetMaxInQuery, 1000},
    {"Query/LimitItemsReturn", [] { return CAppEnv::GetIsLimitedQuery(); }, 1},
    {"Submit/CloseAfterSubmit", CAppEnv::GetCloseAfterSubmitAction, 0},
    {"Network/RPCTimeout Normal", CAppEnv::GetRPCTimeoutNormal, 0},
    {"Network/RPCTimeout Long", CAppEnv::GetRPCTimeoutLong, 0},
    {"Network/RPCTimeout Extra Long", CAppEnv::GetRPCTimeoutXLong, 0},
    {"User/ShowLangDLLNotFound", CAppEnv::GetShouldShowLangDLLNotFound, 1},
};

TEST_F(PreferencesTest, EachGetterReadsItsEntryWithItsDefault) {
    for (const Preference& p : kPreferences)
        EXPECT_EQ(p.get(), p.def) << p.entry;
    for (const Preference& p : kPreferences) {
        const std::string entry = p.entry;
        const auto slash = entry.find('/');
        app.WriteProfileInt(entry.substr(0, slash).c_str(), entry.substr(slash + 1).c_str(), 0);
        EXPECT_EQ(p.get(), 0u) << p.entry;
    }
    // Without an application object every getter gives its default.
    RApplication::SetCurrent(nullptr);
    for (const Preference& p : kPreferences)
        EXPECT_EQ(p.get(), p.def) << p.entry;
    CAppEnv::SetMaxInQuery(5);
    RApplication::SetCurrent(&app);
    EXPECT_EQ(CAppEnv::GetMaxInQuery(), 0);
}

TEST_F(PreferencesTest, SettersStoreWhatGettersReadBack) {
    struct Case {
        std::function<void()> set;
        const char* section;
        const char* key;
        unsigned stored;
    };
    const Case cases[] = {
        {[] { CAppEnv::SetMenuDisplayMethod(3); }, "Menus", "Style", 3},
        {[] { CAppEnv::SetArrowKeyStepSize(-4); }, "Move", "StepSize", static_cast<unsigned>(-4)},
        {[] { CAppEnv::SetMaxInQuery(250); }, "Query", "MaxInQuery", 250},
        // Flags are stored as 0 or 1 whatever nonzero value they are given.
        {[] { CAppEnv::SetIsLimitedQuery(7); }, "Query", "LimitItemsReturn", 1},
        {[] { CAppEnv::ExpandMenuItemsAtStartup(200); }, "Menus", "OpenListAtStart", 1},
        // The level threshold is the first argument, but the items threshold is written first.
        {[] { CAppEnv::SetMenuThresholds(3, 150); }, "Menus", "LevelThreshold", 3},
        {[] {}, "Menus", "ItemsThreshold", 150},
    };
    for (const Case& c : cases) {
        c.set();
        EXPECT_EQ(app.GetProfileInt(c.section, c.key, 12345), c.stored) << c.key;
    }
    EXPECT_EQ(CAppEnv::GetArrowKeyStepSize(), -4);
    EXPECT_EQ(CAppEnv::GetIsLimitedQuery(), 1);
    EXPECT_EQ(Threshold(true), 3u);
    EXPECT_EQ(Threshold(false), 150u);
    // A flag read is the low byte of the stored number.
    app.WriteProfileInt("Query", "LimitItemsReturn", 0x102);
    EXPECT_EQ(CAppEnv::GetIsLimitedQuery(), 2);
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
