// A block of raw bytes with a type tag: the payload of a bytes value.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/VXRecords.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXByteList {
public:
    CVXByteList() = default;
    explicit CVXByteList(const VXByteList& record);
    CVXByteList(const CVXByteList& other);
    CVXByteList& operator=(const CVXByteList& other);
    ~CVXByteList();

    // Copies type, length and bytes. A zero length or a missing block leaves the list empty;
    // false (after an assertion) when the block cannot be allocated.
    bool Assign(const VXByteList& record);
    bool Assign(const CVXByteList& other);

    std::int32_t GetType() const { return m_list.type; }
    std::uint32_t GetLength() const { return m_list.numItems; }
    // The bytes, or null when the list is empty.
    const unsigned char* GetBytes() const { return m_list.bytes; }

    // Gives `record` the type, the length and a new copy of the bytes, which the caller frees
    // with std::free. False for a null record or when the copy cannot be allocated.
    bool ExportTo(VXByteList* record) const;

    // The encoded text: type and length, each closed by a backslash, then the bytes as pairs of
    // lower-case hexadecimal digits. The text stays valid until the next call.
    const CGNString* GetText();
    // Reads an encoded text (upper-case digits are accepted too). False, with the list
    // unchanged, when a field is missing, the digits are odd in number or fewer than the
    // length promises; digits beyond the promised ones are ignored.
    bool ReadText(const char* text);

private:
    void Free();

    VXByteList m_list{0, 0, nullptr};  // the list owns the block
    CGNString* m_pText = nullptr;      // owned; the last encoded text
};
