// Profile writes from several processes, and writers killed at random instants (POSIX).
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>
#include <unordered_set>
#include <vector>

#include "support/TempHome.h"
#include "vxutil/platform/ProfileFile.h"

namespace vx {
namespace {

namespace fs = std::filesystem;

// These tests are about locking and replacing, not about flushing to disk, which would make
// them slow: they use a memory file system when the machine has one.
class ProfileSafetyTest : public test::HomeTest {
protected:
    ProfileSafetyTest() {
        std::error_code error;
        const fs::path memory = fs::path("/dev/shm") / home.path().filename();
        if (fs::create_directory(memory, error)) m_folder = memory;
        path = ((m_folder.empty() ? home.path() : m_folder) / "test.ini").string();
    }
    ~ProfileSafetyTest() override {
        std::error_code error;
        if (!m_folder.empty()) fs::remove_all(m_folder, error);
    }

    bool Set(const std::string& key) const {
        return ProfileWriteString("S", key.c_str(), ("v" + key).c_str(), path.c_str());
    }
    std::string Bytes() const { return test::ReadBytes(path); }

    std::string path;

private:
    fs::path m_folder;
};

// The writers only ever add keys "<name>=v<name>" to section "S", so a whole file is exactly
// that header and such lines, and every confirmed key must be among them; a torn, cut or
// half-written file fails one of the checks.
void ExpectIntact(const std::string& bytes, const std::vector<std::string>& confirmed) {
    std::unordered_set<std::string> present;
    if (!bytes.empty()) {
        ASSERT_TRUE(bytes.starts_with("[S]\r\n")) << "file lost its start";
        ASSERT_TRUE(bytes.ends_with("\r\n")) << "file cut short";
        for (std::size_t at = 5; at < bytes.size();) {
            const std::size_t end = bytes.find("\r\n", at);
            const std::string line = bytes.substr(at, end - at);
            const std::size_t equals = line.find('=');
            ASSERT_NE(equals, std::string::npos) << line;
            ASSERT_EQ(line.substr(equals + 1), "v" + line.substr(0, equals)) << line;
            present.insert(line.substr(0, equals));
            at = end + 2;
        }
    }
    for (const std::string& key : confirmed)
        ASSERT_TRUE(present.count(key)) << "lost the confirmed write of " << key;
    ASSERT_LE(present.size(), confirmed.size() + 200) << "keys nobody wrote";
}

TEST_F(ProfileSafetyTest, TwoProcessesWritingAtOnceLoseNothing) {
    constexpr int kKeys = 500;
    std::vector<pid_t> children;
    std::vector<std::string> all;
    for (const std::string prefix : {"a", "b"}) {
        children.push_back(::fork());
        ASSERT_GE(children.back(), 0);
        if (children.back() == 0) {
            bool ok = true;
            for (int i = 0; i < kKeys; ++i)
                ok = Set(prefix + std::to_string(i)) && ok;
            ::_exit(ok ? 0 : 1);
        }
        for (int i = 0; i < kKeys; ++i)
            all.push_back(prefix + std::to_string(i));
    }
    for (pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    ExpectIntact(Bytes(), all);
    const std::string names = ProfileGetString("S", nullptr, "", path.c_str());
    EXPECT_EQ(std::count(names.begin(), names.end(), '\0'), 2 * kKeys) << "each key once";
}

// A child writes keys in a loop and reports each success through a pipe; it is killed after a
// random moment. Whatever the instant, the file must be whole and hold every reported key.
TEST_F(ProfileSafetyTest, WriterKilledAtAnyInstantLeavesAWholeFile) {
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> delayUs(0, 1000);
    std::vector<std::string> confirmed;
    auto keyName = [](int round, int i) {
        return "r" + std::to_string(round) + "k" + std::to_string(i);
    };
    for (int round = 0; round < 200; ++round) {
        int report[2];
        ASSERT_EQ(::pipe(report), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            ::close(report[0]);
            for (int i = 0;; ++i) {
                if (Set(keyName(round, i)) && ::write(report[1], &i, sizeof i) != sizeof i)
                    ::_exit(1);
            }
        }
        ::close(report[1]);
        ::usleep(static_cast<useconds_t>(delayUs(random)));
        ::kill(child, SIGKILL);
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);
        int done = 0;
        while (::read(report[0], &done, sizeof done) == sizeof done)
            confirmed.push_back(keyName(round, done));
        ::close(report[0]);
        ExpectIntact(Bytes(), confirmed);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(confirmed.size(), 20u) << "the writer was hardly ever given time to write";
}

}  // namespace
}  // namespace vx
