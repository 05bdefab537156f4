#include "vxutil/foundation/CVXSchemaList.h"

#include "foundation/GNListElements.h"

namespace elements = vx::elements;

CVXSchemaList::CVXSchemaList() : CGNList(10, 10) {}

CVXSchemaList::~CVXSchemaList() {
    CVXSchemaList::Free();
}

void CVXSchemaList::Free() {
    // A pair is destroyed directly (server name, then schema name), without a virtual call.
    elements::DestroyAll<CVXSchemaPair>(*this);
    CGNList::Free();
}

bool CVXSchemaList::AddSchema(const CVXSchemaPair& pair) {
    return elements::AddCopy(*this, pair);
}

bool CVXSchemaList::InsertSchema(int index, const CVXSchemaPair& pair) {
    return elements::InsertCopy(*this, index, pair);
}

bool CVXSchemaList::DeleteSchema(int index) {
    return elements::Delete<CVXSchemaPair>(*this, index);
}

CVXSchemaPair* CVXSchemaList::GetSchema(int index) const {
    return elements::At<CVXSchemaPair>(*this, index);
}
