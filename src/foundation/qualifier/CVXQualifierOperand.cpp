#include "vxutil/foundation/CVXQualifierOperand.h"

#include <cstdlib>
#include <new>

#include "foundation/Number32.h"
#include "foundation/qualifier/QualifierCodes.h"
#include "foundation/value/EncodedFields.h"
#include "vxutil/foundation/CVXArithOpStruct.h"
#include "vxutil/foundation/CVXFieldValueLookup.h"
#include "vxutil/gnrt/CGNAssert.h"

namespace {

template <class Record>
Record* NewRecord() {
    return static_cast<Record*>(std::calloc(1, sizeof(Record)));
}

}  // namespace

CVXQualifierOperand::CVXQualifierOperand() = default;

CVXQualifierOperand::CVXQualifierOperand(const CVXQualifierOperand& other) {
    *this = other;
}

CVXQualifierOperand& CVXQualifierOperand::operator=(const CVXQualifierOperand& other) {
    if (this == &other) return *this;
    m_nKind = other.m_nKind;
    m_nFieldId = other.m_nFieldId;
    m_value = other.m_value;
    m_pArith = other.m_pArith ? std::make_unique<CVXArithOpStruct>(*other.m_pArith) : nullptr;
    m_pair = other.m_pair;
    return *this;
}

CVXQualifierOperand::~CVXQualifierOperand() = default;

void CVXQualifierOperand::Reset() {
    *this = CVXQualifierOperand();
}

CVXQualifierOperand CVXQualifierOperand::Field(std::uint32_t fieldId, std::uint32_t kind) {
    CVXQualifierOperand operand;
    operand.m_nKind = kind;
    operand.m_nFieldId = fieldId;
    return operand;
}

CVXQualifierOperand CVXQualifierOperand::Value(const CVXValueStruct& value) {
    CVXQualifierOperand operand;
    operand.m_nKind = VX_VALUE;
    operand.m_value = value;
    return operand;
}

CVXQualifierOperand CVXQualifierOperand::Arithmetic(const CVXArithOpStruct& operation) {
    CVXQualifierOperand operand;
    operand.m_nKind = VX_ARITHMETIC;
    operand.m_pArith = std::make_unique<CVXArithOpStruct>(operation);
    return operand;
}

CVXQualifierOperand CVXQualifierOperand::NumberPair(std::uint32_t first, std::uint32_t second) {
    CVXQualifierOperand operand;
    operand.m_nKind = VX_NUMBER_PAIR;
    operand.m_pair = {first, second};
    return operand;
}

bool CVXQualifierOperand::IsField() const {
    return m_nKind == VX_FIELD || m_nKind == VX_FIELD_TRANSACTION || m_nKind == VX_FIELD_DATABASE ||
           m_nKind == VX_FIELD_CURRENT;
}

bool CVXQualifierOperand::CopyFrom(const VXFieldValueOrArithStruct& record) {
    Reset();
    m_nKind = record.tag;
    if (IsField()) {
        if (record.u.fieldId == nullptr) return false;
        m_nFieldId = *record.u.fieldId;
        return true;
    }
    switch (record.tag) {
        case VX_VALUE:
            return record.u.value != nullptr && m_value.ImportFrom(*record.u.value);
        case VX_ARITHMETIC:
            if (record.u.arithOp == nullptr) return false;
            m_pArith = std::make_unique<CVXArithOpStruct>();
            return m_pArith->CopyFrom(*record.u.arithOp);
        case VX_NUMBER_PAIR:
            if (record.u.pair == nullptr) return false;
            m_pair = *record.u.pair;
            return true;
        default:
            GN_ASSERT(!"unsupported qualifier operand");
            return false;
    }
}

bool CVXQualifierOperand::CopyTo(VXFieldValueOrArithStruct& record) const {
    record.tag = m_nKind;
    record.u.fieldId = nullptr;
    if (IsField()) {
        record.u.fieldId = NewRecord<std::uint32_t>();
        if (record.u.fieldId == nullptr) return false;
        *record.u.fieldId = m_nFieldId;
        return true;
    }
    switch (m_nKind) {
        case VX_VALUE:
            record.u.value = NewRecord<VXValueStruct>();
            return record.u.value != nullptr && m_value.ExportTo(record.u.value);
        case VX_ARITHMETIC:
            record.u.arithOp = NewRecord<VXArithOpStruct>();
            return record.u.arithOp != nullptr && m_pArith->CopyTo(*record.u.arithOp);
        case VX_NUMBER_PAIR:
            record.u.pair = NewRecord<VXNumberPair>();
            if (record.u.pair == nullptr) return false;
            *record.u.pair = m_pair;
            return true;
        default:
            GN_ASSERT(!"unsupported qualifier operand");
            return false;
    }
}

void CVXQualifierOperand::FreeRecord(VXFieldValueOrArithStruct& record) {
    switch (record.tag) {
        case VX_VALUE:
            if (record.u.value != nullptr) CVXValueStruct::FreeRecord(*record.u.value);
            break;
        case VX_ARITHMETIC:
            if (record.u.arithOp != nullptr) {
                FreeRecord(record.u.arithOp->operand1);
                FreeRecord(record.u.arithOp->operand2);
            }
            break;
        default:
            break;
    }
    std::free(record.u.fieldId);  // whichever part the union holds
    record.u.fieldId = nullptr;
}

void CVXQualifierOperand::ToText(CGNString& out) const {
    out.Empty();
    if (IsField()) {
        out.Format("%ld", static_cast<long>(static_cast<std::int32_t>(m_nFieldId)));
    } else if (m_nKind == VX_VALUE) {
        m_value.GetQualifierText(out);
    } else {
        GN_ASSERT(!"qualifier operand without a display text");
    }
}

bool CVXQualifierOperand::Encode(CGNString& out) const {
    out.Empty();
    vx::number32::AppendUnsigned(out, vx::qualifier::EncodedKind(m_nKind));
    out += '\\';
    CGNString part;
    if (IsField()) {
        vx::number32::AppendUnsigned(out, m_nFieldId);
        return true;
    }
    if (m_nKind == VX_VALUE) {
        if (!m_value.GetEncodedText(part)) return false;
    } else if (m_nKind == VX_ARITHMETIC) {
        if (!m_pArith->Encode(part)) return false;
    } else if (m_nKind == VX_NUMBER_PAIR) {
        // The "l" after the first number is written out; readers skip it.
        part.Format("%ul\\%u", static_cast<unsigned>(m_pair.first),
                    static_cast<unsigned>(m_pair.second));
    } else {
        GN_ASSERT(!"unsupported qualifier operand");
        return false;
    }
    out += part;
    return true;
}

bool CVXQualifierOperand::Decode(const char*& cursor) {
    Reset();
    std::uint32_t tag = 0, number = 0;
    if (!vx::encoded::ReadUnsignedLong(cursor, tag)) return false;
    m_nKind = vx::qualifier::InternalKind(tag);
    if (IsField()) {
        if (!vx::encoded::ReadUnsignedLong(cursor, number)) return false;
        m_nFieldId = number;
        return true;
    }
    switch (m_nKind) {
        case VX_VALUE:
            return m_value.Decode(cursor);
        case VX_ARITHMETIC:
            m_pArith = std::make_unique<CVXArithOpStruct>();
            return m_pArith->Decode(cursor);
        case VX_NUMBER_PAIR: {
            const char* end = nullptr;
            m_pair.first = vx::number32::ToUnsignedLong(cursor, &end);
            if (end == cursor) return false;
            cursor = end;
            vx::encoded::SkipField(cursor);
            if (!vx::encoded::ReadUnsignedLong(cursor, number)) return false;
            m_pair.second = number;
            return true;
        }
        default:
            return false;
    }
}

bool CVXQualifierOperand::Resolve(const CVXFieldValueLookup* fields, CVXValueStruct& value) const {
    if (IsField()) {
        const CVXValueStruct* found =
            fields != nullptr ? fields->FindFieldValue(m_nFieldId) : nullptr;
        if (found == nullptr) return false;
        value = *found;
        return true;
    }
    if (m_nKind == VX_VALUE) {
        value = m_value;
        return true;
    }
    return m_nKind == VX_ARITHMETIC && m_pArith->Evaluate(fields, value);
}
