// The entries of a search result.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXEntryListStruct.h"
#include "vxutil/gnrt/CGNList.h"

class VXUTIL_API CVXEntryListList : public CGNList {
public:
    CVXEntryListList();
    explicit CVXEntryListList(const VXEntryListList& record);
    CVXEntryListList(const CVXEntryListList& other);
    CVXEntryListList& operator=(const CVXEntryListList&) = delete;
    ~CVXEntryListList() override;

    void Free() override;

    bool AddEntry(const VXEntryListStruct& record);
    bool InsertEntry(int index, const VXEntryListStruct& record);
    bool DeleteEntry(int index);
    CVXEntryListStruct* GetEntry(int index) const;
};
