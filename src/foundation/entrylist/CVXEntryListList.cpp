#include "vxutil/foundation/CVXEntryListList.h"

#include "foundation/GNListElements.h"

CVXEntryListList::CVXEntryListList() : CGNList(0, 16) {}

CVXEntryListList::CVXEntryListList(const VXEntryListList& record) : CGNList(0, 16) {
    for (uint32_t i = 0; i < record.numItems && record.entryList != nullptr; ++i)
        AddEntry(record.entryList[i]);
}

CVXEntryListList::CVXEntryListList(const CVXEntryListList& other) : CGNList(0, 16) {
    for (int i = 0; i < other.GetCount(); ++i)
        vx::elements::InsertCopy(*this, GetCount(), *other.GetEntry(i));
}

CVXEntryListList::~CVXEntryListList() {
    CVXEntryListList::Free();
}

void CVXEntryListList::Free() {
    vx::elements::DestroyAll<CVXEntryListStruct>(*this);
    CGNList::Free();
}

bool CVXEntryListList::AddEntry(const VXEntryListStruct& record) {
    return InsertEntry(GetCount(), record);
}

bool CVXEntryListList::InsertEntry(int index, const VXEntryListStruct& record) {
    return vx::elements::InsertCopy(*this, index, CVXEntryListStruct(record));
}

bool CVXEntryListList::DeleteEntry(int index) {
    CVXEntryListStruct* entry = GetEntry(index);
    if (!DeleteItem(index)) return false;
    delete entry;
    return true;
}

CVXEntryListStruct* CVXEntryListList::GetEntry(int index) const {
    return vx::elements::At<CVXEntryListStruct>(*this, index);
}
