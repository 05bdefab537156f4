// Folder helpers shared by the settings home and the safe file writer.
#pragma once

#include <string>

namespace vx {

// '/' everywhere; on Windows '\\' as well.
bool IsPathSeparator(char c);

// The separator used when this library joins a folder and a name.
char NativePathSeparator();

// The folder part of `path`, without a trailing separator except for a root ("/", "C:\\");
// empty when the path names no folder.
std::string ParentFolder(const std::string& path);

// Creates `folder` and its missing parents. New folders are accessible to their owner only,
// because they may hold files with passwords. True when the folder exists afterwards.
bool CreateFolderTree(const std::string& folder);

}  // namespace vx
