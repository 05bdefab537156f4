// One operand of a qualifier's comparison or arithmetic: a field, a value, an arithmetic
// operation over two operands, or a pair of numbers.
#pragma once

#include <cstdint>
#include <memory>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/foundation/VXQualifierRecords.h"
#include "vxutil/gnrt/CGNString.h"

class CVXArithOpStruct;
class CVXFieldValueLookup;

class VXUTIL_API CVXQualifierOperand {
public:
    CVXQualifierOperand();  // the field 0
    CVXQualifierOperand(const CVXQualifierOperand& other);
    CVXQualifierOperand& operator=(const CVXQualifierOperand& other);
    ~CVXQualifierOperand();

    static CVXQualifierOperand Field(std::uint32_t fieldId, std::uint32_t kind = VX_FIELD);
    static CVXQualifierOperand Value(const CVXValueStruct& value);
    static CVXQualifierOperand Arithmetic(const CVXArithOpStruct& operation);
    static CVXQualifierOperand NumberPair(std::uint32_t first, std::uint32_t second);

    std::uint32_t GetKind() const { return m_nKind; }
    bool IsField() const;
    std::uint32_t GetFieldId() const { return m_nFieldId; }
    const CVXValueStruct& GetValue() const { return m_value; }
    const CVXArithOpStruct* GetArithmetic() const { return m_pArith.get(); }

    // Deep copies from and to the API record; the record's parts are allocated for the caller,
    // who releases them with FreeRecord.
    bool CopyFrom(const VXFieldValueOrArithStruct& record);
    bool CopyTo(VXFieldValueOrArithStruct& record) const;
    static void FreeRecord(VXFieldValueOrArithStruct& record);

    // A field's id ("%ld") or a value's qualifier text; other kinds have none (assertion).
    void ToText(CGNString& out) const;
    bool Encode(CGNString& out) const;
    bool Decode(const char*& cursor);

    // The operand's value: a field's from `fields` (a missing field, or no lookup, gives
    // false), a value itself, or the result of the arithmetic. Number pairs have none.
    bool Resolve(const CVXFieldValueLookup* fields, CVXValueStruct& value) const;

private:
    void Reset();

    std::uint32_t m_nKind = VX_FIELD;
    std::uint32_t m_nFieldId = 0;
    CVXValueStruct m_value;
    std::unique_ptr<CVXArithOpStruct> m_pArith;
    VXNumberPair m_pair{0, 0};
};
