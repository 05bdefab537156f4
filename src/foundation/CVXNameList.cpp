#include "vxutil/foundation/CVXNameList.h"

#include "foundation/RecordLists.h"
#include "gnrt/MultiByte.h"

CVXNameList::CVXNameList(const VXNameList& record) {
    *this = record;
}

CVXNameList& CVXNameList::operator=(const VXNameList& record) {
    vx::records::Assign<CVXNameType>(*this, record.nameList, record.numItems);
    return *this;
}

CVXNameList::~CVXNameList() = default;

bool CVXNameList::GetNameList(VXNameList& record) {
    return vx::records::Export(*this, record.numItems, record.nameList);
}

void CVXNameList::Sort() {
    // A bubble sort: stable, in place through SwapItems, and the lists are short.
    bool swapped = true;
    while (swapped) {
        swapped = false;
        for (int i = 0; i + 1 < GetCount(); ++i) {
            const auto* left = static_cast<const CVXNameType*>(GetItem(i));
            const auto* right = static_cast<const CVXNameType*>(GetItem(i + 1));
            if (left == nullptr || right == nullptr) continue;
            if (vx::mb::Collate(left->GetName(), right->GetName()) > 0) {
                SwapItems(i, i + 1);
                swapped = true;
            }
        }
    }
}
