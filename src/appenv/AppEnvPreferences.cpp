// Preferences kept in the running client tool's own profile, and the macro and report paths.
#include "appenv/AppEnvTrace.h"
#include "appenv/UserRegistry.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/appenv/SettingsLayout.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/platform/RApplication.h"

using namespace vx::appenv;
using namespace vx;

namespace {

// Without an application object there is no profile: reads give the default, writes do nothing.
unsigned ProfileInt(const char* section, const char* entry, int def) {
    const RApplication* app = RApplication::Current();
    return app != nullptr ? app->GetProfileInt(section, entry, def) : static_cast<unsigned>(def);
}

bool WriteProfileInt(const char* section, const char* entry, int value) {
    RApplication* app = RApplication::Current();
    return app != nullptr && app->WriteProfileInt(section, entry, value);
}

CGNString ProfileString(const char* section, const char* entry) {
    const RApplication* app = RApplication::Current();
    return app != nullptr ? app->GetProfileString(section, entry, "") : CGNString();
}

int AsStoredFlag(CAppEnv::flag value) {
    return value != 0 ? 1 : 0;
}

}  // namespace

CGNString vx::GetMacroPathSetting() {
    return ProfileString("User", "VXPath");
}

unsigned CAppEnv::GetMenuDisplayMethod() {
    AppEnvTrace trace("CAppEnv::GetMenuDisplayMethod");
    return ProfileInt("Menus", "Style", preference_default::kMenuStyle);
}

void CAppEnv::SetMenuDisplayMethod(unsigned method) {
    AppEnvTrace trace("CAppEnv::SetMenuDisplayMethod");
    WriteProfileInt("Menus", "Style", static_cast<int>(method));
}

void CAppEnv::GetMenuThresholds(unsigned& levelThreshold, unsigned& itemsThreshold) {
    AppEnvTrace trace("CAppEnv::GetMenuThresholds");
    itemsThreshold = ProfileInt("Menus", "ItemsThreshold", preference_default::kItemsThreshold);
    levelThreshold = ProfileInt("Menus", "LevelThreshold", preference_default::kLevelThreshold);
}

void CAppEnv::SetMenuThresholds(unsigned levelThreshold, unsigned itemsThreshold) {
    AppEnvTrace trace("CAppEnv::SetMenuThresholds");
    WriteProfileInt("Menus", "ItemsThreshold", static_cast<int>(itemsThreshold));
    WriteProfileInt("Menus", "LevelThreshold", static_cast<int>(levelThreshold));
}

int CAppEnv::GetArrowKeyStepSize() {
    AppEnvTrace trace("CAppEnv::GetArrowKeyStepSize");
    return static_cast<int>(ProfileInt("Move", "StepSize", preference_default::kStepSize));
}

void CAppEnv::SetArrowKeyStepSize(int stepSize) {
    AppEnvTrace trace("CAppEnv::SetArrowKeyStepSize");
    WriteProfileInt("Move", "StepSize", stepSize);
}

CAppEnv::flag CAppEnv::ExpandMenuItemsAtStartup() {
    AppEnvTrace trace("CAppEnv::ExpandMenuItemsAtStartup");
    return static_cast<flag>(
        ProfileInt("Menus", "OpenListAtStart", preference_default::kOpenListAtStart));
}

void CAppEnv::ExpandMenuItemsAtStartup(flag expand) {
    AppEnvTrace trace("CAppEnv::ExpandMenuItemsAtStartup");
    WriteProfileInt("Menus", "OpenListAtStart", AsStoredFlag(expand));
}

int CAppEnv::GetMaxInQuery() {
    AppEnvTrace trace("CAppEnv::GetMaxInQuery");
    return static_cast<int>(ProfileInt("Query", "MaxInQuery", preference_default::kMaxInQuery));
}

void CAppEnv::SetMaxInQuery(int maxInQuery) {
    AppEnvTrace trace("CAppEnv::SetMaxInQuery");
    WriteProfileInt("Query", "MaxInQuery", maxInQuery);
}

CAppEnv::flag CAppEnv::GetIsLimitedQuery() {
    AppEnvTrace trace("CAppEnv::GetIsLimitedQuery");
    return static_cast<flag>(
        ProfileInt("Query", "LimitItemsReturn", preference_default::kLimitItemsReturn));
}

void CAppEnv::SetIsLimitedQuery(flag limited) {
    AppEnvTrace trace("CAppEnv::SetIsLimitedQuery");
    WriteProfileInt("Query", "LimitItemsReturn", AsStoredFlag(limited));
}

int CAppEnv::GetCloseAfterSubmitAction() {
    AppEnvTrace trace("CAppEnv::GetCloseAfterSubmitAction");
    return static_cast<int>(
        ProfileInt("Submit", "CloseAfterSubmit", preference_default::kCloseAfterSubmit));
}

unsigned long CAppEnv::GetRPCTimeoutNormal() {
    AppEnvTrace trace("CAppEnv::GetRPCTimeoutNormal");
    return ProfileInt("Network", "RPCTimeout Normal", preference_default::kRpcTimeout);
}

unsigned long CAppEnv::GetRPCTimeoutLong() {
    AppEnvTrace trace("CAppEnv::GetRPCTimeoutLong");
    return ProfileInt("Network", "RPCTimeout Long", preference_default::kRpcTimeout);
}

unsigned long CAppEnv::GetRPCTimeoutXLong() {
    AppEnvTrace trace("CAppEnv::GetRPCTimeoutXLong");
    return ProfileInt("Network", "RPCTimeout Extra Long", preference_default::kRpcTimeout);
}

CAppEnv::flag CAppEnv::GetShouldShowLangDLLNotFound() {
    AppEnvTrace trace("CAppEnv::GetShouldShowLangDLLNotFound");
    long show = preference_default::kShowLangDllNotFound;
    if (ReadRegistryNumber(kShowLangDllValue, show, show)) return show != 0 ? 1 : 0;
    // Clients that cannot use the registry keep the switch in their own profile.
    return static_cast<flag>(
        ProfileInt("User", "ShowLangDLLNotFound", preference_default::kShowLangDllNotFound));
}

void CAppEnv::SetShouldShowLangDLLNotFound(flag show) {
    AppEnvTrace trace("CAppEnv::SetShouldShowLangDLLNotFound");
    const int stored = AsStoredFlag(show);
    if (!WriteRegistryNumber(kShowLangDllValue, stored))
        WriteProfileInt("User", "ShowLangDLLNotFound", stored);
}

CAppEnv::flag CAppEnv::GetMacroPathList(const CGNString& homeFolder, CGNStringList& paths) {
    AppEnvTrace trace("CAppEnv::GetMacroPathList");
    paths.RemoveAll();
    paths.Parse(vx::GetMacroPathSetting(), ';');
    if (paths.IsEmpty()) paths.Add(MakeFilePath(homeFolder, vx::kCommandFolderName));
    return 1;
}

CAppEnv::flag CAppEnv::GetReportPathList(const CGNString& homeFolder, CGNStringList& paths) {
    AppEnvTrace trace("CAppEnv::GetReportPathList");
    return GetMacroPathList(homeFolder, paths);
}
