// vxenv end to end: the built program run on the test's settings home, its results read back
// through CAppEnv in this process. Only where the build can run vxenv through a POSIX shell.
#ifdef VXENV_PROGRAM
#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"

namespace {

class VxenvTest : public vx::test::AppEnvTest {
protected:
    // Runs vxenv with `arguments` (shell words) and keeps its standard output and error; gives
    // the exit status, -1 when it did not exit normally.
    int Run(const std::string& arguments, std::string* out = nullptr, std::string* err = nullptr) {
        const std::string outFile = home.file("vxenv.out");
        const std::string errFile = home.file("vxenv.err");
        const int code = std::system(("'" VXENV_PROGRAM "' --home '" + home.path().string() +
                                      "' --app vxappenvtest " + arguments + " >'" + outFile +
                                      "' 2>'" + errFile + "'")
                                         .c_str());
        if (out != nullptr) *out = vx::test::ReadBytes(outFile);
        if (err != nullptr) *err = vx::test::ReadBytes(errFile);
        return WIFEXITED(code) ? WEXITSTATUS(code) : -1;
    }
    std::string Output(const std::string& arguments) {
        std::string out;
        Run(arguments, &out);
        return out;
    }
};

TEST_F(VxenvTest, UsersAndLogin) {
    const std::string ann = Folder("ann"), bob = Folder("bob");
    EXPECT_EQ(Run("users add ann '" + ann + "'"), 0);
    EXPECT_EQ(Run("users add bob '" + bob + "'"), 0);
    EXPECT_EQ(Output("users list"), "1\tann\t" + ann + "\n2\tbob\t" + bob + "\n");
    EXPECT_EQ(Run("users last bob"), 0);
    EXPECT_EQ(Run("users delete ann"), 0);
    EXPECT_EQ(Output("users last"), "bob\n");
    EXPECT_EQ(Output("--json users list"),
              "[{\"slot\": 1, \"name\": \"bob\", \"home\": \"" + bob + "\"}]\n");
    EXPECT_EQ(Run("users delete ann"), 1);
    EXPECT_EQ(Run("users add '' x"), 2);

    EXPECT_EQ(Run("login remember bob secret"), 1);  // no default home folder yet
    EXPECT_EQ(Run("users default '" + Folder("default") + "'"), 0);
    EXPECT_EQ(Run("login remember bob secret"), 0);
    EXPECT_EQ(Run("login remember zed secret"), 1);
    EXPECT_EQ(Output("login show").find("user: bob\npassword: ********\n"), 0u);
    EXPECT_NE(Output("login show --show-password").find("password: secret\n"), std::string::npos);
    char user[vx::kNameBufferSize] = {};
    char password[vx::kNameBufferSize] = {};
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 1);
    EXPECT_EQ(std::string(user) + "/" + password, "bob/secret");
}

TEST_F(VxenvTest, PreferencesPathsAndServers) {
    EXPECT_EQ(Run("prefs set max-in-query 250"), 0);
    EXPECT_EQ(CAppEnv::GetMaxInQuery(), 250);
    const std::string listed = Output("prefs list");
    EXPECT_NE(listed.find("max-in-query\t250\t\n"), std::string::npos) << listed;
    EXPECT_NE(listed.find("step-size\t10\t(default)\n"), std::string::npos) << listed;
    EXPECT_EQ(Run("prefs set rpc-timeout-long 5"), 1);
    EXPECT_EQ(Run("prefs set step-size 1x"), 2);
    EXPECT_EQ(Run("prefs get colour"), 2);
    EXPECT_EQ(Output("paths macro /h"), "/h/vxcmds\n");
    EXPECT_EQ(Run("paths macro"), 1);  // no last user, no default: no folder to name

    const std::string ann = Folder("ann");
    CAppEnv::AddUser("ann", ann.c_str());
    CAppEnv::SetLastUserLoggedIn("ann");
    EXPECT_EQ(Run("servers list"), 1);  // no server file yet
    EXPECT_EQ(Run("servers set ann main:vx,nt:2020,390600,2021 backup:off,vx spare:nt"), 0);
    EXPECT_EQ(Output("servers list"), "main\n");
    EXPECT_EQ(Output("servers list ann --notifier"), "main\nspare\n");
    EXPECT_EQ(Output("--json servers list --all"), "[\"main\", \"backup\", \"spare\"]\n");
    CAppEnv::flag disabled = 0, workflow = 0, notifier = 0;
    CGNString port, rpc;
    EXPECT_EQ(
        CAppEnv::GetServerAttributes(ann.c_str(), "main", disabled, workflow, notifier, port, rpc),
        1);
    EXPECT_EQ(port.str() + "/" + rpc.str(), "2020/390600");
    EXPECT_EQ(Output("servers attrs ann backup").find("disabled: yes\n"), 0u);
    EXPECT_EQ(Output("--json servers attrs ann backup"),
              "{\"server\": \"backup\", \"disabled\": true, \"workflow\": true, \"notifier\": "
              "false, \"tcp_port\": null, \"rpc\": null, \"notifier_tcp_port\": null}\n");
    EXPECT_NE(Output("--json servers attrs ann main").find("\"tcp_port\": 2020, \"rpc\": 390600, "),
              std::string::npos);
    EXPECT_EQ(Run("servers attrs ann nowhere"), 1);
    EXPECT_EQ(Run("servers set ann main:vx:99999"), 2);
    EXPECT_EQ(Run("servers set zed main"), 1);
    EXPECT_EQ(Run("servers set ann"), 2);  // would empty the server file
    EXPECT_EQ(Output("servers list ann"), "main\n");
}

// The output forms over stored settings (the command line itself is checked on every platform
// by vxenv_cli_test.sh).
TEST_F(VxenvTest, OutputFormsOfStoredSettings) {
    const std::string ann = Folder("ann");
    // A folder with a tab in it, and a macro path that an older client wrote in Latin-1.
    CAppEnv::AddUser("tab", (ann + "\tx").c_str());
    vx::test::WriteBytes(home.file("vxappenvtest.ini"), "[User]\nVXPath=/h/J\xf6rg\n");
    EXPECT_EQ(Run("users add -- --json /h/dash"), 0);
    EXPECT_EQ(Output("users list"), "1\ttab\t" + ann + "\\tx\n2\t--json\t/h/dash\n");
    EXPECT_EQ(Output("--json users list"),
              "[{\"slot\": 1, \"name\": \"tab\", \"home\": \"" + ann +
                  "\\tx\"}, {\"slot\": 2, \"name\": \"--json\", \"home\": \"/h/dash\"}]\n");
    EXPECT_EQ(Output("--json prefs get macro-path"),
              "{\"key\": \"macro-path\", \"value\": \"/h/J\xc3\xb6rg\", \"default\": false, "
              "\"read_only\": true}\n");
    EXPECT_EQ(Output("--json prefs get open-list-at-start"),
              "{\"key\": \"open-list-at-start\", \"value\": false, \"default\": true, "
              "\"read_only\": false}\n");
    EXPECT_EQ(Output("--json prefs get max-in-query"),
              "{\"key\": \"max-in-query\", \"value\": 1000, \"default\": true, \"read_only\": "
              "false}\n");
    const std::string missing = "/nonexistent-vx";
    EXPECT_EQ(Output("dirs validate --sep=, '/," + missing + "'"), "missing: " + missing + "\n");
}

TEST_F(VxenvTest, RefusedWritesFailWithTheFileAndTheCause) {
    const std::string ann = Folder("ann");
    ASSERT_EQ(Run("users add ann '" + ann + "'"), 0);
    ASSERT_EQ(Run("users default '" + Folder("default") + "'"), 0);
    ASSERT_EQ(Run("login remember ann old"), 0);
    std::string err;
    EXPECT_EQ(Run("login remember ann \"$(printf 'new\\npw')\"", nullptr, &err), 1);
    EXPECT_EQ(err, "vxenv: login remember: could not store the login: " + SettingsFile(ann) +
                       ": a name or value holds a line break or cannot be a key\n");
    EXPECT_EQ(Remembered(ann, "Password"), "old");

    // A home folder that is gone grows no new tree.
    ASSERT_EQ(Run("users add carl '" + home.file("gone/carl") + "'"), 0);
    EXPECT_EQ(Run("login remember carl pw", nullptr, &err), 1);
    EXPECT_NE(err.find("folder does not exist"), std::string::npos) << err;
    EXPECT_FALSE(std::filesystem::exists(home.file("gone")));

    // Setters without a result report through the exit status.
    std::filesystem::create_symlink(home.file("nowhere.ini"), home.file("vxappenvtest.ini"));
    EXPECT_EQ(Run("prefs set max-in-query 250", nullptr, &err), 1);
    EXPECT_NE(err.find("dangling symbolic link"), std::string::npos) << err;
}

}  // namespace
#endif
