#include "vxutil/foundation/CVXInternalIdList.h"

#include "foundation/RecordLists.h"

CVXInternalIdList::CVXInternalIdList(const VXInternalIdList& record) {
    *this = record;
}

CVXInternalIdList& CVXInternalIdList::operator=(const VXInternalIdList& record) {
    vx::records::Assign<CVXInternalId>(*this, record.internalIdList, record.numItems);
    return *this;
}

CVXInternalIdList::~CVXInternalIdList() = default;

bool CVXInternalIdList::GetInternalIdList(VXInternalIdList& record) {
    return vx::records::Export(*this, record.numItems, record.internalIdList);
}

bool CVXInternalIdList::AddUnique(const CVXInternalId& id) {
    for (int i = 0; i < GetCount(); ++i) {
        const auto* present = static_cast<const CVXInternalId*>(GetItem(i));
        if (present != nullptr && present->GetId() == id.GetId()) return true;
    }
    return AddItem(&id);
}
