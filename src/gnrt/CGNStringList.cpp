#include "vxutil/gnrt/CGNStringList.h"

#include "gnrt/Growth.h"

namespace {

bool InRange(int index, int count) {
    return index >= 0 && index < count;
}

}  // namespace

CGNStringList::CGNStringList(int growStep) : m_nGrowStep(growStep > 0 ? growStep : 1) {}

const CGNString& CGNStringList::GetAt(int index) const {
    static const CGNString kEmpty;
    return InRange(index, GetCount()) ? m_items[static_cast<std::size_t>(index)] : kEmpty;
}

bool CGNStringList::SetAt(int index, const CGNString& text) {
    if (!InRange(index, GetCount())) {
        return false;
    }
    m_items[static_cast<std::size_t>(index)] = text;
    return true;
}

void CGNStringList::Add(const CGNString& text) {
    InsertAt(GetCount(), text);
}

bool CGNStringList::AddUnique(const CGNString& text) {
    if (Find(text) >= 0) {
        return false;
    }
    Add(text);
    return true;
}

bool CGNStringList::InsertAt(int index, const CGNString& text) {
    if (index < 0 || index > GetCount()) {
        return false;
    }
    m_items.reserve(vx::GrownCapacity(m_items.capacity(), m_items.size() + 1,
                                      static_cast<std::size_t>(m_nGrowStep)));
    m_items.insert(m_items.begin() + index, text);
    return true;
}

bool CGNStringList::RemoveAt(int index) {
    if (!InRange(index, GetCount())) {
        return false;
    }
    m_items.erase(m_items.begin() + index);
    return true;
}

int CGNStringList::Find(const CGNString& text) const {
    for (int i = 0; i < GetCount(); ++i) {
        if (m_items[static_cast<std::size_t>(i)] == text) {
            return i;
        }
    }
    return -1;
}

void CGNStringList::Parse(const CGNString& text, char separator) {
    std::size_t start = 0;
    while (start < text.GetLength()) {
        const int found = text.Find(separator, start);
        const std::size_t end = found < 0 ? text.GetLength() : static_cast<std::size_t>(found);
        if (end > start) {
            Add(text.Mid(start, end - start));
        }
        start = end + 1;
    }
}

CGNString CGNStringList::Join(char separator) const {
    CGNString joined;
    for (int i = 0; i < GetCount(); ++i) {
        if (i > 0) {
            joined += separator;
        }
        joined += m_items[static_cast<std::size_t>(i)];
    }
    return joined;
}
