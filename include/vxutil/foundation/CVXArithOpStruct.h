// An arithmetic operation over two qualifier operands: add, subtract, multiply, divide,
// modulo, or the negation of the right operand.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXQualifierOperand.h"

class VXUTIL_API CVXArithOpStruct {
public:
    CVXArithOpStruct() = default;
    CVXArithOpStruct(std::uint32_t operation, const CVXQualifierOperand& left,
                     const CVXQualifierOperand& right);

    std::uint32_t GetOperation() const { return m_nOperation; }
    const CVXQualifierOperand& GetLeft() const { return m_left; }
    const CVXQualifierOperand& GetRight() const { return m_right; }

    bool CopyFrom(const VXArithOpStruct& record);
    bool CopyTo(VXArithOpStruct& record) const;
    bool Encode(CGNString& out) const;
    bool Decode(const char*& cursor);

    // Computes the operation on the resolved operands. Integers (and times, enumerated,
    // bitmask and unsigned values) give integers, division truncating toward zero; a real
    // operand gives a real; a decimal operand gives a decimal through the decimal arithmetic.
    // False for other types, division or modulo by zero and integer overflow.
    bool Evaluate(const CVXFieldValueLookup* fields, CVXValueStruct& result) const;

private:
    std::uint32_t m_nOperation = VX_ARITH_OP_ADD;
    CVXQualifierOperand m_left;
    CVXQualifierOperand m_right;
};
