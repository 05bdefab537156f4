#include "vxutil/foundation/CVXArithOpStruct.h"

#include <cmath>
#include <cstdlib>
#include <type_traits>

#include "foundation/Number32.h"
#include "foundation/qualifier/NumericValue.h"
#include "foundation/qualifier/QualifierCodes.h"
#include "foundation/value/EncodedFields.h"
#include "vxutil/decimal/TKDecimal.h"

namespace {

using vx::qualifier::Numeric;

// Applies the operation to two operands of one numeric kind; false for a zero divisor. The
// remainder of reals is fmod's, of integers the % operator's.
template <typename Number>
bool Apply(std::uint32_t operation, Number a, Number b, Number& value) {
    switch (operation) {
        case VX_ARITH_OP_ADD:
            value = a + b;
            return true;
        case VX_ARITH_OP_SUBTRACT:
            value = a - b;
            return true;
        case VX_ARITH_OP_MULTIPLY:
            value = a * b;
            return true;
        case VX_ARITH_OP_DIVIDE:
            if (b == 0) return false;
            value = a / b;
            return true;
        case VX_ARITH_OP_MODULO:
            if (b == 0) return false;
            if constexpr (std::is_floating_point_v<Number>)
                value = std::fmod(a, b);
            else
                value = a % b;
            return true;
        default:
            value = -b;
            return true;
    }
}

bool IntegerResult(std::uint32_t operation, long long a, long long b, CVXValueStruct& result) {
    long long value = 0;
    // Operands are 32-bit, so every result is exact in 64 bits.
    if (!Apply(operation, a, b, value) || value < INT32_MIN || value > INT32_MAX) return false;
    result.SetInteger(static_cast<std::int32_t>(value));
    return true;
}

bool RealResult(std::uint32_t operation, double a, double b, CVXValueStruct& result) {
    double value = 0;
    if (!Apply(operation, a, b, value) || !std::isfinite(value)) return false;
    result.SetReal(value);
    return true;
}

// The quotient cut to its integral digits.
TKDecimal Truncated(const TKDecimal& value) {
    std::string text = value.asString();
    text = text.substr(0, text.find('.'));
    TKDecimal truncated;
    TKDecimal::FromText(text, truncated);
    return truncated;
}

bool DecimalResult(std::uint32_t operation, const TKDecimal& a, const TKDecimal& b,
                   CVXValueStruct& result) {
    TKDecimal value;
    TKStatus status = TKStatus::kExact;
    switch (operation) {
        case VX_ARITH_OP_ADD:
            status = TKDecimal::Add(a, b, value);
            break;
        case VX_ARITH_OP_SUBTRACT:
            status = TKDecimal::Subtract(a, b, value);
            break;
        case VX_ARITH_OP_MULTIPLY:
            status = TKDecimal::Multiply(a, b, value);
            break;
        case VX_ARITH_OP_DIVIDE:
            status = TKDecimal::Divide(a, b, value);
            break;
        case VX_ARITH_OP_MODULO: {  // a - b * trunc(a / b), which keeps the sign of a
            TKDecimal quotient, product;
            status = TKDecimal::Divide(a, b, quotient);
            if (status == TKStatus::kOverflow || status == TKStatus::kNotANumber) break;
            TKDecimal::Multiply(b, Truncated(quotient), product);
            status = TKDecimal::Subtract(a, product, value);
            break;
        }
        default:
            status = TKDecimal::Subtract(TKDecimal(), b, value);
            break;
    }
    if (status == TKStatus::kOverflow || status == TKStatus::kNotANumber) return false;
    result.SetDecimal(value.asString().c_str());
    return true;
}

// Arithmetic nests through its operands and is walked recursively. No formula a person writes
// nests this deep; a deeper one read from text or a record is refused, so that a hostile text
// cannot exhaust the stack.
constexpr int kMaxNesting = 64;
thread_local int t_nesting = 0;

class NestingLevel {
public:
    NestingLevel() { ++t_nesting; }
    ~NestingLevel() { --t_nesting; }
    NestingLevel(const NestingLevel&) = delete;
    NestingLevel& operator=(const NestingLevel&) = delete;
    bool TooDeep() const { return t_nesting > kMaxNesting; }
};

}  // namespace

CVXArithOpStruct::CVXArithOpStruct(std::uint32_t operation, const CVXQualifierOperand& left,
                                   const CVXQualifierOperand& right)
    : m_nOperation(operation), m_left(left), m_right(right) {}

bool CVXArithOpStruct::CopyFrom(const VXArithOpStruct& record) {
    const NestingLevel level;
    if (level.TooDeep()) return false;
    m_nOperation = record.operation;
    return m_left.CopyFrom(record.operand1) && m_right.CopyFrom(record.operand2);
}

bool CVXArithOpStruct::CopyTo(VXArithOpStruct& record) const {
    record.operation = m_nOperation;
    return m_left.CopyTo(record.operand1) && m_right.CopyTo(record.operand2);
}

bool CVXArithOpStruct::Encode(CGNString& out) const {
    CGNString left, right;
    if (!m_right.Encode(right)) return false;
    const auto code = static_cast<unsigned>(vx::qualifier::EncodedArithmetic(m_nOperation));
    const bool negate = m_nOperation == VX_ARITH_OP_NEGATE;  // has no left operand
    if (!negate && !m_left.Encode(left)) return false;
    out.Empty();
    vx::number32::AppendUnsigned(out, code);
    out += '\\';
    if (!negate) {
        out += left.c_str();
        out += '\\';
    }
    out += right.c_str();
    return true;
}

bool CVXArithOpStruct::Decode(const char*& cursor) {
    const NestingLevel level;
    if (level.TooDeep()) return false;
    std::uint32_t code = 0;
    if (!vx::encoded::ReadUnsignedLong(cursor, code)) return false;
    m_nOperation = vx::qualifier::InternalArithmetic(code);
    if (m_nOperation != VX_ARITH_OP_NEGATE && !m_left.Decode(cursor)) return false;
    return m_right.Decode(cursor);
}

bool CVXArithOpStruct::Evaluate(const CVXFieldValueLookup* fields, CVXValueStruct& result) const {
    CVXValueStruct leftValue, rightValue;
    leftValue.SetInteger(0);  // the negation has no left operand
    if (m_nOperation != VX_ARITH_OP_NEGATE && !m_left.Resolve(fields, leftValue)) return false;
    if (!m_right.Resolve(fields, rightValue)) return false;
    Numeric a, b;
    if (!vx::qualifier::ToNumeric(leftValue, a) || !vx::qualifier::ToNumeric(rightValue, b))
        return false;
    switch (vx::qualifier::CommonKind(a, b)) {
        case Numeric::kDecimal:
            return DecimalResult(m_nOperation, vx::qualifier::AsDecimal(a),
                                 vx::qualifier::AsDecimal(b), result);
        case Numeric::kReal:
            return RealResult(m_nOperation, vx::qualifier::AsReal(a), vx::qualifier::AsReal(b),
                              result);
        default:
            return IntegerResult(m_nOperation, a.integer, b.integer, result);
    }
}
