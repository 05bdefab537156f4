// Where a module's localized resources are found: the file name of its resource library, and the
// folder the search starts from.
#pragma once

#include <string>
#include <string_view>

namespace vx {

// The module's file name after its last separator, with "Res" inserted before the first
// decimal digit, or appended when there is none: "abc40.dll" gives "abcRes40.dll", so the
// version digits stay behind the inserted text.
std::string LocalizedResourceName(std::string_view modulePath);

// The folder of `modulePath` with its trailing separator ("/usr/lib/" of "/usr/lib/libx.so");
// empty for a bare file name.
std::string_view ModuleFolder(std::string_view modulePath);

}  // namespace vx
