// How one column of an entry's description line is built: a field, its width in characters
// and the separator written after it.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXNameType.h"
#include "vxutil/foundation/VXEntryListRecords.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXEntryListFieldStruct {
public:
    CVXEntryListFieldStruct() = default;
    explicit CVXEntryListFieldStruct(const VXEntryListFieldStruct& record);

    std::uint32_t GetFieldId() const { return m_nFieldId; }
    const CVXNameType& GetName() const { return m_name; }
    void SetName(const char* name) { m_name = CVXNameType(name); }
    std::uint32_t GetColumnWidth() const { return m_nColumnWidth; }
    const CGNString& GetSeparator() const { return m_strSeparator; }

    void CopyTo(VXEntryListFieldStruct& record) const;
    // "%ld\%u\%u\%s": field id, column width, separator length in bytes and separator. The
    // text stays valid until the next call.
    const CGNString& GetEncodedText();
    // Reads what GetEncodedText writes and the backslash after it, if any.
    bool Decode(const char*& cursor);

    // The line positions this column takes: its width, then its separator, where a separator
    // of the two characters backslash and t stands for one tab. With `characters` set the
    // separator is counted in characters, else in bytes.
    std::size_t SeparatorLength(bool characters) const;

private:
    std::uint32_t m_nFieldId = 0;
    CVXNameType m_name;
    std::uint32_t m_nColumnWidth = 0;
    CGNString m_strSeparator;
    CGNString m_strEncoded;
};
