#include "vxutil/decor/LogFont.h"

#include <array>
#include <cstdio>
#include <cstring>

#include "decor/NumberList.h"
#include "gnrt/MultiByte.h"

namespace vx {
namespace {

constexpr std::size_t kNumberCount = 13;
constexpr std::size_t kLongCount = 5;  // height, width, escapement, orientation, weight

// Values of Windows' wingdi.h, for the default font.
constexpr std::int32_t kBoldWeight = 700;          // FW_BOLD
constexpr std::uint8_t kDefaultCharSet = 1;        // DEFAULT_CHARSET
constexpr std::uint8_t kSwissDefaultPitch = 0x20;  // FF_SWISS | DEFAULT_PITCH

}  // namespace

void LogFont::SetFaceName(std::string_view name) {
    const std::size_t length = mb::CutLength(name.data(), name.size(), kFaceSize - 1);
    std::memcpy(lfFaceName, name.data(), length);
    std::memset(lfFaceName + length, 0, kFaceSize - length);
}

LogFont DefaultDialogBarFont() {
    LogFont font;
    font.lfHeight = -11;
    font.lfWeight = kBoldWeight;
    font.lfCharSet = kDefaultCharSet;
    font.lfPitchAndFamily = kSwissDefaultPitch;
    font.SetFaceName("MS Shell Dlg");
    return font;
}

std::string FormatLogFontNumbers(const LogFont& font) {
    char text[kNumberCount * 12 + 1];
    std::snprintf(text, sizeof text, "%ld,%ld,%ld,%ld,%ld,%d,%d,%d,%d,%d,%d,%d,%d",
                  static_cast<long>(font.lfHeight), static_cast<long>(font.lfWidth),
                  static_cast<long>(font.lfEscapement), static_cast<long>(font.lfOrientation),
                  static_cast<long>(font.lfWeight), font.lfItalic, font.lfUnderline,
                  font.lfStrikeOut, font.lfCharSet, font.lfOutPrecision, font.lfClipPrecision,
                  font.lfQuality, font.lfPitchAndFamily);
    return text;
}

bool ParseLogFontNumbers(std::string_view text, LogFont& font) {
    std::array<std::int32_t, kNumberCount> n{};
    if (decor::ScanNumbers(text, n) != kNumberCount) return false;
    for (std::size_t i = kLongCount; i < kNumberCount; ++i)
        if (n[i] < 0 || n[i] > 255) return false;
    const auto byte = [&n](std::size_t i) { return static_cast<std::uint8_t>(n[i]); };
    font.lfHeight = n[0];
    font.lfWidth = n[1];
    font.lfEscapement = n[2];
    font.lfOrientation = n[3];
    font.lfWeight = n[4];
    font.lfItalic = byte(5);
    font.lfUnderline = byte(6);
    font.lfStrikeOut = byte(7);
    font.lfCharSet = byte(8);
    font.lfOutPrecision = byte(9);
    font.lfClipPrecision = byte(10);
    font.lfQuality = byte(11);
    font.lfPitchAndFamily = byte(12);
    return true;
}

}  // namespace vx
