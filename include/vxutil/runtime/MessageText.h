// Message texts of the string table with their insertion points filled.
#pragma once

#include <initializer_list>
#include <string_view>

#include "vxutil/export.h"
#include "vxutil/gnrt/CGNString.h"

namespace vx {

// Fills "%1" to "%9" in `pattern` with the inserts of that number; a number without an insert
// gives nothing, and a "%" not followed by a digit from 1 to 9 stays as it is.
VXUTIL_API CGNString FillInserts(std::string_view pattern,
                                 std::initializer_list<std::string_view> inserts);

// String `id` in the user's language (OSLoadString) with its insertion points filled.
VXUTIL_API CGNString LoadMessageText(unsigned id, std::initializer_list<std::string_view> inserts);

}  // namespace vx
