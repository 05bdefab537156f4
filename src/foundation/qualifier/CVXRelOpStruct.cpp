#include "vxutil/foundation/CVXRelOpStruct.h"

#include "foundation/Number32.h"
#include "foundation/qualifier/LikePattern.h"
#include "foundation/qualifier/NumericValue.h"
#include "foundation/qualifier/QualifierCodes.h"
#include "foundation/value/EncodedFields.h"
#include "vxutil/gnrt/CGNAssert.h"

namespace {

const char* const kOperatorTexts[] = {" = ",  " > ",  " >= ",   " < ",
                                      " <= ", " != ", " LIKE ", " IN "};

bool IsText(const CVXValueStruct& value) {
    return value.GetDataType() == VX_DATA_TYPE_CHAR || value.GetDataType() == VX_DATA_TYPE_DIARY;
}

// The order of two values (-1, 0, 1), or false when they do not compare.
bool Order(const CVXValueStruct& a, const CVXValueStruct& b, int& order) {
    vx::qualifier::Numeric x, y;
    if (vx::qualifier::ToNumeric(a, x) && vx::qualifier::ToNumeric(b, y)) {
        order = vx::qualifier::CompareNumbers(x, y);
        return true;
    }
    if (IsText(a) && IsText(b)) {
        const int compared = a.GetText().str().compare(b.GetText().str());
        order = compared < 0 ? -1 : (compared > 0 ? 1 : 0);
        return true;
    }
    if (a.GetDataType() == VX_DATA_TYPE_KEYWORD && b.GetDataType() == VX_DATA_TYPE_KEYWORD) {
        order = a.GetInteger() < b.GetInteger() ? -1 : (a.GetInteger() > b.GetInteger() ? 1 : 0);
        return true;
    }
    return false;
}

}  // namespace

CVXRelOpStruct::CVXRelOpStruct(std::uint32_t operation, const CVXQualifierOperand& left,
                               const CVXQualifierOperand& right)
    : m_nOperation(operation), m_left(left), m_right(right) {}

bool CVXRelOpStruct::CopyFrom(const VXRelOpStruct& record) {
    m_nOperation = record.operation;
    return m_left.CopyFrom(record.operand1) && m_right.CopyFrom(record.operand2);
}

bool CVXRelOpStruct::CopyTo(VXRelOpStruct& record) const {
    record.operation = m_nOperation;
    return m_left.CopyTo(record.operand1) && m_right.CopyTo(record.operand2);
}

void CVXRelOpStruct::ToText(CGNString& out) const {
    CGNString left, right;
    m_left.ToText(left);
    m_right.ToText(right);
    const char* op = m_nOperation <= VX_REL_OP_IN ? kOperatorTexts[m_nOperation] : "";
    out.Format("(%s%s%s) ", left.c_str(), op, right.c_str());
}

bool CVXRelOpStruct::Encode(CGNString& out) const {
    CGNString left, right;
    if (!m_left.Encode(left) || !m_right.Encode(right)) return false;
    out.Empty();
    vx::number32::AppendUnsigned(out, vx::qualifier::EncodedRelation(m_nOperation));
    out += '\\';
    out += left.c_str();
    out += '\\';
    out += right.c_str();
    return true;
}

bool CVXRelOpStruct::Decode(const char*& cursor) {
    std::uint32_t code = 0;
    if (!vx::encoded::ReadUnsignedLong(cursor, code)) return false;
    m_nOperation = vx::qualifier::InternalRelation(code);
    return m_left.Decode(cursor) && m_right.Decode(cursor);
}

bool CVXRelOpStruct::Compare(const CVXFieldValueLookup* fields, bool& result) const {
    if (!GN_ASSERT(m_nOperation != VX_REL_OP_IN)) return false;
    CVXValueStruct a, b;
    if (!m_left.Resolve(fields, a) || !m_right.Resolve(fields, b)) return false;
    const bool aNull = a.GetDataType() == VX_DATA_TYPE_NULL;
    const bool bNull = b.GetDataType() == VX_DATA_TYPE_NULL;
    if (aNull || bNull) {  // null equals only null, and has no order
        const bool equal = aNull && bNull;
        result = m_nOperation == VX_REL_OP_EQUAL       ? equal
                 : m_nOperation == VX_REL_OP_NOT_EQUAL ? !equal
                                                       : false;
        return true;
    }
    if (m_nOperation == VX_REL_OP_LIKE) {
        if (!IsText(a) || !IsText(b)) return false;
        result = vx::qualifier::MatchesLike(a.GetText().view(), b.GetText().view());
        return true;
    }
    int order = 0;
    if (!Order(a, b, order)) return false;
    switch (m_nOperation) {
        case VX_REL_OP_GREATER:
            result = order > 0;
            break;
        case VX_REL_OP_GREATER_EQUAL:
            result = order >= 0;
            break;
        case VX_REL_OP_LESS:
            result = order < 0;
            break;
        case VX_REL_OP_LESS_EQUAL:
            result = order <= 0;
            break;
        case VX_REL_OP_NOT_EQUAL:
            result = order != 0;
            break;
        default:
            result = order == 0;
            break;
    }
    return true;
}
