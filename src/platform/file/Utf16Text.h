// Conversion between UTF-16 and the client's multi-byte text (UTF-8 on POSIX, the ANSI code
// page on Windows), for settings files kept in UTF-16. Never fails: what
// cannot be represented becomes a replacement character.
#pragma once

#include <string>
#include <string_view>

namespace vx {

std::string Utf16ToClient(std::u16string_view text);
std::u16string ClientToUtf16(std::string_view text);

}  // namespace vx
