#include "vxutil/foundation/CVXServerNameType.h"

CVXListItemStruct* CVXServerNameType::Duplicate(const CVXListItemStruct* source) const {
    return DuplicateAs<CVXServerNameType>(source);
}
