#include <unistd.h>

#include <cerrno>

#include "platform/file/NativeFile.h"

namespace vx {

NativeFile::Handle NativeFile::Invalid() {
    return -1;
}

bool NativeFile::Close() {
    const int fd = m_handle;
    m_handle = Invalid();
    return ::close(fd) == 0;
}

long long NativeFile::Read(char* buffer, std::size_t size) {
    for (;;) {
        const ssize_t got = ::read(m_handle, buffer, size);
        if (got >= 0 || errno != EINTR) return got;
    }
}

bool NativeFile::WriteAll(std::string_view content) {
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t put = ::write(m_handle, content.data() + done, content.size() - done);
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) return false;
        done += static_cast<std::size_t>(put);
    }
    return true;
}

}  // namespace vx
