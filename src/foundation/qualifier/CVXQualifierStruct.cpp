#include "vxutil/foundation/CVXQualifierStruct.h"

#include <cstdlib>
#include <cstring>

#include "foundation/value/EncodedFields.h"

namespace {

template <class Record>
Record* NewRecord() {
    return static_cast<Record*>(std::calloc(1, sizeof(Record)));
}

std::unique_ptr<CVXQualifierStruct> CopyOf(const std::unique_ptr<CVXQualifierStruct>& node) {
    return node ? std::make_unique<CVXQualifierStruct>(*node) : nullptr;
}

// A child node's record, allocated for the caller.
bool CopyChild(const CVXQualifierStruct* child, VXQualifierStruct*& record) {
    record = NewRecord<VXQualifierStruct>();
    return record != nullptr && child != nullptr && child->CopyTo(*record);
}

}  // namespace

CVXQualifierStruct::CVXQualifierStruct(const VXQualifierStruct& record) {
    CopyFrom(record);
}

CVXQualifierStruct::CVXQualifierStruct(const CVXQualifierStruct& other) {
    *this = other;
}

CVXQualifierStruct& CVXQualifierStruct::operator=(const CVXQualifierStruct& other) {
    if (this == &other) return *this;
    m_nOperation = other.m_nOperation;
    m_pLeft = CopyOf(other.m_pLeft);
    m_pRight = CopyOf(other.m_pRight);
    m_pNot = CopyOf(other.m_pNot);
    m_pRelation =
        other.m_pRelation ? std::make_unique<CVXRelOpStruct>(*other.m_pRelation) : nullptr;
    return *this;
}

CVXQualifierStruct::~CVXQualifierStruct() = default;

void CVXQualifierStruct::Reset() {
    m_nOperation = VX_COND_NONE;
    m_pLeft.reset();
    m_pRight.reset();
    m_pNot.reset();
    m_pRelation.reset();
}

CVXQualifierStruct CVXQualifierStruct::And(const CVXQualifierStruct& left,
                                           const CVXQualifierStruct& right) {
    CVXQualifierStruct node;
    node.m_nOperation = VX_COND_AND;
    node.m_pLeft = std::make_unique<CVXQualifierStruct>(left);
    node.m_pRight = std::make_unique<CVXQualifierStruct>(right);
    return node;
}

CVXQualifierStruct CVXQualifierStruct::Or(const CVXQualifierStruct& left,
                                          const CVXQualifierStruct& right) {
    CVXQualifierStruct node = And(left, right);
    node.m_nOperation = VX_COND_OR;
    return node;
}

CVXQualifierStruct CVXQualifierStruct::Not(const CVXQualifierStruct& child) {
    CVXQualifierStruct node;
    node.m_nOperation = VX_COND_NOT;
    node.m_pNot = std::make_unique<CVXQualifierStruct>(child);
    return node;
}

CVXQualifierStruct CVXQualifierStruct::Relation(const CVXRelOpStruct& relation) {
    CVXQualifierStruct node;
    node.m_nOperation = VX_COND_OPERATION;
    node.m_pRelation = std::make_unique<CVXRelOpStruct>(relation);
    return node;
}

bool CVXQualifierStruct::CopyFrom(const VXQualifierStruct& record) {
    Reset();
    switch (record.operation) {
        case VX_COND_AND:
        case VX_COND_OR:
            if (record.u.andor.left == nullptr || record.u.andor.right == nullptr) return false;
            m_nOperation = record.operation;
            m_pLeft = std::make_unique<CVXQualifierStruct>(*record.u.andor.left);
            m_pRight = std::make_unique<CVXQualifierStruct>(*record.u.andor.right);
            return true;
        case VX_COND_NOT:
            if (record.u.notQual == nullptr) return false;
            m_nOperation = VX_COND_NOT;
            m_pNot = std::make_unique<CVXQualifierStruct>(*record.u.notQual);
            return true;
        case VX_COND_OPERATION:
            if (record.u.relOp == nullptr) return false;
            m_nOperation = VX_COND_OPERATION;
            m_pRelation = std::make_unique<CVXRelOpStruct>();
            return m_pRelation->CopyFrom(*record.u.relOp);
        default:
            return record.operation == VX_COND_NONE;
    }
}

bool CVXQualifierStruct::CopyTo(VXQualifierStruct& record) const {
    std::memset(&record, 0, sizeof record);
    record.operation = m_nOperation;
    switch (m_nOperation) {
        case VX_COND_AND:
        case VX_COND_OR:
            return CopyChild(m_pLeft.get(), record.u.andor.left) &&
                   CopyChild(m_pRight.get(), record.u.andor.right);
        case VX_COND_NOT:
            return CopyChild(m_pNot.get(), record.u.notQual);
        case VX_COND_OPERATION:
            record.u.relOp = NewRecord<VXRelOpStruct>();
            return record.u.relOp != nullptr && m_pRelation->CopyTo(*record.u.relOp);
        default:
            return true;
    }
}

void CVXQualifierStruct::FreeRecord(VXQualifierStruct& record) {
    switch (record.operation) {
        case VX_COND_AND:
        case VX_COND_OR:
            for (VXQualifierStruct* child : {record.u.andor.left, record.u.andor.right}) {
                if (child != nullptr) FreeRecord(*child);
                std::free(child);
            }
            break;
        case VX_COND_NOT:
            if (record.u.notQual != nullptr) FreeRecord(*record.u.notQual);
            std::free(record.u.notQual);
            break;
        case VX_COND_OPERATION:
            if (record.u.relOp != nullptr) {
                CVXQualifierOperand::FreeRecord(record.u.relOp->operand1);
                CVXQualifierOperand::FreeRecord(record.u.relOp->operand2);
            }
            std::free(record.u.relOp);
            break;
        default:
            break;
    }
    std::memset(&record, 0, sizeof record);
}

void CVXQualifierStruct::ToText(CGNString& out) const {
    out.Empty();
    CGNString left, right;
    switch (m_nOperation) {
        case VX_COND_AND:
        case VX_COND_OR:
            m_pLeft->ToText(left);
            m_pRight->ToText(right);
            out.Format("%s%s%s ", left.c_str(), m_nOperation == VX_COND_AND ? " AND " : " OR ",
                       right.c_str());
            break;
        case VX_COND_NOT:
            m_pNot->ToText(left);
            out.Format(" NOT %s ", left.c_str());
            break;
        case VX_COND_OPERATION:
            m_pRelation->ToText(out);
            break;
        default:
            break;
    }
}

bool CVXQualifierStruct::Encode(CGNString& out) const {
    out.Format("%u", static_cast<unsigned>(m_nOperation));
    CGNString left, right;
    switch (m_nOperation) {
        case VX_COND_AND:
        case VX_COND_OR:
            if (!m_pLeft->Encode(left) || !m_pRight->Encode(right)) return false;
            out += "\\" + left + "\\" + right;
            return true;
        case VX_COND_NOT:
            if (!m_pNot->Encode(left)) return false;
            out += "\\" + left;
            return true;
        case VX_COND_OPERATION:
            if (!m_pRelation->Encode(left)) return false;
            out += "\\" + left;
            return true;
        default:
            return true;
    }
}

bool CVXQualifierStruct::Decode(const char*& cursor) {
    Reset();
    if (cursor == nullptr) return false;
    if (std::strncmp(cursor, "(null)", 6) == 0) {
        cursor += 6;
        return true;
    }
    std::uint32_t operation = 0;
    if (!vx::encoded::ReadUnsignedLong(cursor, operation)) return false;
    if (operation == VX_COND_NONE) return true;
    if (*cursor == '\0') return false;
    switch (operation) {
        case VX_COND_AND:
        case VX_COND_OR:
            m_nOperation = static_cast<std::uint32_t>(operation);
            m_pLeft = std::make_unique<CVXQualifierStruct>();
            m_pRight = std::make_unique<CVXQualifierStruct>();
            return m_pLeft->Decode(cursor) && m_pRight->Decode(cursor);
        case VX_COND_NOT:
            m_nOperation = VX_COND_NOT;
            m_pNot = std::make_unique<CVXQualifierStruct>();
            return m_pNot->Decode(cursor);
        case VX_COND_OPERATION:
            m_nOperation = VX_COND_OPERATION;
            m_pRelation = std::make_unique<CVXRelOpStruct>();
            return m_pRelation->Decode(cursor);
        default:
            return false;
    }
}

bool CVXQualifierStruct::Evaluate(const CVXFieldValueLookup* fields, bool& result) const {
    bool left = false, right = false;
    switch (m_nOperation) {
        case VX_COND_AND:
        case VX_COND_OR:
            if (!m_pLeft->Evaluate(fields, left) || !m_pRight->Evaluate(fields, right))
                return false;
            result = m_nOperation == VX_COND_AND ? left && right : left || right;
            return true;
        case VX_COND_NOT:
            if (!m_pNot->Evaluate(fields, left)) return false;
            result = !left;
            return true;
        case VX_COND_OPERATION:
            return m_pRelation->Compare(fields, result);
        default:
            result = true;
            return true;
    }
}
