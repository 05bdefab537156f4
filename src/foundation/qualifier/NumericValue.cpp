#include "foundation/qualifier/NumericValue.h"

namespace vx::qualifier {

bool ToNumeric(const CVXValueStruct& value, Numeric& number) {
    switch (value.GetDataType()) {
        case VX_DATA_TYPE_INTEGER:
        case VX_DATA_TYPE_TIME:
            number.kind = Numeric::kInteger;
            number.integer = value.GetInteger();
            return true;
        case VX_DATA_TYPE_ENUM:
        case VX_DATA_TYPE_BITMASK:
        case VX_DATA_TYPE_ULONG:
            number.kind = Numeric::kInteger;
            number.integer = value.GetUnsigned();
            return true;
        case VX_DATA_TYPE_REAL:
            number.kind = Numeric::kReal;
            number.real = value.GetReal();
            return true;
        case VX_DATA_TYPE_DECIMAL:
            number.kind = Numeric::kDecimal;
            return TKDecimal::FromText(value.GetText().view(), number.decimal) !=
                       TKStatus::kNotANumber &&
                   !number.decimal.IsBad();
        default:
            return false;
    }
}

Numeric::Kind CommonKind(const Numeric& a, const Numeric& b) {
    return a.kind > b.kind ? a.kind : b.kind;
}

TKDecimal AsDecimal(const Numeric& number) {
    if (number.kind == Numeric::kDecimal) return number.decimal;
    if (number.kind == Numeric::kInteger) return TKDecimal::FromInteger(number.integer);
    TKDecimal converted;
    TKDecimal::FromReal(number.real, converted);
    return converted;
}

double AsReal(const Numeric& number) {
    return number.kind == Numeric::kReal ? number.real : static_cast<double>(number.integer);
}

int CompareNumbers(const Numeric& a, const Numeric& b) {
    switch (CommonKind(a, b)) {
        case Numeric::kDecimal:
            return TKDecimal::Compare(AsDecimal(a), AsDecimal(b));
        case Numeric::kReal: {
            const double x = AsReal(a), y = AsReal(b);
            return x < y ? -1 : (x > y ? 1 : 0);
        }
        default:
            return a.integer < b.integer ? -1 : (a.integer > b.integer ? 1 : 0);
    }
}

}  // namespace vx::qualifier
