// The library's string table: texts looked up by number.
#pragma once

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

// Sets `out` to the text of string `id` and returns its length; an unknown id gives an empty
// text and 0.
VXUTIL_API int OSLoadString(unsigned int id, CGNString& out);
