// An unsigned 128-bit integer built from two 64-bit halves, for compilers without a native one
// (the 32-bit Windows build). It offers just the operators the decimal kernel uses, with the
// same wrap-around semantics as the native type, so one kernel serves both.
#pragma once

#include <cstdint>

namespace vx::decimal {

class Portable128 {
public:
    constexpr Portable128() = default;
    constexpr Portable128(std::uint64_t value) : m_lo(value) {}  // NOLINT: as the native type
    constexpr Portable128(std::uint64_t hi, std::uint64_t lo) : m_hi(hi), m_lo(lo) {}

    constexpr std::uint64_t High() const { return m_hi; }
    constexpr std::uint64_t Low() const { return m_lo; }
    explicit constexpr operator std::uint64_t() const { return m_lo; }
    explicit constexpr operator bool() const { return (m_hi | m_lo) != 0; }

    friend constexpr bool operator==(Portable128 a, Portable128 b) {
        return a.m_hi == b.m_hi && a.m_lo == b.m_lo;
    }
    friend constexpr bool operator<(Portable128 a, Portable128 b) {
        return a.m_hi != b.m_hi ? a.m_hi < b.m_hi : a.m_lo < b.m_lo;
    }
    friend constexpr bool operator>(Portable128 a, Portable128 b) { return b < a; }
    friend constexpr bool operator<=(Portable128 a, Portable128 b) { return !(b < a); }
    friend constexpr bool operator>=(Portable128 a, Portable128 b) { return !(a < b); }

    friend constexpr Portable128 operator+(Portable128 a, Portable128 b) {
        std::uint64_t lo = a.m_lo + b.m_lo;
        return {a.m_hi + b.m_hi + (lo < a.m_lo ? 1u : 0u), lo};
    }
    friend constexpr Portable128 operator-(Portable128 a, Portable128 b) {
        return {a.m_hi - b.m_hi - (a.m_lo < b.m_lo ? 1u : 0u), a.m_lo - b.m_lo};
    }
    friend constexpr Portable128 operator*(Portable128 a, Portable128 b) {
        Portable128 product = MultiplyWide(a.m_lo, b.m_lo);
        product.m_hi += a.m_hi * b.m_lo + a.m_lo * b.m_hi;
        return product;
    }
    friend constexpr Portable128 operator<<(Portable128 a, int shift) {
        if (shift == 0) return a;
        if (shift >= 64) return {a.m_lo << (shift - 64), 0};
        return {(a.m_hi << shift) | (a.m_lo >> (64 - shift)), a.m_lo << shift};
    }
    friend constexpr Portable128 operator>>(Portable128 a, int shift) {
        if (shift == 0) return a;
        if (shift >= 64) return {0, a.m_hi >> (shift - 64)};
        return {a.m_hi >> shift, (a.m_lo >> shift) | (a.m_hi << (64 - shift))};
    }
    friend constexpr Portable128 operator|(Portable128 a, Portable128 b) {
        return {a.m_hi | b.m_hi, a.m_lo | b.m_lo};
    }
    friend constexpr Portable128 operator&(Portable128 a, Portable128 b) {
        return {a.m_hi & b.m_hi, a.m_lo & b.m_lo};
    }
    friend constexpr Portable128 operator/(Portable128 a, Portable128 b) {
        Portable128 remainder;
        return Divide(a, b, remainder);
    }
    friend constexpr Portable128 operator%(Portable128 a, Portable128 b) {
        Portable128 remainder;
        Divide(a, b, remainder);
        return remainder;
    }

private:
    // The full product of two 64-bit numbers, from their 32-bit halves.
    static constexpr Portable128 MultiplyWide(std::uint64_t a, std::uint64_t b) {
        const std::uint64_t mask = 0xFFFFFFFFu;
        std::uint64_t lowLow = (a & mask) * (b & mask);
        std::uint64_t highLow = (a >> 32) * (b & mask);
        std::uint64_t lowHigh = (a & mask) * (b >> 32);
        std::uint64_t highHigh = (a >> 32) * (b >> 32);
        std::uint64_t middle = (lowLow >> 32) + (highLow & mask) + (lowHigh & mask);
        return {highHigh + (highLow >> 32) + (lowHigh >> 32) + (middle >> 32),
                (middle << 32) | (lowLow & mask)};
    }

    // Quotient and remainder; a zero divisor yields zero for both, where the native type
    // would trap (the kernel never divides by zero).
    static constexpr Portable128 Divide(Portable128 a, Portable128 b, Portable128& remainder) {
        remainder = Portable128();
        if (!b) return {};
        if (a.m_hi == 0 && b.m_hi == 0) {
            remainder = a.m_lo % b.m_lo;
            return a.m_lo / b.m_lo;
        }
        if (b.m_hi == 0 && b.m_lo <= 0xFFFFFFFFu) return DivideShort(a, b.m_lo, remainder);
        // Shift-and-subtract, one quotient bit per step.
        Portable128 quotient;
        for (int bit = 127; bit >= 0; --bit) {
            remainder = (remainder << 1) | ((a >> bit) & Portable128(1));
            quotient = quotient << 1;
            if (remainder >= b) {
                remainder = remainder - b;
                quotient = quotient | Portable128(1);
            }
        }
        return quotient;
    }

    // Schoolbook division by a divisor of at most 32 bits, one 32-bit word at a time.
    static constexpr Portable128 DivideShort(Portable128 a, std::uint64_t divisor,
                                             Portable128& remainder) {
        const std::uint64_t words[4] = {a.m_hi >> 32, a.m_hi & 0xFFFFFFFFu, a.m_lo >> 32,
                                        a.m_lo & 0xFFFFFFFFu};
        std::uint64_t quotient[4] = {};
        std::uint64_t carry = 0;
        for (int i = 0; i < 4; ++i) {
            std::uint64_t current = (carry << 32) | words[i];
            quotient[i] = current / divisor;
            carry = current % divisor;
        }
        remainder = carry;
        return {(quotient[0] << 32) | quotient[1], (quotient[2] << 32) | quotient[3]};
    }

    std::uint64_t m_hi = 0;
    std::uint64_t m_lo = 0;
};

}  // namespace vx::decimal
