// An ordered list of strings of the common runtime.
#pragma once

#include <vector>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

class VXUTIL_API CGNStringList {
public:
    // The grow step is the least number of slots reserved at a time; it affects only allocation.
    explicit CGNStringList(int growStep = 10);

    int GetCount() const { return static_cast<int>(m_items.size()); }
    bool IsEmpty() const { return m_items.empty(); }
    // Out-of-range indexes give an empty string.
    const CGNString& GetAt(int index) const;
    bool SetAt(int index, const CGNString& text);

    void Add(const CGNString& text);
    // Adds the text unless an equal string (case-sensitive) is present; returns true if added.
    bool AddUnique(const CGNString& text);
    bool InsertAt(int index, const CGNString& text);
    bool RemoveAt(int index);
    void RemoveAll() { m_items.clear(); }
    // Index of the first string equal to `text` (case-sensitive), or -1.
    int Find(const CGNString& text) const;

    // Appends the pieces of `text` between `separator` bytes. Empty pieces are skipped, so
    // "a;;b;" gives "a", "b", and an empty text adds nothing. Pieces are not trimmed.
    void Parse(const CGNString& text, char separator);
    // The strings joined by `separator`.
    CGNString Join(char separator) const;

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::vector<CGNString> m_items;
    int m_nGrowStep;
};
