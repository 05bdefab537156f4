#include "vxutil/foundation/CVXListItem.h"

#include "vxutil/gnrt/CGNAssert.h"

namespace {

CVXListItemStruct* DuplicateOf(const CVXListItemStruct* source) {
    if (source == nullptr) return nullptr;
    CVXListItemStruct* copy = source->Duplicate(source);
    GN_ASSERT(copy != nullptr);
    return copy;
}

}  // namespace

CVXListItem::CVXListItem(const CVXListItemStruct* source) : m_pItem(DuplicateOf(source)) {}

CVXListItem::CVXListItem(const CVXListItem& other) : m_pItem(DuplicateOf(other.m_pItem)) {}

CVXListItem& CVXListItem::operator=(const CVXListItem& other) {
    if (this == &other) return *this;
    delete m_pItem;
    m_pItem = DuplicateOf(other.m_pItem);
    return *this;
}

CVXListItem::~CVXListItem() {
    delete m_pItem;
}

bool CVXListItem::CopyTo(void* record) const {
    return m_pItem != nullptr && m_pItem->CopyTo(record);
}

std::uint32_t CVXListItem::GetSize() const {
    return m_pItem != nullptr ? m_pItem->GetRecordSize() : 0;
}
