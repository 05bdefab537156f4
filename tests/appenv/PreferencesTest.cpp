// Preferences in the application profile, the language-library switch and the macro paths.
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/FilePath.h"

namespace {

using vx::test::AppEnvTest;

struct Preference {
    const char* name;
    std::function<unsigned long()> get;
    unsigned long def;
};

unsigned LevelThreshold() {
    unsigned level = 0, items = 0;
    CAppEnv::GetMenuThresholds(level, items);
    return level;
}

unsigned ItemsThreshold() {
    unsigned level = 0, items = 0;
    CAppEnv::GetMenuThresholds(level, items);
    return items;
}

const std::vector<Preference>& Preferences() {
    static const std::vector<Preference> table = {
        {"menu style", CAppEnv::GetMenuDisplayMethod, 1},
        {"items threshold", ItemsThreshold, 200},
        {"level threshold", LevelThreshold, 4},
        {"step size", CAppEnv::GetArrowKeyStepSize, 10},
        {"max in query", CAppEnv::GetMaxInQuery, 1000},
        {"limited query", [] { return CAppEnv::GetIsLimitedQuery(); }, 1},
        {"close after submit", CAppEnv::GetCloseAfterSubmitAction, 0},
        {"expand menus", [] { return CAppEnv::ExpandMenuItemsAtStartup(); }, 0},
        {"rpc normal", CAppEnv::GetRPCTimeoutNormal, 0},
        {"rpc long", CAppEnv::GetRPCTimeoutLong, 0},
        {"rpc extra long", CAppEnv::GetRPCTimeoutXLong, 0},
        {"lang dll warning", CAppEnv::GetShouldShowLangDLLNotFound, 1},
    };
    return table;
}

using PreferencesTest = AppEnvTest;

TEST_F(PreferencesTest, NoSettingsGiveTheDefaults) {
    for (const Preference& preference : Preferences())
        EXPECT_EQ(preference.get(), preference.def) << preference.name;
}

TEST_F(PreferencesTest, WithoutAnApplicationReadsGiveDefaultsAndWritesDoNothing) {
    app.WriteProfileInt("Query", "MaxInQuery", 5);
    RApplication* current = RApplication::SetCurrent(nullptr);
    CAppEnv::SetMaxInQuery(77);
    CAppEnv::SetArrowKeyStepSize(3);
    for (const Preference& preference : Preferences())
        EXPECT_EQ(preference.get(), preference.def) << preference.name;
    RApplication::SetCurrent(current);
    EXPECT_EQ(CAppEnv::GetMaxInQuery(), 5);
    EXPECT_EQ(CAppEnv::GetArrowKeyStepSize(), 10);
}

struct RoundTrip {
    const char* section;
    const char* key;
    std::function<void()> set;
    std::function<long long()> get;
    unsigned stored;     // what the profile holds afterwards
    long long readBack;  // what the getter gives then
};

TEST_F(PreferencesTest, SettersStoreWhatGettersReadBack) {
    const RoundTrip cases[] = {
        {"Menus", "Style", [] { CAppEnv::SetMenuDisplayMethod(3); },
         [] { return CAppEnv::GetMenuDisplayMethod(); }, 3, 3},
        {"Move", "StepSize", [] { CAppEnv::SetArrowKeyStepSize(-4); },
         [] { return CAppEnv::GetArrowKeyStepSize(); }, static_cast<unsigned>(-4), -4},
        {"Query", "MaxInQuery", [] { CAppEnv::SetMaxInQuery(250); },
         [] { return CAppEnv::GetMaxInQuery(); }, 250, 250},
        // Flags are stored as 0 or 1 whatever nonzero value they are given.
        {"Query", "LimitItemsReturn", [] { CAppEnv::SetIsLimitedQuery(7); },
         [] { return CAppEnv::GetIsLimitedQuery(); }, 1, 1},
        {"Query", "LimitItemsReturn", [] { CAppEnv::SetIsLimitedQuery(0); },
         [] { return CAppEnv::GetIsLimitedQuery(); }, 0, 0},
        {"Menus", "OpenListAtStart", [] { CAppEnv::ExpandMenuItemsAtStartup(200); },
         [] { return CAppEnv::ExpandMenuItemsAtStartup(); }, 1, 1},
    };
    for (const RoundTrip& c : cases) {
        c.set();
        EXPECT_EQ(app.GetProfileInt(c.section, c.key, 12345), c.stored) << c.key;
        EXPECT_EQ(c.get(), c.readBack) << c.key;
    }
}

TEST_F(PreferencesTest, ThresholdsKeepTheLevelFirstInBothDirections) {
    CAppEnv::SetMenuThresholds(3, 150);
    EXPECT_EQ(app.GetProfileInt("Menus", "LevelThreshold", 0), 3u);
    EXPECT_EQ(app.GetProfileInt("Menus", "ItemsThreshold", 0), 150u);
    unsigned level = 0, items = 0;
    CAppEnv::GetMenuThresholds(level, items);
    EXPECT_EQ(level, 3u);
    EXPECT_EQ(items, 150u);
}

TEST_F(PreferencesTest, ReadOnlyValuesComeFromTheProfile) {
    app.WriteProfileInt("Submit", "CloseAfterSubmit", 2);
    app.WriteProfileInt("Network", "RPCTimeout Normal", 30);
    app.WriteProfileInt("Network", "RPCTimeout Long", 120);
    app.WriteProfileInt("Network", "RPCTimeout Extra Long", static_cast<int>(4000000000u));
    EXPECT_EQ(CAppEnv::GetCloseAfterSubmitAction(), 2);
    EXPECT_EQ(CAppEnv::GetRPCTimeoutNormal(), 30ul);
    EXPECT_EQ(CAppEnv::GetRPCTimeoutLong(), 120ul);
    EXPECT_EQ(CAppEnv::GetRPCTimeoutXLong(), 4000000000ul);
}

TEST_F(PreferencesTest, LimitedQueryIsTheLowByteOfTheStoredNumber) {
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
    app.WriteProfileInt("User", "ShowLangDLLNotFound", 0);
    EXPECT_EQ(CAppEnv::GetShouldShowLangDLLNotFound(), 0);

    CAppEnv::SetShouldShowLangDLLNotFound(9);
    EXPECT_EQ(Reg("ShowLangDLLNotFound"), "1");
    EXPECT_EQ(app.GetProfileInt("User", "ShowLangDLLNotFound", 7), 0u);  // not touched
    EXPECT_EQ(CAppEnv::GetShouldShowLangDLLNotFound(), 1);
}

std::vector<std::string> MacroPaths(const CGNString& homeFolder) {
    CGNStringList paths;
    paths.Add("stale");
    EXPECT_EQ(CAppEnv::GetMacroPathList(homeFolder, paths), 1);
    CGNStringList reports;
    EXPECT_EQ(CAppEnv::GetReportPathList(homeFolder, reports), 1);
    std::vector<std::string> result;
    for (const CGNString& path : paths)
        result.push_back(path.str());
    std::vector<std::string> reportPaths;
    for (const CGNString& path : reports)
        reportPaths.push_back(path.str());
    EXPECT_EQ(result, reportPaths);
    return result;
}

TEST_F(PreferencesTest, MacroPathsComeFromVXPathOrTheHomeCommandFolder) {
    const std::string homeFolder = Folder("ann");
    EXPECT_EQ(MacroPaths(homeFolder.c_str()),
              std::vector<std::string>{MakeFilePath(homeFolder.c_str(), "vxcmds").str()});

    app.WriteProfileString("User", "VXPath", "/srv/macros;;/opt/vx/cmds;");
    EXPECT_EQ(MacroPaths(homeFolder.c_str()),
              (std::vector<std::string>{"/srv/macros", "/opt/vx/cmds"}));

    app.WriteProfileString("User", "VXPath", ";");
    EXPECT_EQ(MacroPaths(homeFolder.c_str()),
              std::vector<std::string>{MakeFilePath(homeFolder.c_str(), "vxcmds").str()});
}

}  // namespace
