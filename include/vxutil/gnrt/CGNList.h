// A list of pointer-sized items of the common runtime; the base of the older foundation lists.
//
// The list does not own what its items point to: derived lists override Free() to destroy their
// elements and then call CGNList::Free() to release the slots.
#pragma once

#include "vxutil/export.h"

class VXUTIL_API CGNList {
public:
    // `initialSize` slots are reserved at once; the list then grows by at least `growStep` slots
    // at a time (by half its size when that is more, so that long lists append in amortized
    // constant time).
    CGNList(int initialSize, int growStep);
    CGNList(const CGNList&) = delete;
    CGNList& operator=(const CGNList&) = delete;

    virtual ~CGNList();
    // Releases every slot (not what the items point to); the count becomes 0.
    virtual void Free();
    // Exchanges two items; false when either index is out of range.
    virtual bool SwapItems(int first, int second);
    // The contiguous slot array (GetCount() items), or null when the list has no slots.
    virtual void** GetItemListPtr();

    int GetCount() const { return m_nCount; }
    // Appends; false only when the slots cannot be grown.
    bool AddItem(void* item);
    // Inserts before `index`; an index equal to the count appends. False when out of range
    // (negative or above the count) or when the slots cannot be grown.
    bool InsertItem(int index, void* item);
    // Removes the slot at `index`, shifting later items down; false when out of range.
    bool DeleteItem(int index);
    // The item at `index`, or null when out of range.
    void* GetItem(int index) const;
    bool SetItem(int index, void* item);

private:
    bool Reserve(int needed);

    void** m_pItems = nullptr;
    int m_nCount = 0;
    int m_nCapacity = 0;
    int m_nGrowStep;
};
