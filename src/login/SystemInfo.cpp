#include "vxutil/login/SystemInfo.h"

#include <algorithm>
#include <cstdarg>

#include "gnrt/StringTable.h"
#include "login/SystemFacts.h"
#include "runtime/module/Module.h"
#include "vxutil/gnrt/OSLoadString.h"

namespace vx {
namespace {

CGNString Label(unsigned id) {
    CGNString text;
    OSLoadString(id, text);
    return text;
}

void Append(CGNString& text, const char* format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 2, 3)))
#endif
    ;

void Append(CGNString& text, const char* format, ...) {
    va_list args;
    va_start(args, format);
    CGNString line;
    line.FormatV(format, args);
    va_end(args);
    text += line;
}

}  // namespace

CGNString FormatSystemInfo(const SystemFacts& facts) {
    CGNString text(facts.system);
    Append(text, "\r\n%s\t%lu bytes", Label(kStrLargestFreeBlock).c_str(), facts.largestFreeBlock);
    Append(text, "\r\n%s\t%lu bytes", Label(kStrSwapSpaceSize).c_str(), facts.swapSize);
    Append(text, "\r\n%s\t%d bytes", Label(kStrUserHeap).c_str(), facts.userHeap);
    Append(text, "\r\n%s\t%d.%d", Label(kStrWinsockVersion).c_str(), facts.socketMajor,
           facts.socketMinor);
    Append(text, "\r\n     %s:\t%d\r\n     %s:\t%d bytes", Label(kStrMaxSockets).c_str(),
           facts.maxSockets, Label(kStrMaxDatagram).c_str(), facts.maxDatagram);
    Append(text, "\r\n     %s:\t%s", Label(kStrSocketDescription).c_str(),
           facts.socketDescription.c_str());
    Append(text, "\r\n     %s:\t%s\r\n", Label(kStrSocketStatus).c_str(),
           facts.socketStatus.c_str());
    text += Label(kStrResourceVersion);
    text += " - ";
    Append(text, "%s, %d.%d", facts.language.c_str(), facts.resourceMajor, facts.resourceMinor);
#ifndef _WIN32
    std::string lines = text.str();
    std::erase(lines, '\r');  // the same layout with the platform's line ends
    text = CGNString(std::move(lines));
#endif
    return text;
}

void ResourceVersion(int& major, int& minor) {
    if (const LocaleResources* resources = ModuleLocaleResources()) {
        resources->Version(major, minor);
    } else {
        major = VXUTIL_VERSION_MAJOR;
        minor = VXUTIL_VERSION_MINOR;
    }
}

}  // namespace vx

CGNString ClientGetSystemInfo() {
    return vx::FormatSystemInfo(vx::GatherSystemFacts());
}
