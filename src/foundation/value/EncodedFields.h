// Readers of the encoded texts of values, qualifiers and entry lists: fields that end in a
// backslash, read from a moving position in a zero-terminated text.
#pragma once

#include <cstdint>
#include <string_view>

#include "vxutil/gnrt/CGNString.h"

namespace vx::encoded {

// Text from the server in the client's form: with `lineFeeds` the 0x01 bytes that character
// and attachment texts carry for line feeds become line feeds; then CGNString::ClientFormat.
CGNString ClientText(std::string_view text, bool lineFeeds);

// Moves past the next backslash, or to the end of the text when none follows.
void SkipField(const char*& cursor);
// A decimal number at the cursor, saturated to 32 bits, then past the next backslash. False when
// no digits are there.
bool ReadLong(const char*& cursor, std::int32_t& value);
bool ReadUnsignedLong(const char*& cursor, std::uint32_t& value);

}  // namespace vx::encoded
