// vxenv end to end: the built program run against a fresh settings home, its results read back
// through CAppEnv in this process.
#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"

#ifdef VXENV_PROGRAM
#include <sys/wait.h>
#endif

namespace {

struct Result {
    int status = -1;
    std::string out;
};

class VxenvTest : public vx::test::AppEnvTest {
protected:
    void SetUp() override {
#ifndef VXENV_PROGRAM
        GTEST_SKIP() << "vxenv is not runnable in this build";
#endif
    }

    // Runs vxenv with `arguments` (single-quoted words) on the test's home; standard error is
    // dropped, the exit status and standard output are returned.
    Result Run(const std::string& arguments) {
        Result result;
#ifdef VXENV_PROGRAM
        const std::string command = std::string("'") + VXENV_PROGRAM + "' --home '" +
                                    home.path().string() + "' --app vxappenvtest " + arguments +
                                    " 2>/dev/null";
        FILE* pipe = popen(command.c_str(), "r");
        if (pipe == nullptr) return result;
        char buffer[4096];
        for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
            result.out.append(buffer, got);
        const int status = pclose(pipe);
        result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#else
        (void)arguments;
#endif
        return result;
    }
};

TEST_F(VxenvTest, UsersCommandsChangeTheStoresCAppEnvReads) {
    const std::string ann = Folder("ann"), bob = Folder("bob");
    EXPECT_EQ(Run("users add ann '" + ann + "'").status, 0);
    EXPECT_EQ(Run("users add bob '" + bob + "'").status, 0);
    EXPECT_EQ(Run("users list").out, "1\tann\t" + ann + "\n2\tbob\t" + bob + "\n");

    CGNString folder;
    EXPECT_EQ(CAppEnv::FindHomeDirectory("bob", folder), 1);
    EXPECT_EQ(folder, bob.c_str());

    EXPECT_EQ(Run("users last bob").status, 0);
    EXPECT_EQ(Run("users delete ann").status, 0);
    EXPECT_EQ(Run("users last").out, "bob\n");
    EXPECT_EQ(Reg("LastUserLoggedIn"), "1");
    EXPECT_EQ(Run("--json users list").out,
              "[{\"slot\": 1, \"name\": \"bob\", \"home\": \"" + bob + "\"}]\n");

    EXPECT_EQ(Run("users delete ann").status, 1);
    EXPECT_EQ(Run("users add '' x").status, 2);
    EXPECT_EQ(Run("users frobnicate").status, 2);
}

TEST_F(VxenvTest, LoginIsRememberedAndShownMasked) {
    CAppEnv::AddUser("ann", Folder("ann").c_str());
    EXPECT_EQ(Run("login remember ann secret").status, 1);  // no default home folder yet
    EXPECT_EQ(Run("users default '" + Folder("default") + "'").status, 0);
    EXPECT_EQ(Run("login remember ann secret").status, 0);
    EXPECT_EQ(Run("login remember zed secret").status, 1);

    const Result shown = Run("login show");
    EXPECT_EQ(shown.status, 0);
    EXPECT_NE(shown.out.find("user: ann\npassword: ********\n"), std::string::npos) << shown.out;
    EXPECT_EQ(shown.out.find("secret"), std::string::npos);
    EXPECT_NE(Run("login show --show-password").out.find("password: secret\n"), std::string::npos);

    char user[vx::kNameBufferSize] = {};
    char password[vx::kNameBufferSize] = {};
    EXPECT_EQ(CAppEnv::GetLastUserAndPassword(user, password), 1);
    EXPECT_STREQ(user, "ann");
    EXPECT_STREQ(password, "secret");
}

TEST_F(VxenvTest, PreferencesAreSetInTheApplicationProfile) {
    EXPECT_EQ(Run("prefs set max-in-query 250").status, 0);
    EXPECT_EQ(Run("prefs set level-threshold 3").status, 0);
    EXPECT_EQ(CAppEnv::GetMaxInQuery(), 250);
    unsigned level = 0, items = 0;
    CAppEnv::GetMenuThresholds(level, items);
    EXPECT_EQ(level, 3u);
    EXPECT_EQ(items, 200u);

    const std::string listed = Run("prefs list").out;
    EXPECT_NE(listed.find("max-in-query\t250\n"), std::string::npos) << listed;
    EXPECT_NE(listed.find("step-size\t10\t(default)\n"), std::string::npos) << listed;

    EXPECT_EQ(Run("prefs set rpc-timeout-long 5").status, 1);
    EXPECT_EQ(Run("prefs set step-size 1x").status, 2);
    EXPECT_EQ(Run("prefs set limit-items-return 2").status, 2);
    EXPECT_EQ(Run("prefs get colour").status, 2);
    EXPECT_EQ(Run("paths macro /h").out, "/h/vxcmds\n");
}

TEST_F(VxenvTest, ServersAreWrittenAsFullRecordsAndListed) {
    const std::string ann = Folder("ann");
    CAppEnv::AddUser("ann", ann.c_str());
    CAppEnv::SetLastUserLoggedIn("ann");
    EXPECT_EQ(Run("servers list").status, 1);  // no server file yet
    EXPECT_EQ(Run("servers set ann main:vx,nt:2020,390600,2021 backup:off,vx spare:nt").status, 0);
    EXPECT_EQ(Run("servers list").out, "main\n");
    EXPECT_EQ(Run("servers list ann --notifier").out, "main\nspare\n");
    EXPECT_EQ(Run("--json servers list --all").out, "[\"main\", \"backup\", \"spare\"]\n");

    CAppEnv::flag disabled = 0, workflow = 0, notifier = 0;
    CGNString port, rpc, notifierPort;
    EXPECT_EQ(CAppEnv::GetServerAttributes(ann.c_str(), "main", disabled, workflow, notifier, port,
                                           rpc, notifierPort),
              1);
    EXPECT_EQ(port.str() + "/" + rpc.str() + "/" + notifierPort.str(), "2020/390600/2021");
    EXPECT_NE(Run("servers attrs ann backup").out.find("disabled: yes\n"), std::string::npos);

    EXPECT_EQ(Run("servers attrs ann nowhere").status, 1);
    EXPECT_EQ(Run("servers set ann main:vx:99999").status, 2);
    EXPECT_EQ(Run("servers set ann main:xx").status, 2);
    EXPECT_EQ(Run("servers set zed main").status, 1);
}

}  // namespace
