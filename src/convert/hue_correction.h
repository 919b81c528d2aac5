#pragma once

#include "convert/lut_3d.h"

#include <cstdint>

// A split-toning hue is picked on the source's ProPhoto colour wheel. Carrying a
// colour of that hue through a colour table tells which hue the same colour has in
// the target space.

// Degrees to whole thousandths of a degree, in single precision and truncated
// towards zero. What lies beyond the 32-bit range is pinned to its nearer end, and
// a NaN counts as 0, so no input reaches an undefined conversion.
std::int32_t hue_thousandths(float degrees);

// The hue, in thousandths of a degree, that the half-saturated colour of `degrees`
// takes on through `table`.
std::int32_t corrected_hue(const lut_3d& table, float degrees);
