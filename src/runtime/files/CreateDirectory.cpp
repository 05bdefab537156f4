#include "runtime/files/FileSystem.h"
#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"
#include "vxutil/runtime/RUtils.h"

int RCreateDirectory(const CGNString& path, void* security) {
    RMethodTrace trace("RUtils", "RCreateDirectory", kTraceAllLevels);
    if (path.IsEmpty()) return 0;
    if (RIsValidDirectory(path)) return 1;
    // Walk from the drive down: each step moves a leading separator and then the next component
    // to the built path, and creates the built path when it does not exist yet.
    const std::string& full = path.str();
    std::size_t at = vx::DriveLength(full);
    std::string built = full.substr(0, at);
    while (at < full.size()) {
        if (vx::IsSeparator(full[at])) built += full[at++];
        std::size_t end = at;
        while (end < full.size() && !vx::IsSeparator(full[end]))
            ++end;
        built.append(full, at, end - at);
        at = end;
        if (!vx::PathExists(built) && !vx::MakeFolder(built, security)) return 0;
    }
    return 1;
}
