#include "vxutil/foundation/CVXPermissionList.h"

#include "foundation/RecordLists.h"

CVXPermissionList::CVXPermissionList(const VXPermissionList& record) {
    *this = record;
}

CVXPermissionList::CVXPermissionList(const CVXInternalIdList& groups) {
    for (int i = 0; i < groups.GetCount(); ++i) {
        const auto* group = static_cast<const CVXInternalId*>(groups.GetItem(i));
        if (group == nullptr) continue;
        const CVXPermissionStruct permission(group->GetId(), 1);
        AddItem(&permission);
    }
}

CVXPermissionList& CVXPermissionList::operator=(const VXPermissionList& record) {
    vx::records::Assign<CVXPermissionStruct>(*this, record.permissionList, record.numItems);
    return *this;
}

CVXPermissionList::~CVXPermissionList() = default;

bool CVXPermissionList::GetPermissionList(VXPermissionList& record) {
    return vx::records::Export(*this, record.numItems, record.permissionList);
}
