// File-path helpers of the common runtime. Paths use the native separator: '/' on POSIX,
// '\' on Windows.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx {
#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
#else
inline constexpr char kPathSeparator = '/';
#endif
}  // namespace vx

// Joins `folder` and `name` with one native separator: none is added when the folder is empty
// or already ends with a separator ('/' or '\' on Windows, '/' on POSIX).
VXUTIL_API CGNString MakeFilePath(const CGNString& folder, const CGNString& name);
