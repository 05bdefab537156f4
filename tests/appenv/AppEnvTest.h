// The fixture of the CAppEnv tests: a fresh settings home (and registry on Windows), a current
// application object with its own profile, and access to the stores behind CAppEnv.
#pragma once

#include <filesystem>
#include <string>

#include "support/TempHome.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/gnrt/OSConfigReg.h"
#include "vxutil/platform/LegacyProfile.h"
#include "vxutil/platform/ProfileFile.h"
#include "vxutil/platform/RApplication.h"

namespace vx::test {

class AppEnvTest : public HomeTest {
protected:
    // The legacy profile is the system's own on Windows and is not redirected per test home.
    AppEnvTest() { Legacy(nullptr, nullptr); }
    ~AppEnvTest() override {
        RApplication::SetCurrent(m_previous);
        Legacy(nullptr, nullptr);
    }

    // Writes "VXUser"/key of the legacy profile; a null key clears the section.
    static void Legacy(const char* key, const char* value) {
        LegacyProfileWriteString("VXUser", key, value);
    }

    // Values of the users key; "<absent>" when the value is not there.
    static std::string Reg(const std::string& name) {
        CGNString value;
        return OSGetSystemConfigReg(value, "", kUsersKey, name.c_str(), kRoot) > 0 ? value.str()
                                                                                   : "<absent>";
    }
    static void SetReg(const std::string& name, const std::string& value) {
        ASSERT_GT(OSSetSystemConfigReg(value.c_str(), kUsersKey, name.c_str(), kRoot), 0);
    }
    static void SetRegNumber(const std::string& name, int value) {
        ASSERT_GT(OSSetSystemConfigReg(value, kUsersKey, name.c_str(), kRoot), 0);
    }
    static void DeleteReg(const std::string& name) {
        OSDelSystemConfigReg(kUsersKey, name.c_str(), kRoot);
    }

    // A folder inside the home, created: the stores write into existing folders only.
    std::string Folder(const std::string& name) const {
        std::filesystem::create_directories(home.file(name));
        return home.file(name);
    }
    // "User"/key of the folder's "vx.ini"; "<absent>" when not there.
    static std::string Remembered(const std::string& folder, const char* key) {
        return ProfileGetString("User", key, "<absent>", SettingsFile(folder).c_str());
    }
    static void Remember(const std::string& folder, const char* key, const std::string& value) {
        ASSERT_TRUE(ProfileWriteString("User", key, value.c_str(), SettingsFile(folder).c_str()));
    }
    static std::string SettingsFile(const std::string& folder) {
        return MakeFilePath(folder.c_str(), "vx.ini").str();
    }

    RApplication app{"AppEnvTest", "vxappenvtest"};

private:
    static constexpr const char* kUsersKey = "Korvel\\VXUser\\Users";
    static constexpr const char* kRoot = "SOFTWARE";
    RApplication* m_previous = RApplication::SetCurrent(&app);
};

}  // namespace vx::test
