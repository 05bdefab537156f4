// POSIX backend of the safe file writer.
//
// Locking scheme: writers lock the file itself with flock() and replace it by renaming a new
// file over it. A writer that waited for the lock may therefore hold the lock of a file that
// has meanwhile been replaced, and the path now names a newer file that nobody has locked.
// After taking the lock the writer checks that the path still names the very inode it locked
// and otherwise starts again on the new file. Only a writer that passed this check reads,
// edits and renames, and it keeps the lock until the rename is done, so at any moment at most
// one writer works on the file the path names and no change is lost.
#include "vxutil/platform/SafeFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/file/Folders.h"

namespace vx {
namespace {

// A file descriptor closed when it goes out of scope.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (m_fd >= 0) ::close(m_fd);
    }
    int get() const { return m_fd; }
    bool valid() const { return m_fd >= 0; }
    // Closes now, reporting whether the close (which may flush) succeeded.
    bool close() {
        const int fd = m_fd;
        m_fd = -1;
        return ::close(fd) == 0;
    }

private:
    int m_fd;
};

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

bool ReadAll(int fd, std::string& content) {
    content.clear();
    char chunk[65536];
    for (;;) {
        const ssize_t got = ::read(fd, chunk, sizeof chunk);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return false;
        if (got == 0) return true;
        content.append(chunk, static_cast<std::size_t>(got));
    }
}

bool WriteAll(int fd, const std::string& content) {
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t put = ::write(fd, content.data() + done, content.size() - done);
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) return false;
        done += static_cast<std::size_t>(put);
    }
    return true;
}

bool LockExclusive(int fd) {
    while (::flock(fd, LOCK_EX) != 0)
        if (errno != EINTR) return false;
    return true;
}

// Makes the rename itself durable: a rename lives in the folder, not in the file.
void FlushFolder(const std::string& path) {
    const std::string folder = ParentFolder(path);
    Descriptor dir(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (dir.valid()) ::fsync(dir.get());
}

// Writes `content` to a temporary file beside `path` and renames it over `path`. The
// temporary name is fixed: only the lock holder writes it, and one left behind by a writer
// that was killed is simply overwritten by the next.
bool ReplaceContent(const std::string& path, const std::string& content, const struct stat& old) {
    const std::string temporary = path + ".tmp";
    Descriptor out(
        ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!out.valid()) return false;
    // The new file keeps the old one's permissions and, when the writer may give files away
    // (an administrator editing a user's file), its owner.
    ::fchmod(out.get(), old.st_mode & 07777);
    [[maybe_unused]] const int ownerKept = ::fchown(out.get(), old.st_uid, old.st_gid);
    const bool written = WriteAll(out.get(), content) && ::fsync(out.get()) == 0 && out.close();
    if (!written || ::rename(temporary.c_str(), path.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    FlushFolder(path);
    return true;
}

// Opens `path` for the update, creating it when missing; `created` tells which happened.
int OpenOrCreate(const std::string& path, mode_t mode, bool& created) {
    created = false;
    for (;;) {
        int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (fd >= 0) {
            created = true;
            return fd;
        }
        if (errno != EEXIST) return -1;
        fd = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
        if (fd >= 0 || errno != ENOENT) return fd;
        // Removed between the two calls: try again.
    }
}

bool NamesSameFile(const std::string& path, const struct stat& held) {
    struct stat named {};
    return ::stat(path.c_str(), &named) == 0 && named.st_dev == held.st_dev &&
           named.st_ino == held.st_ino;
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
    Descriptor in(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!in.valid()) return errno == ENOENT || errno == ENOTDIR;
    struct stat info {};
    if (::fstat(in.get(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
    stamp = StampOf(info);
    return ReadAll(in.get(), content);
}

bool UpdateFile(const std::string& path, const std::function<bool(std::string&)>& edit,
                FileAccess access) {
    if (path.empty()) return false;
    const std::string folder = ParentFolder(path);
    if (!folder.empty() && !CreateFolderTree(folder)) return false;
    const mode_t mode = access == FileAccess::OwnerOnly ? 0600 : 0644;

    for (;;) {
        bool created = false;
        Descriptor file(OpenOrCreate(path, mode, created));
        if (!file.valid() || !LockExclusive(file.get())) return false;
        struct stat held {};
        if (::fstat(file.get(), &held) != 0 || !S_ISREG(held.st_mode)) return false;
        if (!NamesSameFile(path, held)) continue;  // replaced while we waited

        std::string content;
        if (!ReadAll(file.get(), content)) return false;
        if (!edit(content)) {
            // Leave no empty file behind for an edit that changed nothing. Writers that opened
            // it meanwhile notice that the path no longer names it and start again.
            if (created && held.st_size == 0) ::unlink(path.c_str());
            return true;
        }
        return ReplaceContent(path, content, held);
    }
}

}  // namespace vx
