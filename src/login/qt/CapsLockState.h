// Whether Caps Lock is on, where the platform can tell: on Windows, and on X11 through the XKB
// keyboard state. Elsewhere (Wayland, offscreen) nothing is known.
#pragma once

#include <optional>

namespace vx {

std::optional<bool> CapsLockState();

}  // namespace vx
