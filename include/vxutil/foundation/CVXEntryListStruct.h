// One entry of a search result: its id and the description line the server built from the
// entry-list field list.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXEntryIdList.h"
#include "vxutil/foundation/CVXEntryListFieldList.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXEntryListStruct {
public:
    CVXEntryListStruct() = default;
    explicit CVXEntryListStruct(const VXEntryListStruct& record);

    const CVXEntryIdList& GetEntryId() const { return m_entryId; }
    const CGNString& GetDescription() const { return m_strDescription; }

    // The characters of column `column` of the description line: the columns before it and
    // their separators are skipped, then the column's width is copied (less at the line's
    // end). Empty for a column outside the field list. GetColumnText counts bytes, for lines of
    // single-byte characters; GetColumnTextChars counts characters.
    CGNString GetColumnText(const CVXEntryListFieldList& fields, int column) const;
    CGNString GetColumnTextChars(const CVXEntryListFieldList& fields, int column) const;

private:
    CGNString ColumnText(const CVXEntryListFieldList& fields, int column, bool characters) const;

    CVXEntryIdList m_entryId;
    CGNString m_strDescription;
};
