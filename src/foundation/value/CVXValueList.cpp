#include "vxutil/foundation/CVXValueList.h"

#include <cstdlib>
#include <new>

#include "foundation/DefinitionText.h"
#include "foundation/GNListElements.h"

namespace {

using vx::elements::At;
using vx::elements::DestroyAll;
using vx::elements::InsertCopy;

// Removes the element at `index` and destroys it.
template <class Element>
bool Remove(CGNList& list, int index) {
    Element* element = At<Element>(list, index);
    if (!list.DeleteItem(index)) return false;
    delete element;
    return true;
}

}  // namespace

CVXValueList::CVXValueList() : CGNList(0, 8) {}

CVXValueList::CVXValueList(const CVXValueList& other) : CGNList(other.GetCount(), 8) {
    for (int i = 0; i < other.GetCount(); ++i)
        AddValue(*other.GetValue(i));
}

CVXValueList::CVXValueList(const VXValueList& record) : CGNList(0, 8) {
    for (uint32_t i = 0; i < record.numItems && record.valueList != nullptr; ++i)
        AddValue(CVXValueStruct(record.valueList[i]));
}

CVXValueList::~CVXValueList() {
    CVXValueList::Free();
}

void CVXValueList::Free() {
    DestroyAll<CVXValueStruct>(*this);
    CGNList::Free();
}

bool CVXValueList::AddValue(const CVXValueStruct& value) {
    return InsertCopy(*this, GetCount(), value);
}

bool CVXValueList::InsertValue(int index, const CVXValueStruct& value) {
    return InsertCopy(*this, index, value);
}

bool CVXValueList::DeleteValue(int index) {
    return Remove<CVXValueStruct>(*this, index);
}

CVXValueStruct* CVXValueList::GetValue(int index) const {
    return At<CVXValueStruct>(*this, index);
}

void CVXValueList::ToText(CGNString& out) const {
    out.Empty();
    for (int i = 0; i < GetCount(); ++i) {
        CGNString text;
        GetValue(i)->ToText(text);
        if (i > 0) out += ",";
        out += text;
    }
}

bool CVXValueList::GetEncodedText(CGNString& out) const {
    out.Empty();
    vx::definition::WriteUnsigned(out, static_cast<std::uint32_t>(GetCount()));
    CGNString text;
    for (int i = 0; i < GetCount(); ++i) {
        if (!GetValue(i)->GetEncodedText(text)) return false;
        out += text;
        out += "\\";
    }
    return true;
}

bool CVXValueList::Decode(const char*& cursor) {
    std::uint32_t count = 0;
    if (!vx::definition::ReadUnsigned(cursor, count)) return false;
    for (std::uint32_t i = 0; i < count; ++i) {
        // Read in place: the list keeps the value that was read, not a copy of it.
        auto* value = new (std::nothrow) CVXValueStruct;
        if (value == nullptr || cursor == nullptr || !value->Decode(cursor) || !AddItem(value)) {
            delete value;
            return false;
        }
    }
    vx::definition::SkipLineFeed(cursor);
    return true;
}

bool CVXValueList::ExportTo(VXValueList* record) const {
    if (record == nullptr) return false;
    record->numItems = 0;
    record->valueList = static_cast<VXValueStruct*>(
        std::calloc(static_cast<std::size_t>(GetCount()) + 1, sizeof(VXValueStruct)));
    if (record->valueList == nullptr) return false;
    for (int i = 0; i < GetCount(); ++i) {
        if (!GetValue(i)->ExportTo(&record->valueList[i])) {
            FreeRecord(*record);
            return false;
        }
        ++record->numItems;
    }
    return true;
}

void CVXValueList::FreeRecord(VXValueList& record) {
    for (uint32_t i = 0; i < record.numItems && record.valueList != nullptr; ++i)
        CVXValueStruct::FreeRecord(record.valueList[i]);
    std::free(record.valueList);
    record = VXValueList{0, nullptr};
}

CVXValueListList::CVXValueListList() : CGNList(0, 4) {}

CVXValueListList::CVXValueListList(const CVXValueListList& other) : CGNList(other.GetCount(), 4) {
    for (int i = 0; i < other.GetCount(); ++i)
        AddList(*other.GetList(i));
}

CVXValueListList::CVXValueListList(const VXValueListList& record) : CGNList(0, 4) {
    for (uint32_t i = 0; i < record.numItems && record.valueListList != nullptr; ++i)
        AddList(CVXValueList(record.valueListList[i]));
}

CVXValueListList::~CVXValueListList() {
    CVXValueListList::Free();
}

void CVXValueListList::Free() {
    DestroyAll<CVXValueList>(*this);
    CGNList::Free();
}

bool CVXValueListList::AddList(const CVXValueList& list) {
    return InsertCopy(*this, GetCount(), list);
}

bool CVXValueListList::InsertList(int index, const CVXValueList& list) {
    return InsertCopy(*this, index, list);
}

bool CVXValueListList::DeleteList(int index) {
    return Remove<CVXValueList>(*this, index);
}

CVXValueList* CVXValueListList::GetList(int index) const {
    return At<CVXValueList>(*this, index);
}

bool CVXValueListList::ExportTo(VXValueListList* record) const {
    if (record == nullptr) return false;
    record->numItems = 0;
    record->valueListList = static_cast<VXValueList*>(
        std::calloc(static_cast<std::size_t>(GetCount()) + 1, sizeof(VXValueList)));
    if (record->valueListList == nullptr) return false;
    for (int i = 0; i < GetCount(); ++i) {
        if (!GetList(i)->ExportTo(&record->valueListList[i])) {
            FreeRecord(*record);
            return false;
        }
        ++record->numItems;
    }
    return true;
}

void CVXValueListList::FreeRecord(VXValueListList& record) {
    for (uint32_t i = 0; i < record.numItems && record.valueListList != nullptr; ++i)
        CVXValueList::FreeRecord(record.valueListList[i]);
    std::free(record.valueListList);
    record = VXValueListList{0, nullptr};
}
