#include "platform/file/NativeFile.h"

namespace vx {

NativeFile& NativeFile::operator=(NativeFile&& other) noexcept {
    if (this != &other) {
        if (valid()) Close();
        m_handle = other.m_handle;
        other.m_handle = Invalid();
    }
    return *this;
}

NativeFile::~NativeFile() {
    if (valid()) Close();
}

bool NativeFile::ReadAll(std::string& content) {
    content.clear();
    char chunk[65536];
    for (;;) {
        const long long got = Read(chunk, sizeof chunk);
        if (got < 0) return false;
        if (got == 0) return true;
        content.append(chunk, static_cast<std::size_t>(got));
    }
}

}  // namespace vx
