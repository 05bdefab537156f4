// Virtual-key codes that the edit logic acts on, with their Win32 values: adapters of other
// toolkits translate their key codes to these.
#pragma once

namespace vx {

inline constexpr unsigned kVkBack = 0x08;
inline constexpr unsigned kVkReturn = 0x0D;
// Also the character code of a typed ".", which the edit logic cannot tell apart.
inline constexpr unsigned kVkDelete = 0x2E;

}  // namespace vx
