// Win32 backend of the safe file writer.
//
// Locking scheme: Windows cannot rename a file over one that another process holds open, so
// the lock cannot live on the file being replaced. Writers instead lock a companion file,
// "<file>.lock", which is created once and never replaced or removed: LockFileEx on it
// serializes the writers, and the file itself is replaced by MoveFileEx with
// MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH, which leaves either the old or the new
// file. Readers open the file only for the moment of reading, with every sharing mode, so a
// rename that meets one of them is simply tried again.
#include <windows.h>

#include <sddl.h>

#include <atomic>

#include "platform/file/NativeFile.h"
#include "platform/file/SafeFile.h"
#include "platform/file/StoreFailure.h"

namespace vx {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

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

bool SystemFailure(const std::string& path) {
    const DWORD error = ::GetLastError();
    return StoreFailure(
        path, error == ERROR_PATH_NOT_FOUND ? "its folder does not exist" : SystemErrorText(error));
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

// A new temporary file beside `path` whose name no other writer uses: the process, a counter
// and the clock, tried again should a stale one from a killed writer hold the name.
NativeFile CreateTemporary(const std::string& path, bool ownerOnly, std::string& temporary) {
    static std::atomic<unsigned> counter{0};
    OwnerOnlySecurity security;
    for (int attempt = 0; attempt < 100; ++attempt) {
        temporary = path + "." + std::to_string(::GetCurrentProcessId()) + "-" +
                    std::to_string(++counter) + "-" + std::to_string(::GetTickCount64()) + ".tmp";
        // A file that may hold a password is created for its owner alone, also when it
        // replaces one that allowed more.
        NativeFile out(::CreateFileA(temporary.c_str(), GENERIC_WRITE, 0,
                                     ownerOnly ? security.get() : nullptr, CREATE_NEW,
                                     FILE_ATTRIBUTE_NORMAL, nullptr));
        if (out.valid() || ::GetLastError() != ERROR_FILE_EXISTS) return out;
    }
    return NativeFile();
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

bool ReplaceContent(const std::string& path, const std::string& content, FileAccess access,
                    FileStamp* written) {
    std::string temporary;
    NativeFile out = CreateTemporary(path, access == FileAccess::OwnerOnly, temporary);
    if (!out.valid()) return SystemFailure(path);
    BY_HANDLE_FILE_INFORMATION info{};
    const bool done = out.WriteAll(content) && ::FlushFileBuffers(out.get()) &&
                      ::GetFileInformationByHandle(out.get(), &info);
    if (!done || !out.Close() || !MoveOver(temporary, path)) {
        SystemFailure(path);
        ::DeleteFileA(temporary.c_str());
        return false;
    }
    if (written) *written = StampOf(info);
    return true;
}

}  // namespace

FileStamp StatFile(const std::string& path) {
    if (path.empty()) return {};
    NativeFile file(::CreateFileA(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION info{};
    if (!file.valid() || !::GetFileInformationByHandle(file.get(), &info)) return {};
    return StampOf(info);
}

bool ReadWholeFile(const std::string& path, std::string& content, FileStamp& stamp) {
    content.clear();
    stamp = {};
    NativeFile in(::CreateFileA(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!in.valid()) return IsMissing(::GetLastError());
    BY_HANDLE_FILE_INFORMATION info{};
    if (!::GetFileInformationByHandle(in.get(), &info) ||
        (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        return false;
    stamp = StampOf(info);
    return in.ReadAll(content);
}

bool UpdateFile(const std::string& path,
                const std::function<EditOutcome(std::string&, const FileStamp&)>& edit,
                FileAccess access, FileStamp* written) {
    if (path.empty()) return StoreFailure(path, "no file name");
    const std::string lockPath = path + ".lock";
    NativeFile lock(::CreateFileA(lockPath.c_str(), GENERIC_READ | GENERIC_WRITE, kShareAll,
                                  nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN, nullptr));
    OVERLAPPED whole{};
    if (!lock.valid() || !::LockFileEx(lock.get(), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &whole))
        return SystemFailure(path);

    std::string content;
    FileStamp stamp;
    bool done = ReadWholeFile(path, content, stamp) || SystemFailure(path);
    if (done) {
        const EditOutcome outcome = edit(content, stamp);
        if (outcome == EditOutcome::Write)
            done = ReplaceContent(path, content, access, written);
        else
            done = outcome == EditOutcome::Keep;
    }
    ::UnlockFileEx(lock.get(), 0, 1, 0, &whole);
    return done;
}

}  // namespace vx
