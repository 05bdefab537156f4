// The leaf of a qualifier: two operands compared with a relational operator.
//
// Comparison rules: numbers compare numerically across their types (integers, times,
// enumerated, bitmask and unsigned values as integers; with a real as reals; with a decimal
// through the decimal arithmetic); character and diary texts byte by byte, case-sensitively;
// keywords by number; null equals only null. " LIKE " matches the left text against the right
// one as an SQL pattern: "%" any run of characters, "_" one character, "[abc]" one of a set,
// "[^abc]" one not in it, "[a-z]" one of a range. " IN " is not supported.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXQualifierOperand.h"

class VXUTIL_API CVXRelOpStruct {
public:
    CVXRelOpStruct() = default;
    CVXRelOpStruct(std::uint32_t operation, const CVXQualifierOperand& left,
                   const CVXQualifierOperand& right);

    std::uint32_t GetOperation() const { return m_nOperation; }
    const CVXQualifierOperand& GetLeft() const { return m_left; }
    const CVXQualifierOperand& GetRight() const { return m_right; }

    bool CopyFrom(const VXRelOpStruct& record);
    bool CopyTo(VXRelOpStruct& record) const;
    // "(left op right) " with the operator's text, blanks included (" = ", " LIKE ").
    void ToText(CGNString& out) const;
    bool Encode(CGNString& out) const;
    bool Decode(const char*& cursor);

    // Compares the resolved operands; false when they cannot be compared (a missing field,
    // types that do not compare, " IN ").
    bool Compare(const CVXFieldValueLookup* fields, bool& result) const;

private:
    std::uint32_t m_nOperation = VX_REL_OP_EQUAL;
    CVXQualifierOperand m_left;
    CVXQualifierOperand m_right;
};
