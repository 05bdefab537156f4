#include "vxutil/gnrt/CGNList.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "gnrt/Growth.h"

CGNList::CGNList(int initialSize, int growStep) : m_nGrowStep(growStep > 0 ? growStep : 1) {
    if (initialSize > 0) {
        Reserve(initialSize);
    }
}

CGNList::~CGNList() {
    std::free(m_pItems);
}

void CGNList::Free() {
    std::free(m_pItems);
    m_pItems = nullptr;
    m_nCount = 0;
    m_nCapacity = 0;
}

bool CGNList::SwapItems(int first, int second) {
    if (first < 0 || first >= m_nCount || second < 0 || second >= m_nCount) {
        return false;
    }
    std::swap(m_pItems[first], m_pItems[second]);
    return true;
}

void** CGNList::GetItemListPtr() {
    return m_pItems;
}

bool CGNList::AddItem(void* item) {
    return InsertItem(m_nCount, item);
}

bool CGNList::InsertItem(int index, void* item) {
    if (index < 0 || index > m_nCount || !Reserve(m_nCount + 1)) {
        return false;
    }
    std::memmove(m_pItems + index + 1, m_pItems + index,
                 static_cast<std::size_t>(m_nCount - index) * sizeof(void*));
    m_pItems[index] = item;
    ++m_nCount;
    return true;
}

bool CGNList::DeleteItem(int index) {
    if (index < 0 || index >= m_nCount) {
        return false;
    }
    std::memmove(m_pItems + index, m_pItems + index + 1,
                 static_cast<std::size_t>(m_nCount - index - 1) * sizeof(void*));
    --m_nCount;
    return true;
}

void* CGNList::GetItem(int index) const {
    return (index >= 0 && index < m_nCount) ? m_pItems[index] : nullptr;
}

bool CGNList::SetItem(int index, void* item) {
    if (index < 0 || index >= m_nCount) {
        return false;
    }
    m_pItems[index] = item;
    return true;
}

bool CGNList::Reserve(int needed) {
    if (needed <= m_nCapacity) {
        return true;
    }
    // Counts are ints: never grow beyond what an int index can reach.
    std::size_t capacity =
        vx::GrownCapacity(static_cast<std::size_t>(m_nCapacity), static_cast<std::size_t>(needed),
                          static_cast<std::size_t>(m_nGrowStep));
    if (capacity > static_cast<std::size_t>(INT_MAX)) {
        capacity = static_cast<std::size_t>(INT_MAX);
    }
    void* grown = std::realloc(m_pItems, capacity * sizeof(void*));
    if (grown == nullptr) {
        return false;
    }
    m_pItems = static_cast<void**>(grown);
    m_nCapacity = static_cast<int>(capacity);
    return true;
}
