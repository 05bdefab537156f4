// Crash-safe, concurrency-safe replacement of small text files.
//
// A writer takes an exclusive advisory lock on the file (on Windows, which cannot rename over an
// open file, on a companion file "<file>.lock"), reads its current content, applies one
// change, writes the result to a temporary file "<file>.tmp" in the same folder, flushes it
// and renames it over the old file. A writer killed at any instant therefore leaves the old or the
// new file, never a torn one, and two processes writing at once never lose each other's changes.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "vxutil/export.h"

namespace vx {

// Identity of a file's content on disk, to tell whether a cached parse is still current.
struct FileStamp {
    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;  // file index on Windows
    std::uint64_t size = 0;
    std::int64_t modifiedNs = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

VXUTIL_API FileStamp StatFile(const std::string& path);

// Reads the whole file. A missing file gives true with empty content and stamp.exists false;
// an unreadable one gives false.
VXUTIL_API bool ReadWholeFile(const std::string& path, std::string& content, FileStamp& stamp);

// Who may read a file created by UpdateFile.
enum class FileAccess { OwnerOnly, Shared };

// Applies `edit` to the file's current content (empty when the file does not exist) under the
// lock and replaces the file with the result. `edit` returns false to leave the file untouched.
// Missing parent folders are created. Returns true when the edit was applied and written, or
// when `edit` declined; false when the file could not be locked, read or written.
VXUTIL_API bool UpdateFile(const std::string& path, const std::function<bool(std::string&)>& edit,
                           FileAccess access);

}  // namespace vx
