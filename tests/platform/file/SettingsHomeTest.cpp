#include "vxutil/platform/SettingsHome.h"

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "support/TempHome.h"

namespace vx {
namespace {

// Sets, or with nullopt removes, an environment variable for the lifetime of the object.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const std::optional<std::string>& value) : m_name(name) {
        if (const char* old = std::getenv(name)) m_old = old;
        Set(value);
    }
    ~ScopedEnv() { Set(m_old); }

private:
    void Set(const std::optional<std::string>& value) const {
#ifdef _WIN32
        _putenv_s(m_name, value ? value->c_str() : "");
#else
        if (value)
            setenv(m_name, value->c_str(), 1);
        else
            unsetenv(m_name);
#endif
    }
    const char* m_name;
    std::optional<std::string> m_old;
};

using SettingsHomeTest = test::HomeTest;

#ifndef _WIN32
TEST_F(SettingsHomeTest, FollowsTheEnvironmentInOrder) {
    struct Case {
        std::optional<std::string> vxHome, xdgHome, userHome;
        std::string expected;
    } cases[] = {
        {"/srv/vx", "/x/config", "/home/u", "/srv/vx"},
        {"/srv/vx//", "/x/config", "/home/u", "/srv/vx"},
        {"", "/x/config", "/home/u", "/x/config/korvel"},
        {std::nullopt, "/x/config", "/home/u", "/x/config/korvel"},
        // A relative XDG_CONFIG_HOME is invalid and ignored.
        {std::nullopt, "relative/config", "/home/u", "/home/u/.config/korvel"},
        {std::nullopt, std::nullopt, "/home/u", "/home/u/.config/korvel"},
    };
    for (const Case& c : cases) {
        ScopedEnv vx("VX_CONFIG_HOME", c.vxHome);
        ScopedEnv xdg("XDG_CONFIG_HOME", c.xdgHome);
        ScopedEnv user("HOME", c.userHome);
        EXPECT_EQ(SettingsHome(), c.expected) << c.vxHome.value_or("(unset)");
    }
}
#else
TEST_F(SettingsHomeTest, FallsBackToTheWindowsFolder) {
    ScopedEnv vx("VX_CONFIG_HOME", std::nullopt);
    ASSERT_NE(std::getenv("WINDIR"), nullptr);
    EXPECT_EQ(SettingsHome(), std::getenv("WINDIR"));
}
#endif

TEST_F(SettingsHomeTest, BareNamesResolveIntoTheHome) {
    EXPECT_EQ(SettingsHome(), home.path().string());
    EXPECT_EQ(ResolveSettingsFile("vx.ini"), home.file("vx.ini"));
    EXPECT_EQ(ResolveSettingsFile(""), "");
    std::vector<std::string> asGiven = {"sub/vx.ini", "/etc/vx.ini", home.file("x.ini")};
#ifdef _WIN32
    asGiven.insert(asGiven.end(), {"C:vx.ini", "sub\\vx.ini"});
#endif
    for (const std::string& path : asGiven)
        EXPECT_EQ(ResolveSettingsFile(path), path);
}

TEST_F(SettingsHomeTest, EnsureCreatesMissingFoldersForTheOwnerOnly) {
    const auto nested = home.path() / "a" / "b";
    ScopedEnv vx("VX_CONFIG_HOME", nested.string());
    ASSERT_TRUE(EnsureSettingsHome());
    EXPECT_TRUE(std::filesystem::is_directory(nested));
    EXPECT_TRUE(EnsureSettingsHome());  // and again, when it is there
#ifndef _WIN32
    struct stat info {};
    ASSERT_EQ(::stat(nested.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700u);
#endif
}

}  // namespace
}  // namespace vx
