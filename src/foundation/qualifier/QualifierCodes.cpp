#include "foundation/qualifier/QualifierCodes.h"

namespace vx::qualifier {
namespace {

constexpr std::uint32_t kKindTags[] = {1, 2, 3, 4, 5, 50, 51, 52, 53, 99};

}  // namespace

std::uint32_t EncodedRelation(std::uint32_t internal) {
    return internal <= 7 ? internal + 1 : 1;
}

std::uint32_t InternalRelation(unsigned long encoded) {
    return encoded >= 1 && encoded <= 8 ? static_cast<std::uint32_t>(encoded - 1) : 0;
}

std::uint32_t EncodedArithmetic(std::uint32_t internal) {
    return internal <= 5 ? internal + 1 : 1;
}

std::uint32_t InternalArithmetic(unsigned long encoded) {
    return encoded >= 1 && encoded <= 6 ? static_cast<std::uint32_t>(encoded - 1) : 0;
}

std::uint32_t EncodedKind(std::uint32_t internal) {
    return internal < 10 ? kKindTags[internal] : 1;
}

std::uint32_t InternalKind(unsigned long encoded) {
    for (std::uint32_t kind = 0; kind < 10; ++kind) {
        if (kKindTags[kind] == encoded) return kind;
    }
    return 0;
}

}  // namespace vx::qualifier
