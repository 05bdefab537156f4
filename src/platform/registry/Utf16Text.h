// Conversion between UTF-16 and the client's multi-byte text (UTF-8 on POSIX, the ANSI code
// page on Windows), for registry files that regedit exported as UTF-16LE. Never fails: what
// cannot be represented becomes a replacement character.
#pragma once

#include <string>
#include <string_view>

namespace vx::registry {

std::string Utf16ToClient(std::u16string_view text);
std::u16string ClientToUtf16(std::string_view text);

}  // namespace vx::registry
