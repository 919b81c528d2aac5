#include "convert/detail_effects.h"

#include "convert/conversion_state.h"
#include "convert/number_text.h"
#include "convert/range_mapping.h"
#include "convert/source_values.h"

#include <optional>

namespace {

bool has(const conversion_state& state, const char* key)
{
    return has_source_key(state, QLatin1String(key));
}

// The style's grain types by size. Type 3 is skipped on purpose: no source size
// maps to it.
int grain_type(float size)
{
    if (size <= 10.0f) {
        return 0;
    }
    if (size <= 22.0f) {
        return 1;
    }
    if (size <= 30.0f) {
        return 2;
    }
    if (size <= 45.0f) {
        return 4;
    }
    return 5;
}

} // namespace

void map_detail(conversion_state& state)
{
    static const char* const copies[][2] = {
        {"Sharpness", "UsmAmount"},
        {"SharpenRadius", "UsmRadius"},
        {"LuminanceSmoothing", "NrAmount"},
        {"ColorNoiseReduction", "CnrAmount"},
        {"LuminanceNoiseReductionDetail", "NoiseDetailsAmount"},
    };
    for (const auto& copy : copies) {
        copy_as_fixed(state, QLatin1String(copy[0]), QLatin1String(copy[1]));
    }
}

void map_vignette(conversion_state& state)
{
    if (!has(state, "PostCropVignetteAmount") || !has(state, "PostCropVignetteRoundness")) {
        return;
    }
    const std::optional<float> amount_value =
        read_number(state, QStringLiteral("PostCropVignetteAmount"));
    const std::optional<float> roundness_value =
        read_number(state, QStringLiteral("PostCropVignetteRoundness"));
    if (!amount_value || !roundness_value) {
        return;
    }
    // -60..60 of the source is the style's whole range of -4..4.
    const float amount = two_sided_scale(*amount_value, 60.0f, 4.0f, 4.0f);
    const float r = *roundness_value;
    const float roundness = r > 100.0f ? 100.0f : (r <= -100.0f ? -100.0f : r);
    // The style knows two vignette shapes; a roundness of 30 and more is shape "0".
    const QString shape = roundness >= 30.0f ? QStringLiteral("0") : QStringLiteral("1");
    state.values[QStringLiteral("Vignetting")] =
        QStringLiteral("%1|1|0|%2").arg(six_decimal(amount), shape);
}

void map_grain(conversion_state& state)
{
    if (!has(state, "GrainAmount") || !has(state, "GrainSize")) {
        return;
    }
    const std::optional<float> size = read_number(state, QStringLiteral("GrainSize"));
    if (!size) {
        return;
    }
    // An unreadable amount leaves out FilmGrainAmount alone; the grain's kind is
    // still written.
    copy_as_fixed(state, QStringLiteral("GrainAmount"), QStringLiteral("FilmGrainAmount"));
    state.values[QStringLiteral("FilmGrainDensity")] = QStringLiteral("0");
    state.values[QStringLiteral("FilmGrainGranularity")] = QStringLiteral("50");
    state.values[QStringLiteral("FilmGrainType")] = QString::number(grain_type(*size));
}

void map_dehaze(conversion_state& state)
{
    if (!has(state, "Dehaze")) {
        return;
    }
    // The two signs have slopes of their own (0.5 upward, 2 downward), and only a
    // negative dehaze names a colour. Presets converted before rely on both.
    const float value = number_or(state, QStringLiteral("Dehaze"), QStringLiteral("0"));
    if (value >= 0.0f) {
        const float amount = value * 0.5f;
        const float cut = amount > 100.0f ? 100.0f : (amount <= 0.0f ? 0.0f : amount);
        state.values[QStringLiteral("DehazeAmount")] = six_decimal(cut);
        return;
    }
    const float amount = value * 2.0f;
    const float cut = amount > 0.0f ? 0.0f : (amount <= -100.0f ? -100.0f : amount);
    state.values[QStringLiteral("DehazeAmount")] = six_decimal(cut);
    state.values[QStringLiteral("DehazeColor")] =
        QStringLiteral("0.211999446153641;0.391483038663864;0.239516332745552");
}
