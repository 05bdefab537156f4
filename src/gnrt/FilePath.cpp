#include "vxutil/gnrt/FilePath.h"

namespace {

// True when the folder's last character is a separator. The search is multi-byte aware: on a
// double-byte code page a backslash byte can be the second half of a character.
bool EndsWithSeparator(const CGNString& folder) {
    const int last = static_cast<int>(folder.GetLength()) - 1;
#ifdef _WIN32
    if (folder.ReverseFind('\\') == last) {
        return true;
    }
#endif
    return folder.ReverseFind('/') == last;
}

}  // namespace

CGNString MakeFilePath(const CGNString& folder, const CGNString& name) {
    if (folder.IsEmpty() || EndsWithSeparator(folder)) {
        return folder + name;
    }
    CGNString path = folder;
    path += vx::kPathSeparator;
    path += name;
    return path;
}
