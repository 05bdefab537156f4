// Text between the core's multi-byte strings and Qt's: UTF-8 on POSIX, the ANSI code page on
// Windows, as the core stores them.
#pragma once

#include <QString>

#include "vxutil/gnrt/CGNString.h"
#include "vxutil/widgets_export.h"

namespace vx {

VXUTIL_WIDGETS_API QString ToQString(const char* text);
VXUTIL_WIDGETS_API QString ToQString(const CGNString& text);
VXUTIL_WIDGETS_API CGNString FromQString(const QString& text);

// String `id` of the library's string table in the user's language.
VXUTIL_WIDGETS_API QString Tr(unsigned id);

}  // namespace vx
