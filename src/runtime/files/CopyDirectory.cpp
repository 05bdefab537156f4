#include "runtime/files/FileSystem.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/runtime/RMethodTrace.h"
#include "vxutil/runtime/RTrace.h"
#include "vxutil/runtime/RUtils.h"

int RCopyDirectory(const CGNString& source, const CGNString& target, int recurse) {
    RMethodTrace trace("RUtils", "RCopyDirectory", kTraceAllLevels);
    std::vector<vx::FolderEntry> entries;
    if (!vx::ListFolder(source.str(), entries)) return 0;
    int result = RCreateDirectory(target, nullptr);
    for (const vx::FolderEntry& entry : entries) {
        // Skips "." and "..", and deliberately every hidden name of that form too.
        if (entry.name.empty() || entry.name[0] == '.') continue;
        const CGNString sourcePath = MakeFilePath(source, entry.name.c_str());
        const CGNString targetPath = MakeFilePath(target, entry.name.c_str());
        int copied = 1;
        if (entry.isFolder) {
            if (recurse) copied = RCopyDirectory(sourcePath, targetPath, recurse);
        } else {
            copied = vx::CopyFileKeepingTarget(sourcePath.str(), targetPath.str()) ? 1 : 0;
        }
        // A failed entry does not stop the copy: as much as possible is copied.
        if (!copied) result = 0;
    }
    return result;
}
