#include "vxutil/foundation/CVXEntryListFieldList.h"

#include <cstdlib>
#include <cstring>

#include "foundation/GNListElements.h"
#include "foundation/value/EncodedFields.h"

using vx::elements::At;

CVXEntryListFieldList::CVXEntryListFieldList() : CGNList(0, 8) {}

CVXEntryListFieldList::CVXEntryListFieldList(const VXEntryListFieldList& record) : CGNList(0, 8) {
    for (uint32_t i = 0; i < record.numItems && record.fieldsList != nullptr; ++i)
        AddField(record.fieldsList[i]);
}

CVXEntryListFieldList::CVXEntryListFieldList(const CVXEntryListFieldList& other) : CGNList(0, 8) {
    for (int i = 0; i < other.GetCount(); ++i)
        vx::elements::InsertCopy(*this, GetCount(), *other.GetField(i));
}

CVXEntryListFieldList::~CVXEntryListFieldList() {
    CVXEntryListFieldList::Free();
}

void CVXEntryListFieldList::Free() {
    vx::elements::DestroyAll<CVXEntryListFieldStruct>(*this);
    CGNList::Free();
}

bool CVXEntryListFieldList::AddField(const VXEntryListFieldStruct& record) {
    return InsertField(GetCount(), record);
}

bool CVXEntryListFieldList::InsertField(int index, const VXEntryListFieldStruct& record) {
    return vx::elements::InsertCopy(*this, index, CVXEntryListFieldStruct(record));
}

bool CVXEntryListFieldList::DeleteField(int index) {
    CVXEntryListFieldStruct* field = GetField(index);
    if (!DeleteItem(index)) return false;
    delete field;
    return true;
}

CVXEntryListFieldStruct* CVXEntryListFieldList::GetField(int index) const {
    return At<CVXEntryListFieldStruct>(*this, index);
}

void CVXEntryListFieldList::GetEncodedText(CGNString& out) const {
    out.Format("%s%u\\", kEntryListFieldsPrefix, static_cast<unsigned>(GetCount()));
    for (int i = 0; i < GetCount(); ++i) {
        if (i > 0) out += "\\";
        out += GetField(i)->GetEncodedText();
    }
}

bool CVXEntryListFieldList::Decode(const char* text) {
    Free();
    const std::size_t prefix = std::strlen(kEntryListFieldsPrefix);
    if (text == nullptr || std::strncmp(text, kEntryListFieldsPrefix, prefix) != 0) return false;
    const char* cursor = text + prefix;
    std::uint32_t count = 0;
    if (!vx::encoded::ReadUnsignedLong(cursor, count)) return false;
    for (std::uint32_t i = 0; i < count; ++i) {
        CVXEntryListFieldStruct field;
        if (!field.Decode(cursor) || !vx::elements::InsertCopy(*this, GetCount(), field)) {
            Free();
            return false;
        }
    }
    return true;
}

bool CVXEntryListFieldList::ExportTo(VXEntryListFieldList& record) const {
    record.numItems = 0;
    record.fieldsList = static_cast<VXEntryListFieldStruct*>(
        std::calloc(static_cast<std::size_t>(GetCount()) + 1, sizeof(VXEntryListFieldStruct)));
    if (record.fieldsList == nullptr) return false;
    for (int i = 0; i < GetCount(); ++i)
        GetField(i)->CopyTo(record.fieldsList[i]);
    record.numItems = static_cast<uint32_t>(GetCount());
    return true;
}
