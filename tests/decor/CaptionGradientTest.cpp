#include "vxutil/decor/CaptionGradient.h"

#include <algorithm>
#include <climits>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace {

using vx::Band;
using vx::ColorRef;
using vx::MakeColor;

constexpr ColorRef kUnpainted = 0xFF000000;  // no COLORREF has a high byte
constexpr int kHeight = 18;
constexpr ColorRef kNavy = MakeColor(0, 0, 128);
constexpr vx::CaptionState kOn{true, kNavy};

// The caption's pixel row after painting the bands in order, each over the full height.
std::vector<ColorRef> Paint(const std::vector<Band>& bands, int cx) {
    std::vector<ColorRef> row(static_cast<std::size_t>(cx), kUnpainted);
    for (const Band& band : bands) {
        EXPECT_TRUE(band.y == 0 && band.h == kHeight);
        std::fill(row.begin() + std::max(band.x, 0), row.begin() + std::min(band.x + band.w, cx),
                  band.color);
    }
    return row;
}

TEST(CaptionGradientTest, LuminosityIsTheRoundedMeanOfStrongestAndWeakestChannel) {
    EXPECT_EQ(vx::GetLuminosity(MakeColor(255, 255, 255)), 240);
    EXPECT_EQ(vx::GetLuminosity(MakeColor(0, 0, 0)), 0);
    EXPECT_EQ(vx::GetLuminosity(MakeColor(255, 0, 0)), 120);
    EXPECT_EQ(vx::GetLuminosity(MakeColor(10, 200, 40)), 99);  // 98.8
}

// Each row paints a gradient and gives its number of bands and its first pixel; the last is
// the base colour.
TEST(CaptionGradientTest, GradientsCoverTheCaptionAndEndOnTheBaseColor) {
    const auto black = &vx::GradientBlackToColorBands, colour = &vx::GradientColorToColorBands;
    const ColorRef blue = MakeColor(10, 120, 255);
    const std::tuple<decltype(black), int, ColorRef, std::size_t, ColorRef> rows[] = {
        {black, 100, blue, 100, vx::kBlack},  // below 128 pixels, one band per pixel
        {black, 4000, MakeColor(255, 0, 0), 65, vx::kBlack},  // 64 bands, and a black rest
        // Colour to colour ramps the weakest channel, red before green before blue on a tie, in
        // 255 steps, then a base strip.
        {colour, 300, kNavy, 256, MakeColor(255, 0, 128)},
        {colour, 300, MakeColor(200, 100, 50), 256, MakeColor(200, 100, 255)},
        {colour, 10, kNavy, 10, MakeColor(255, 0, 128)},
        {colour, 1, kNavy, 1, kNavy}};
    for (const auto& [gradient, cx, base, count, firstPixel] : rows) {
        SCOPED_TRACE(testing::Message() << cx << " px, base " << std::hex << base);
        const std::vector<Band> bands = gradient(kOn, cx, kHeight, 0, base);
        EXPECT_EQ(bands.size(), count);
        const std::vector<ColorRef> row = Paint(bands, cx);
        EXPECT_EQ(row.front(), firstPixel);
        EXPECT_EQ(row.back(), base);
        EXPECT_EQ(std::count(row.begin(), row.end(), kUnpainted), 0);
    }
    const std::vector<Band> narrow = black(kOn, 100, kHeight, 0, blue);
    EXPECT_TRUE(std::all_of(narrow.begin(), narrow.end(), [](const Band& b) { return b.w == 1; }));
    EXPECT_EQ(Paint(narrow, 100)[50], MakeColor(8, 90, 192));  // c - c/4 at half the width
    // The ramp ends at 255 - 254 whatever the base's own value of the channel.
    EXPECT_EQ(Paint(colour(kOn, 300, kHeight, 0, MakeColor(100, 150, 200)), 300)[297],
              MakeColor(1, 150, 200));
    // c·d² passes 32 bits from about 2900 pixels on and 64 bits near INT_MAX: the fade must
    // still darken evenly from right to left.
    for (const auto& bands :
         {black(kOn, 4000, kHeight, 0, 0xFF), black(kOn, INT_MAX, kHeight, 1, 0)})
        for (std::size_t i = 1; i < bands.size(); ++i)
            EXPECT_LE(bands[i].color, bands[i - 1].color) << i;
    // Two channels above 192 make a light colour, which gets the black-to-colour fade.
    for (const auto& [color, light] :
         {std::pair{MakeColor(193, 0, 255), true}, {MakeColor(192, 192, 0), false}})
        EXPECT_EQ(colour(kOn, 500, kHeight, 0, color) == black(kOn, 500, kHeight, 0, color), light);
}

TEST(CaptionGradientTest, SwitchSystemColorAndEmptyAreasAreSharedByEveryGradient) {
    const ColorRef own = MakeColor(128, 0, 0);
    const vx::CaptionState off{false, kNavy};
    for (const auto gradient : {&vx::GradientBlackToColorBands, &vx::GradientColorToColorBands}) {
        // Switched off: one band of the active-caption colour, whatever is asked for.
        EXPECT_EQ(gradient(off, 120, kHeight, 0, own),
                  (std::vector<Band>{{0, 0, 120, kHeight, kNavy}}));
        EXPECT_EQ(gradient(kOn, 120, kHeight, 1, own), gradient(kOn, 120, kHeight, 0, kNavy));
        for (const auto& [cx, cy] : {std::pair{0, kHeight}, {-5, kHeight}, {120, 0}})
            EXPECT_TRUE(gradient(kOn, cx, cy, 0, own).empty() &&
                        gradient(off, cx, cy, 0, own).empty())
                << cx << " x " << cy;
    }
}

}  // namespace
