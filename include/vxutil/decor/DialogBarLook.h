// The dialog bar's look as stored in the client tool's profile, section "DialogBar", one set for
// every bar: "BackgroundColor" and "TextColor" as "%d,%d,%d" (red, green, blue), "TextLogfont"
// as the thirteen numbers of the font and "FontName" as its face name. Reads and writes go to
// the current application's profile (RApplication::Current()); without one, reads give the
// defaults and writes do nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "vxutil/decor/ColorRef.h"
#include "vxutil/decor/LogFont.h"
#include "vxutil/export.h"

namespace vx {

struct DialogBarLook {
    ColorRef background = kBlack;
    ColorRef text = kBlack;
    LogFont font;

    friend bool operator==(const DialogBarLook&, const DialogBarLook&) = default;
};

// The system colours a bar falls back on, which only the caller's toolkit knows: button shadow
// (system colour 16) for the background, caption text (system colour 9) for the text.
struct DialogBarSystemColors {
    ColorRef buttonShadow = kBlack;
    ColorRef captionText = kBlack;
};

// "%d,%d,%d" of the colour's red, green and blue.
VXUTIL_API std::string FormatColorText(ColorRef color);
// The colour of "%d,%d,%d" text, read as scanf reads it: red + green * 256 + blue * 65536, so a
// number outside 0 to 255 spills into the next channel, as it always has. Empty when fewer than
// three numbers are read.
VXUTIL_API std::optional<ColorRef> ParseColorText(std::string_view text);

// A stored colour. When the entry is absent or empty the system colour is taken and written
// back, so that the entry exists from then on. A stored text that does not hold three numbers is
// not taken over: the system colour is returned and the text is left as it is, for whoever
// wrote it to correct.
VXUTIL_API ColorRef LoadDialogBarBackground(ColorRef buttonShadow);
VXUTIL_API ColorRef LoadDialogBarTextColor(ColorRef captionText);
// The stored font: the thirteen numbers of "TextLogfont" with the face name of "FontName"
// (empty when absent, which lets the toolkit choose by pitch and family). When "TextLogfont" is
// absent or does not read completely, the whole DefaultDialogBarFont(); nothing is written then,
// since the font is stored only once the user chooses one.
VXUTIL_API LogFont LoadDialogBarFont();
VXUTIL_API DialogBarLook LoadDialogBarLook(const DialogBarSystemColors& system);

// Each returns whether everything was written.
VXUTIL_API bool SaveDialogBarBackground(ColorRef color);
VXUTIL_API bool SaveDialogBarTextColor(ColorRef color);
VXUTIL_API bool SaveDialogBarFont(const LogFont& font);
VXUTIL_API bool SaveDialogBarLook(const DialogBarLook& look);

}  // namespace vx
