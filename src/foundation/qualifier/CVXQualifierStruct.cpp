#include "vxutil/foundation/CVXQualifierStruct.h"

#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

#include "foundation/Number32.h"
#include "foundation/value/EncodedFields.h"

namespace {

template <class Record>
Record* NewRecord() {
    return static_cast<Record*>(std::calloc(1, sizeof(Record)));
}

using Link = std::unique_ptr<CVXQualifierStruct> CVXQualifierStruct::*;

// A step of a walk that writes text: a node to expand, or a piece of text to append.
// One step of writing a tree's text: a node to write, or (node null) a text to append.
struct TextStep {
    const CVXQualifierStruct* node;
    const char* text;
};

// Writes a tree's text in one pass and without recursion, so that its cost follows the size of
// the tree whatever its depth: `write` appends a node's own text to `out` and pushes what follows
// it, last first. False as soon as `write` fails.
template <class Write>
bool WriteTree(const CVXQualifierStruct* root, CGNString& out, Write write) {
    out.Empty();
    std::vector<TextStep> pending{{root, nullptr}};
    while (!pending.empty()) {
        const TextStep step = pending.back();
        pending.pop_back();
        if (step.node == nullptr)
            out += step.text;
        else if (!write(*step.node, pending))
            return false;
    }
    return true;
}

}  // namespace

std::unique_ptr<CVXQualifierStruct> CVXQualifierStruct::*const CVXQualifierStruct::kLinks[3] = {
    &CVXQualifierStruct::m_pLeft, &CVXQualifierStruct::m_pRight, &CVXQualifierStruct::m_pNot};

// Every walk over the tree keeps its own stack instead of recursing: a qualifier read from a
// hostile or corrupt text may nest a few hundred thousand levels deep.

CVXQualifierStruct::CVXQualifierStruct(const VXQualifierStruct& record) {
    CopyFrom(record);
}

CVXQualifierStruct::CVXQualifierStruct(const CVXQualifierStruct& other) {
    *this = other;
}

CVXQualifierStruct& CVXQualifierStruct::operator=(const CVXQualifierStruct& other) {
    if (this == &other) return *this;
    // Built aside first, so that `other` may be part of this tree.
    CVXQualifierStruct copy;
    std::vector<std::pair<const CVXQualifierStruct*, CVXQualifierStruct*>> pending{{&other, &copy}};
    while (!pending.empty()) {
        const auto [from, to] = pending.back();
        pending.pop_back();
        to->m_nOperation = from->m_nOperation;
        if (from->m_pRelation)
            to->m_pRelation = std::make_unique<CVXRelOpStruct>(*from->m_pRelation);
        for (const Link link : kLinks) {
            if (!(from->*link)) continue;
            to->*link = std::make_unique<CVXQualifierStruct>();
            pending.emplace_back((from->*link).get(), (to->*link).get());
        }
    }
    Swap(copy);
    return *this;
}

CVXQualifierStruct::~CVXQualifierStruct() {
    Reset();
}

void CVXQualifierStruct::Reset() {
    // Children are taken off before their node is destroyed, so destruction never nests.
    std::vector<std::unique_ptr<CVXQualifierStruct>> pending;
    auto detach = [&pending](CVXQualifierStruct& node) {
        for (const Link link : kLinks) {
            if (node.*link) pending.push_back(std::move(node.*link));
        }
    };
    detach(*this);
    while (!pending.empty()) {
        std::unique_ptr<CVXQualifierStruct> node = std::move(pending.back());
        pending.pop_back();
        detach(*node);
    }
    m_nOperation = VX_COND_NONE;
    m_pRelation.reset();
}

void CVXQualifierStruct::Swap(CVXQualifierStruct& other) {
    std::swap(m_nOperation, other.m_nOperation);
    for (const Link link : kLinks)
        std::swap(this->*link, other.*link);
    std::swap(m_pRelation, other.m_pRelation);
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
    // As ever, only the top node's own failure fails the copy; a failing node below is left as
    // far as it was copied.
    bool copied = true;
    std::vector<std::pair<const VXQualifierStruct*, CVXQualifierStruct*>> pending{{&record, this}};
    while (!pending.empty()) {
        const auto [from, to] = pending.back();
        pending.pop_back();
        const bool ok = to->CopyNodeFrom(*from, pending);
        if (to == this) copied = ok;
    }
    return copied;
}

bool CVXQualifierStruct::CopyNodeFrom(
    const VXQualifierStruct& record,
    std::vector<std::pair<const VXQualifierStruct*, CVXQualifierStruct*>>& children) {
    switch (record.operation) {
        case VX_COND_AND:
        case VX_COND_OR:
            if (record.u.andor.left == nullptr || record.u.andor.right == nullptr) return false;
            m_nOperation = record.operation;
            m_pLeft = std::make_unique<CVXQualifierStruct>();
            m_pRight = std::make_unique<CVXQualifierStruct>();
            children.emplace_back(record.u.andor.right, m_pRight.get());
            children.emplace_back(record.u.andor.left, m_pLeft.get());
            return true;
        case VX_COND_NOT:
            if (record.u.notQual == nullptr) return false;
            m_nOperation = VX_COND_NOT;
            m_pNot = std::make_unique<CVXQualifierStruct>();
            children.emplace_back(record.u.notQual, m_pNot.get());
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
    // Records are allocated zeroed: whatever a failure leaves behind, FreeRecord releases.
    std::vector<std::pair<const CVXQualifierStruct*, VXQualifierStruct*>> pending{{this, &record}};
    while (!pending.empty()) {
        const auto [from, to] = pending.back();
        pending.pop_back();
        to->operation = from->m_nOperation;
        VXQualifierStruct** first = nullptr;
        VXQualifierStruct** second = nullptr;
        switch (from->m_nOperation) {
            case VX_COND_AND:
            case VX_COND_OR:
                first = &to->u.andor.left;
                second = &to->u.andor.right;
                break;
            case VX_COND_NOT:
                first = &to->u.notQual;
                break;
            case VX_COND_OPERATION:
                to->u.relOp = NewRecord<VXRelOpStruct>();
                if (to->u.relOp == nullptr || !from->m_pRelation->CopyTo(*to->u.relOp))
                    return false;
                continue;
            default:
                continue;
        }
        const CVXQualifierStruct* children[] = {
            second != nullptr ? from->m_pRight.get() : nullptr,
            second != nullptr ? from->m_pLeft.get() : from->m_pNot.get()};
        VXQualifierStruct** slots[] = {second, first};
        for (int i = 0; i < 2; ++i) {
            if (slots[i] == nullptr) continue;
            *slots[i] = NewRecord<VXQualifierStruct>();
            if (*slots[i] == nullptr || children[i] == nullptr) return false;
            pending.emplace_back(children[i], *slots[i]);
        }
    }
    return true;
}

void CVXQualifierStruct::FreeRecord(VXQualifierStruct& record) {
    std::vector<VXQualifierStruct*> pending;
    auto release = [&pending](VXQualifierStruct& node) {
        switch (node.operation) {
            case VX_COND_AND:
            case VX_COND_OR:
                for (VXQualifierStruct* child : {node.u.andor.left, node.u.andor.right}) {
                    if (child != nullptr) pending.push_back(child);
                }
                break;
            case VX_COND_NOT:
                if (node.u.notQual != nullptr) pending.push_back(node.u.notQual);
                break;
            case VX_COND_OPERATION:
                if (node.u.relOp != nullptr) {
                    CVXQualifierOperand::FreeRecord(node.u.relOp->operand1);
                    CVXQualifierOperand::FreeRecord(node.u.relOp->operand2);
                }
                std::free(node.u.relOp);
                break;
            default:
                break;
        }
        std::memset(&node, 0, sizeof node);
    };
    release(record);
    while (!pending.empty()) {
        VXQualifierStruct* node = pending.back();
        pending.pop_back();
        release(*node);
        std::free(node);
    }
}

void CVXQualifierStruct::ToText(CGNString& out) const {
    CGNString relation;
    WriteTree(this, out, [&](const CVXQualifierStruct& node, std::vector<TextStep>& pending) {
        switch (node.m_nOperation) {
            case VX_COND_AND:
            case VX_COND_OR:  // "a AND b "
                pending.push_back({nullptr, " "});
                pending.push_back({node.m_pRight.get(), nullptr});
                pending.push_back({nullptr, node.m_nOperation == VX_COND_AND ? " AND " : " OR "});
                pending.push_back({node.m_pLeft.get(), nullptr});
                break;
            case VX_COND_NOT:  // " NOT a "
                out += " NOT ";
                pending.push_back({nullptr, " "});
                pending.push_back({node.m_pNot.get(), nullptr});
                break;
            case VX_COND_OPERATION:
                node.m_pRelation->ToText(relation);
                out += relation;
                break;
            default:
                break;
        }
        return true;
    });
}

bool CVXQualifierStruct::Encode(CGNString& out) const {
    CGNString relation;
    return WriteTree(this, out,
                     [&](const CVXQualifierStruct& node, std::vector<TextStep>& pending) {
                         vx::number32::AppendUnsigned(out, node.m_nOperation);
                         switch (node.m_nOperation) {
                             case VX_COND_AND:
                             case VX_COND_OR:
                                 out += '\\';
                                 pending.push_back({node.m_pRight.get(), nullptr});
                                 pending.push_back({nullptr, "\\"});
                                 pending.push_back({node.m_pLeft.get(), nullptr});
                                 break;
                             case VX_COND_NOT:
                                 out += '\\';
                                 pending.push_back({node.m_pNot.get(), nullptr});
                                 break;
                             case VX_COND_OPERATION:
                                 if (!node.m_pRelation->Encode(relation)) return false;
                                 out += '\\';
                                 out += relation;
                                 break;
                             default:
                                 break;
                         }
                         return true;
                     });
}

bool CVXQualifierStruct::Decode(const char*& cursor) {
    Reset();
    std::vector<CVXQualifierStruct*> pending{this};
    while (!pending.empty()) {
        CVXQualifierStruct* node = pending.back();
        pending.pop_back();
        if (!node->DecodeNode(cursor, pending)) return false;
    }
    return true;
}

bool CVXQualifierStruct::DecodeNode(const char*& cursor,
                                    std::vector<CVXQualifierStruct*>& children) {
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
            m_nOperation = operation;
            m_pLeft = std::make_unique<CVXQualifierStruct>();
            m_pRight = std::make_unique<CVXQualifierStruct>();
            children.push_back(m_pRight.get());
            children.push_back(m_pLeft.get());
            return true;
        case VX_COND_NOT:
            m_nOperation = VX_COND_NOT;
            m_pNot = std::make_unique<CVXQualifierStruct>();
            children.push_back(m_pNot.get());
            return true;
        case VX_COND_OPERATION:
            m_nOperation = VX_COND_OPERATION;
            m_pRelation = std::make_unique<CVXRelOpStruct>();
            return m_pRelation->Decode(cursor);
        default:
            return false;
    }
}

bool CVXQualifierStruct::Evaluate(const CVXFieldValueLookup* fields, bool& result) const {
    // Post-order: a node is met once to queue its children and once more, `ready`, to combine
    // their results, which wait on `results` in the order they were evaluated.
    std::vector<std::pair<const CVXQualifierStruct*, bool>> pending{{this, false}};
    std::vector<bool> results;
    while (!pending.empty()) {
        const auto [node, ready] = pending.back();
        pending.pop_back();
        bool value = true;
        switch (node->m_nOperation) {
            case VX_COND_AND:
            case VX_COND_OR:
                if (!ready) {
                    pending.emplace_back(node, true);
                    pending.emplace_back(node->m_pRight.get(), false);
                    pending.emplace_back(node->m_pLeft.get(), false);
                    continue;
                }
                value = results.back();
                results.pop_back();
                value = node->m_nOperation == VX_COND_AND ? results.back() && value
                                                          : results.back() || value;
                results.pop_back();
                break;
            case VX_COND_NOT:
                if (!ready) {
                    pending.emplace_back(node, true);
                    pending.emplace_back(node->m_pNot.get(), false);
                    continue;
                }
                value = !results.back();
                results.pop_back();
                break;
            case VX_COND_OPERATION:
                if (!node->m_pRelation->Compare(fields, value)) return false;
                break;
            default:
                break;
        }
        results.push_back(value);
    }
    result = results.back();
    return true;
}
