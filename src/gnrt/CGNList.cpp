#include "vxutil/gnrt/CGNList.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "gnrt/Growth.h"

CGNList::CGNList(int initialSize, int growStep) : m_growStep(growStep > 0 ? growStep : 1) {
    if (initialSize > 0) {
        Reserve(initialSize);
    }
}

CGNList::~CGNList() {
    std::free(m_items);
}

void CGNList::Free() {
    std::free(m_items);
    m_items = nullptr;
    m_count = 0;
    m_capacity = 0;
}

bool CGNList::SwapItems(int first, int second) {
    if (first < 0 || first >= m_count || second < 0 || second >= m_count) {
        return false;
    }
    std::swap(m_items[first], m_items[second]);
    return true;
}

void** CGNList::GetItemListPtr() {
    return m_items;
}

bool CGNList::AddItem(void* item) {
    return InsertItem(m_count, item);
}

bool CGNList::InsertItem(int index, void* item) {
    if (index < 0 || index > m_count || !Reserve(m_count + 1)) {
        return false;
    }
    std::memmove(m_items + index + 1, m_items + index,
                 static_cast<std::size_t>(m_count - index) * sizeof(void*));
    m_items[index] = item;
    ++m_count;
    return true;
}

bool CGNList::DeleteItem(int index) {
    if (index < 0 || index >= m_count) {
        return false;
    }
    std::memmove(m_items + index, m_items + index + 1,
                 static_cast<std::size_t>(m_count - index - 1) * sizeof(void*));
    --m_count;
    return true;
}

void* CGNList::GetItem(int index) const {
    return (index >= 0 && index < m_count) ? m_items[index] : nullptr;
}

bool CGNList::SetItem(int index, void* item) {
    if (index < 0 || index >= m_count) {
        return false;
    }
    m_items[index] = item;
    return true;
}

bool CGNList::Reserve(int needed) {
    if (needed <= m_capacity) {
        return true;
    }
    // Counts are ints: never grow beyond what an int index can reach.
    std::size_t capacity =
        vx::GrownCapacity(static_cast<std::size_t>(m_capacity), static_cast<std::size_t>(needed),
                          static_cast<std::size_t>(m_growStep));
    if (capacity > static_cast<std::size_t>(INT_MAX)) {
        capacity = static_cast<std::size_t>(INT_MAX);
    }
    void* grown = std::realloc(m_items, capacity * sizeof(void*));
    if (grown == nullptr) {
        return false;
    }
    m_items = static_cast<void**>(grown);
    m_capacity = static_cast<int>(capacity);
    return true;
}
