#include "convert/range_mapping.h"

#include "convert/conversion_state.h"
#include "convert/number_text.h"
#include "convert/source_values.h"

#include <algorithm>

void copy_scaled(conversion_state& state, const QString& source_key, const QString& target_key,
                 float in_min, float in_max, float out_min, float out_max)
{
    const std::optional<float> value = read_number(state, source_key);
    if (!value) {
        return;
    }
    const float c = std::max(std::min(*value, in_max), in_min);
    const float result = c < 0.0f ? ((c - in_min) / (0.0f - in_min)) * (0.0f - out_min) + out_min
                                  : (c / in_max) * out_max;
    state.values[target_key] = six_decimal(result);
}

float two_sided_scale(float value, float bound, float negative, float positive)
{
    if (value > bound) {
        return positive;
    }
    if (value <= -bound) {
        return -negative;
    }
    if (value >= 0.0f) {
        return (value / bound) * positive;
    }
    return ((value + bound) / bound) * negative - negative;
}

void copy_as_fixed(conversion_state& state, const QString& source_key, const QString& target_key)
{
    if (const std::optional<float> value = read_number(state, source_key)) {
        state.values[target_key] = six_decimal(*value);
    }
}
