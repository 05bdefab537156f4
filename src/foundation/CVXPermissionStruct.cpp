#include "vxutil/foundation/CVXPermissionStruct.h"

CVXPermissionStruct::CVXPermissionStruct(std::uint32_t groupId, std::uint32_t permissions)
    : CVXListItemStruct(sizeof(VXPermissionStruct)),
      m_nGroupId(groupId),
      m_nPermissions(permissions) {}

CVXPermissionStruct::CVXPermissionStruct(const VXPermissionStruct& record)
    : CVXPermissionStruct(record.groupId, record.permissions) {}

CVXListItemStruct* CVXPermissionStruct::Duplicate(const CVXListItemStruct* source) const {
    return DuplicateAs<CVXPermissionStruct>(source);
}

bool CVXPermissionStruct::CopyTo(void* record) const {
    if (record == nullptr) return false;
    auto* target = static_cast<VXPermissionStruct*>(record);
    target->groupId = m_nGroupId;
    target->permissions = m_nPermissions;
    return true;
}
