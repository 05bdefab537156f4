#include <windows.h>

#include <algorithm>

#include "platform/file/NativeFile.h"

namespace vx {

NativeFile::Handle NativeFile::Invalid() {
    return INVALID_HANDLE_VALUE;
}

bool NativeFile::Close() {
    const HANDLE handle = m_handle;
    m_handle = Invalid();
    return ::CloseHandle(handle) != FALSE;
}

long long NativeFile::Read(char* buffer, std::size_t size) {
    DWORD got = 0;
    const DWORD want = static_cast<DWORD>(std::min<std::size_t>(size, 1u << 30));
    if (!::ReadFile(m_handle, buffer, want, &got, nullptr)) return -1;
    return got;
}

bool NativeFile::WriteAll(std::string_view content) {
    std::size_t done = 0;
    while (done < content.size()) {
        const DWORD want =
            static_cast<DWORD>(std::min<std::size_t>(content.size() - done, 1u << 30));
        DWORD put = 0;
        if (!::WriteFile(m_handle, content.data() + done, want, &put, nullptr) || put == 0)
            return false;
        done += put;
    }
    return true;
}

}  // namespace vx
