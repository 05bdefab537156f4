// The library's built-in string table: the English texts, compiled in.
#pragma once

namespace vx {

// Numbers of the library's strings.
enum StringId : unsigned {
    kStrFolderMissingCreate = 3055,
    kStrFolderCreateFailed = 3056,
    kStrFolderCopyFailed = 3057,
};

// The built-in text of string `id`, or null when the table has none.
const char* BuiltInString(unsigned id);

}  // namespace vx
