// Helpers for the client's multi-byte character set: UTF-8 on POSIX, the ANSI code page on
// Windows. A byte sequence that starts no valid character counts as a one-byte character, so
// every helper terminates on any input.
#pragma once

#include <cstddef>

#include "vxutil/export.h"

namespace vx::mb {

// Byte length of the character starting at `text`, at most `available` (0 when available is 0).
VXUTIL_API std::size_t CharLength(const char* text, std::size_t available);

// Number of characters in the first `length` bytes of `text`.
VXUTIL_API std::size_t CharCount(const char* text, std::size_t length);

// Pointer to the first occurrence of the single-byte character `c` in the zero-terminated
// `text` that is not part of a multi-byte character, or null.
VXUTIL_API const char* FindChar(const char* text, char c);

// Copies `source` (null copies nothing) into `target` of `targetSize` bytes: at most
// targetSize - 1 bytes, never ending in part of a character, always terminated when
// targetSize > 0. Returns the number of bytes copied.
VXUTIL_API std::size_t BoundedCopy(char* target, std::size_t targetSize, const char* source);

// The largest length <= `maxBytes` at which the first `length` bytes of `text` can be cut
// without splitting a character.
VXUTIL_API std::size_t CutLength(const char* text, std::size_t length, std::size_t maxBytes);

// Compares two strings by the user's locale collation (strcoll on POSIX, CompareStringA with
// the user's locale on Windows); negative, zero or positive.
VXUTIL_API int Collate(const char* a, const char* b);

}  // namespace vx::mb
