// The owning linked list of wrapped records that every list of the foundation classes extends.
//
// Indices are 0-based. A one-entry position cache (the last node reached) makes a scan by
// increasing index cost one step per call, so even reading moves the cache: a list must not be
// shared between threads without a lock of the caller's.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXListItem.h"
#include "vxutil/foundation/CVXListItemStruct.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CVXCoreList {
public:
    CVXCoreList() = default;
    // Copies duplicates of the items, the current position and, when the other list has one,
    // the array of records (rebuilt from the copies).
    CVXCoreList(const CVXCoreList& other);
    CVXCoreList& operator=(const CVXCoreList& other);
    virtual ~CVXCoreList();

    virtual int GetCount() const { return m_nCount; }
    virtual int GetCurrentIndex() const { return m_nCurrentIndex; }
    // The item of the cached node, or null when nothing is cached.
    virtual CVXListItemStruct* GetCurrentItem() const;
    // The items' display texts joined by single commas.
    virtual void ToText(CGNString& out) const;

    // Appends a duplicate of `item`.
    bool AddItem(const CVXListItemStruct* item);
    // Appends `item` itself; on failure the caller still owns it.
    bool AddOwnedItem(CVXListItemStruct* item);
    // Inserts a duplicate of `item` so that it lands at `index`; -1 stands for the end of a
    // list that is not empty.
    bool InsertItem(int index, const CVXListItemStruct* item);
    // Unlinks the node at `index` and hands it to the caller, who then owns it.
    bool RemoveItem(int index, CVXListItem*& node);
    bool DeleteItem(int index);
    // Exchanges the items of two nodes; the nodes stay where they are.
    bool SwapItems(int a, int b);
    // Destroys every node and the array of records.
    void RemoveAll();

    // The item at `index`, or null for a bad index or a node without item.
    CVXListItemStruct* GetItem(int index) const;
    CVXListItem* GetNode(int index) const;

    // Builds the contiguous array of GetCount() records (of the first item's record size) that a
    // call into the server API takes, and keeps it until the next build or RemoveAll. The
    // records borrow the items' buffers: the array is valid only while the list is unchanged.
    // Null for an empty list (an older array is then kept) or when a record cannot be filled.
    void* BuildArray();
    void* GetArray() const { return m_pArray; }

    // Appends duplicates of all items of `other`.
    void AddList(const CVXCoreList& other);
    // True when both lists have as many items and the items' record sizes agree, index by
    // index: the base compares no content.
    bool IsEqual(const CVXCoreList& other) const;

private:
    bool AppendNode(CVXListItem* node);
    // Appends duplicates of the other list's items, then takes over its position and, when it
    // has one, builds the array. False when it stopped at a bad item.
    bool CopyItemsFrom(const CVXCoreList& other, bool stopAtFailure);
    void FreeArray();

    CVXListItem* m_pHead = nullptr;
    unsigned char* m_pArray = nullptr;
    mutable int m_nCurrentIndex = -1;
    mutable CVXListItem* m_pCurrentNode = nullptr;
    int m_nCount = 0;
};
