// Conversions between the lists of the foundation classes and the server API's list records
// (a count and a pointer to an array of records).
#pragma once

#include <cstdint>

#include "vxutil/foundation/CVXCoreList.h"

namespace vx::records {

// Replaces the list's items by duplicates of the records: the array is copied, never adopted.
// A null array gives an empty list whatever the count says.
template <class Wrapper, class Record>
void Assign(CVXCoreList& list, const Record* array, std::uint32_t count) {
    list.RemoveAll();
    if (array == nullptr) return;
    for (std::uint32_t i = 0; i < count; ++i) {
        const Wrapper item(array[i]);
        list.AddItem(&item);
    }
}

// Points the record at the list's freshly built array, which the list keeps owning. True when
// there is an array, or nothing to put in one.
template <class Record>
bool Export(CVXCoreList& list, std::uint32_t& count, Record*& array) {
    count = static_cast<std::uint32_t>(list.GetCount());
    array = static_cast<Record*>(list.BuildArray());
    return array != nullptr || list.GetCount() <= 0;
}

}  // namespace vx::records
