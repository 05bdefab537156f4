// Folder helpers shared by the settings home and the settings store.
#pragma once

#include <string>

namespace vx {

// '/' everywhere; on Windows '\\' as well.
bool IsPathSeparator(char c);

// The folder part of `path`, without a trailing separator except for a root ("/", "C:\\");
// empty when the path names no folder.
std::string ParentFolder(const std::string& path);

// Creates `folder` and its missing parents. New folders are accessible to their owner only,
// because they may hold files with passwords. True when the folder exists afterwards.
bool CreateFolderTree(const std::string& folder);

// Creates the settings home when `file` lies directly in it: the one folder the stores make.
// Any other missing folder makes a write fail.
void CreateSettingsHomeFor(const std::string& file);

}  // namespace vx
