#pragma once

#include "convert/hsl_fixed.h"

#include <array>

// A colour preset's split toning as the target's colour balance: red, green and
// blue factors for its shadows, midtones and highlights, all 1 when untoned.

// Red, green, blue.
using colour_factors = std::array<float, 3>;

struct toning_multipliers
{
    colour_factors shadow{1.0f, 1.0f, 1.0f};
    colour_factors midtone{1.0f, 1.0f, 1.0f};
    colour_factors highlight{1.0f, 1.0f, 1.0f};
};

// A split-toning saturation as a strength from 0 to 1; from 50 on the tint is full.
float toning_strength(float saturation);

// The source balance, cut to -100..100, as the blend weight of the multipliers.
// The neutral 0 lands on -25, and everything up to -68 on -100.
float toning_balance(float balance);

// `shadow_colour` and `highlight_colour` are the pure colours of the two hues.
// The highlight colour works on the target's midtones at full strength and on its
// highlights at a third; a negative balance blends the shadow tint into the
// midtones, a positive one the midtone tint into the shadows.
toning_multipliers make_toning_multipliers(const rgb_levels& shadow_colour, float shadow_strength,
                                           const rgb_levels& highlight_colour,
                                           float highlight_strength, float balance);
