// A font as Windows describes it (LOGFONTA): thirteen numbers and a face name. The dialog bar
// keeps its font in this form, so that a stored font means the same on every platform; a view
// maps it onto its toolkit's font and merges back only what that toolkit carries.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "vxutil/export.h"

namespace vx {

struct VXUTIL_API LogFont {
    // Room for the face name with its terminator, as in LOGFONT (LF_FACESIZE).
    static constexpr std::size_t kFaceSize = 32;

    std::int32_t lfHeight = 0;
    std::int32_t lfWidth = 0;
    std::int32_t lfEscapement = 0;
    std::int32_t lfOrientation = 0;
    std::int32_t lfWeight = 0;
    std::uint8_t lfItalic = 0;
    std::uint8_t lfUnderline = 0;
    std::uint8_t lfStrikeOut = 0;
    std::uint8_t lfCharSet = 0;
    std::uint8_t lfOutPrecision = 0;
    std::uint8_t lfClipPrecision = 0;
    std::uint8_t lfQuality = 0;
    std::uint8_t lfPitchAndFamily = 0;
    char lfFaceName[kFaceSize] = {};

    std::string_view FaceName() const { return lfFaceName; }
    // Takes at most 31 bytes of `name`, cut where no character is split.
    void SetFaceName(std::string_view name);

    friend bool operator==(const LogFont&, const LogFont&) = default;
};

// The font of a dialog bar whose font was never stored: the dialog font of Windows, bold, at
// 8 points on a 96-dpi screen (-11 pixels), "MS Shell Dlg" (toolkits map the name to their own
// dialog font).
VXUTIL_API LogFont DefaultDialogBarFont();

// The thirteen numbers as "%ld,%ld,%ld,%ld,%ld,%d,%d,%d,%d,%d,%d,%d,%d": height, width,
// escapement, orientation, weight, then italic, underline, strike-out, character set, output
// precision, clip precision, quality, pitch and family. The face name is not part of it.
VXUTIL_API std::string FormatLogFontNumbers(const LogFont& font);

// Reads the thirteen numbers of that text into `font`, leaving its face name alone. Numbers are
// read as the C library's scanf reads that format (blanks before a number, trailing text
// ignored). All or nothing: when fewer than thirteen are read, or one does not fit its field
// (32 bits for the first five, 0 to 255 for the others), `font` is left unchanged and the result
// is false.
VXUTIL_API bool ParseLogFontNumbers(std::string_view text, LogFont& font);

}  // namespace vx
