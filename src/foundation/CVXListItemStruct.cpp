#include "vxutil/foundation/CVXListItemStruct.h"

CVXListItemStruct::~CVXListItemStruct() = default;

void CVXListItemStruct::ToText(CGNString&) const {}
