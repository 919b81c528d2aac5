#include "convert/hsl_fixed.h"

#include <algorithm>

namespace {

constexpr std::int64_t full = 100000;  // 100 % in thousandths
constexpr std::int64_t sector = 60000; // 60 degrees in thousandths
constexpr std::int64_t turn = 6 * sector;

// 0..100000 to 0..255. Scaling by 256 spreads the levels evenly; only full itself
// would reach 256, so it is pinned to the top level.
int to_level(std::int64_t value)
{
    return value == full ? 255 : static_cast<int>(value * 256 / full);
}

} // namespace

rgb_levels hsl_to_rgb_fixed(std::int32_t hue, std::int32_t saturation, std::int32_t lightness)
{
    const std::int64_t l = std::clamp<std::int64_t>(lightness, 0, full);
    const std::int64_t s = std::clamp<std::int64_t>(saturation, 0, full);

    // The saturation may use only the room that the lightness leaves to black and
    // to white, so hi and lo stay within 0..full.
    const std::int64_t span = 2 * (l > full / 2 ? l - full / 2 : full / 2 - l);
    const std::int64_t half = (s + span > full ? full - span : s) >> 1;
    const std::int64_t hi = l + half;
    const std::int64_t lo = l - half;

    std::int64_t h = hue % turn;
    if (h < 0) {
        h += turn;
    }
    const std::int64_t k = h / sector;
    const std::int64_t f = h % sector;
    // The third channel rises from lo to hi in even sectors and falls in odd ones.
    const std::int64_t mid =
        k % 2 == 0 ? (hi * f + lo * (sector - f)) / sector : (lo * f + hi * (sector - f)) / sector;

    const int hi_level = to_level(hi);
    const int mid_level = to_level(mid);
    const int lo_level = to_level(lo);
    // At a sector boundary mid equals its neighbour, so whether a boundary hue
    // counts to the sector before or after gives the same colour.
    switch (k) {
    case 0:
        return {hi_level, mid_level, lo_level};
    case 1:
        return {mid_level, hi_level, lo_level};
    case 2:
        return {lo_level, hi_level, mid_level};
    case 3:
        return {lo_level, mid_level, hi_level};
    case 4:
        return {mid_level, lo_level, hi_level};
    default:
        return {hi_level, lo_level, mid_level};
    }
}

std::int32_t rgb_to_hue_fixed(const rgb_levels& colour)
{
    const std::int64_t r = colour.red;
    const std::int64_t g = colour.green;
    const std::int64_t b = colour.blue;
    if (r == g && g == b) {
        return 0;
    }
    const std::int64_t low = std::min({r, g, b});
    std::int64_t hue = 0;
    if (r >= g && r >= b) {
        // With blue at or above green the hue lies between magenta and red, so it is
        // counted back from a full turn.
        hue = sector * (g - b) / (r - low) + (g > b ? 0 : turn);
    } else if (g >= b) {
        hue = sector * (b - r) / (g - low) + 2 * sector;
    } else {
        hue = sector * (r - g) / (b - low) + 4 * sector;
    }
    // Each quotient is at most one sector in size, so the hue lies in 0..turn, and
    // a full turn is red again.
    return hue > turn - 1 ? 0 : static_cast<std::int32_t>(hue);
}
