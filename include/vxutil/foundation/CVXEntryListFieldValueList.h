// Entries with their field values: what a search returns when it asks for fields instead of
// description lines.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXEntryIdList.h"
#include "vxutil/foundation/CVXFieldValueList.h"
#include "vxutil/gnrt/CGNList.h"

struct VXUTIL_API CVXEntryListFieldValueStruct {
    CVXEntryIdList entryId;
    CVXFieldValueList fields;
};

class VXUTIL_API CVXEntryListFieldValueList : public CGNList {
public:
    CVXEntryListFieldValueList();
    explicit CVXEntryListFieldValueList(const VXEntryListFieldValueList& record);
    CVXEntryListFieldValueList(const CVXEntryListFieldValueList&) = delete;
    CVXEntryListFieldValueList& operator=(const CVXEntryListFieldValueList&) = delete;
    ~CVXEntryListFieldValueList() override;

    void Free() override;

    bool AddEntry(const VXEntryListFieldValueStruct& record);
    CVXEntryListFieldValueStruct* GetEntry(int index) const;
};
