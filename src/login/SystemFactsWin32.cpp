// winsock2.h must come before windows.h, which would otherwise pull in the old winsock.h.
#include <winsock2.h>

#include <windows.h>

#include <climits>

#include "login/SystemFacts.h"

namespace vx {
namespace {

// The language name is read into a buffer of 512 characters, as it always was.
constexpr int kLanguageNameSize = 512;

unsigned long ClampToULong(DWORDLONG value) {
    return value > ULONG_MAX ? ULONG_MAX : static_cast<unsigned long>(value);
}

std::string SystemLine() {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (!::GetVersionExA(&version)) return {};
    CGNString line;
    if (version.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS) {
        line.Format("Windows %d (Build %d) %s", version.dwMinorVersion == 0 ? 95 : 98,
                    static_cast<int>(LOWORD(version.dwBuildNumber)), version.szCSDVersion);
    } else if (version.dwPlatformId == VER_PLATFORM_WIN32_NT) {
        line.Format("Windows NT %d.%d (Build %d) %s", static_cast<int>(version.dwMajorVersion),
                    static_cast<int>(version.dwMinorVersion),
                    static_cast<int>(version.dwBuildNumber), version.szCSDVersion);
    }
    return line.str();
}

// Bytes in use in the process's default heap.
int HeapInUse() {
    HANDLE heap = ::GetProcessHeap();
    if (!::HeapLock(heap)) return 0;
    unsigned long long used = 0;
    PROCESS_HEAP_ENTRY entry{};
    while (::HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) used += entry.cbData;
    ::HeapUnlock(heap);
    return used > INT_MAX ? INT_MAX : static_cast<int>(used);
}

void GatherMemory(SystemFacts& facts) {
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    if (::GlobalMemoryStatusEx(&status)) {
        facts.largestFreeBlock = ClampToULong(status.ullAvailPhys);
        facts.swapSize = ClampToULong(status.ullTotalPageFile);
    }
    facts.userHeap = HeapInUse();
}

void GatherSockets(SystemFacts& facts) {
    // Version 1.1 is asked for: only it reports the socket and datagram limits.
    WSADATA data{};
    if (::WSAStartup(MAKEWORD(1, 1), &data) != 0) {
        facts.socketStatus = "Not available";
        return;
    }
    facts.socketMajor = LOBYTE(data.wVersion);
    facts.socketMinor = HIBYTE(data.wVersion);
    facts.maxSockets = data.iMaxSockets;
    facts.maxDatagram = data.iMaxUdpDg;
    facts.socketDescription = data.szDescription;
    facts.socketStatus = data.szSystemStatus;
    ::WSACleanup();
}

}  // namespace

SystemFacts GatherSystemFacts() {
    SystemFacts facts;
    facts.system = SystemLine();
    GatherMemory(facts);
    GatherSockets(facts);
    char language[kLanguageNameSize] = "";
    ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SLANGUAGE, language, kLanguageNameSize);
    facts.language = language;
    ResourceVersion(facts.resourceMajor, facts.resourceMinor);
    return facts;
}

}  // namespace vx
