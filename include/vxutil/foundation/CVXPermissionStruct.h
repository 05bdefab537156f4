// The permission of one group: a group identifier and a permission value.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXListItemStruct.h"
#include "vxutil/foundation/VXRecords.h"

class VXUTIL_API CVXPermissionStruct : public CVXListItemStruct {
public:
    explicit CVXPermissionStruct(std::uint32_t groupId = 0, std::uint32_t permissions = 0);
    explicit CVXPermissionStruct(const VXPermissionStruct& record);

    std::uint32_t GetGroupId() const { return m_nGroupId; }
    std::uint32_t GetPermissions() const { return m_nPermissions; }
    void SetGroupId(std::uint32_t groupId) { m_nGroupId = groupId; }
    void SetPermissions(std::uint32_t permissions) { m_nPermissions = permissions; }

    CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const override;
    bool CopyTo(void* record) const override;

private:
    std::uint32_t m_nGroupId;
    std::uint32_t m_nPermissions;
};
