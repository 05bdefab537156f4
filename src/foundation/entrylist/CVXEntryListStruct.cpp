#include "vxutil/foundation/CVXEntryListStruct.h"

#include "gnrt/MultiByte.h"

CVXEntryListStruct::CVXEntryListStruct(const VXEntryListStruct& record)
    : m_entryId(record.entryId),
      m_strDescription(record.shortDesc != nullptr ? record.shortDesc : "") {}

CGNString CVXEntryListStruct::GetColumnText(const CVXEntryListFieldList& fields, int column) const {
    return ColumnText(fields, column, false);
}

CGNString CVXEntryListStruct::GetColumnTextChars(const CVXEntryListFieldList& fields,
                                                 int column) const {
    return ColumnText(fields, column, true);
}

// Positions are bytes, or characters when `characters` is set.
CGNString CVXEntryListStruct::ColumnText(const CVXEntryListFieldList& fields, int column,
                                         bool characters) const {
    if (column < 0 || column >= fields.GetCount()) return CGNString();
    std::size_t offset = 0;
    for (int j = 0; j < column; ++j) {
        const CVXEntryListFieldStruct* field = fields.GetField(j);
        offset += field->GetColumnWidth() + field->SeparatorLength(characters);
    }
    const std::size_t width = fields.GetField(column)->GetColumnWidth();
    const char* line = m_strDescription.c_str();
    const std::size_t size = m_strDescription.GetLength();
    if (!characters) {
        return offset < size ? m_strDescription.Mid(offset, width) : CGNString();
    }
    // Walk to the column's first character, then take `width` characters.
    std::size_t start = 0;
    for (std::size_t i = 0; i < offset && start < size; ++i)
        start += vx::mb::CharLength(line + start, size - start);
    std::size_t end = start;
    for (std::size_t i = 0; i < width && end < size; ++i)
        end += vx::mb::CharLength(line + end, size - end);
    return CGNString(line + start, end - start);
}
