// A stored LOGFONT shown as a QFont, and a font the user chose merged back into it. Qt carries
// less than a LOGFONT (no character set, precisions, escapement), so the merge keeps every
// stored number Qt did not change: a font read and written back without a change by the user
// stays byte for byte the same.
#pragma once

#include <QFont>

#include "vxutil/decor/LogFont.h"

namespace vx {

QFont ToQFont(const LogFont& font, const QFont& base);
// `stored` with what `chosen` says differently.
LogFont MergeQFont(const LogFont& stored, const QFont& chosen, const QFont& base);

}  // namespace vx
