#include "vxutil/foundation/CVXFieldValueList.h"

#include <cstdlib>

#include "foundation/GNListElements.h"

CVXFieldValueList::CVXFieldValueList() : CGNList(0, 8) {}

CVXFieldValueList::CVXFieldValueList(const VXFieldValueList& record) : CGNList(0, 8) {
    for (uint32_t i = 0; i < record.numItems && record.fieldValueList != nullptr; ++i) {
        AddFieldValue(record.fieldValueList[i].fieldId,
                      CVXValueStruct(record.fieldValueList[i].value));
    }
}

CVXFieldValueList::CVXFieldValueList(const CVXFieldValueList& other)
    : CGNList(0, 8), CVXFieldValueLookup() {
    for (int i = 0; i < other.GetCount(); ++i)
        vx::elements::InsertCopy(*this, GetCount(), *other.GetFieldValue(i));
}

CVXFieldValueList::~CVXFieldValueList() {
    CVXFieldValueList::Free();
}

void CVXFieldValueList::Free() {
    vx::elements::DestroyAll<CVXFieldValueStruct>(*this);
    CGNList::Free();
}

bool CVXFieldValueList::AddFieldValue(std::uint32_t fieldId, const CVXValueStruct& value) {
    CVXFieldValueStruct pair;
    pair.fieldId = fieldId;
    pair.value = value;
    return vx::elements::InsertCopy(*this, GetCount(), pair);
}

bool CVXFieldValueList::DeleteFieldValue(int index) {
    CVXFieldValueStruct* pair = GetFieldValue(index);
    if (!DeleteItem(index)) return false;
    delete pair;
    return true;
}

CVXFieldValueStruct* CVXFieldValueList::GetFieldValue(int index) const {
    return vx::elements::At<CVXFieldValueStruct>(*this, index);
}

const CVXValueStruct* CVXFieldValueList::FindFieldValue(std::uint32_t fieldId) const {
    for (int i = 0; i < GetCount(); ++i) {
        if (GetFieldValue(i)->fieldId == fieldId) return &GetFieldValue(i)->value;
    }
    return nullptr;
}

bool CVXFieldValueList::ExportTo(VXFieldValueList& record) const {
    record.numItems = 0;
    record.fieldValueList = static_cast<VXFieldValueStruct*>(
        std::calloc(static_cast<std::size_t>(GetCount()) + 1, sizeof(VXFieldValueStruct)));
    if (record.fieldValueList == nullptr) return false;
    for (int i = 0; i < GetCount(); ++i) {
        VXFieldValueStruct& pair = record.fieldValueList[i];
        pair.fieldId = GetFieldValue(i)->fieldId;
        if (!GetFieldValue(i)->value.ExportTo(&pair.value)) {
            FreeRecord(record);
            return false;
        }
        ++record.numItems;
    }
    return true;
}

void CVXFieldValueList::FreeRecord(VXFieldValueList& record) {
    for (uint32_t i = 0; i < record.numItems && record.fieldValueList != nullptr; ++i)
        CVXValueStruct::FreeRecord(record.fieldValueList[i].value);
    std::free(record.fieldValueList);
    record = VXFieldValueList{0, nullptr};
}
