#include "vxutil/foundation/CVXServerNameList.h"

#include "foundation/GNListElements.h"

namespace elements = vx::elements;

CVXServerNameList::CVXServerNameList() : CGNList(10, 10) {}

CVXServerNameList::CVXServerNameList(const CVXServerNameList& other) : CGNList(10, 10) {
    for (int i = 0; i < other.GetCount(); ++i) {
        const CVXServerNameType* name = other.GetServer(i);
        if (name != nullptr) {
            AddServer(*name);
        } else {
            AddItem(nullptr);
        }
    }
}

CVXServerNameList::~CVXServerNameList() {
    CVXServerNameList::Free();
}

void CVXServerNameList::Free() {
    elements::DestroyAll<CVXServerNameType>(*this);
    CGNList::Free();
}

bool CVXServerNameList::AddServer(const CVXServerNameType& name) {
    return elements::AddCopy(*this, name);
}

bool CVXServerNameList::InsertServer(int index, const CVXServerNameType& name) {
    return elements::InsertCopy(*this, index, name);
}

bool CVXServerNameList::DeleteServer(int index) {
    return elements::Delete<CVXServerNameType>(*this, index);
}

CVXServerNameType* CVXServerNameList::GetServer(int index) const {
    return elements::At<CVXServerNameType>(*this, index);
}
