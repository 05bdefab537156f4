#include <windows.h>

#include "runtime/files/FileSystem.h"

namespace vx {
namespace {

// Closes the search when the scope ends.
class Search {
public:
    Search(const std::string& pattern, WIN32_FIND_DATAA& data)
        : m_handle(::FindFirstFileA(pattern.c_str(), &data)) {}
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;
    ~Search() {
        if (valid()) ::FindClose(m_handle);
    }
    bool valid() const { return m_handle != INVALID_HANDLE_VALUE; }
    bool Next(WIN32_FIND_DATAA& data) { return ::FindNextFileA(m_handle, &data) != FALSE; }

private:
    HANDLE m_handle;
};

std::string Child(const std::string& folder, const std::string& name) {
    if (folder.empty() || IsSeparator(folder.back())) return folder + name;
    return folder + "\\" + name;
}

bool IsFolder(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

std::size_t DriveLength(std::string_view path) {
    if (path.size() >= 2 && path[1] == ':') return 2;
    if (path.size() < 2 || !IsSeparator(path[0]) || !IsSeparator(path[1])) return 0;
    // "\\server\share": both names belong to the root, which cannot be created.
    std::size_t end = 2;
    for (int names = 0; names < 2 && end < path.size(); ++names) {
        if (names > 0) ++end;
        while (end < path.size() && !IsSeparator(path[end]))
            ++end;
    }
    return end;
}

bool PathExists(const std::string& path) {
    return ::GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool MakeFolder(const std::string& path, void* security) {
    return ::CreateDirectoryA(path.c_str(), static_cast<LPSECURITY_ATTRIBUTES>(security)) ||
           (::GetLastError() == ERROR_ALREADY_EXISTS && IsFolder(path));
}

bool ListFolder(const std::string& folder, std::vector<FolderEntry>& entries) {
    WIN32_FIND_DATAA data;
    Search search(Child(folder, "*.*"), data);
    if (!search.valid()) return false;
    do {
        entries.push_back(
            {data.cFileName, (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
    } while (search.Next(data));
    return true;
}

bool CopyFileKeepingTarget(const std::string& source, const std::string& target) {
    return ::CopyFileA(source.c_str(), target.c_str(), TRUE) != FALSE;
}

bool StoredName(const std::string& folder, const std::string& name, std::string& stored) {
    // A search for the exact name reports the entry as the file system stores it.
    WIN32_FIND_DATAA data;
    Search search(Child(folder, name), data);
    if (!search.valid()) return false;
    stored = data.cFileName;
    return true;
}

}  // namespace vx
