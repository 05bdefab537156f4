// POSIX backend of the safe file writer.
//
// Locking scheme: writers lock the file itself with flock() and replace it by renaming a new
// file over it. A writer that waited for the lock may therefore hold the lock of a file that
// has meanwhile been replaced, and the path now names a newer file that nobody has locked.
// After taking the lock the writer checks that the path still names the very inode it locked
// and otherwise starts again on the new file. Only a writer that passed this check reads,
// edits and renames, and it keeps the lock until the rename is done, so at any moment at most
// one writer works on the file the path names and no change is lost.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "platform/file/Folders.h"
#include "platform/file/NativeFile.h"
#include "platform/file/SafeFile.h"
#include "platform/file/StoreFailure.h"
#include "vxutil/gnrt/FilePath.h"

namespace vx {
namespace {

// Links followed before a path counts as a loop, as the kernel's own limit.
constexpr int kMaxLinks = 40;
// Rounds of "replaced while we waited for the lock" before giving up; each needs another
// writer to finish a whole write, so reaching it means the file is being swapped wildly.
constexpr int kMaxAttempts = 1000;

FileStamp StampOf(const struct stat& info) {
    FileStamp stamp;
    stamp.exists = true;
    stamp.device = static_cast<std::uint64_t>(info.st_dev);
    stamp.inode = static_cast<std::uint64_t>(info.st_ino);
    stamp.size = static_cast<std::uint64_t>(info.st_size);
    stamp.modifiedNs =
        static_cast<std::int64_t>(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec;
    return stamp;
}

bool SystemFailure(const std::string& path) {
    return StoreFailure(path, LastSystemErrorText());
}

bool LockExclusive(int fd) {
    while (::flock(fd, LOCK_EX) != 0)
        if (errno != EINTR) return false;
    return true;
}

// The file that `path` finally names: links are followed to their target, which may not exist
// yet only when `path` itself is no link.
bool FollowLinks(const std::string& path, std::string& target) {
    target = path;
    for (int hop = 0; hop <= kMaxLinks; ++hop) {
        struct stat info {};
        if (::lstat(target.c_str(), &info) != 0) {
            if (errno != ENOENT || hop == 0) return errno == ENOENT || SystemFailure(path);
            return StoreFailure(path,
                                "is a dangling symbolic link (" + target + " does not exist)");
        }
        if (!S_ISLNK(info.st_mode)) return true;
        std::string link(static_cast<std::size_t>(info.st_size) + 1, '\0');
        const ssize_t length = ::readlink(target.c_str(), link.data(), link.size());
        if (length < 0 || static_cast<std::size_t>(length) >= link.size())
            return SystemFailure(path);
        link.resize(static_cast<std::size_t>(length));
        target =
            link.front() == '/' ? link : MakeFilePath(ParentFolder(target).c_str(), link).str();
    }
    return StoreFailure(path, "has too many levels of symbolic links");
}

// Opens the file, creating it when missing; `created` tells which happened. -1 with errno set
// when neither works; EAGAIN when another process swapped it in between (try again).
int OpenOrCreate(const std::string& target, mode_t mode, bool& created) {
    created = false;
    const int fd = ::open(target.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
    if (fd >= 0 || errno != ENOENT) return fd;
    created = true;
    const int made =
        ::open(target.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    if (made < 0 && errno == EEXIST) errno = EAGAIN;
    return made;
}

bool NamesSameFile(const std::string& path, const struct stat& held) {
    struct stat named {};
    return ::lstat(path.c_str(), &named) == 0 && named.st_dev == held.st_dev &&
           named.st_ino == held.st_ino;
}

// Makes the rename itself durable: a rename lives in the folder, not in the file.
void FlushFolder(const std::string& path) {
    const std::string folder = ParentFolder(path);
    NativeFile dir(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (dir.valid()) ::fsync(dir.get());
}

// Writes `content` to a new temporary file beside `target` and renames it over `target`.
bool ReplaceContent(const std::string& path, const std::string& target, const std::string& content,
                    const struct stat& old, FileAccess access, FileStamp* written) {
    std::string temporary = target + ".tmp-XXXXXX";
    NativeFile out(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!out.valid()) return SystemFailure(path);
    // A file that may hold a password becomes the owner's alone, whatever it allowed before;
    // a shared one keeps its mode. Both keep their owner when the writer may give files away
    // (an administrator editing a user's file).
    const mode_t mode = access == FileAccess::OwnerOnly ? 0600 : old.st_mode & 07777;
    struct stat fresh {};
    const bool done = ::fchmod(out.get(), mode) == 0 && out.WriteAll(content) &&
                      ::fsync(out.get()) == 0 && ::fstat(out.get(), &fresh) == 0;
    [[maybe_unused]] const int ownerKept = ::fchown(out.get(), old.st_uid, old.st_gid);
    if (!done || !out.Close() || ::rename(temporary.c_str(), target.c_str()) != 0) {
        SystemFailure(path);
        ::unlink(temporary.c_str());
        return false;
    }
    FlushFolder(target);
    if (written) *written = StampOf(fresh);
    return true;
}

}  // namespace

FileStamp StatFile(const std::string& path) {
    struct stat info {};
    if (path.empty() || ::stat(path.c_str(), &info) != 0) return {};
    return StampOf(info);
}

bool ReadWholeFile(const std::string& path, std::string& content, FileStamp& stamp) {
    content.clear();
    stamp = {};
    // Non-blocking, so that a pipe or device put where a file belongs cannot hang the reader.
    NativeFile in(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!in.valid()) return errno == ENOENT || errno == ENOTDIR;
    struct stat info {};
    if (::fstat(in.get(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
    stamp = StampOf(info);
    return in.ReadAll(content);
}

bool UpdateFile(const std::string& path,
                const std::function<EditOutcome(std::string&, const FileStamp&)>& edit,
                FileAccess access, FileStamp* written) {
    if (path.empty()) return StoreFailure(path, "no file name");
    std::string target;
    if (!FollowLinks(path, target)) return false;
    const mode_t mode = access == FileAccess::OwnerOnly ? 0600 : 0644;

    for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
        bool created = false;
        NativeFile file(OpenOrCreate(target, mode, created));
        if (!file.valid() && errno == EAGAIN) continue;
        if (!file.valid() && created && errno == ENOENT)
            return StoreFailure(path, "its folder does not exist");
        if (!file.valid()) return SystemFailure(path);
        if (!LockExclusive(file.get())) return SystemFailure(path);
        struct stat held {};
        if (::fstat(file.get(), &held) != 0) return SystemFailure(path);
        if (!S_ISREG(held.st_mode)) return StoreFailure(path, "is not a regular file");
        if (!NamesSameFile(target, held)) continue;  // replaced while we waited

        std::string content;
        if (!file.ReadAll(content)) return SystemFailure(path);
        const EditOutcome outcome = edit(content, StampOf(held));
        if (outcome != EditOutcome::Write) {
            // Leave no empty file behind for an edit that changed nothing. Writers that opened
            // it meanwhile notice that the path no longer names it and start again.
            if (created && held.st_size == 0) ::unlink(target.c_str());
            return outcome == EditOutcome::Keep;
        }
        return ReplaceContent(path, target, content, held, access, written);
    }
    return StoreFailure(path, "was replaced too often while waiting for its lock");
}

}  // namespace vx
