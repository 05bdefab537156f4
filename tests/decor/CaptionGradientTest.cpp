#include "vxutil/decor/CaptionGradient.h"

#include <algorithm>
#include <climits>
#include <functional>
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
    for (const auto& [color, luminosity] : {std::pair{MakeColor(255, 255, 255), 240},
                                            {MakeColor(0, 0, 0), 0},
                                            {MakeColor(255, 0, 0), 120},
                                            {MakeColor(10, 200, 40), 99},
                                            {MakeColor(2, 0, 0), 1}})
        EXPECT_EQ(vx::GetLuminosity(color), luminosity) << std::hex << color;
}

TEST(CaptionGradientTest, BlackToColorFadesQuadraticallyFromBlack) {
    // Below 128 pixels every band is one pixel wide, from black to the base colour itself.
    const ColorRef base = MakeColor(10, 120, 255);
    const std::vector<Band> narrow = vx::GradientBlackToColorBands(kOn, 100, kHeight, 0, base);
    EXPECT_EQ(narrow.size(), 100u);
    EXPECT_TRUE(std::all_of(narrow.begin(), narrow.end(), [](const Band& b) { return b.w == 1; }));
    const std::vector<ColorRef> row = Paint(narrow, 100);
    EXPECT_EQ(row.front(), vx::kBlack);
    EXPECT_EQ(row[50], MakeColor(8, 90, 192));  // c - c/4 at half the width
    EXPECT_EQ(row.back(), base);

    // From about 2900 pixels on c·d² passes 32 bits; the fade must go on evenly.
    const std::vector<Band> wide =
        vx::GradientBlackToColorBands(kOn, 4000, kHeight, 0, MakeColor(255, 0, 0));
    ASSERT_EQ(wide.size(), 65u);  // 64 bands of 62 pixels, right to left, and a black rest
    EXPECT_EQ(wide[59], (Band{280, 0, 62, kHeight, MakeColor(35, 0, 0)}));  // d = 3720
    EXPECT_EQ(wide[63], (Band{32, 0, 62, kHeight, MakeColor(5, 0, 0)}));
    EXPECT_EQ(wide[64], (Band{0, 0, 32, kHeight, vx::kBlack}));
    // Even at the widest caption there can be, no band is lighter than the one to its right.
    for (const auto& bands : {wide, vx::GradientBlackToColorBands(kOn, INT_MAX, kHeight, 1, 0)})
        for (std::size_t i = 1; i < bands.size(); ++i)
            EXPECT_LE(bands[i].color, bands[i - 1].color) << i;
}

TEST(CaptionGradientTest, ColorToColorRampsTheWeakestChannelAndEndsOnTheBase) {
    const struct {
        int cx;
        ColorRef base, firstPixel;
        std::size_t bands;
    } rows[] = {
        {300, kNavy, MakeColor(255, 0, 128), 256},  // 255 ramp steps, then the base strip
        {300, MakeColor(200, 100, 50), MakeColor(200, 100, 255), 256},
        {300, MakeColor(50, 50, 100), MakeColor(255, 50, 100), 256},  // a tie ramps red,
        {300, MakeColor(100, 50, 50), MakeColor(100, 255, 50), 256},  // then green
        {10, kNavy, MakeColor(255, 0, 128), 10},
        {1, kNavy, kNavy, 1},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(testing::Message() << r.cx << " px, base " << std::hex << r.base);
        const std::vector<Band> bands =
            vx::GradientColorToColorBands(kOn, r.cx, kHeight, 0, r.base);
        EXPECT_EQ(bands.size(), r.bands);
        const std::vector<ColorRef> row = Paint(bands, r.cx);
        EXPECT_EQ(row.front(), r.firstPixel);
        EXPECT_EQ(row.back(), r.base);
        EXPECT_EQ(std::count(row.begin(), row.end(), kUnpainted), 0);
    }
    // The ramp ends at 255 - 254 whatever the base's own value of the channel.
    const ColorRef base = MakeColor(100, 150, 200);
    EXPECT_EQ(Paint(vx::GradientColorToColorBands(kOn, 300, kHeight, 0, base), 300)[297],
              MakeColor(1, 150, 200));

    // Two channels above 192 make a light colour, which gets the black-to-colour fade.
    for (const ColorRef light : {MakeColor(200, 200, 0), MakeColor(193, 0, 255)})
        EXPECT_EQ(vx::GradientColorToColorBands(kOn, 500, kHeight, 0, light),
                  vx::GradientBlackToColorBands(kOn, 500, kHeight, 0, light));
    EXPECT_EQ(vx::GradientColorToColorBands(kOn, 500, kHeight, 0, MakeColor(192, 192, 0)).size(),
              256u);
}

TEST(CaptionGradientTest, SwitchSystemColorAndEmptyAreasAreSharedByEveryGradient) {
    using Gradient =
        std::function<std::vector<Band>(const vx::CaptionState&, int, int, int, ColorRef)>;
    const Gradient gradients[] = {vx::GradientBlackToColorBands, vx::GradientColorToColorBands,
                                  [](const vx::CaptionState& state, int cx, int cy, int, ColorRef) {
                                      return vx::GradientOffBands(state, cx, cy);
                                  }};
    const ColorRef own = MakeColor(128, 0, 0);
    const vx::CaptionState off{false, kNavy};
    for (const Gradient& gradient : gradients) {
        // Switched off: one band of the active-caption colour, whatever is asked for.
        const std::vector<Band> flat{{0, 0, 120, kHeight, kNavy}};
        EXPECT_EQ(gradient(off, 120, kHeight, 0, own), flat);
        EXPECT_EQ(gradient(off, 120, kHeight, 1, own), flat);
        EXPECT_EQ(gradient(kOn, 120, kHeight, 1, own), gradient(kOn, 120, kHeight, 0, kNavy));
        for (const auto& [cx, cy] : {std::pair{0, kHeight}, {-5, kHeight}, {120, 0}}) {
            EXPECT_TRUE(gradient(kOn, cx, cy, 0, own).empty()) << cx << " x " << cy;
            EXPECT_TRUE(gradient(off, cx, cy, 0, own).empty()) << cx << " x " << cy;
        }
    }
}

}  // namespace
