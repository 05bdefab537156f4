// An entry id: one or more parts of up to 15 characters each.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/VXEntryListRecords.h"
#include "vxutil/gnrt/CGNList.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXEntryIdList : public CGNList {
public:
    CVXEntryIdList();
    explicit CVXEntryIdList(const VXEntryIdList& record);
    CVXEntryIdList(const CVXEntryIdList& other);
    CVXEntryIdList& operator=(const CVXEntryIdList& other);
    ~CVXEntryIdList() override;

    void Free() override;

    // Appends a part, cut to 15 bytes without splitting a character.
    bool AddPart(const char* part);
    // The part at `index`, or null.
    const char* GetPart(int index) const;
    // The parts joined by "|".
    CGNString GetText() const;

    // Fills `record` with the count and a new array of the parts, freed with std::free.
    bool ExportTo(VXEntryIdList& record) const;
};
