// A server name: at most 64 bytes.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXFixedName.h"
#include "vxutil/foundation/VXRecords.h"

class VXUTIL_API CVXServerNameType : public CVXFixedName<VXServerNameType> {
public:
    CVXServerNameType() = default;
    explicit CVXServerNameType(const char* name) : CVXFixedName(name) {}
    explicit CVXServerNameType(const VXServerNameType& record) : CVXFixedName(record) {}

    CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const override;
};
