// A list of internal identifiers.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXCoreList.h"
#include "vxutil/foundation/CVXInternalId.h"
#include "vxutil/foundation/VXRecords.h"

class VXUTIL_API CVXInternalIdList : public CVXCoreList {
public:
    CVXInternalIdList() = default;
    explicit CVXInternalIdList(const VXInternalIdList& record);
    CVXInternalIdList(const CVXInternalIdList&) = default;
    CVXInternalIdList& operator=(const CVXInternalIdList&) = default;
    CVXInternalIdList& operator=(const VXInternalIdList& record);
    ~CVXInternalIdList() override;

    // Fills `record` with the count and the list's array (owned by the list).
    bool GetInternalIdList(VXInternalIdList& record);
    // Appends `id` unless an equal identifier is present; true in that case too.
    bool AddUnique(const CVXInternalId& id);
};
