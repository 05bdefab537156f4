// The server names of a user (the application environment's server lists) or of a query: a
// list of owned CVXServerNameType objects.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXServerNameType.h"
#include "vxutil/gnrt/CGNList.h"

class VXUTIL_API CVXServerNameList : public CGNList {
public:
    CVXServerNameList();
    // Appends a copy of each of the other list's names, in order.
    CVXServerNameList(const CVXServerNameList& other);
    CVXServerNameList& operator=(const CVXServerNameList&) = delete;
    ~CVXServerNameList() override;

    // Destroys every name, then releases the slots.
    void Free() override;

    // Appends a copy of `name`.
    bool AddServer(const CVXServerNameType& name);
    // Inserts a copy of `name` before `index` (the count appends).
    bool InsertServer(int index, const CVXServerNameType& name);
    // Removes the name at `index`. Index 0 is taken out of the list but not destroyed: the
    // caller who fetched it with GetServer(0) owns it from then on.
    bool DeleteServer(int index);
    // The name at `index`, or null.
    CVXServerNameType* GetServer(int index) const;
};
