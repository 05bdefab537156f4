// The one owner of the system's file handles: a descriptor on POSIX, a HANDLE on Windows,
// closed when it goes out of scope, with the read and write loops every file user needs.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vx {

class NativeFile {
public:
#ifdef _WIN32
    using Handle = void*;
#else
    using Handle = int;
#endif
    static Handle Invalid();

    NativeFile() = default;
    explicit NativeFile(Handle handle) : m_handle(handle) {}
    NativeFile(NativeFile&& other) noexcept : m_handle(other.m_handle) {
        other.m_handle = Invalid();
    }
    NativeFile& operator=(NativeFile&& other) noexcept;
    NativeFile(const NativeFile&) = delete;
    NativeFile& operator=(const NativeFile&) = delete;
    ~NativeFile();

    Handle get() const {
        return m_handle;
    }
    bool valid() const {
        return m_handle != Invalid();
    }
    // Closes now; false when the close (which may flush) failed.
    bool Close();

    // Up to `size` bytes from the current position: the count, 0 at the end, -1 on error.
    long long Read(char* buffer, std::size_t size);
    // Everything from the current position to the end.
    bool ReadAll(std::string& content);
    bool WriteAll(std::string_view content);

private:
    Handle m_handle = Invalid();
};

}  // namespace vx
