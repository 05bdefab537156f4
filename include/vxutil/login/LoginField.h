// The size rule of the login dialog's user and password fields. What is stored of either is at
// most 30 bytes of the client's multi-byte text (the settings interface's 31-byte buffers), so
// an input validator must count bytes of that form, not characters or UTF-16 units.
#pragma once

#include <cstddef>
#include <string_view>

#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx {

inline constexpr std::size_t kLoginFieldMaxBytes = kNameBufferSize - 1;

// Whether `text`, in the client's multi-byte form, fits into a user or password field.
VXUTIL_API bool FitsLoginField(std::string_view text);

// `text` cut to the longest start that fits, never inside a multi-byte character.
VXUTIL_API CGNString FitLoginField(const CGNString& text);

}  // namespace vx
