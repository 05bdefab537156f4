// A list of schemas, each named together with the server that holds it.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXNameType.h"
#include "vxutil/foundation/CVXServerNameType.h"
#include "vxutil/gnrt/CGNList.h"

// One schema on one server, held by value in one element of the list.
struct CVXSchemaPair {
    CVXNameType schema;
    CVXServerNameType server;
};

class VXUTIL_API CVXSchemaList : public CGNList {
public:
    CVXSchemaList();
    CVXSchemaList(const CVXSchemaList&) = delete;
    CVXSchemaList& operator=(const CVXSchemaList&) = delete;
    ~CVXSchemaList() override;

    // Destroys every pair, then releases the slots.
    void Free() override;

    // Appends a copy of `pair`.
    bool AddSchema(const CVXSchemaPair& pair);
    bool InsertSchema(int index, const CVXSchemaPair& pair);
    // Removes the pair at `index`; index 0 is taken out but not destroyed, as with
    // CVXServerNameList::DeleteServer.
    bool DeleteSchema(int index);
    CVXSchemaPair* GetSchema(int index) const;
};
