// A list of object names.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXCoreList.h"
#include "vxutil/foundation/CVXNameType.h"
#include "vxutil/foundation/VXRecords.h"

class VXUTIL_API CVXNameList : public CVXCoreList {
public:
    CVXNameList() = default;
    explicit CVXNameList(const VXNameList& record);
    CVXNameList(const CVXNameList&) = default;
    CVXNameList& operator=(const CVXNameList&) = default;
    CVXNameList& operator=(const VXNameList& record);
    ~CVXNameList() override;

    // Fills `record` with the count and the list's array of names (owned by the list, valid
    // while the list is unchanged). False only when the array cannot be built.
    bool GetNameList(VXNameList& record);
    // Orders the names by the user's locale collation; equal names keep their order.
    void Sort();
};
