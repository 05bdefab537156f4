#include "vxutil/foundation/CVXEntryListFieldValueList.h"

#include "foundation/GNListElements.h"

CVXEntryListFieldValueList::CVXEntryListFieldValueList() : CGNList(0, 16) {}

CVXEntryListFieldValueList::CVXEntryListFieldValueList(const VXEntryListFieldValueList& record)
    : CGNList(0, 16) {
    for (uint32_t i = 0; i < record.numItems && record.entryList != nullptr; ++i)
        AddEntry(record.entryList[i]);
}

CVXEntryListFieldValueList::~CVXEntryListFieldValueList() {
    CVXEntryListFieldValueList::Free();
}

void CVXEntryListFieldValueList::Free() {
    vx::elements::DestroyAll<CVXEntryListFieldValueStruct>(*this);
    CGNList::Free();
}

bool CVXEntryListFieldValueList::AddEntry(const VXEntryListFieldValueStruct& record) {
    auto* entry = new (std::nothrow) CVXEntryListFieldValueStruct{
        CVXEntryIdList(record.entryId), record.entryValues != nullptr
                                            ? CVXFieldValueList(*record.entryValues)
                                            : CVXFieldValueList()};
    if (entry == nullptr) return false;
    if (AddItem(entry)) return true;
    delete entry;
    return false;
}

CVXEntryListFieldValueStruct* CVXEntryListFieldValueList::GetEntry(int index) const {
    return vx::elements::At<CVXEntryListFieldValueStruct>(*this, index);
}
