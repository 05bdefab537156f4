#include "vxutil/foundation/CVXCoreList.h"

#include <cstddef>
#include <new>

#include "vxutil/gnrt/CGNAssert.h"

CVXCoreList::CVXCoreList(const CVXCoreList& other) {
    // A copy carries on past a bad item; the assignment below stops at the first one.
    CopyItemsFrom(other, false);
}

CVXCoreList& CVXCoreList::operator=(const CVXCoreList& other) {
    if (this == &other) return *this;
    RemoveAll();
    if (other.m_nCount > 0) CopyItemsFrom(other, true);
    return *this;
}

CVXCoreList::~CVXCoreList() {
    RemoveAll();
}

bool CVXCoreList::CopyItemsFrom(const CVXCoreList& other, bool stopAtFailure) {
    for (CVXListItem* node = other.m_pHead; node != nullptr; node = node->GetNext()) {
        const CVXListItemStruct* item = node->GetItem();
        const bool copied = GN_ASSERT(item != nullptr) && GN_ASSERT(AddItem(item));
        if (!copied && stopAtFailure) return false;
    }
    m_nCurrentIndex = -1;
    m_pCurrentNode = nullptr;
    GetNode(other.m_nCurrentIndex);
    if (other.m_pArray != nullptr) BuildArray();
    return true;
}

CVXListItemStruct* CVXCoreList::GetCurrentItem() const {
    return m_pCurrentNode != nullptr ? m_pCurrentNode->GetItem() : nullptr;
}

void CVXCoreList::ToText(CGNString& out) const {
    out.Empty();
    for (int i = 0; i < GetCount(); ++i) {
        if (i > 0) out += ",";
        CGNString text;
        // A node without item cannot come from the list's own operations; it renders as an
        // empty text rather than bringing the client tool down.
        if (const CVXListItemStruct* item = GetItem(i)) item->ToText(text);
        out += text;
    }
}

bool CVXCoreList::AppendNode(CVXListItem* node) {
    if (node == nullptr) return false;
    CVXListItem* last = m_pHead;
    while (last != nullptr && last->GetNext() != nullptr)
        last = last->GetNext();
    if (last != nullptr) {
        last->SetNext(node);
    } else {
        m_pHead = node;
    }
    m_nCurrentIndex = m_nCount;
    m_pCurrentNode = node;
    ++m_nCount;
    return true;
}

bool CVXCoreList::AddItem(const CVXListItemStruct* item) {
    if (item == nullptr) return false;
    CVXListItem* node = new (std::nothrow) CVXListItem(item);
    if (node != nullptr && node->GetItem() == nullptr) {
        delete node;  // the duplicate failed
        return false;
    }
    return AppendNode(node);
}

bool CVXCoreList::AddOwnedItem(CVXListItemStruct* item) {
    CVXListItem* node = new (std::nothrow) CVXListItem;
    if (node == nullptr) return false;
    node->SetItem(item);
    return AppendNode(node);
}

bool CVXCoreList::InsertItem(int index, const CVXListItemStruct* item) {
    if (index < -1 || index > m_nCount || item == nullptr) return false;
    CVXListItem* node = new (std::nothrow) CVXListItem(item);
    if (node == nullptr) return false;
    if (node->GetItem() == nullptr) {
        delete node;
        return false;
    }
    if (index == 0) {
        node->SetNext(m_pHead);
        m_pHead = node;
    } else {
        // -1 becomes the count only after the test for 0, so inserting at -1 into an empty list
        // fails (the walk cannot end at index -1) while AddItem would append. Callers rely on
        // this asymmetry, so it stays.
        if (index == -1) index = m_nCount;
        int step = 0;
        CVXListItem* previous = m_pHead;
        while (step < index - 1 && previous != nullptr) {
            previous = previous->GetNext();
            ++step;
        }
        if (step != index - 1 || previous == nullptr) {
            delete node;
            return false;
        }
        node->SetNext(previous->GetNext());
        previous->SetNext(node);
    }
    m_nCurrentIndex = index;
    m_pCurrentNode = node;
    ++m_nCount;
    return true;
}

bool CVXCoreList::RemoveItem(int index, CVXListItem*& node) {
    if (index < 0 || index >= m_nCount) return false;
    if (index == 0) {
        node = m_pHead;
        m_pHead = m_pHead->GetNext();
    } else {
        CVXListItem* previous = GetNode(index - 1);
        if (previous == nullptr || previous->GetNext() == nullptr) return false;
        node = previous->GetNext();
        previous->SetNext(node->GetNext());
    }
    m_nCurrentIndex = -1;
    m_pCurrentNode = nullptr;
    --m_nCount;
    return true;
}

bool CVXCoreList::DeleteItem(int index) {
    CVXListItem* node = nullptr;
    if (!RemoveItem(index, node) || node == nullptr) return false;
    delete node;
    return true;
}

bool CVXCoreList::SwapItems(int a, int b) {
    if (a < 0 || a >= m_nCount || b < 0 || b >= m_nCount) return false;
    if (a == b) return true;
    CVXListItem* first = GetNode(a);
    CVXListItem* second = GetNode(b);
    if (first == nullptr || second == nullptr) return false;
    CVXListItemStruct* item = first->GetItem();
    first->SetItem(second->GetItem());
    second->SetItem(item);
    return true;
}

void CVXCoreList::RemoveAll() {
    CVXListItem* node = m_pHead;
    while (node != nullptr) {
        CVXListItem* next = node->GetNext();
        delete node;
        node = next;
    }
    FreeArray();
    m_pHead = nullptr;
    m_nCount = 0;
    m_nCurrentIndex = -1;
    m_pCurrentNode = nullptr;
}

CVXListItemStruct* CVXCoreList::GetItem(int index) const {
    CVXListItem* node = GetNode(index);
    return node != nullptr ? node->GetItem() : nullptr;
}

CVXListItem* CVXCoreList::GetNode(int index) const {
    if (index < 0 || index >= GetCount()) return nullptr;
    if (index == m_nCurrentIndex && m_pCurrentNode != nullptr) return m_pCurrentNode;
    CVXListItem* node = nullptr;
    if (m_nCurrentIndex >= 0 && index == m_nCurrentIndex + 1 && m_pCurrentNode != nullptr &&
        m_pCurrentNode->GetNext() != nullptr) {
        node = m_pCurrentNode->GetNext();
    } else {
        int position = 0;
        node = m_pHead;
        if (m_nCurrentIndex >= 0 && m_nCurrentIndex < index && m_pCurrentNode != nullptr) {
            position = m_nCurrentIndex;
            node = m_pCurrentNode;
        }
        while (node != nullptr && position < index) {
            node = node->GetNext();
            ++position;
        }
        if (node == nullptr || position != index) return nullptr;
    }
    m_nCurrentIndex = index;
    m_pCurrentNode = node;
    return node;
}

void CVXCoreList::FreeArray() {
    delete[] m_pArray;
    m_pArray = nullptr;
}

void* CVXCoreList::BuildArray() {
    if (m_pHead == nullptr) return nullptr;
    FreeArray();
    const std::size_t elementSize = m_pHead->GetSize();
    m_pArray = new (std::nothrow) unsigned char[static_cast<std::size_t>(m_nCount) * elementSize];
    if (m_pArray == nullptr) return nullptr;
    unsigned char* element = m_pArray;
    for (CVXListItem* node = m_pHead; node != nullptr; node = node->GetNext()) {
        // Every element has the first item's size; an item of another size (a list mixing
        // classes) would write past its slot, so it fails the build like a missing item.
        if (node->GetSize() != elementSize || !node->CopyTo(element)) {
            FreeArray();
            return nullptr;
        }
        element += elementSize;
    }
    return m_pArray;
}

void CVXCoreList::AddList(const CVXCoreList& other) {
    const int count = other.GetCount();  // fixed first: `other` may be this list
    for (int i = 0; i < count; ++i)
        AddItem(other.GetItem(i));
}

bool CVXCoreList::IsEqual(const CVXCoreList& other) const {
    if (GetCount() != other.GetCount()) return false;
    for (int i = 0; i < GetCount(); ++i) {
        const CVXListItemStruct* mine = GetItem(i);
        const CVXListItemStruct* theirs = other.GetItem(i);
        if (mine == nullptr || theirs == nullptr) continue;
        if (!mine->IsEqual(*theirs)) return false;
    }
    return true;
}
