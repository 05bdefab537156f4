// Field/value pairs, such as the fields of one entry. The list answers a qualifier's field
// lookups, so a condition can be evaluated against the entry.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXFieldValueLookup.h"
#include "vxutil/foundation/CVXValueStruct.h"
#include "vxutil/foundation/VXEntryListRecords.h"
#include "vxutil/gnrt/CGNList.h"

struct VXUTIL_API CVXFieldValueStruct {
    std::uint32_t fieldId = 0;
    CVXValueStruct value;
};

class VXUTIL_API CVXFieldValueList : public CGNList, public CVXFieldValueLookup {
public:
    CVXFieldValueList();
    explicit CVXFieldValueList(const VXFieldValueList& record);
    CVXFieldValueList(const CVXFieldValueList& other);
    CVXFieldValueList& operator=(const CVXFieldValueList&) = delete;
    ~CVXFieldValueList() override;

    void Free() override;

    bool AddFieldValue(std::uint32_t fieldId, const CVXValueStruct& value);
    bool DeleteFieldValue(int index);
    CVXFieldValueStruct* GetFieldValue(int index) const;
    // The value of the first pair with `fieldId`.
    const CVXValueStruct* FindFieldValue(std::uint32_t fieldId) const override;

    // New copies of the pairs and their values, released with FreeRecord.
    bool ExportTo(VXFieldValueList& record) const;
    static void FreeRecord(VXFieldValueList& record);
};
