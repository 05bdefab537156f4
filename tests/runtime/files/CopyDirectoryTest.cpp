#include <filesystem>
#include <memory>

#include <gtest/gtest.h>

#include "files/FolderFixture.h"
#include "vxutil/runtime/RUtils.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#endif

namespace {

using vx::test::FolderTest;
using vx::test::ReadBytes;

// An entry of the source that cannot be read, for as long as the object lives: on Windows a
// file held open without sharing; on POSIX a socket, which cannot be opened even by root.
class UnreadableEntry {
public:
    explicit UnreadableEntry(const std::filesystem::path& path) {
#ifdef _WIN32
        m_handle = ::CreateFileA(path.string().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                 CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        EXPECT_NE(m_handle, INVALID_HANDLE_VALUE);
#else
        m_socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const std::string name = path.string();
        EXPECT_LT(name.size(), sizeof address.sun_path);
        std::strncpy(address.sun_path, name.c_str(), sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
#endif
    }
    ~UnreadableEntry() {
#ifdef _WIN32
        ::CloseHandle(m_handle);
#else
        ::close(m_socket);
#endif
    }

private:
#ifdef _WIN32
    HANDLE m_handle;
#else
    int m_socket;
#endif
};

class CopyTest : public FolderTest {
protected:
    CopyTest() {
        File("src/a.txt", "alpha");
        File("src/.hidden", "h");
        File("src/.hiddendir/x", "x");
        File("src/sub/b.txt", "beta");
        File("src/sub/deeper/c.txt", "gamma");
    }
    std::string Content(const std::string& relative) const {
        return ReadBytes(Path(relative).string());
    }
};

TEST_F(CopyTest, WithoutRecursionOnlyTheTopFilesAreCopied) {
    EXPECT_EQ(RCopyDirectory(At("src"), At("dst"), 0), 1);
    EXPECT_EQ(Content("dst/a.txt"), "alpha");
    EXPECT_FALSE(Exists("dst/sub"));
    EXPECT_FALSE(Exists("dst/.hidden"));
}

TEST_F(CopyTest, RecursionCopiesTheTreeButNoNameBeginningWithADot) {
    EXPECT_EQ(RCopyDirectory(At("src"), At("new/dst"), 1), 1);
    EXPECT_EQ(Content("new/dst/a.txt"), "alpha");
    EXPECT_EQ(Content("new/dst/sub/b.txt"), "beta");
    EXPECT_EQ(Content("new/dst/sub/deeper/c.txt"), "gamma");
    EXPECT_FALSE(Exists("new/dst/.hidden"));
    EXPECT_FALSE(Exists("new/dst/.hiddendir"));
    EXPECT_EQ(std::filesystem::last_write_time(Path("new/dst/a.txt")),
              std::filesystem::last_write_time(Path("src/a.txt")));
}

TEST_F(CopyTest, ExistingTargetFilesAreKeptAndTheRestIsCopied) {
    File("dst/a.txt", "keep me");
    File("dst/sub/b.txt", "keep me too");
    EXPECT_EQ(RCopyDirectory(At("src"), At("dst"), 1), 0);
    EXPECT_EQ(Content("dst/a.txt"), "keep me");
    EXPECT_EQ(Content("dst/sub/b.txt"), "keep me too");
    EXPECT_EQ(Content("dst/sub/deeper/c.txt"), "gamma");
}

TEST_F(CopyTest, UnreadableEntryFailsTheCopyButNotTheOtherEntries) {
    UnreadableEntry unreadable(Path("src/sub/locked"));
    EXPECT_EQ(RCopyDirectory(At("src"), At("dst"), 1), 0);
    EXPECT_FALSE(Exists("dst/sub/locked"));
    EXPECT_EQ(Content("dst/a.txt"), "alpha");
    EXPECT_EQ(Content("dst/sub/deeper/c.txt"), "gamma");
}

TEST_F(CopyTest, MissingSourceCopiesNothing) {
    EXPECT_EQ(RCopyDirectory(At("missing"), At("dst"), 1), 0);
    EXPECT_FALSE(Exists("dst"));
}

#ifndef _WIN32
TEST_F(CopyTest, LinksAreCopiedAsLinks) {
    // A link to a folder above would otherwise make the copy go round for ever.
    std::filesystem::create_symlink("..", Path("src/sub/up"));
    std::filesystem::create_symlink("a.txt", Path("src/link"));
    EXPECT_EQ(RCopyDirectory(At("src"), At("dst"), 1), 1);
    EXPECT_EQ(std::filesystem::read_symlink(Path("dst/sub/up")), "..");
    EXPECT_EQ(std::filesystem::read_symlink(Path("dst/link")), "a.txt");
}
#endif

TEST_F(FolderTest, DiskCaseSpellsExistingComponentsAsStored) {
    File("MixedCase/Inner/file");
    // The path as given when it does not exist.
    const CGNString missing = At("MixedCase/nothing here");
    EXPECT_EQ(RGetDiskCaseOfDirectory(missing), missing);
    EXPECT_EQ(RGetDiskCaseOfDirectory(At("MixedCase/Inner")), At("MixedCase/Inner"));
    EXPECT_EQ(RGetDiskCaseOfDirectory(At("MixedCase/Inner/../Inner")),
              At("MixedCase/Inner/../Inner"));
#ifdef _WIN32
    // Windows finds entries whatever the letter case, and takes '/' for a separator.
    const std::string base = RGetDiskCaseOfDirectory(CGNString(home.path().string())).str();
    EXPECT_EQ(RGetDiskCaseOfDirectory(base + "/mixedcase/INNER").str(),
              base + "\\MixedCase\\Inner");
#endif
}

}  // namespace
