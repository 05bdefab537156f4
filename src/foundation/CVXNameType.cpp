#include "vxutil/foundation/CVXNameType.h"

CVXListItemStruct* CVXNameType::Duplicate(const CVXListItemStruct* source) const {
    return DuplicateAs<CVXNameType>(source);
}
