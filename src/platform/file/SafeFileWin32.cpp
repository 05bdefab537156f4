// Win32 backend of the safe file writer.
//
// Locking scheme: Windows cannot rename a file over one that another process holds open, so
// the lock cannot live on the file being replaced. Writers instead lock a companion file,
// "<file>.lock", which is created once and never replaced or removed: LockFileEx on it
// serializes the writers, and the file itself is replaced by MoveFileEx with
// MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH, which leaves either the old or the new
// file. Readers open the file only for the moment of reading, with every sharing mode, so a
// rename that meets one of them is simply tried again.
#include "vxutil/platform/SafeFile.h"

#include <windows.h>

#include <sddl.h>

#include <algorithm>

#include "platform/file/Folders.h"

namespace vx {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// A file handle closed when it goes out of scope.
class Handle {
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() {
        if (valid()) ::CloseHandle(m_handle);
    }
    HANDLE get() const { return m_handle; }
    bool valid() const { return m_handle != INVALID_HANDLE_VALUE; }

private:
    HANDLE m_handle;
};

FileStamp StampOf(const BY_HANDLE_FILE_INFORMATION& info) {
    FileStamp stamp;
    stamp.exists = true;
    stamp.device = info.dwVolumeSerialNumber;
    stamp.inode = (static_cast<std::uint64_t>(info.nFileIndexHigh) << 32) | info.nFileIndexLow;
    stamp.size = (static_cast<std::uint64_t>(info.nFileSizeHigh) << 32) | info.nFileSizeLow;
    const std::uint64_t ticks =
        (static_cast<std::uint64_t>(info.ftLastWriteTime.dwHighDateTime) << 32) |
        info.ftLastWriteTime.dwLowDateTime;
    stamp.modifiedNs = static_cast<std::int64_t>(ticks) * 100;
    return stamp;
}

bool IsMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

bool ReadAll(HANDLE file, std::string& content) {
    content.clear();
    char chunk[65536];
    for (;;) {
        DWORD got = 0;
        if (!::ReadFile(file, chunk, sizeof chunk, &got, nullptr)) return false;
        if (got == 0) return true;
        content.append(chunk, got);
    }
}

bool WriteAll(HANDLE file, const std::string& content) {
    std::size_t done = 0;
    while (done < content.size()) {
        const DWORD want =
            static_cast<DWORD>(std::min<std::size_t>(content.size() - done, 1u << 30));
        DWORD put = 0;
        if (!::WriteFile(file, content.data() + done, want, &put, nullptr) || put == 0)
            return false;
        done += put;
    }
    return true;
}

// Security for a new file that only its owner may open; null (the folder's inherited
// permissions) when the descriptor cannot be built.
class OwnerOnlySecurity {
public:
    OwnerOnlySecurity() {
        m_attributes.nLength = sizeof m_attributes;
        m_attributes.bInheritHandle = FALSE;
        if (::ConvertStringSecurityDescriptorToSecurityDescriptorA(
                "D:P(A;;FA;;;OW)", SDDL_REVISION_1, &m_descriptor, nullptr))
            m_attributes.lpSecurityDescriptor = m_descriptor;
    }
    OwnerOnlySecurity(const OwnerOnlySecurity&) = delete;
    OwnerOnlySecurity& operator=(const OwnerOnlySecurity&) = delete;
    ~OwnerOnlySecurity() {
        if (m_descriptor) ::LocalFree(m_descriptor);
    }
    SECURITY_ATTRIBUTES* get() { return m_descriptor ? &m_attributes : nullptr; }

private:
    PSECURITY_DESCRIPTOR m_descriptor = nullptr;
    SECURITY_ATTRIBUTES m_attributes{};
};

bool WriteTemporary(const std::string& temporary, const std::string& content, bool ownerOnly,
                    bool exists) {
    OwnerOnlySecurity security;
    // A replaced file takes the permissions of the new one; they are narrowed only for a
    // file that is created now, so that an administrator's choice for an existing file stays.
    Handle out(::CreateFileA(temporary.c_str(), GENERIC_WRITE, 0,
                             ownerOnly && !exists ? security.get() : nullptr, CREATE_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr));
    return out.valid() && WriteAll(out.get(), content) && ::FlushFileBuffers(out.get());
}

bool MoveOver(const std::string& temporary, const std::string& path) {
    for (int attempt = 0; attempt < 50; ++attempt) {
        if (::MoveFileExA(temporary.c_str(), path.c_str(),
                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return true;
        const DWORD error = ::GetLastError();
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) return false;
        ::Sleep(10);  // a reader holds the file for a moment
    }
    return false;
}

}  // namespace

FileStamp StatFile(const std::string& path) {
    if (path.empty()) return {};
    Handle file(::CreateFileA(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                              FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION info{};
    if (!file.valid() || !::GetFileInformationByHandle(file.get(), &info)) return {};
    return StampOf(info);
}

bool ReadWholeFile(const std::string& path, std::string& content, FileStamp& stamp) {
    content.clear();
    stamp = {};
    Handle in(::CreateFileA(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!in.valid()) return IsMissing(::GetLastError());
    BY_HANDLE_FILE_INFORMATION info{};
    if (!::GetFileInformationByHandle(in.get(), &info) ||
        (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        return false;
    stamp = StampOf(info);
    return ReadAll(in.get(), content);
}

bool UpdateFile(const std::string& path, const std::function<bool(std::string&)>& edit,
                FileAccess access) {
    if (path.empty()) return false;
    const std::string folder = ParentFolder(path);
    if (!folder.empty() && !CreateFolderTree(folder)) return false;

    const std::string lockPath = path + ".lock";
    Handle lock(::CreateFileA(lockPath.c_str(), GENERIC_READ | GENERIC_WRITE, kShareAll, nullptr,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN, nullptr));
    OVERLAPPED whole{};
    if (!lock.valid() || !::LockFileEx(lock.get(), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &whole))
        return false;

    std::string content;
    FileStamp stamp;
    bool done = ReadWholeFile(path, content, stamp);
    if (done && edit(content)) {
        const std::string temporary = path + ".tmp";
        done = WriteTemporary(temporary, content, access == FileAccess::OwnerOnly, stamp.exists) &&
               MoveOver(temporary, path);
        if (!done) ::DeleteFileA(temporary.c_str());
    }
    ::UnlockFileEx(lock.get(), 0, 1, 0, &whole);
    return done;
}

}  // namespace vx
