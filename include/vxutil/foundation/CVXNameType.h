// An object name of the server (schema, field, group...): at most 30 bytes.
#pragma once

#include "vxutil/export.h"
#include "vxutil/foundation/CVXFixedName.h"
#include "vxutil/foundation/VXRecords.h"

class VXUTIL_API CVXNameType : public CVXFixedName<VXNameType> {
public:
    CVXNameType() = default;
    explicit CVXNameType(const char* name) : CVXFixedName(name) {}
    explicit CVXNameType(const VXNameType& record) : CVXFixedName(record) {}

    CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const override;
};
