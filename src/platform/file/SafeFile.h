// Crash-safe, concurrency-safe replacement of small text files.
//
// A writer takes an exclusive advisory lock on the file (on Windows, which cannot rename over an
// open file, on a companion file "<file>.lock"), reads its current content, applies its change,
// writes the result to a temporary file of a unique name in the same folder, flushes it and
// renames it over the old file. A writer killed at any instant therefore leaves the old or the
// new file, never a torn one, and two processes writing at once never lose each other's changes.
// A temporary file is removed on every failure path; one left by a killed writer has a name no
// later writer uses.
//
// A symbolic link is written through to its target and stays a link; a dangling link, or a
// chain of more than 40 links, is an error. No folder is created: writing into a missing folder
// fails. Every failure is recorded with its cause (StoreFailure).
#pragma once

#include <cstdint>
#include <functional>
#include <string>

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

FileStamp StatFile(const std::string& path);

// Reads the whole file. A missing file gives true with empty content and stamp.exists false;
// an unreadable one gives false.
bool ReadWholeFile(const std::string& path, std::string& content, FileStamp& stamp);

// Who may read a file written by UpdateFile. Files that hold or may hold a password are the
// owner's alone whatever mode they had before; shared files keep the mode they had.
enum class FileAccess { OwnerOnly, Shared };

enum class EditOutcome {
    Write,   // the content was changed: write it
    Keep,    // nothing to change
    Refuse,  // the change cannot be made; the edit recorded why
};

// Applies `edit` to the file's current content (empty when the file does not exist) and stamp
// under the lock and replaces the file with the result. True when the result was written or
// there was nothing to write; false when the edit refused or the file could not be locked,
// read or written. `written`, when given, receives the stamp of the new file.
bool UpdateFile(const std::string& path,
                const std::function<EditOutcome(std::string&, const FileStamp&)>& edit,
                FileAccess access, FileStamp* written = nullptr);

}  // namespace vx
