#include "AppEnvTest.h"

#include "vxutil/gnrt/FilePath.h"
#include "vxutil/gnrt/OSConfigReg.h"
#include "vxutil/platform/LegacyProfile.h"
#include "vxutil/platform/ProfileFile.h"

namespace vx::test {
namespace {

constexpr const char* kUsersKey = "Korvel\\VXUser\\Users";
constexpr const char* kRoot = "SOFTWARE";

// The legacy profile is the system's own on Windows and is not redirected per test home.
void ClearLegacyUsers() {
    vx::LegacyProfileWriteString("VXUser", nullptr, nullptr);
}

std::string SettingsFile(const std::string& folder) {
    return MakeFilePath(folder.c_str(), "vx.ini").str();
}

}  // namespace

AppEnvTest::AppEnvTest() : m_previous(RApplication::SetCurrent(&app)) {
    ClearLegacyUsers();
}

AppEnvTest::~AppEnvTest() {
    RApplication::SetCurrent(m_previous);
    ClearLegacyUsers();
}

std::string AppEnvTest::Reg(const std::string& name) {
    CGNString value;
    if (OSGetSystemConfigReg(value, "", kUsersKey, name.c_str(), kRoot) <= 0) return "<absent>";
    return value.str();
}

void AppEnvTest::SetReg(const std::string& name, const std::string& value) {
    ASSERT_GT(OSSetSystemConfigReg(value.c_str(), kUsersKey, name.c_str(), kRoot), 0);
}

void AppEnvTest::SetRegNumber(const std::string& name, int value) {
    ASSERT_GT(OSSetSystemConfigReg(value, kUsersKey, name.c_str(), kRoot), 0);
}

void AppEnvTest::DeleteReg(const std::string& name) {
    OSDelSystemConfigReg(kUsersKey, name.c_str(), kRoot);
}

std::string AppEnvTest::Remembered(const std::string& folder, const char* key) {
    return vx::ProfileGetString("User", key, "<absent>", SettingsFile(folder).c_str());
}

void AppEnvTest::Remember(const std::string& folder, const char* key, const std::string& value) {
    ASSERT_TRUE(vx::ProfileWriteString("User", key, value.c_str(), SettingsFile(folder).c_str()));
}

}  // namespace vx::test
