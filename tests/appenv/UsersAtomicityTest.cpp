// Users changed by several threads and processes at once, and by processes killed at any
// instant: every operation is one unit, so each user keeps its own folder and no user is lost
// or listed twice. The threads run on every system (on Windows they meet at the key's mutex).
#ifndef _WIN32
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <chrono>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "AppEnvTest.h"
#include "vxutil/appenv/CAppEnv.h"

namespace {

using Users = std::map<std::string, std::string>;  // name -> folder

// Every user's folder is "/h/<name as first added>"; a renamed user carries "-r" on its name.
std::string FolderOf(const std::string& name) {
    return "/h/" + (name.ends_with("-r") ? name.substr(0, name.size() - 2) : name);
}

class UsersAtomicityTest : public vx::test::AppEnvTest {
protected:
    // The slots as stored, checked on the way: no gap, no name twice, every folder its user's.
    Users Stored(std::string& lastUser) {
        Users users;
        std::map<int, std::string> slots;
        for (int n = 1; Reg("USER" + std::to_string(n)) != "<absent>"; ++n) {
            const std::string name = Reg("USER" + std::to_string(n));
            EXPECT_EQ(Reg("VXPATH" + std::to_string(n)), FolderOf(name)) << "slot " << n;
            EXPECT_TRUE(users.emplace(name, FolderOf(name)).second) << name << " twice";
            slots[n] = name;
        }
        const std::string last = Reg("LastUserLoggedIn");
        lastUser = last == "<absent>" || last == "-1" ? "" : slots[std::stoi(last)];
        return users;
    }

    // Adds users "<prefix>0" ... "<prefix>19", deleting every odd one once the next is added;
    // false when an operation fails. Users "<prefix>" + even numbers remain.
    static bool AddAndDelete(const std::string& prefix) {
        for (int i = 0; i < 20; ++i) {
            const std::string name = prefix + std::to_string(i);
            if (!CAppEnv::AddUser(name.c_str(), FolderOf(name).c_str())) return false;
            const std::string previous = prefix + std::to_string(i - 1);
            if (i % 2 == 0 && i > 0 && !CAppEnv::DeleteUser(previous.c_str())) return false;
        }
        return CAppEnv::DeleteUser((prefix + "19").c_str()) != 0;
    }

    static std::set<std::string> Remaining(const std::string& prefix) {
        std::set<std::string> names;
        for (int i = 0; i < 20; i += 2)
            names.insert(prefix + std::to_string(i));
        return names;
    }

    // The stored names that start with `prefix`.
    std::set<std::string> StoredWith(const std::string& prefix) {
        std::string last;
        std::set<std::string> names;
        for (const auto& [name, folder] : Stored(last))
            if (name.starts_with(prefix)) names.insert(name);
        return names;
    }

#ifndef _WIN32
    // Runs `work` in a child process and waits for it, killing it after `killAfter` when given.
    static void InChild(const std::function<void()>& work,
                        std::chrono::microseconds killAfter = std::chrono::microseconds::max()) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            work();
            ::_exit(0);
        }
        if (killAfter != std::chrono::microseconds::max()) {
            ::usleep(static_cast<useconds_t>(killAfter.count()));
            ::kill(child, SIGKILL);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
    }
#endif
};

TEST_F(UsersAtomicityTest, ThreadsAddingAndDeletingAtOnceEndWithTheExactSet) {
    std::set<std::string> expected;
    std::vector<std::thread> threads;
    bool failed[4] = {};
    for (int t = 0; t < 4; ++t) {
        const std::string prefix = "t" + std::to_string(t) + "-";
        const auto remaining = Remaining(prefix);
        expected.insert(remaining.begin(), remaining.end());
        threads.emplace_back([prefix, &failed, t] { failed[t] = !AddAndDelete(prefix); });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const bool threadFailed : failed)
        EXPECT_FALSE(threadFailed);
    EXPECT_EQ(StoredWith("t"), expected);
}

#ifndef _WIN32

TEST_F(UsersAtomicityTest, AWriterKilledAtAnyInstantLeavesTheUsersBeforeOrAfter) {
    for (int n = 0; n < 12; ++n) {
        const std::string name = "u" + std::to_string(n);
        ASSERT_EQ(CAppEnv::AddUser(name.c_str(), FolderOf(name).c_str()), 1);
    }
    ASSERT_EQ(CAppEnv::SetLastUserLoggedIn("u11"), 1);
    std::mt19937 random(12);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    for (int round = 0; round < 300 && std::chrono::steady_clock::now() < deadline; ++round) {
        std::string last;
        const Users before = Stored(last);
        ASSERT_FALSE(before.empty());
        auto pick = before.begin();
        std::advance(pick, random() % before.size());
        const std::string victim = pick->first;
        const std::string added = "a" + std::to_string(round);

        Users after = before;
        std::function<void()> work;
        switch (random() % 3) {
            case 0:
                after.emplace(added, FolderOf(added));
                work = [&] { CAppEnv::AddUser(added.c_str(), FolderOf(added).c_str()); };
                break;
            case 1:
                after.erase(victim);
                work = [&] { CAppEnv::DeleteUser(victim.c_str()); };
                break;
            default: {
                const std::string renamed =
                    victim.ends_with("-r") ? victim.substr(0, victim.size() - 2) : victim + "-r";
                after.erase(victim);
                after.emplace(renamed, FolderOf(renamed));
                work = [&, renamed] { CAppEnv::RenameUser(victim.c_str(), renamed.c_str()); };
            }
        }
        InChild(work, std::chrono::microseconds(random() % 4000));

        std::string lastNow;
        const Users now = Stored(lastNow);
        EXPECT_TRUE(now == before || now == after) << "round " << round;
        if (now.contains(last)) EXPECT_EQ(lastNow, last) << "round " << round;
        if (::testing::Test::HasFailure()) break;
        // Keep the list from running dry or growing without end.
        if (now.size() < 6) CAppEnv::AddUser(added.c_str(), FolderOf(added).c_str());
        if (now.size() > 20) CAppEnv::DeleteUser(now.begin()->first.c_str());
    }
}

TEST_F(UsersAtomicityTest, ProcessesAddingAndDeletingAtOnceEndWithTheExactSet) {
    for (const int processes : {2, 4}) {
        SCOPED_TRACE(processes);
        const std::string run = "p" + std::to_string(processes) + "-";
        std::set<std::string> expected;
        std::vector<pid_t> children;
        for (int p = 0; p < processes; ++p) {
            const std::string prefix = run + std::to_string(p) + "-";
            const auto remaining = Remaining(prefix);
            expected.insert(remaining.begin(), remaining.end());
            const pid_t child = ::fork();
            ASSERT_GE(child, 0);
            if (child == 0) ::_exit(AddAndDelete(prefix) ? 0 : 1);
            children.push_back(child);
        }
        for (const pid_t child : children) {
            int status = 0;
            ::waitpid(child, &status, 0);
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        }
        EXPECT_EQ(StoredWith(run), expected);
    }
}

#endif

}  // namespace
