#include "convert/monochrome_mix.h"

#include "convert/conversion_state.h"
#include "convert/number_text.h"
#include "convert/source_values.h"

namespace {

float cut_to_hundred(float value)
{
    if (value > 100.0f) {
        return 100.0f;
    }
    if (value <= -100.0f) {
        return -100.0f;
    }
    return value;
}

// An absent or unreadable mixer slider stands at 0.
float mixer(const conversion_state& state, const char* colour)
{
    return read_number(state, QLatin1String("GrayMixer") + QLatin1String(colour)).value_or(0.0f);
}

} // namespace

float clamped_sum_with_half(float a, float b)
{
    return cut_to_hundred(cut_to_hundred(a) + cut_to_hundred(b) / 2.0f);
}

void mix_monochrome(conversion_state& state)
{
    const float red = mixer(state, "Red");
    const float orange = mixer(state, "Orange");
    const float yellow = mixer(state, "Yellow");
    const float green = mixer(state, "Green");
    const float aqua = mixer(state, "Aqua");
    const float blue = mixer(state, "Blue");
    const float purple = mixer(state, "Purple");
    const float magenta = mixer(state, "Magenta");

    style_values& values = state.values;
    values[QStringLiteral("BwEnabled")] = QStringLiteral("1");
    values[QStringLiteral("BwBlue")] = six_decimal(clamped_sum_with_half(blue, purple));
    // Aqua and green have a target slider of their own and receive no share, so
    // they pass as read, without the cut.
    values[QStringLiteral("BwCyan")] = six_decimal(aqua);
    values[QStringLiteral("BwGreen")] = six_decimal(green);
    values[QStringLiteral("BwMagenta")] = six_decimal(clamped_sum_with_half(magenta, purple));
    values[QStringLiteral("BwRed")] = six_decimal(clamped_sum_with_half(red, orange));
    values[QStringLiteral("BwYellow")] = six_decimal(clamped_sum_with_half(yellow, orange));
}
