#include <cerrno>
#include <cstring>

#include "platform/file/StoreFailure.h"
#include "vxutil/platform/StoreError.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vx {
namespace {
thread_local std::string t_lastError;
}  // namespace

std::string LastStoreError() {
    return t_lastError;
}

void ClearStoreError() {
    t_lastError.clear();
}

bool StoreFailure(const std::string& location, const std::string& cause) {
    t_lastError = location.empty() ? cause : location + ": " + cause;
    return false;
}

#ifdef _WIN32
std::string SystemErrorText(unsigned long code) {
    char text[512] = {};
    DWORD length = ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                    nullptr, code, 0, text, sizeof text, nullptr);
    while (length > 0 && (text[length - 1] == '\n' || text[length - 1] == '\r' ||
                          text[length - 1] == '.' || text[length - 1] == ' '))
        text[--length] = '\0';
    return length > 0 ? std::string(text) : "system error " + std::to_string(code);
}

std::string LastSystemErrorText() {
    return SystemErrorText(::GetLastError());
}
#else
std::string SystemErrorText(unsigned long code) {
    return std::strerror(static_cast<int>(code));
}

std::string LastSystemErrorText() {
    return SystemErrorText(static_cast<unsigned long>(errno));
}
#endif

}  // namespace vx
