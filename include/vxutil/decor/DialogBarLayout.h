// Where a dialog bar keeps its text control: inset by 2 pixels left and right and 4 above and
// below. A bar too small for that (narrower than 5 or lower than 9) leaves the control where it
// is.
#pragma once

#include <optional>

namespace vx {

struct BarRect {
    int x = 0;
    int y = 0;
    int w = 0;
    int h = 0;

    friend bool operator==(const BarRect&, const BarRect&) = default;
};

constexpr std::optional<BarRect> DialogBarTextRect(int width, int height) {
    if (width < 5 || height < 9) return std::nullopt;
    return BarRect{2, 4, width - 4, height - 8};
}

}  // namespace vx
