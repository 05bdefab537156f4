// The fixture of the CAppEnv tests: a fresh settings home (and registry on Windows), a current
// application object with its own profile, and access to the stores behind CAppEnv.
#pragma once

#include <string>

#include "support/TempHome.h"
#include "vxutil/platform/RApplication.h"

namespace vx::test {

class AppEnvTest : public HomeTest {
protected:
    AppEnvTest();
    ~AppEnvTest() override;

    // Values of the users key; "<absent>" when the value is not there.
    static std::string Reg(const std::string& name);
    static void SetReg(const std::string& name, const std::string& value);
    static void SetRegNumber(const std::string& name, int value);
    static void DeleteReg(const std::string& name);

    // A folder path inside the home (not created).
    std::string Folder(const std::string& name) const { return home.file(name); }
    // "User"/key of the folder's "vx.ini"; "<absent>" when not there.
    static std::string Remembered(const std::string& folder, const char* key);
    static void Remember(const std::string& folder, const char* key, const std::string& value);

    RApplication app{"AppEnvTest", "vxappenvtest"};

private:
    RApplication* m_previous;
};

}  // namespace vx::test
