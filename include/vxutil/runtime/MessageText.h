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

// A value for one printf conversion of a message text: `text` for "%s" (when not null), else
// `number` for "%d", "%i", "%x" and "%X".
struct MessageValue {
    const char* text = nullptr;
    int number = 0;
};

// Fills the conversions "%s", "%d", "%i", "%x" and "%X" of `pattern` from `values` in order,
// and "%%" with "%"; any other "%" stands for itself. A translated pattern is not trusted to
// have the original's conversions, so it is never handed to printf: a conversion that does not
// fit its value still renders, and one beyond the values renders nothing.
VXUTIL_API CGNString FillConversions(std::string_view pattern,
                                     std::initializer_list<MessageValue> values);

// String `id` in the user's language (OSLoadString) with its insertion points filled.
VXUTIL_API CGNString LoadMessageText(unsigned id, std::initializer_list<std::string_view> inserts);

}  // namespace vx
