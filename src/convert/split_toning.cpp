#include "convert/split_toning.h"

#include "convert/conversion_state.h"
#include "convert/hsl_fixed.h"
#include "convert/hue_correction.h"
#include "convert/lut_set.h"
#include "convert/number_text.h"
#include "convert/source_values.h"
#include "convert/toning_multipliers.h"

#include <cmath>

namespace {

// A slider of this stage: a key that is present counts even when its text does
// not parse, and then stands at 0, as an absent one does.
struct slider
{
    float value = 0.0f;
    bool present = false;
};

slider read_slider(const conversion_state& state, const char* key)
{
    const QString name = QLatin1String(key);
    return {read_number(state, name).value_or(0.0f), has_source_key(state, name)};
}

// The shadows only ever darken, down to three quarters. Raising the darks does
// not reach them; lowering the darks does, at most by 100.
float shadow_factor(float shadows, float darks)
{
    float dark_part = darks;
    if (darks > 0.0f) {
        dark_part = 0.0f;
    } else if (darks <= -100.0f) {
        dark_part = -100.0f;
    }
    const float v = dark_part + shadows;
    if (v > 100.0f) {
        return 1.0f;
    }
    if (v <= -100.0f) {
        return 0.75f;
    }
    if (v > 0.0f) {
        return 1.0f;
    }
    return 1.0f - (std::fabs(v) / 100.0f) * 0.25f;
}

// Between the ends of a brightening slider: down to three quarters for a negative
// value, its reciprocal up to four thirds for a positive one.
float brightness_factor(float v)
{
    const float f = 1.0f - (std::fabs(v) / 100.0f) * 0.25f;
    return v > 0.0f ? 1.0f / f : f;
}

// The midtones take the darks only when raised, at most by 100.
float midtone_factor(float darks, float lights)
{
    float dark_part = darks;
    if (darks < 0.0f) {
        dark_part = 0.0f;
    } else if (darks > 100.0f) {
        dark_part = 100.0f;
    }
    const float v = dark_part + lights;
    if (v > 100.0f) {
        return 1.0f / 0.75f;
    }
    if (v <= -100.0f) {
        return 0.75f;
    }
    if (v == 0.0f) {
        return 1.0f;
    }
    return brightness_factor(v);
}

// The highlights slider is not cut: the factor follows it beyond ±100.
float highlight_factor(float highlights)
{
    if (highlights == 0.0f) {
        return 1.0f;
    }
    return brightness_factor(highlights);
}

QString triple_text(const colour_factors& triple, float factor)
{
    return QStringLiteral("%1;%2;%3")
        .arg(six_decimal(triple[0] * factor), six_decimal(triple[1] * factor),
             six_decimal(triple[2] * factor));
}

} // namespace

void map_split_toning(conversion_state& state)
{
    const slider shadow_hue = read_slider(state, "SplitToningShadowHue");
    const slider shadow_saturation = read_slider(state, "SplitToningShadowSaturation");
    const slider highlight_hue = read_slider(state, "SplitToningHighlightHue");
    const slider highlight_saturation = read_slider(state, "SplitToningHighlightSaturation");
    const slider balance = read_slider(state, "SplitToningBalance");
    const slider shadows = read_slider(state, "ParametricShadows");
    const slider darks = read_slider(state, "ParametricDarks");
    const slider lights = read_slider(state, "ParametricLights");
    const slider highlights = read_slider(state, "ParametricHighlights");

    // The hues go through the sRGB table whatever the target space, so a preset
    // tones alike in every strategy.
    const std::int32_t corrected_shadow_hue = corrected_hue(state.luts.srgb(), shadow_hue.value);
    const std::int32_t corrected_highlight_hue =
        corrected_hue(state.luts.srgb(), highlight_hue.value);
    const float shadow_strength = toning_strength(shadow_saturation.value);
    const float highlight_strength = toning_strength(highlight_saturation.value);
    const float blend = toning_balance(balance.value);

    toning_multipliers multipliers;
    if (state.grayscale) {
        // Written whether or not the preset tones at all, untoned as hue 0 and
        // saturation 0. The light side's saturation alone is scaled, by 0.4.
        state.values[QStringLiteral("BwDarkHue")] =
            six_decimal(static_cast<float>(corrected_shadow_hue) / 1000.0f);
        state.values[QStringLiteral("BwDarkSaturation")] = six_decimal(shadow_saturation.value);
        state.values[QStringLiteral("BwLightHue")] =
            six_decimal(static_cast<float>(corrected_highlight_hue) / 1000.0f);
        state.values[QStringLiteral("BwLightSaturation")] =
            six_decimal(highlight_saturation.value * 0.4f);
    } else {
        multipliers = make_toning_multipliers(
            hsl_to_rgb_fixed(corrected_shadow_hue, 100000, 50000), shadow_strength,
            hsl_to_rgb_fixed(corrected_highlight_hue, 100000, 50000), highlight_strength, blend);
    }

    const bool shadow_present = shadow_hue.present || shadow_saturation.present;
    const bool highlight_present = highlight_hue.present || highlight_saturation.present;
    const bool parametric_present =
        shadows.present || darks.present || lights.present || highlights.present;
    if (!(shadow_present || highlight_present || balance.present || parametric_present)) {
        return;
    }
    state.values[QStringLiteral("ColorBalanceShadow")] =
        triple_text(multipliers.shadow, shadow_factor(shadows.value, darks.value));
    state.values[QStringLiteral("ColorBalanceMidtone")] =
        triple_text(multipliers.midtone, midtone_factor(darks.value, lights.value));
    state.values[QStringLiteral("ColorBalanceHighlight")] =
        triple_text(multipliers.highlight, highlight_factor(highlights.value));
}
