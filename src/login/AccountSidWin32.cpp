#include <windows.h>

#include "vxutil/login/AccountSid.h"

int ClientGetBinarySid(void** sid) {
    if (sid == nullptr) return 0;
    alignas(8) thread_local unsigned char buffer[256];
    HANDLE token = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token)) return 0;
    DWORD length = 0;
    const BOOL read = ::GetTokenInformation(token, TokenUser, buffer, sizeof buffer, &length);
    ::CloseHandle(token);
    if (!read) return 0;
    *sid = reinterpret_cast<TOKEN_USER*>(buffer)->User.Sid;
    return 1;
}
