// A 32-bit internal identifier of a field, group or user.
#pragma once

#include <cstdint>

#include "vxutil/export.h"
#include "vxutil/foundation/CVXListItemStruct.h"
#include "vxutil/foundation/VXRecords.h"

class VXUTIL_API CVXInternalId : public CVXListItemStruct {
public:
    explicit CVXInternalId(std::uint32_t id = 0);
    explicit CVXInternalId(const VXInternalId& record);

    std::uint32_t GetId() const { return m_nId; }
    void SetId(std::uint32_t id) { m_nId = id; }

    CVXListItemStruct* Duplicate(const CVXListItemStruct* source) const override;
    bool CopyTo(void* record) const override;

private:
    std::uint32_t m_nId;
};
