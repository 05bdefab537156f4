#include "vxutil/foundation/CVXInternalId.h"

CVXInternalId::CVXInternalId(std::uint32_t id)
    : CVXListItemStruct(sizeof(VXInternalId)), m_nId(id) {}

CVXInternalId::CVXInternalId(const VXInternalId& record) : CVXInternalId(record.id) {}

CVXListItemStruct* CVXInternalId::Duplicate(const CVXListItemStruct* source) const {
    return DuplicateAs<CVXInternalId>(source);
}

bool CVXInternalId::CopyTo(void* record) const {
    if (record == nullptr) return false;
    static_cast<VXInternalId*>(record)->id = m_nId;
    return true;
}
