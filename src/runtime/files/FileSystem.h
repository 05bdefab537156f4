// The file-system primitives behind the folder utilities, one backend per OS.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vx {

// '/' everywhere; '\' as well on Windows.
bool IsSeparator(char c);
// Length of the drive or share that starts `path` ("C:", "\\server\share"); 0 on POSIX.
std::size_t DriveLength(std::string_view path);

// True when `path` names something that exists; a trailing separator does not matter.
bool PathExists(const std::string& path);

// Creates one folder; true when it exists afterwards.
bool MakeFolder(const std::string& path, void* security);

struct FolderEntry {
    std::string name;
    bool isFolder;  // a real folder; on POSIX a link to one is not
};

// The entries of `folder`, "." and ".." included where the platform lists them; false when
// the listing cannot start.
bool ListFolder(const std::string& folder, std::vector<FolderEntry>& entries);

// Copies one file, never replacing an existing target; false on any failure, and then no
// partial target is left behind.
bool CopyFileKeepingTarget(const std::string& source, const std::string& target);

// The spelling stored on disk of the entry `name` of `folder`: the exact name when it exists,
// else one that differs in letter case only. False when there is none.
bool StoredName(const std::string& folder, const std::string& name, std::string& stored);

}  // namespace vx
