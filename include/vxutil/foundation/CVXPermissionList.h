// A list of group permissions.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXCoreList.h"
#include "vxutil/foundation/CVXInternalIdList.h"
#include "vxutil/foundation/CVXPermissionStruct.h"
#include "vxutil/foundation/VXRecords.h"

class VXUTIL_API CVXPermissionList : public CVXCoreList {
public:
    CVXPermissionList() = default;
    explicit CVXPermissionList(const VXPermissionList& record);
    // One permission of value 1 for each group of `groups`.
    explicit CVXPermissionList(const CVXInternalIdList& groups);
    CVXPermissionList(const CVXPermissionList&) = default;
    CVXPermissionList& operator=(const CVXPermissionList&) = default;
    CVXPermissionList& operator=(const VXPermissionList& record);
    ~CVXPermissionList() override;

    // Fills `record` with the count and the list's array (owned by the list).
    bool GetPermissionList(VXPermissionList& record);
};
