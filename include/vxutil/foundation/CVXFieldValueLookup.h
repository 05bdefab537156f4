// Where a qualifier finds the values of the fields it names: typically an entry's field/value
// list, so that a client tool can evaluate a qualifier against an entry it holds.
#pragma once

#include <cstdint>

#include "vxutil/export.h"

class CVXValueStruct;

class VXUTIL_API CVXFieldValueLookup {
public:
    virtual ~CVXFieldValueLookup() = default;
    // The value of `fieldId`, or null when the field is not there.
    virtual const CVXValueStruct* FindFieldValue(std::uint32_t fieldId) const = 0;
};
