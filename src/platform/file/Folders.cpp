#include "platform/file/Folders.h"

#include <sys/stat.h>
#include <sys/types.h>

#ifdef _WIN32
#include <direct.h>
#endif

namespace vx {
namespace {

bool IsFolder(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool MakeFolder(const std::string& path) {
#ifdef _WIN32
    return ::_mkdir(path.c_str()) == 0;
#else
    return ::mkdir(path.c_str(), 0700) == 0;
#endif
}

// Length of the root at the start of `path` ("/", "\\", "C:\\", "C:"), 0 for a relative path.
std::size_t RootLength(const std::string& path) {
#ifdef _WIN32
    if (path.size() >= 2 && path[1] == ':')
        return path.size() >= 3 && IsPathSeparator(path[2]) ? 3 : 2;
#endif
    return !path.empty() && IsPathSeparator(path[0]) ? 1 : 0;
}

}  // namespace

bool IsPathSeparator(char c) {
#ifdef _WIN32
    return c == '/' || c == '\\';
#else
    return c == '/';
#endif
}

std::string ParentFolder(const std::string& path) {
    const std::size_t root = RootLength(path);
    std::size_t end = path.size();
    while (end > root && IsPathSeparator(path[end - 1]))
        --end;
    while (end > root && !IsPathSeparator(path[end - 1]))
        --end;
    while (end > root && IsPathSeparator(path[end - 1]))
        --end;
    return path.substr(0, end);
}

bool CreateFolderTree(const std::string& folder) {
    if (folder.empty()) return false;
    if (IsFolder(folder)) return true;
    const std::string parent = ParentFolder(folder);
    if (!parent.empty() && parent.size() < folder.size() && !CreateFolderTree(parent)) return false;
    // Another process may create the same folder at the same moment: what counts is that it
    // exists afterwards.
    return MakeFolder(folder) || IsFolder(folder);
}

}  // namespace vx
