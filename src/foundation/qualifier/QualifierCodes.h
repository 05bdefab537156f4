// The mappings between the qualifier's internal codes and the codes of its encoded text.
#pragma once

#include <cstdint>

namespace vx::qualifier {

// Relational operators: internal 0-7 are written 1-8; anything else is written 1 and read 0.
std::uint32_t EncodedRelation(std::uint32_t internal);
std::uint32_t InternalRelation(unsigned long encoded);
// Arithmetic operators: internal 0-5 are written 1-6; anything else is written 1 and read 0.
std::uint32_t EncodedArithmetic(std::uint32_t internal);
std::uint32_t InternalArithmetic(unsigned long encoded);
// Operand kinds: internal 0-9 are written 1, 2, 3, 4, 5, 50, 51, 52, 53, 99; any other tag is
// read as 0 (a field).
std::uint32_t EncodedKind(std::uint32_t internal);
std::uint32_t InternalKind(unsigned long encoded);

}  // namespace vx::qualifier
