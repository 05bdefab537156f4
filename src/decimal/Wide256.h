// A 256-bit unsigned working integer for the decimal kernel: wide enough for the product of
// two 96-bit mantissas and for a mantissa aligned to 28 more decimal places. Four 64-bit
// limbs, least significant first; U is the 128-bit type that holds a double limb.
#pragma once

#include <bit>
#include <cstdint>

namespace vx::decimal {

template <class U>
class Wide256 {
public:
    Wide256() = default;
    explicit Wide256(U value) {
        m_limbs[0] = static_cast<std::uint64_t>(value);
        m_limbs[1] = static_cast<std::uint64_t>(value >> 64);
    }

    // The full product of two numbers below 2^128.
    static Wide256 Product(U a, U b) {
        const std::uint64_t left[2] = {static_cast<std::uint64_t>(a),
                                       static_cast<std::uint64_t>(a >> 64)};
        const std::uint64_t right[2] = {static_cast<std::uint64_t>(b),
                                        static_cast<std::uint64_t>(b >> 64)};
        Wide256 product;
        for (int i = 0; i < 2; ++i) {
            std::uint64_t carry = 0;
            for (int j = 0; j < 2; ++j) {
                U cell = U(left[i]) * U(right[j]) + U(product.m_limbs[i + j]) + U(carry);
                product.m_limbs[i + j] = static_cast<std::uint64_t>(cell);
                carry = static_cast<std::uint64_t>(cell >> 64);
            }
            product.m_limbs[i + 2] = carry;
        }
        return product;
    }

    bool IsZero() const { return (m_limbs[0] | m_limbs[1] | m_limbs[2] | m_limbs[3]) == 0; }
    // True when the value is at most `limit`; the low half is then the value.
    bool AtMost(U limit) const { return (m_limbs[2] | m_limbs[3]) == 0 && Low() <= limit; }
    U Low() const { return (U(m_limbs[1]) << 64) | U(m_limbs[0]); }

    int BitLength() const {
        for (int i = 3; i >= 0; --i) {
            if (m_limbs[i] != 0) return i * 64 + 64 - std::countl_zero(m_limbs[i]);
        }
        return 0;
    }

    // this = this * factor + addend; the caller keeps the result below 2^256.
    void MultiplyAdd(std::uint64_t factor, std::uint64_t addend) {
        std::uint64_t carry = addend;
        for (std::uint64_t& limb : m_limbs) {
            U cell = U(limb) * U(factor) + U(carry);
            limb = static_cast<std::uint64_t>(cell);
            carry = static_cast<std::uint64_t>(cell >> 64);
        }
    }

    // Divides in place and returns the remainder; `divisor` is not 0.
    std::uint64_t DivideSmall(std::uint64_t divisor) {
        U remainder = 0;
        for (int i = 3; i >= 0; --i) {
            U current = (remainder << 64) | U(m_limbs[i]);
            U quotient = current / U(divisor);
            m_limbs[i] = static_cast<std::uint64_t>(quotient);
            remainder = current - quotient * U(divisor);
        }
        return static_cast<std::uint64_t>(remainder);
    }

    Wide256& operator+=(const Wide256& other) {
        std::uint64_t carry = 0;
        for (int i = 0; i < 4; ++i) {
            U cell = U(m_limbs[i]) + U(other.m_limbs[i]) + U(carry);
            m_limbs[i] = static_cast<std::uint64_t>(cell);
            carry = static_cast<std::uint64_t>(cell >> 64);
        }
        return *this;
    }

    // The caller makes sure that other is not greater.
    Wide256& operator-=(const Wide256& other) {
        std::uint64_t borrow = 0;
        for (int i = 0; i < 4; ++i) {
            std::uint64_t subtrahend = other.m_limbs[i] + borrow;
            borrow = (subtrahend < borrow || m_limbs[i] < subtrahend) ? 1 : 0;
            m_limbs[i] -= subtrahend;
        }
        return *this;
    }
    friend Wide256 operator+(Wide256 left, const Wide256& right) { return left += right; }
    friend Wide256 operator-(Wide256 left, const Wide256& right) { return left -= right; }
    friend bool operator<(const Wide256& left, const Wide256& right) {
        return left.CompareTo(right) < 0;
    }

    int CompareTo(const Wide256& other) const {
        for (int i = 3; i >= 0; --i) {
            if (m_limbs[i] != other.m_limbs[i]) return m_limbs[i] < other.m_limbs[i] ? -1 : 1;
        }
        return 0;
    }

private:
    std::uint64_t m_limbs[4] = {};
};

}  // namespace vx::decimal
