// A node of the foundation classes' singly linked list: owns one wrapped record.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXListItemStruct.h"

class VXUTIL_API CVXListItem {
public:
    CVXListItem() = default;
    // Holds a duplicate of `source`; the node never adopts the object it is given. A failed
    // duplicate is reported as an assertion and leaves the node without item.
    explicit CVXListItem(const CVXListItemStruct* source);
    // Duplicates the other node's item; the link to the next node is not copied.
    CVXListItem(const CVXListItem& other);
    CVXListItem& operator=(const CVXListItem& other);
    virtual ~CVXListItem();

    CVXListItemStruct* GetItem() const { return m_pItem; }
    // Adopts `item` as it is (no duplicate). The item held before is not destroyed: whoever
    // replaces it takes it with GetItem first.
    void SetItem(CVXListItemStruct* item) { m_pItem = item; }
    CVXListItem* GetNext() const { return m_pNext; }
    void SetNext(CVXListItem* next) { m_pNext = next; }

    // The item's CopyTo; false when the node has no item.
    bool CopyTo(void* record) const;
    // The item's record size; 0 when the node has no item.
    std::uint32_t GetSize() const;

private:
    CVXListItemStruct* m_pItem = nullptr;  // owned
    CVXListItem* m_pNext = nullptr;        // not owned
};
