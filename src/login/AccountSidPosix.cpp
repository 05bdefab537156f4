#include <unistd.h>

#include "login/SidText.h"
#include "vxutil/login/AccountSid.h"

namespace {
// The authority and first sub-authority of Unix user identifiers (S-1-22-1-<uid>).
constexpr std::uint64_t kUnixUserAuthority = 22;
constexpr std::uint32_t kUnixUsers = 1;
}  // namespace

int ClientGetBinarySid(void** sid) {
    if (sid == nullptr) return 0;
    alignas(8) thread_local unsigned char buffer[256];
    if (!vx::BuildSid(buffer, sizeof buffer, kUnixUserAuthority,
                      {kUnixUsers, static_cast<std::uint32_t>(::getuid())}))
        return 0;
    *sid = buffer;
    return 1;
}
