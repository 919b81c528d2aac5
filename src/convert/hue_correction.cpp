#include "convert/hue_correction.h"

#include "convert/hsl_fixed.h"

#include <cmath>
#include <limits>

namespace {

// A table channel back to a level: times 256, truncated, and only the low eight
// bits kept, so a value of exactly 1.0 (which the identity table holds) wraps to 0
// rather than topping out at 255. Styles made so far carry that wrap.
int table_level(float channel)
{
    const float scaled = channel * 256.0f;
    if (!(scaled >= 0.0f)) {
        return 0; // below 0, and NaN
    }
    // From 2^32 on a float is a multiple of 512, so its low eight bits are 0; the
    // test also keeps the conversion below defined.
    if (scaled >= 4294967296.0f) {
        return 0;
    }
    return static_cast<int>(static_cast<std::uint32_t>(scaled) & 0xFFu);
}

} // namespace

std::int32_t hue_thousandths(float degrees)
{
    const float thousandths = degrees * 1000.0f;
    if (std::isnan(thousandths)) {
        return 0;
    }
    // -2^31 and 2^31 are exact floats; the largest float below 2^31 still fits.
    if (thousandths >= 2147483648.0f) {
        return std::numeric_limits<std::int32_t>::max();
    }
    if (thousandths < -2147483648.0f) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(thousandths);
}

std::int32_t corrected_hue(const lut_3d& table, float degrees)
{
    // A half-saturated probe stays away from the edge of the target gamut, where
    // clipping would bend its hue.
    const rgb_levels probe = hsl_to_rgb_fixed(hue_thousandths(degrees), 50000, 50000);
    const lut_entry mapped = lookup(table, probe.red, probe.green, probe.blue);
    return rgb_to_hue_fixed(
        {table_level(mapped[2]), table_level(mapped[1]), table_level(mapped[0])});
}
