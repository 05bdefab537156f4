// The caption painter's gradients as data: the rectangles to fill, each with one colour, in
// paint order. Bands may overlap and a later band overwrites an earlier one, so a view paints
// them in order with a plain copy (no blending). The area is always the rectangle from (0, 0)
// with width `cx` and height `cy`; an empty area (cx or cy <= 0) gives no bands at all.
#pragma once

#include <vector>

#include "vxutil/decor/ColorRef.h"
#include "vxutil/export.h"

namespace vx {

struct Band {
    int x = 0;
    int y = 0;
    int w = 0;
    int h = 0;
    ColorRef color = kBlack;

    friend bool operator==(const Band&, const Band&) = default;
};

// What the painter knows besides the area: its gradient switch (off after construction) and
// the system's active-caption colour (system colour 2), which the caller reads from its toolkit.
struct CaptionState {
    bool gradientOn = false;
    ColorRef activeCaption = kBlack;
};

// Luminosity of `color` on the scale 0 to 240: the rounded mean of its strongest and weakest
// channel.
VXUTIL_API int GetLuminosity(ColorRef color);

// The caption in the active-caption colour, whatever the window's state: the look with the
// gradient switched off.
VXUTIL_API std::vector<Band> GradientOffBands(const CaptionState& state, int cx, int cy);

// A quadratic fade from black at the left to the base colour at the right. The base colour is
// the active-caption colour when `useSystemColor` is non-zero, else `color`. With the gradient
// switched off this is GradientOffBands.
VXUTIL_API std::vector<Band> GradientBlackToColorBands(const CaptionState& state, int cx, int cy,
                                                       int useSystemColor, ColorRef color);

// A ramp of the base colour's weakest channel, in at most 256 steps from a pale tint at the left
// towards the base colour at the right: the other two channels stay those of the base colour,
// the ramped one falls by one per step from 255 whatever its own value (so a wide caption may
// pass below it), and only the last strip has the base colour itself. That stepping is the look
// users know and is kept. A light base colour (two channels above 192) would ramp to almost
// nothing and gets the black-to-colour fade instead. With the gradient switched off this is
// GradientOffBands.
VXUTIL_API std::vector<Band> GradientColorToColorBands(const CaptionState& state, int cx, int cy,
                                                       int useSystemColor, ColorRef color);

}  // namespace vx
