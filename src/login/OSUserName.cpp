#include "vxutil/login/OSUserName.h"

#include "gnrt/MultiByte.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>
#endif

namespace {

// The name is read into a buffer of this size, terminating zero included.
constexpr unsigned long kNameSize = 256;

#ifdef _WIN32

CGNString ReadLogonName() {
    char name[kNameSize] = {};
    DWORD size = kNameSize;
    return GetUserNameA(name, &size) ? CGNString(name) : CGNString();
}

#else

CGNString ReadLogonName() {
    long bufferSize = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(bufferSize > 0 ? static_cast<std::size_t>(bufferSize) : 16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 &&
        found != nullptr && found->pw_name != nullptr && found->pw_name[0] != '\0')
        return CGNString(found->pw_name);
    // Accounts without a database entry (containers, some directory services).
    const char* user = std::getenv("USER");
    return CGNString(user != nullptr ? user : "");
}

#endif

}  // namespace

CGNString ClientGetOSUserName() {
    const CGNString name = ReadLogonName();
    char cut[kNameSize];
    vx::mb::BoundedCopy(cut, kNameSize, name.c_str());
    return CGNString(cut);
}
