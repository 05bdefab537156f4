// What each platform's character set provides to the multi-byte helpers (MultiByteUtf8Posix.cpp,
// MultiByteAnsiWin32.cpp); the helpers in MultiByte.cpp check their arguments before calling.
#pragma once

#include <cstddef>

namespace vx::mb {

// Byte length of the character at `text`, which has at least one byte; 1 for a stray byte.
std::size_t CharsetLength(const unsigned char* text, std::size_t available);

// The user's collation order of two texts, neither null.
int CharsetCollate(const char* a, const char* b);

}  // namespace vx::mb
