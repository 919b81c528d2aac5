#include "convert/toning_multipliers.h"

#include "convert/map_to_points.h"

#include <QPointF>
#include <QVector>

#include <cmath>

namespace {

// How far a level of 0..255 lies from white, times the largest pull of 0.3 and
// the strength.
float pull(int level, float strength)
{
    return ((255.0f - static_cast<float>(level)) / 255.0f) * 0.3f * strength;
}

} // namespace

float toning_strength(float saturation)
{
    float cut = saturation;
    if (saturation > 50.0f) {
        cut = 50.0f;
    } else if (saturation < 0.0f) {
        cut = 0.0f;
    }
    return cut / 50.0f;
}

float toning_balance(float balance)
{
    // Flat below -68 and offset by -25 at the neutral 0, so that an untouched
    // balance already leans towards the shadows. The cut keeps every value on the
    // list, none of whose points is the unset (0, 0).
    static const QVector<QPointF> points{{-100, -100}, {-68, -100}, {-23, -50}, {0, -25},
                                         {40, 0},      {77, 25},    {100, 75}};
    float cut = balance;
    if (balance > 100.0f) {
        cut = 100.0f;
    } else if (balance <= -100.0f) {
        cut = -100.0f;
    }
    return map_to_points(cut, points);
}

toning_multipliers make_toning_multipliers(const rgb_levels& shadow_colour, float shadow_strength,
                                           const rgb_levels& highlight_colour,
                                           float highlight_strength, float balance)
{
    const std::array<int, 3> shadow_levels{shadow_colour.red, shadow_colour.green,
                                           shadow_colour.blue};
    const std::array<int, 3> highlight_levels{highlight_colour.red, highlight_colour.green,
                                              highlight_colour.blue};
    const float weight = std::fabs(balance) / 100.0f;
    toning_multipliers result;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        float shadow = 1.0f - pull(shadow_levels[channel], shadow_strength);
        const float d = pull(highlight_levels[channel], highlight_strength);
        float midtone = 1.0f - d;
        const float highlight = 1.0f - d / 3.0f;
        // The highlight triple stays out of the blend.
        if (balance < 0.0f) {
            midtone = midtone * (1.0f - weight) + shadow * weight;
        } else if (balance > 0.0f) {
            shadow = shadow * (1.0f - weight) + midtone * weight;
        }
        result.shadow[channel] = shadow;
        result.midtone[channel] = midtone;
        result.highlight[channel] = highlight;
    }
    return result;
}
