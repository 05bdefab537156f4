#ifndef _WIN32

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <strings.h>
#include <cerrno>

#include "runtime/files/FileSystem.h"

namespace vx {
namespace {

// `name` with the letter case of every ASCII letter turned round.
std::string FlipCase(std::string name) {
    for (char& c : name) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        } else if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return name;
}

bool IsFolder(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

// Closes the descriptor when the scope ends.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (m_fd >= 0) ::close(m_fd);
    }
    int get() const { return m_fd; }
    bool Close() {
        const int fd = m_fd;
        m_fd = -1;
        return ::close(fd) == 0;
    }

private:
    int m_fd;
};

bool CopyBytes(int in, int out) {
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t got = ::read(in, buffer, sizeof buffer);
        if (got == 0) return true;
        if (got < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        for (ssize_t done = 0; done < got;) {
            const ssize_t put = ::write(out, buffer + done, static_cast<size_t>(got - done));
            if (put < 0 && errno != EINTR) return false;
            if (put > 0) done += put;
        }
    }
}

bool CopyLink(const std::string& source, const std::string& target) {
    char text[4096];
    const ssize_t length = ::readlink(source.c_str(), text, sizeof text - 1);
    if (length < 0) return false;
    text[length] = '\0';
    return ::symlink(text, target.c_str()) == 0;
}

bool CopyRegularFile(const std::string& source, const std::string& target) {
    // Non-blocking, so that a FIFO swapped in after the check cannot hang the copy.
    Descriptor in(::open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat info {};
    if (in.get() < 0 || ::fstat(in.get(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
    Descriptor out(
        ::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, info.st_mode & 07777));
    if (out.get() < 0) return false;  // an existing target is kept
    // The copy keeps the source's modification time, as CopyFileA does.
    const struct timespec times[2] = {info.st_atim, info.st_mtim};
    if (CopyBytes(in.get(), out.get()) && ::futimens(out.get(), times) == 0 && out.Close())
        return true;
    ::unlink(target.c_str());
    return false;
}

}  // namespace

bool IsSeparator(char c) {
    return c == '/';
}

std::size_t DriveLength(std::string_view) {
    return 0;
}

bool PathExists(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0;
}

bool MakeFolder(const std::string& path, void*) {
    return ::mkdir(path.c_str(), 0777) == 0 || (errno == EEXIST && IsFolder(path));
}

bool ListFolder(const std::string& folder, std::vector<FolderEntry>& entries) {
    DIR* dir = ::opendir(folder.c_str());
    if (dir == nullptr) return false;
    const int fd = ::dirfd(dir);
    while (const dirent* entry = ::readdir(dir)) {
        struct stat info {};
        const bool folderEntry =
            ::fstatat(fd, entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(info.st_mode);
        entries.push_back({entry->d_name, folderEntry});
    }
    ::closedir(dir);
    return true;
}

bool CopyFileKeepingTarget(const std::string& source, const std::string& target) {
    struct stat info {};
    if (::lstat(source.c_str(), &info) != 0) return false;
    if (S_ISLNK(info.st_mode)) return CopyLink(source, target);
    return S_ISREG(info.st_mode) && CopyRegularFile(source, target);
}

bool StoredName(const std::string& folder, const std::string& name, std::string& stored) {
    const auto inFolder = [&folder](const std::string& entry) {
        return !folder.empty() && folder.back() == '/' ? folder + entry : folder + '/' + entry;
    };
    // The usual case, without listing the folder: the exact name exists, and its case-flipped
    // spelling is another file or none, so the file system tells letter case apart and the
    // name is stored as given.
    struct stat exact {};
    if (::lstat(inFolder(name).c_str(), &exact) == 0) {
        const std::string flipped = FlipCase(name);
        struct stat other {};
        if (flipped == name || ::lstat(inFolder(flipped).c_str(), &other) != 0 ||
            other.st_dev != exact.st_dev || other.st_ino != exact.st_ino) {
            stored = name;
            return true;
        }
    }
    // Case-insensitive file systems (mounted FAT or SMB shares) store their own spelling.
    DIR* dir = ::opendir(folder.c_str());
    if (dir == nullptr) return false;
    bool found = false;
    while (const dirent* entry = ::readdir(dir)) {
        if (entry->d_name == name) {
            stored = name;
            found = true;
            break;
        }
        if (!found && ::strcasecmp(entry->d_name, name.c_str()) == 0) {
            stored = entry->d_name;
            found = true;
        }
    }
    ::closedir(dir);
    return found;
}

}  // namespace vx

#endif
