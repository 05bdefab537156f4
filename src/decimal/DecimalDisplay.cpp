#include "vxutil/decimal/DecimalDisplay.h"

#include "vxutil/decimal/TKDecimal.h"
#include "vxutil/gnrt/CGNDecimal.h"

bool FormatDecimalForDisplay(std::string_view text, int precision, bool grouping,
                             std::string& display) {
    std::string shown(text);
    if (precision != -1) {
        std::size_t point = shown.rfind('.');
        if (point == std::string::npos) {
            point = shown.size();
            shown += '.';
        }
        const std::size_t places = shown.size() - point - 1;
        const std::size_t wanted = precision < 0 ? 0 : static_cast<std::size_t>(precision);
        if (places < wanted) {
            shown.append(wanted - places, '0');
        } else if (places > wanted) {
            TKDecimal value;
            if (TKDecimal::FromText(shown, value) == TKStatus::kOverflow || value.IsBad())
                return false;
            shown = value.Round(precision).asString();
        }
    }
    CGNDecimal regional(shown.c_str());
    if (!regional.ConvertToRegionalLocale(grouping)) return false;
    display = regional.GetDisplayBuffer();
    return true;
}
