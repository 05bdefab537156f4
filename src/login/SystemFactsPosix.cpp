#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>

#ifdef __linux__
#include <sys/sysinfo.h>
#endif
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "login/SystemFacts.h"
#include "runtime/module/Module.h"

namespace vx {
namespace {

// The socket layer is the one of 4.4BSD, whose interface every POSIX system keeps.
constexpr int kSocketMajor = 4;
constexpr int kSocketMinor = 4;
// The largest UDP payload over IPv4: 65535 less the IP and UDP headers.
constexpr int kMaxUdpPayload = 65507;

int ClampToInt(unsigned long long value) {
    return value > INT_MAX ? INT_MAX : static_cast<int>(value);
}

void GatherSystem(SystemFacts& facts, std::string& kernel) {
    struct utsname names {};
    if (::uname(&names) != 0) return;
    kernel = names.sysname;
    facts.system = std::string(names.sysname) + " " + names.release + " (Build " + names.version +
                   ") " + names.machine;
}

void GatherMemory(SystemFacts& facts) {
#ifdef __linux__
    struct sysinfo info {};
    if (::sysinfo(&info) == 0) {
        facts.largestFreeBlock = info.freeram * info.mem_unit;
        facts.swapSize = info.totalswap * info.mem_unit;
    }
#endif
#ifdef __GLIBC__
    const struct mallinfo2 heap = ::mallinfo2();
    facts.userHeap = ClampToInt(heap.uordblks + heap.hblkhd);
#endif
}

void GatherSockets(SystemFacts& facts, const std::string& kernel) {
    facts.socketMajor = kSocketMajor;
    facts.socketMinor = kSocketMinor;
    struct rlimit files {};
    // Sockets are file descriptors: the process may hold as many as it may open files.
    if (::getrlimit(RLIMIT_NOFILE, &files) == 0)
        facts.maxSockets = files.rlim_cur == RLIM_INFINITY ? INT_MAX : ClampToInt(files.rlim_cur);
    facts.maxDatagram = kMaxUdpPayload;
    facts.socketDescription = "BSD sockets" + (kernel.empty() ? "" : " (" + kernel + ")");
    const int probe = ::socket(AF_INET, SOCK_DGRAM, 0);
    if (probe >= 0) {
        ::close(probe);
        facts.socketStatus = "Running";
    } else {
        facts.socketStatus = std::strerror(errno);
    }
}

}  // namespace

SystemFacts GatherSystemFacts() {
    SystemFacts facts;
    std::string kernel;
    GatherSystem(facts, kernel);
    GatherMemory(facts);
    GatherSockets(facts, kernel);
    const LocaleResources* resources = ModuleLocaleResources();
    facts.language = resources != nullptr ? resources->Language() : "en";
    ResourceVersion(facts.resourceMajor, facts.resourceMinor);
    return facts;
}

}  // namespace vx
