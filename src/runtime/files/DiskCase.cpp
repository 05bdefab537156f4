#include "runtime/files/FileSystem.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"
#include "vxutil/runtime/RUtils.h"

CGNString RGetDiskCaseOfDirectory(const CGNString& path) {
    RMethodTrace trace("RUtils", "RGetDiskCaseOfDirectory", kTraceAllLevels);
    if (!RIsValidDirectory(path)) return path;
    const std::string& full = path.str();
    std::size_t at = vx::DriveLength(full);
    std::string spelled = full.substr(0, at);
    while (at < full.size()) {
        if (vx::IsSeparator(full[at])) {
            spelled += vx::kPathSeparator;
            ++at;
            continue;
        }
        std::size_t end = at;
        while (end < full.size() && !vx::IsSeparator(full[end]))
            ++end;
        const std::string name = full.substr(at, end - at);
        std::string stored;
        const bool relative = spelled.empty();
        if (name == "." || name == ".." ||
            !vx::StoredName(relative ? std::string(".") : spelled, name, stored))
            stored = name;
        spelled += stored;
        at = end;
    }
    return CGNString(std::move(spelled));
}
