#include "vxutil/platform/SafeFile.h"

#include <filesystem>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "support/TempHome.h"

namespace vx {
namespace {

class SafeFileTest : public test::HomeTest {
protected:
    // Replaces the content with `content`.
    bool Put(const std::string& target, const std::string& content,
             FileAccess access = FileAccess::OwnerOnly) {
        return UpdateFile(
            target,
            [&](std::string& text) {
                text = content;
                return true;
            },
            access);
    }

    std::string path = home.file("store.txt");
};

TEST_F(SafeFileTest, EditSeesTheCurrentContentAndReplacesIt) {
    test::WriteBytes(path, "old");
    std::string seen;
    ASSERT_TRUE(UpdateFile(
        path,
        [&](std::string& text) {
            seen = text;
            text += "+new";
            return true;
        },
        FileAccess::Shared));
    EXPECT_EQ(seen, "old");
    EXPECT_EQ(test::ReadBytes(path), "old+new");
    EXPECT_FALSE(std::filesystem::exists(path + ".tmp"));
}

TEST_F(SafeFileTest, CreatesMissingFileAndFolders) {
    const std::string deep = (home.path() / "a" / "b" / "store.txt").string();
    ASSERT_TRUE(Put(deep, "content"));
    EXPECT_EQ(test::ReadBytes(deep), "content");
}

TEST_F(SafeFileTest, DecliningEditLeavesEverythingAsItWas) {
    auto decline = [](std::string&) { return false; };
    EXPECT_TRUE(UpdateFile(path, decline, FileAccess::OwnerOnly));
    EXPECT_FALSE(std::filesystem::exists(path)) << "no empty file left behind";

    test::WriteBytes(path, "kept");
    const FileStamp before = StatFile(path);
    EXPECT_TRUE(UpdateFile(path, decline, FileAccess::OwnerOnly));
    EXPECT_EQ(test::ReadBytes(path), "kept");
    EXPECT_EQ(StatFile(path), before);
}

TEST_F(SafeFileTest, ReadWholeFileTellsMissingFromUnreadable) {
    std::string content = "stale";
    FileStamp stamp;
    EXPECT_TRUE(ReadWholeFile(path, content, stamp));
    EXPECT_TRUE(content.empty());
    EXPECT_FALSE(stamp.exists);

    const std::string bytes("bin\0ary\xff", 8);
    test::WriteBytes(path, bytes);
    EXPECT_TRUE(ReadWholeFile(path, content, stamp));
    EXPECT_EQ(content, bytes);
    EXPECT_EQ(stamp, StatFile(path));
    EXPECT_EQ(stamp.size, 8u);

    EXPECT_FALSE(ReadWholeFile(home.path().string(), content, stamp)) << "a folder";
}

TEST_F(SafeFileTest, StampChangesWhenTheFileIsReplaced) {
    ASSERT_TRUE(Put(path, "one"));
    const FileStamp first = StatFile(path);
    ASSERT_TRUE(first.exists);
    ASSERT_TRUE(Put(path, "two"));  // same size: the new file is what tells
    EXPECT_NE(StatFile(path), first);
    EXPECT_FALSE(StatFile(home.file("missing")).exists);
}

TEST_F(SafeFileTest, FailsWhereNothingCanBeWritten) {
    test::WriteBytes(home.file("plain"), "a file, not a folder");
    EXPECT_FALSE(Put(home.file("plain") + "/store.txt", "x"));
    EXPECT_FALSE(Put("", "x"));
    EXPECT_EQ(test::ReadBytes(home.file("plain")), "a file, not a folder");
#ifdef __linux__
    // Not even root may create files here.
    EXPECT_FALSE(Put("/proc/vxutil-test/store.txt", "x"));
#endif
}

#ifndef _WIN32
mode_t ModeOf(const std::string& target) {
    struct stat info {};
    ::stat(target.c_str(), &info);
    return info.st_mode & 0777;
}

TEST_F(SafeFileTest, NewFilesGetTheirAccessAndRewritesKeepIt) {
    const mode_t oldMask = ::umask(022);
    ASSERT_TRUE(Put(path, "secret", FileAccess::OwnerOnly));
    EXPECT_EQ(ModeOf(path), 0600u);
    ASSERT_TRUE(Put(home.file("shared.txt"), "open", FileAccess::Shared));
    EXPECT_EQ(ModeOf(home.file("shared.txt")), 0644u);

    ::chmod(path.c_str(), 0640);
    ASSERT_TRUE(Put(path, "still secret", FileAccess::OwnerOnly));
    EXPECT_EQ(ModeOf(path), 0640u) << "the owner's choice stays";
    ::umask(oldMask);
}

// Two processes that read, change and write one file at once must not lose an update: each
// increments a counter, and the total must be the sum of both.
TEST_F(SafeFileTest, ConcurrentWritersLoseNoUpdate) {
    constexpr int kPerProcess = 100;
    auto increment = [&] {
        return UpdateFile(
            path,
            [](std::string& text) {
                text = std::to_string(text.empty() ? 1 : std::stoi(text) + 1);
                return true;
            },
            FileAccess::OwnerOnly);
    };
    pid_t children[2];
    for (pid_t& child : children) {
        child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            bool ok = true;
            for (int i = 0; i < kPerProcess; ++i)
                ok = increment() && ok;
            ::_exit(ok ? 0 : 1);
        }
    }
    for (pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    EXPECT_EQ(test::ReadBytes(path), std::to_string(2 * kPerProcess));
}
#endif

}  // namespace
}  // namespace vx
