#pragma once

#include <cstdint>

// Hue, saturation and lightness against 8-bit levels in integer arithmetic, for the
// split-toning colours. Hues are in thousandths of a degree; saturation and
// lightness in thousandths of a percent, so 100000 is full.

// Levels of one colour, each a whole number from 0 to 255.
struct rgb_levels
{
    int red = 0;
    int green = 0;
    int blue = 0;
};

// Any hue is accepted and brought into one turn first; saturation and lightness
// are cut to 0..100000. The products reach 6e9, so the arithmetic is 64-bit.
rgb_levels hsl_to_rgb_fixed(std::int32_t hue, std::int32_t saturation, std::int32_t lightness);

// The hue of a colour, 0 to 359999, each division truncating towards zero. A grey
// has hue 0.
std::int32_t rgb_to_hue_fixed(const rgb_levels& colour);
