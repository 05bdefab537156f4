// The file name of a module's localized resource library.
#pragma once

#include <string>
#include <string_view>

namespace vx {

// The module's file name after its last separator, with "Res" inserted before the first
// decimal digit, or appended when there is none: "abc40.dll" gives "abcRes40.dll", so the
// version digits stay behind the inserted text.
std::string LocalizedResourceName(std::string_view modulePath);

}  // namespace vx
