#include "decor/qt/LogFontQt.h"

#include "vxutil/runtime/qt/QtText.h"

namespace vx {
namespace {

// The family bits of lfPitchAndFamily.
constexpr int kFamilyRoman = 0x10;
constexpr int kFamilySwiss = 0x20;
constexpr int kFamilyModern = 0x30;
constexpr int kFamilyScript = 0x40;
constexpr int kFamilyDecorative = 0x50;
constexpr int kFixedPitch = 1;
constexpr int kQualityNonAntialiased = 3;
constexpr int kQualityAntialiased = 4;

QFont::StyleHint HintOf(int pitchAndFamily) {
    switch (pitchAndFamily & 0xF0) {
        case kFamilyRoman:
            return QFont::Serif;
        case kFamilySwiss:
            return QFont::SansSerif;
        case kFamilyModern:
            return QFont::TypeWriter;
        case kFamilyScript:
            return QFont::Cursive;
        case kFamilyDecorative:
            return QFont::Decorative;
        default:
            return QFont::AnyStyle;
    }
}

}  // namespace

QFont ToQFont(const LogFont& font, const QFont& base) {
    QFont result = base;
    if (!font.FaceName().empty()) result.setFamily(ToQString(CGNString(font.FaceName())));
    // A negative height is the character height in pixels; a positive one the cell height,
    // which Qt has no setter for: the pixel size is close enough for the bar's one line.
    if (font.lfHeight != 0) result.setPixelSize(font.lfHeight < 0 ? -font.lfHeight : font.lfHeight);
    if (font.lfWeight > 0) result.setWeight(QFont::Weight(qBound(1, int(font.lfWeight), 1000)));
    result.setItalic(font.lfItalic != 0);
    result.setUnderline(font.lfUnderline != 0);
    result.setStrikeOut(font.lfStrikeOut != 0);
    result.setFixedPitch((font.lfPitchAndFamily & 0x3) == kFixedPitch);
    result.setStyleHint(HintOf(font.lfPitchAndFamily));
    if (font.lfQuality == kQualityNonAntialiased) result.setStyleStrategy(QFont::NoAntialias);
    if (font.lfQuality >= kQualityAntialiased) result.setStyleStrategy(QFont::PreferAntialias);
    return result;
}

LogFont MergeQFont(const LogFont& stored, const QFont& chosen, const QFont& base) {
    const QFont shown = ToQFont(stored, base);
    LogFont merged = stored;
    if (chosen.family() != shown.family()) merged.SetFaceName(FromQString(chosen.family()).str());
    if (chosen.pixelSize() > 0 && chosen.pixelSize() != shown.pixelSize())
        merged.lfHeight = -chosen.pixelSize();
    if (chosen.pixelSize() <= 0 && chosen.pointSizeF() != shown.pointSizeF())
        merged.lfHeight = -qRound(chosen.pointSizeF() * 96.0 / 72.0);
    if (chosen.weight() != shown.weight()) merged.lfWeight = chosen.weight();
    merged.lfItalic = chosen.italic() ? 1 : 0;
    merged.lfUnderline = chosen.underline() ? 1 : 0;
    merged.lfStrikeOut = chosen.strikeOut() ? 1 : 0;
    return merged;
}

}  // namespace vx
