// The real-number rule shared by the display, literal and encoded texts of values.
#pragma once

#include "vxutil/gnrt/CGNString.h"

namespace vx::value {

// `value` with `precision` places (-1: as many as "%lf" gives, trailing zeros cut but the point
// kept, so 12.0 is "12."). With `general` set, values below 0.000001 or above 999999999 in
// magnitude (not 0) use "%lg" notation with precision + 1 significant digits. Formatted in the
// current numeric locale.
CGNString FormatReal(double value, int precision, bool general);

// The encoded text of a real number: FormatReal(value, -1, true) in the "C" numeric locale.
CGNString FormatClassicReal(double value);

// strtod in the "C" numeric locale, whatever the user's locale: how every real number is read
// from text. Switching the locale costs more than the conversion, so it is only switched when
// the current one does not already use the point.
double ParseReal(const char* text, char** end);

}  // namespace vx::value
