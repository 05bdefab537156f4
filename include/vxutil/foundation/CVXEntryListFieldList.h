// The columns of an entry list's description lines.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXEntryListFieldStruct.h"
#include "vxutil/foundation/VXEntryListRecords.h"
#include "vxutil/gnrt/CGNList.h"

// The fixed start of the field list's encoded text.
inline constexpr const char* kEntryListFieldsPrefix = "   get-list-flds  : ";

class VXUTIL_API CVXEntryListFieldList : public CGNList {
public:
    CVXEntryListFieldList();
    explicit CVXEntryListFieldList(const VXEntryListFieldList& record);
    CVXEntryListFieldList(const CVXEntryListFieldList& other);
    CVXEntryListFieldList& operator=(const CVXEntryListFieldList&) = delete;
    ~CVXEntryListFieldList() override;

    void Free() override;

    // Add or insert a field copied from a record; false, with nothing added, when the list
    // refuses it.
    bool AddField(const VXEntryListFieldStruct& record);
    bool InsertField(int index, const VXEntryListFieldStruct& record);
    bool DeleteField(int index);
    CVXEntryListFieldStruct* GetField(int index) const;

    // The prefix, the count and a backslash, then the fields' encoded texts joined by
    // backslashes.
    void GetEncodedText(CGNString& out) const;
    // Replaces the fields with those of an encoded text; false (list emptied) when it is not
    // one.
    bool Decode(const char* text);

    // A new array of the fields' records, freed with std::free.
    bool ExportTo(VXEntryListFieldList& record) const;
};
