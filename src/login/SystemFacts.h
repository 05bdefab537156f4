// What the about box's system information reports, gathered from the platform.
#pragma once

#include <string>

#include "vxutil/gnrt/CGNString.h"

namespace vx {

struct SystemFacts {
    std::string system;  // the operating-system line; empty when the platform is unknown
    unsigned long largestFreeBlock = 0;  // bytes of physical memory available
    unsigned long swapSize = 0;          // bytes of swap space (the page file on Windows)
    int userHeap = 0;                    // bytes in use in the process's heap
    int socketMajor = 0;
    int socketMinor = 0;
    int maxSockets = 0;
    int maxDatagram = 0;  // bytes
    std::string socketDescription;
    std::string socketStatus;
    std::string language;  // of the resources in use
    int resourceMajor = 0;
    int resourceMinor = 0;
};

// Windows: GetVersionExA, GlobalMemoryStatusEx, the process heap, WSAStartup, the user locale's
// language name. POSIX: uname, sysinfo, the allocator's statistics, the BSD socket layer, the
// language folder of the attached catalogue ("en" for the built-in texts).
SystemFacts GatherSystemFacts();

// The text of the facts with the labels of the string table, in the about box's layout.
CGNString FormatSystemInfo(const SystemFacts& facts);

// The version of the resources in use: the attached library's, else the library's own.
void ResourceVersion(int& major, int& minor);

}  // namespace vx
