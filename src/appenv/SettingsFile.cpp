#include "appenv/SettingsFile.h"

#include <string>

#include "gnrt/MultiByte.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/FilePath.h"
#include "vxutil/platform/ProfileFile.h"

namespace vx::appenv {

CGNString SettingsFilePath(const CGNString& folder) {
    if (!folder.IsEmpty()) return MakeFilePath(folder, kSettingsFileName);
    CGNString path;
    path += kPathSeparator;
    path += kSettingsFileName;
    return path;
}

std::size_t ReadUserValue(const CGNString& file, const char* key, char* out) {
    // Read whole, then cut: the profile reader may split a multi-byte character at the limit.
    const std::string value = ProfileGetString("User", key, "", file.c_str());
    return mb::BoundedCopy(out, kNameBufferSize, value.c_str());
}

bool WriteUserValue(const CGNString& file, const char* key, const char* value) {
    return ProfileWriteString("User", key, value, file.c_str());
}

}  // namespace vx::appenv
