// Colours as the Windows GDI keeps them: a 32-bit value 0x00BBGGRR with red in the low byte.
// Toolkits that hold colours the other way round (Qt's 0xAARRGGBB) convert channel by channel,
// never by a cast.
#pragma once

#include <cstdint>

namespace vx {

using ColorRef = std::uint32_t;

constexpr ColorRef MakeColor(int red, int green, int blue) {
    return static_cast<ColorRef>(red & 0xFF) | static_cast<ColorRef>(green & 0xFF) << 8 |
           static_cast<ColorRef>(blue & 0xFF) << 16;
}
constexpr int RedOf(ColorRef color) {
    return static_cast<int>(color & 0xFF);
}
constexpr int GreenOf(ColorRef color) {
    return static_cast<int>(color >> 8 & 0xFF);
}
constexpr int BlueOf(ColorRef color) {
    return static_cast<int>(color >> 16 & 0xFF);
}

constexpr ColorRef kBlack = MakeColor(0, 0, 0);

}  // namespace vx
