#include "vxutil/foundation/CVXEntryIdList.h"

#include <cstdlib>
#include <cstring>

#include "foundation/GNListElements.h"
#include "gnrt/MultiByte.h"

using vx::elements::At;

CVXEntryIdList::CVXEntryIdList() : CGNList(0, 2) {}

CVXEntryIdList::CVXEntryIdList(const VXEntryIdList& record) : CGNList(0, 2) {
    for (uint32_t i = 0; i < record.numItems && record.entryIdList != nullptr; ++i) {
        char part[VX_ENTRY_ID_BUFFER_SIZE];
        vx::mb::BoundedCopy(part, sizeof part, record.entryIdList[i].id);
        AddPart(part);
    }
}

CVXEntryIdList::CVXEntryIdList(const CVXEntryIdList& other) : CGNList(0, 2) {
    *this = other;
}

CVXEntryIdList& CVXEntryIdList::operator=(const CVXEntryIdList& other) {
    if (this == &other) return *this;
    Free();
    for (int i = 0; i < other.GetCount(); ++i)
        AddPart(other.GetPart(i));
    return *this;
}

CVXEntryIdList::~CVXEntryIdList() {
    CVXEntryIdList::Free();
}

void CVXEntryIdList::Free() {
    vx::elements::DestroyAll<VXEntryIdType>(*this);
    CGNList::Free();
}

bool CVXEntryIdList::AddPart(const char* part) {
    VXEntryIdType entry{};
    vx::mb::BoundedCopy(entry.id, sizeof entry.id, part);
    return vx::elements::InsertCopy(*this, GetCount(), entry);
}

const char* CVXEntryIdList::GetPart(int index) const {
    const VXEntryIdType* part = At<VXEntryIdType>(*this, index);
    return part != nullptr ? part->id : nullptr;
}

CGNString CVXEntryIdList::GetText() const {
    CGNString text;
    for (int i = 0; i < GetCount(); ++i) {
        if (i > 0) text += "|";
        text += GetPart(i);
    }
    return text;
}

bool CVXEntryIdList::ExportTo(VXEntryIdList& record) const {
    record.numItems = 0;
    record.entryIdList = static_cast<VXEntryIdType*>(
        std::calloc(static_cast<std::size_t>(GetCount()) + 1, sizeof(VXEntryIdType)));
    if (record.entryIdList == nullptr) return false;
    for (int i = 0; i < GetCount(); ++i)
        std::memcpy(record.entryIdList[i].id, GetPart(i), sizeof(VXEntryIdType));
    record.numItems = static_cast<uint32_t>(GetCount());
    return true;
}
