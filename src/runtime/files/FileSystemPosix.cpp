#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <strings.h>
#include <cerrno>

#include "platform/file/NativeFile.h"
#include "runtime/files/FileSystem.h"
#include "vxutil/gnrt/FilePath.h"

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

bool CopyBytes(NativeFile& in, NativeFile& out) {
    char buffer[64 * 1024];
    for (;;) {
        const long long got = in.Read(buffer, sizeof buffer);
        if (got <= 0) return got == 0;
        if (!out.WriteAll(std::string_view(buffer, static_cast<std::size_t>(got)))) return false;
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
    NativeFile in(::open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat info {};
    if (!in.valid() || ::fstat(in.get(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
    NativeFile out(
        ::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, info.st_mode & 07777));
    if (!out.valid()) return false;  // an existing target is kept
    // The copy keeps the source's modification time, as CopyFileA does.
    const struct timespec times[2] = {info.st_atim, info.st_mtim};
    if (CopyBytes(in, out) && ::futimens(out.get(), times) == 0 && out.Close()) return true;
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
        return MakeFilePath(folder.c_str(), entry.c_str()).str();
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
