#include "vxutil/decor/DialogBarLook.h"

#include <array>
#include <cstdio>

#include "decor/NumberList.h"
#include "vxutil/platform/RApplication.h"

namespace vx {
namespace {

constexpr const char* kSection = "DialogBar";
constexpr const char* kBackgroundKey = "BackgroundColor";
constexpr const char* kTextColorKey = "TextColor";
constexpr const char* kFontKey = "TextLogfont";
constexpr const char* kFaceNameKey = "FontName";

// The stored text, or nothing without an application profile.
std::optional<std::string> Stored(const char* key) {
    const RApplication* app = RApplication::Current();
    if (app == nullptr) return std::nullopt;
    return app->GetProfileString(kSection, key, "").str();
}

bool Store(const char* key, const std::string& value) {
    RApplication* app = RApplication::Current();
    return app != nullptr && app->WriteProfileString(kSection, key, value.c_str());
}

ColorRef LoadColor(const char* key, ColorRef system) {
    const std::optional<std::string> stored = Stored(key);
    if (!stored) return system;
    if (stored->empty()) {
        Store(key, FormatColorText(system));
        return system;
    }
    return ParseColorText(*stored).value_or(system);
}

}  // namespace

std::string FormatColorText(ColorRef color) {
    char text[3 * 12];
    std::snprintf(text, sizeof text, "%d,%d,%d", RedOf(color), GreenOf(color), BlueOf(color));
    return text;
}

std::optional<ColorRef> ParseColorText(std::string_view text) {
    std::array<std::int32_t, 3> rgb{};
    if (decor::ScanNumbers(text, rgb) != rgb.size()) return std::nullopt;
    return static_cast<ColorRef>(rgb[0]) + static_cast<ColorRef>(rgb[1]) * 256u +
           static_cast<ColorRef>(rgb[2]) * 65536u;
}

ColorRef LoadDialogBarBackground(ColorRef buttonShadow) {
    return LoadColor(kBackgroundKey, buttonShadow);
}

ColorRef LoadDialogBarTextColor(ColorRef captionText) {
    return LoadColor(kTextColorKey, captionText);
}

LogFont LoadDialogBarFont() {
    LogFont font;
    const std::optional<std::string> numbers = Stored(kFontKey);
    if (!numbers || !ParseLogFontNumbers(*numbers, font)) return DefaultDialogBarFont();
    font.SetFaceName(Stored(kFaceNameKey).value_or(""));
    return font;
}

DialogBarLook LoadDialogBarLook(const DialogBarSystemColors& system) {
    return {LoadDialogBarBackground(system.buttonShadow),
            LoadDialogBarTextColor(system.captionText), LoadDialogBarFont()};
}

bool SaveDialogBarBackground(ColorRef color) {
    return Store(kBackgroundKey, FormatColorText(color));
}

bool SaveDialogBarTextColor(ColorRef color) {
    return Store(kTextColorKey, FormatColorText(color));
}

bool SaveDialogBarFont(const LogFont& font) {
    const bool numbers = Store(kFontKey, FormatLogFontNumbers(font));
    return Store(kFaceNameKey, std::string(font.FaceName())) && numbers;
}

bool SaveDialogBarLook(const DialogBarLook& look) {
    const bool background = SaveDialogBarBackground(look.background);
    const bool text = SaveDialogBarTextColor(look.text);
    return SaveDialogBarFont(look.font) && background && text;
}

}  // namespace vx
