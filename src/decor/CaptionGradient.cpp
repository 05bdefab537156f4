#include "vxutil/decor/CaptionGradient.h"

#include <algorithm>
#include <cstdint>

namespace vx {
namespace {

bool IsEmptyArea(int cx, int cy) {
    return cx <= 0 || cy <= 0;
}

ColorRef BaseColor(const CaptionState& state, int useSystemColor, ColorRef color) {
    return useSystemColor != 0 ? state.activeCaption : color;
}

// c - c * d² / cx² for one channel, exact in integers for every width: the product c·d² passes
// 64 bits near cx = 2^31, so it is divided by cx twice, carrying the remainder of the first
// division (floor(floor(a / b) / b) == floor(a / b²)).
int FadedChannel(int c, std::int64_t d, std::int64_t cx) {
    const std::int64_t cd = c * d;
    const std::int64_t overCx = (cd / cx) * d + (cd % cx) * d / cx;
    return static_cast<int>((c - overCx / cx) & 0xFF);
}

std::vector<Band> BlackToColor(int cx, int cy, ColorRef base) {
    std::vector<Band> bands;
    const int w = std::max(cx / 64, 1);
    int x = cx;
    while (x > w) {
        x -= w;
        const std::int64_t d = cx - x;
        const ColorRef faded =
            MakeColor(FadedChannel(RedOf(base), d, cx), FadedChannel(GreenOf(base), d, cx),
                      FadedChannel(BlueOf(base), d, cx));
        bands.push_back({x, 0, w, cy, faded});
    }
    bands.push_back({0, 0, x, cy, kBlack});
    return bands;
}

bool IsLightColor(ColorRef color) {
    return (RedOf(color) > 192) + (GreenOf(color) > 192) + (BlueOf(color) > 192) >= 2;
}

// `base` with its weakest channel (red before green before blue on a tie) set to `value`.
ColorRef WithWeakestChannel(ColorRef base, int value) {
    const int r = RedOf(base), g = GreenOf(base), b = BlueOf(base);
    if (r <= g && r <= b) return MakeColor(value, g, b);
    if (g <= r && g <= b) return MakeColor(r, value, b);
    return MakeColor(r, g, value);
}

std::vector<Band> ColorToColor(int cx, int cy, ColorRef base) {
    if (IsLightColor(base)) return BlackToColor(cx, cy, base);
    std::vector<Band> bands;
    const int n = std::min(cx, 256);
    const double w = static_cast<double>(cx) / n;
    // Each band is one pixel wider than its share, so truncation never leaves a gap.
    for (int i = 0; i <= n - 2; ++i)
        bands.push_back({static_cast<int>(i * w), 0, static_cast<int>(w + 1.0), cy,
                         WithWeakestChannel(base, 255 - i)});
    const int end = static_cast<int>((n - 2) * w) + static_cast<int>(w);
    if (end < cx) bands.push_back({end, 0, cx - end, cy, base});
    return bands;
}

}  // namespace

int GetLuminosity(ColorRef color) {
    const int r = RedOf(color), g = GreenOf(color), b = BlueOf(color);
    const int max = std::max({r, g, b}), min = std::min({r, g, b});
    return ((max + min) * 240 + 255) / 510;
}

std::vector<Band> GradientOffBands(const CaptionState& state, int cx, int cy) {
    if (IsEmptyArea(cx, cy)) return {};
    return {{0, 0, cx, cy, state.activeCaption}};
}

std::vector<Band> GradientBlackToColorBands(const CaptionState& state, int cx, int cy,
                                            int useSystemColor, ColorRef color) {
    if (!state.gradientOn) return GradientOffBands(state, cx, cy);
    if (IsEmptyArea(cx, cy)) return {};
    return BlackToColor(cx, cy, BaseColor(state, useSystemColor, color));
}

std::vector<Band> GradientColorToColorBands(const CaptionState& state, int cx, int cy,
                                            int useSystemColor, ColorRef color) {
    if (!state.gradientOn) return GradientOffBands(state, cx, cy);
    if (IsEmptyArea(cx, cy)) return {};
    return ColorToColor(cx, cy, BaseColor(state, useSystemColor, color));
}

}  // namespace vx
