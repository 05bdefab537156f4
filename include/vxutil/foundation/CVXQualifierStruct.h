// A qualifier: the search condition of the workflow server, a tree of AND, OR and NOT nodes
// over relational leaves. It copies to and from the API records, shows as text, encodes and
// decodes, and evaluates against the field values of an entry.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXRelOpStruct.h"
#include "vxutil/foundation/VXQualifierRecords.h"
#include "vxutil/gnrt/CGNString.h"

class CVXFieldValueLookup;

class VXUTIL_API CVXQualifierStruct {
public:
    CVXQualifierStruct() = default;  // the empty condition
    explicit CVXQualifierStruct(const VXQualifierStruct& record);
    CVXQualifierStruct(const CVXQualifierStruct& other);
    CVXQualifierStruct& operator=(const CVXQualifierStruct& other);
    ~CVXQualifierStruct();

    static CVXQualifierStruct And(const CVXQualifierStruct& left, const CVXQualifierStruct& right);
    static CVXQualifierStruct Or(const CVXQualifierStruct& left, const CVXQualifierStruct& right);
    static CVXQualifierStruct Not(const CVXQualifierStruct& child);
    static CVXQualifierStruct Relation(const CVXRelOpStruct& relation);

    std::uint32_t GetOperation() const { return m_nOperation; }
    const CVXQualifierStruct* GetLeft() const { return m_pLeft.get(); }
    const CVXQualifierStruct* GetRight() const { return m_pRight.get(); }
    const CVXQualifierStruct* GetNot() const { return m_pNot.get(); }
    const CVXRelOpStruct* GetRelation() const { return m_pRelation.get(); }

    // Deep copies; CopyTo allocates every part of the record tree for the caller, who releases
    // it with FreeRecord. CopyFrom gives the empty condition for an unknown operation.
    bool CopyFrom(const VXQualifierStruct& record);
    bool CopyTo(VXQualifierStruct& record) const;
    static void FreeRecord(VXQualifierStruct& record);

    // "a AND b ", "a OR b ", " NOT a ", "(7 = 5) "; the empty condition is empty.
    void ToText(CGNString& out) const;
    // The operation code, then the children's or the leaf's encodings after a backslash.
    bool Encode(CGNString& out) const;
    // Reads an encoded qualifier ("(null)" is the empty condition). On failure what was read
    // so far stays in the tree.
    bool Decode(const char*& cursor);

    // Evaluates the condition with the field values of `fields` (may be null when no operand
    // is a field); the empty condition is true. False when a leaf cannot be compared.
    bool Evaluate(const CVXFieldValueLookup* fields, bool& result) const;

private:
    void Reset();
    void Swap(CVXQualifierStruct& other);
    // One node of a walk; the children still to be visited are pushed onto `children`.
    bool CopyNodeFrom(
        const VXQualifierStruct& record,
        std::vector<std::pair<const VXQualifierStruct*, CVXQualifierStruct*>>& children);
    bool DecodeNode(const char*& cursor, std::vector<CVXQualifierStruct*>& children);

    // The child links, left, right and the NOT child.
    static std::unique_ptr<CVXQualifierStruct> CVXQualifierStruct::*const kLinks[3];

    std::uint32_t m_nOperation = VX_COND_NONE;
    std::unique_ptr<CVXQualifierStruct> m_pLeft;
    std::unique_ptr<CVXQualifierStruct> m_pRight;
    std::unique_ptr<CVXQualifierStruct> m_pNot;
    std::unique_ptr<CVXRelOpStruct> m_pRelation;
};
