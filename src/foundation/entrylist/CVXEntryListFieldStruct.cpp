#include "vxutil/foundation/CVXEntryListFieldStruct.h"

#include <cstring>

#include "foundation/value/EncodedFields.h"
#include "gnrt/MultiByte.h"

CVXEntryListFieldStruct::CVXEntryListFieldStruct(const VXEntryListFieldStruct& record)
    : m_nFieldId(record.fieldId), m_nColumnWidth(record.columnWidth) {
    char separator[VX_SEPARATOR_BUFFER_SIZE];
    vx::mb::BoundedCopy(separator, sizeof separator, record.separator);
    m_strSeparator = separator;
}

void CVXEntryListFieldStruct::CopyTo(VXEntryListFieldStruct& record) const {
    std::memset(&record, 0, sizeof record);
    record.fieldId = m_nFieldId;
    record.columnWidth = m_nColumnWidth;
    vx::mb::BoundedCopy(record.separator, sizeof record.separator, m_strSeparator.c_str());
}

const CGNString& CVXEntryListFieldStruct::GetEncodedText() {
    m_strEncoded.Format("%ld\\%u\\%u\\%s", static_cast<long>(static_cast<std::int32_t>(m_nFieldId)),
                        static_cast<unsigned>(m_nColumnWidth),
                        static_cast<unsigned>(m_strSeparator.GetLength()), m_strSeparator.c_str());
    return m_strEncoded;
}

bool CVXEntryListFieldStruct::Decode(const char*& cursor) {
    std::int32_t fieldId = 0;
    std::uint32_t width = 0, length = 0;
    if (!vx::encoded::ReadLong(cursor, fieldId) || !vx::encoded::ReadUnsignedLong(cursor, width) ||
        !vx::encoded::ReadUnsignedLong(cursor, length) || length >= VX_SEPARATOR_BUFFER_SIZE ||
        std::strlen(cursor) < length)
        return false;
    m_nFieldId = static_cast<std::uint32_t>(fieldId);
    m_nColumnWidth = static_cast<std::uint32_t>(width);
    m_strSeparator = CGNString(cursor, length);
    cursor += length;
    if (*cursor == '\\') {
        ++cursor;
    } else if (*cursor != '\0') {
        return false;
    }
    return true;
}

std::size_t CVXEntryListFieldStruct::SeparatorLength(bool characters) const {
    if (m_strSeparator == "\\t") return 1;
    return characters ? m_strSeparator.CharCount() : m_strSeparator.GetLength();
}
