// Filling the insertion points of a message text from the string table.
#pragma once

#include <initializer_list>

#include "vxutil/gnrt/CGNString.h"

namespace vx::message {

// Replaces each "%s" of `format` by the next of `values` (an empty text once they run out) and
// "%%" by "%"; any other "%" stands for itself. The result is the text that sprintf gives for a
// format of "%s" insertion points, but a translated format with other conversions cannot read
// arguments that are not there.
CGNString FormatStrings(const CGNString& format, std::initializer_list<const char*> values);

}  // namespace vx::message
