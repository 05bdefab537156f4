#include "vxutil/foundation/CVXByteList.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include "foundation/DefinitionText.h"
#include "foundation/HexText.h"
#include "vxutil/gnrt/CGNAssert.h"

namespace {

// A new block holding a copy of `length` bytes (std::free releases it), or null.
unsigned char* CopyBlock(const unsigned char* bytes, std::uint32_t length) {
    auto* block = static_cast<unsigned char*>(std::malloc(length));
    if (block != nullptr) std::memcpy(block, bytes, length);
    return block;
}

}  // namespace

CVXByteList::CVXByteList(const VXByteList& record) {
    Assign(record);
}

CVXByteList::CVXByteList(const CVXByteList& other) {
    Assign(other);
}

CVXByteList& CVXByteList::operator=(const CVXByteList& other) {
    Assign(other);
    return *this;
}

CVXByteList::~CVXByteList() {
    Free();
    delete m_pText;
}

void CVXByteList::Free() {
    std::free(m_list.bytes);
    m_list.bytes = nullptr;
    m_list.numItems = 0;
}

bool CVXByteList::Assign(const CVXByteList& other) {
    return this == &other || Assign(other.m_list);
}

bool CVXByteList::Assign(const VXByteList& record) {
    if (&record == &m_list) return true;
    Free();
    m_list.type = record.type;
    if (record.numItems == 0 || record.bytes == nullptr) return true;
    m_list.bytes = CopyBlock(record.bytes, record.numItems);
    if (!GN_ASSERT(m_list.bytes != nullptr)) return false;
    m_list.numItems = record.numItems;
    return true;
}

bool CVXByteList::ExportTo(VXByteList* record) const {
    if (record == nullptr) return false;
    record->type = m_list.type;
    record->numItems = m_list.numItems;
    record->bytes = nullptr;
    if (m_list.numItems == 0) return true;
    record->bytes = CopyBlock(m_list.bytes, m_list.numItems);
    return record->bytes != nullptr;
}

const CGNString* CVXByteList::GetText() {
    if (m_pText == nullptr) m_pText = new (std::nothrow) CGNString;
    if (m_pText == nullptr) return nullptr;
    CGNString head;
    vx::definition::WriteSigned(head, m_list.type);
    vx::definition::WriteUnsigned(head, m_list.numItems);
    std::string text;
    text.reserve(2 * static_cast<std::size_t>(m_list.numItems) + 31);
    text = head.str();
    vx::hex::Append(text, m_list.bytes, m_list.numItems);
    *m_pText = CGNString(std::move(text));
    return m_pText;
}

bool CVXByteList::ReadText(const char* text) {
    const char* cursor = text;
    std::int32_t type = 0;
    std::uint32_t length = 0;
    if (!vx::definition::ReadSigned(cursor, type) ||
        !vx::definition::ReadUnsigned(cursor, length)) {
        return false;
    }
    const std::size_t digits = cursor != nullptr ? vx::hex::DigitRun(cursor) : 0;
    if (digits % 2 != 0 || digits / 2 < length) return false;
    unsigned char* block = nullptr;
    if (length > 0) {
        block = static_cast<unsigned char*>(std::malloc(length));
        if (block == nullptr) return false;
        vx::hex::Decode(cursor, block, length);
    }
    Free();
    m_list = {type, length, block};
    return true;
}
