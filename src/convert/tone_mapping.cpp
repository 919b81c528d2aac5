#include "convert/tone_mapping.h"

#include "convert/conversion_state.h"
#include "convert/number_text.h"
#include "convert/range_mapping.h"
#include "convert/source_values.h"

#include <cmath>
#include <cstddef>
#include <optional>

namespace {

// Level forms of the style: four members each, of which only the last is ever
// computed.
QString shadow_level(float level)
{
    return QStringLiteral("0.0000;0.0000;0.0000;%1").arg(six_decimal(level));
}
QString highlight_level(float level)
{
    return QStringLiteral("1;1;1;%1").arg(six_decimal(level));
}
QString midtone_level(float level)
{
    return QStringLiteral("0;0;0;%1").arg(six_decimal(level));
}
const QString neutral_shadow = QStringLiteral("0.0000;0.0000;0.0000;0.0000");
const QString neutral_highlight = QStringLiteral("1;1;1;1");

// The shadow level at the full end of both the old Shadows and a negative
// Blacks2012.
constexpr float full_shadow_level = 0.189092f;

void store_shadow(conversion_state& state, float level)
{
    state.values[QStringLiteral("Shadow")] = shadow_level(level);
    state.values[QStringLiteral("TargetShadow")] = neutral_shadow;
}

struct range_mapping_row
{
    const char* source;
    const char* target;
    float in_min;
    float in_max;
    float out_min;
    float out_max;
};

// The old Brightness and Exposure cross over on purpose: the old brightness moves
// the style's exposure, the old exposure its brightness.
constexpr range_mapping_row old_tone_ranges[] = {
    {"Brightness", "Exposure", -150.0f, 150.0f, -3.0f, 3.0f},
    {"Contrast", "Contrast", -100.0f, 100.0f, -50.0f, 40.0f},
    {"Exposure", "Brightness", -2.5f, 1.75f, -50.0f, 50.0f},
    {"FillLight", "ShadowRecovery", 0.0f, 40.0f, 0.0f, 100.0f},
    {"HighlightRecovery", "HighlightRecovery", 0.0f, 100.0f, 0.0f, 50.0f},
};

constexpr range_mapping_row tone_2012_ranges[] = {
    {"Exposure2012", "Exposure", -3.5f, 3.5f, -4.0f, 4.0f},
    {"Contrast2012", "Contrast", -100.0f, 100.0f, -50.0f, 40.0f},
};

template<std::size_t n>
void copy_ranges(conversion_state& state, const range_mapping_row (&rows)[n])
{
    for (const range_mapping_row& row : rows) {
        copy_scaled(state, QLatin1String(row.source), QLatin1String(row.target), row.in_min,
                    row.in_max, row.out_min, row.out_max);
    }
}

// The y values of GradationCurveY at x 0.2, 0.4, 0.6 and 0.8; the curve's ends
// are fixed at (0,0) and (1,1). The start values make the diagonal.
struct tone_points
{
    float y1 = 0.2f;
    float y2 = 0.4f;
    float y3 = 0.6f;
    float y4 = 0.8f;
};

// Positive shadows go to shadow recovery; negative ones pull the lowest curve
// point down towards 0.15.
void apply_shadows_2012(conversion_state& state, tone_points& points)
{
    const std::optional<float> value = read_number(state, QStringLiteral("Shadows2012"));
    if (!value) {
        return;
    }
    const float s = *value;
    if (s > 0.0f) {
        state.values[QStringLiteral("ShadowRecovery")] = six_decimal(s * 0.8f);
    } else if (s < 0.0f) {
        points.y1 = s <= -100.0f ? 0.15f : ((s + 100.0f) / 100.0f) * (0.2f - 0.15f) + 0.15f;
    }
}

// Highlights move the two upper curve points, between 0.53..0.71 and 0.73..0.93;
// negative ones lower the second point too, and in "raw" also recover highlights.
void apply_highlights_2012(conversion_state& state, tone_points& points)
{
    const std::optional<float> value = read_number(state, QStringLiteral("Highlights2012"));
    if (!value) {
        return;
    }
    const float h = *value;
    if (h > 100.0f) {
        points.y3 = 0.71f;
        points.y4 = 0.93f;
    } else if (h >= 0.0f) {
        points.y3 = ((h / 100.0f) * (0.71f - 0.6f)) + 0.6f;
        points.y4 = (h / 100.0f) * (0.93f - 0.8f) + 0.8f;
    } else if (h > -100.0f) {
        points.y3 = ((h + 100.0f) / 100.0f) * (0.6f - 0.53f) + 0.53f;
        points.y4 = ((h + 100.0f) / 100.0f) * (0.8f - 0.73f) + 0.73f;
    } else {
        points.y3 = 0.53f;
        points.y4 = 0.73f;
    }
    if (h < 0.0f) {
        points.y2 += h <= -100.0f ? -(0.4f - 0.35f)
                                  : (((h + 100.0f) / 100.0f) * (0.4f - 0.35f) + 0.35f) - 0.4f;
        if (state.strategy.raw) {
            state.values[QStringLiteral("HighlightRecovery")] = six_decimal(std::fabs(h) * 0.5f);
        }
    }
}

enum class after_blacks
{
    check_presence,
    write_curve
};

// Negative blacks lift the black point through Shadow, which decides nothing about
// the curve; blacks of 0 and above raise the two lower curve points and always
// lead to the curve being written.
after_blacks apply_blacks_2012(conversion_state& state, tone_points& points)
{
    const std::optional<float> value = read_number(state, QStringLiteral("Blacks2012"));
    if (!value) {
        return after_blacks::check_presence;
    }
    const float b = *value;
    if (b < 0.0f) {
        store_shadow(state, b <= -100.0f
                                ? full_shadow_level
                                : ((b + 100.0f) / 100.0f) * -full_shadow_level + full_shadow_level);
        return after_blacks::check_presence;
    }
    if (b > 100.0f) {
        points.y1 += 0.25f - 0.2f;
        points.y2 += 0.435f - 0.4f;
    } else if (b > 0.0f) {
        points.y1 += ((b / 100.0f) * (0.25f - 0.2f) + 0.2f) - 0.2f;
        points.y2 += ((b / 100.0f) * (0.435f - 0.4f) + 0.4f) - 0.4f;
    }
    return after_blacks::write_curve;
}

// Whether the curve is the diagonal is told by the sliders, not by the points: a
// lone positive Shadows2012 leaves the points alone and still writes the full
// template with the start values.
void write_luma_curve(conversion_state& state, const tone_points& points)
{
    const QString zero = QStringLiteral("0");
    const float h = number_or(state, QStringLiteral("Highlights2012"), zero);
    const float s = number_or(state, QStringLiteral("Shadows2012"), zero);
    const float b = number_or(state, QStringLiteral("Blacks2012"), zero);
    const QString key = QStringLiteral("GradationCurveY");
    if (h == 0.0f && s == 0.0f && b == 0.0f) {
        state.values[key] = QStringLiteral("0.0000,0.0000;1.0000,1.0000");
        return;
    }
    state.values[key] =
        QStringLiteral("0.0000,0.0000;0.2000,%1;0.4000,%2;0.6000,%3;0.8000,%4;1.0000,1.0000")
            .arg(six_decimal(points.y1), six_decimal(points.y2), six_decimal(points.y3),
                 six_decimal(points.y4));
}

// Whites above 0 pull the white input down through Highlight ("raw" deeper);
// below 0 they lower the white output and the midtone.
void apply_whites_2012(conversion_state& state)
{
    const std::optional<float> value = read_number(state, QStringLiteral("Whites2012"));
    if (!value) {
        return;
    }
    const float w = *value;
    if (w >= 0.0f) {
        const float t = w > 100.0f ? 1.0f : (w > 0.0f ? w / 100.0f : 0.0f);
        const float k = state.strategy.raw ? -0.5f : -(1.0f - 0.8435f);
        state.values[QStringLiteral("Highlight")] = highlight_level(t * k + 1.0f);
        state.values[QStringLiteral("TargetHighlight")] = neutral_highlight;
        return;
    }
    float t;
    float level;
    if (w <= -100.0f) {
        t = 0.0f;
        level = 0.0365f;
    } else {
        t = (w + 100.0f) / 100.0f;
        level = t * -0.0365f + 0.0365f;
    }
    state.values[QStringLiteral("Midtone")] = midtone_level(level);
    state.values[QStringLiteral("Highlight")] = neutral_highlight;
    state.values[QStringLiteral("TargetHighlight")] =
        highlight_level(t * (1.0f - 0.8343f) + 0.8343f);
}

} // namespace

void map_old_tone(conversion_state& state)
{
    copy_ranges(state, old_tone_ranges);

    // Shadows of 0 or below still store the pair, with level 0.
    if (const std::optional<float> value = read_number(state, QStringLiteral("Shadows"))) {
        const float v = *value;
        store_shadow(state, v > 42.0f ? full_shadow_level
                                      : (v > 0.0f ? (v / 42.0f) * full_shadow_level : 0.0f));
    }
}

void map_tone_2012(conversion_state& state)
{
    copy_ranges(state, tone_2012_ranges);

    tone_points points;
    apply_shadows_2012(state, points);
    apply_highlights_2012(state, points);
    const after_blacks next = apply_blacks_2012(state, points);
    // Presence alone counts here: a slider whose text does not parse still asks
    // for the curve.
    if (next == after_blacks::write_curve || has_source_key(state, QStringLiteral("Shadows2012")) ||
        has_source_key(state, QStringLiteral("Highlights2012"))) {
        write_luma_curve(state, points);
    }
    apply_whites_2012(state);
}

void map_clarity(conversion_state& state)
{
    // The rule is lopsided on purpose: with Clarity2012 present, an old-process
    // preset reads Clarity and nothing else, so a missing Clarity writes nothing
    // even though Clarity2012 has a value.
    const QString clarity = QStringLiteral("Clarity");
    std::optional<float> value;
    if (has_source_key(state, QStringLiteral("Clarity2012"))) {
        value = read_number(state, state.old_process ? clarity : QStringLiteral("Clarity2012"));
    } else if (state.old_process && has_source_key(state, clarity)) {
        value = read_number(state, clarity);
    }
    if (!value) {
        return;
    }
    state.values[clarity] = six_decimal(*value);
    state.values[QStringLiteral("ClarityMethod")] = QStringLiteral("2");
    state.values[QStringLiteral("ClarityStructure")] = six_decimal(*value / 3.0f);
}
