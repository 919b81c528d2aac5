#include "convert/white_balance.h"

#include "convert/conversion_state.h"
#include "convert/map_to_points.h"
#include "convert/number_text.h"
#include "convert/source_values.h"

#include <QPointF>
#include <QVector>
#include <QtDebug>

#include <optional>

namespace {

// IncrementalTemperature (-100..100) to Kelvin. The steps are uneven: the upper
// half of the slider spans far more Kelvin than the lower.
const QVector<QPointF>& relative_temperature_table()
{
    static const QVector<QPointF> table{{-100, 2000}, {-75, 2417}, {-50, 2985},
                                        {-25, 3791},  {0, 5500},   {25, 6957},
                                        {50, 10526},  {75, 18605}, {100, 50000}};
    return table;
}

// Tint offsets by Kelvin, one list per colour space; a list has a point only where
// its column has a value (only "prophoto" has one at 11000). The Wide Gamut offset
// at 800 K is the single-precision -7.6, widened.
const QVector<QPointF>& srgb_tint_offsets()
{
    static const QVector<QPointF> offsets{{800, -22},  {5000, 0},   {6000, -12},  {7000, -16},
                                          {8000, -23}, {9000, -30}, {10000, -32}, {14000, -32}};
    return offsets;
}

const QVector<QPointF>& prophoto_tint_offsets()
{
    static const QVector<QPointF> offsets{{800, 0},     {5000, 0},    {6000, -12},
                                          {7000, -19},  {8000, -32},  {9000, -36},
                                          {10000, -37}, {11000, -40}, {14000, -40}};
    return offsets;
}

const QVector<QPointF>& wide_gamut_tint_offsets()
{
    static const QVector<QPointF> offsets{{800, double(-7.6f)}, {5000, 0},   {6000, -12},
                                          {7000, -18},          {8000, -27}, {9000, -28},
                                          {10000, -32},         {14000, -32}};
    return offsets;
}

// Both offset tables and the written temperature stop at 800 and 14000 K.
float cut_temperature(float t)
{
    return t > 14000.0f ? 14000.0f : (t > 800.0f ? t : 800.0f);
}

// A temperature from Temperature, or else from IncrementalTemperature. A
// Temperature that is present but unreadable means no temperature at all: the
// relative key is not consulted then (unlike the tint pair).
std::optional<float> read_temperature(const conversion_state& state)
{
    if (has_source_key(state, QStringLiteral("Temperature"))) {
        return read_number(state, QStringLiteral("Temperature"));
    }
    if (const std::optional<float> v =
            read_number(state, QStringLiteral("IncrementalTemperature"))) {
        return map_to_points(*v, relative_temperature_table());
    }
    return std::nullopt;
}

// The tint on the style's scale of -50..50, before the offset. The absolute
// slider spans -150..150, the relative one -100..100.
std::optional<float> read_tint(const conversion_state& state)
{
    if (const std::optional<float> tint = read_number(state, QStringLiteral("Tint"))) {
        const float v = *tint;
        if (v > 150.0f) {
            return 50.0f;
        }
        if (v <= -150.0f) {
            return -50.0f;
        }
        if (v < 0.0f) {
            return ((v + 150.0f) / 150.0f) * 50.0f - 50.0f;
        }
        return (v / 150.0f) * 50.0f;
    }
    if (const std::optional<float> tint = read_number(state, QStringLiteral("IncrementalTint"))) {
        const float v = *tint;
        if (v > 100.0f) {
            return 50.0f;
        }
        if (v <= -100.0f) {
            return -50.0f;
        }
        if (v >= 0.0f) {
            return (v / 100.0f) * 50.0f;
        }
        return ((v + 100.0f) / 100.0f) * 50.0f - 50.0f;
    }
    return std::nullopt;
}

} // namespace

float get_tint_shift(float temperature, const QString& colour_space)
{
    const float t = cut_temperature(temperature);
    if (colour_space == QLatin1String("srgb")) {
        return map_to_points(t, srgb_tint_offsets());
    }
    if (colour_space == QLatin1String("prophoto")) {
        return map_to_points(t, prophoto_tint_offsets());
    }
    if (colour_space == QLatin1String("widegamut")) {
        return map_to_points(t, wide_gamut_tint_offsets());
    }
    if (colour_space == QLatin1String("raw")) {
        return 0.0f;
    }
    // "adobe" has no column and lands here on purpose, warning included.
    qWarning("get_tint_shift: Unknown color space: %s. Not ofsetting.",
             qUtf8Printable(colour_space));
    return 0.0f;
}

void map_white_balance(conversion_state& state)
{
    float shift = 0.0f;
    bool temperature_stored = false;
    bool tint_stored = false;

    if (const std::optional<float> t = read_temperature(state)) {
        shift = get_tint_shift(*t, state.colour_space);
        state.values[QStringLiteral("WhiteBalanceTemperature")] =
            six_significant(cut_temperature(*t));
        temperature_stored = true;
    }
    if (const std::optional<float> u = read_tint(state)) {
        const float tint = *u + shift;
        const float cut = tint > 50.0f ? 50.0f : (tint <= -50.0f ? -50.0f : tint);
        state.values[QStringLiteral("WhiteBalanceTint")] = six_decimal(cut);
        tint_stored = true;
    }

    // The style must never hold one of the pair without the other. A tint without
    // a temperature has had no offset; a temperature without a tint drops its
    // offset and stays neutral.
    if (tint_stored && !temperature_stored) {
        state.values[QStringLiteral("WhiteBalanceTemperature")] = QStringLiteral("5000");
    }
    if (temperature_stored && !tint_stored) {
        state.values[QStringLiteral("WhiteBalanceTint")] = QStringLiteral("0");
    }
}
