// A list item for the list tests: a number that is its display text and its 16-byte record.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "vxutil/foundation/CVXCoreList.h"
#include "vxutil/foundation/CVXListItemStruct.h"

namespace vx::test {

struct TaggedRecord {
    std::int32_t tag;
    std::int32_t spare[3];
};

class TaggedItem : public CVXListItemStruct {
public:
    explicit TaggedItem(int tag = 0) : CVXListItemStruct(sizeof(TaggedRecord)), m_tag(tag) {}
    int tag() const { return m_tag; }
    void setTag(int tag) { m_tag = tag; }

    void ToText(CGNString& out) const override { out = std::to_string(m_tag).c_str(); }
    CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const override {
        return DuplicateAs<TaggedItem>(source);
    }
    bool CopyTo(void* record) const override {
        if (record == nullptr) return false;
        auto* target = static_cast<TaggedRecord*>(record);
        std::memset(target, 0, sizeof *target);
        target->tag = m_tag;
        return true;
    }

private:
    int m_tag;
};

// The tags of a list's items in order (-1 for a node without item).
inline std::vector<int> Tags(const CVXCoreList& list) {
    std::vector<int> tags;
    for (int i = 0; i < list.GetCount(); ++i) {
        const auto* item = dynamic_cast<const TaggedItem*>(list.GetItem(i));
        tags.push_back(item != nullptr ? item->tag() : -1);
    }
    return tags;
}

// A list of items tagged 1 to `count`.
inline void Fill(CVXCoreList& list, int count) {
    for (int tag = 1; tag <= count; ++tag) {
        TaggedItem item(tag);
        list.AddItem(&item);
    }
}

}  // namespace vx::test
