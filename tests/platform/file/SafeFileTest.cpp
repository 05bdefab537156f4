#include "platform/file/SafeFile.h"

#include <filesystem>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "support/TempHome.h"

namespace vx {
namespace {

class SafeFileTest : public test::HomeTest {
protected:
    // Replaces the content with `content`.
    static bool Put(const std::string& target, const std::string& content,
                    FileAccess access = FileAccess::OwnerOnly) {
        return UpdateFile(
            target,
            [&](std::string& text, const FileStamp&) {
                text = content;
                return EditOutcome::Write;
            },
            access);
    }

    const std::string path = home.file("store.txt");
};

TEST_F(SafeFileTest, EditSeesTheCurrentContentAndReplacesIt) {
    EXPECT_FALSE(Put((home.path() / "new" / "x.txt").string(), "no folder is made"));
    EXPECT_FALSE(std::filesystem::exists(home.path() / "new"));
    test::WriteBytes(path, "old");
    std::string seen;
    const auto append = [&](std::string& text, const FileStamp&) {
        seen = text;
        text += "+new";
        return EditOutcome::Write;
    };
    ASSERT_TRUE(UpdateFile(path, append, FileAccess::Shared));
    EXPECT_EQ(seen, "old");
    EXPECT_EQ(test::ReadBytes(path), "old+new");
    // Nothing else is left beside the file but, on Windows, the lock file of its writers.
    for (const auto& entry : std::filesystem::directory_iterator(home.path()))
        EXPECT_TRUE(entry.path().string() == path || entry.path().string() == path + ".lock")
            << entry.path();
}

TEST_F(SafeFileTest, DecliningEditLeavesEverythingAsItWas) {
    const auto decline = [](std::string&, const FileStamp&) { return EditOutcome::Keep; };
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

}  // namespace
}  // namespace vx
