#include "convert/colour_editor.h"

#include "convert/conversion_state.h"
#include "convert/number_text.h"
#include "convert/range_mapping.h"
#include "convert/source_values.h"

#include <QVector>

namespace {

// The two outer values of a two-sided scale over -100..100: what -100 becomes
// (negated) and what +100 becomes.
struct scale_bounds
{
    float negative;
    float positive;
};

struct colour_record
{
    QString colour;
    scale_bounds hue;
    scale_bounds saturation;
    scale_bounds luminance;
    QString record;
};

// The eight slider records in the order of the value. The three markers are the
// hue, saturation and luminance shifts; fields 7 to 9 are the record's colour on
// 0..255 and fields 10 to 14 constants of the style's colour editor that are only
// carried, digit for digit. Each group scales its two sides separately; the
// unequal bounds are deliberate (orange saturation +100 is 22, -100 is -50).
const QVector<colour_record>& colour_records()
{
    // clang-format off
    static const QVector<colour_record> records{
        {QStringLiteral("red"), {30.0f, 30.0f}, {60.0f, 40.0f}, {5.0f, 3.0f},
         QStringLiteral("1,1,0,%1,%2,%3,237,45.3288917541504,66.479118347168,-9.59939575195312,9.18455505371094,-80.8738861083984,19.1261138916016,25.9748382568359,0,0,0,0;")},
        {QStringLiteral("orange"), {30.0f, 30.0f}, {50.0f, 22.0f}, {4.4f, 4.0f},
         QStringLiteral("1,1,0,%1,%2,%3,255,130,12,0,4.55426025390625,-95.2941207885742,4.70587921142578,18.2099227905273,0,0,0,0;")},
        {QStringLiteral("yellow"), {30.0f, 30.0f}, {80.0f, 30.0f}, {3.0f, 5.0f},
         QStringLiteral("1,1,0,%1,%2,%3,255,225.91796875,36.1078147888184,-5.1807861328125,1.47015380859375,-85.8400726318359,14.1599273681641,20.3872756958008,0,0,0,0;")},
        {QStringLiteral("green"), {30.0f, 30.0f}, {66.0f, 55.0f}, {5.0f, 2.8f},
         QStringLiteral("1,1,0,%1,%2,%3,58.8606338500977,208,10.4000005722046,-33.7201843261719,32.3572998046875,-95,5,23.2739639282227,0,0,0,0;")},
        {QStringLiteral("aqua"), {30.0f, 30.0f}, {54.0f, 65.0f}, {5.8f, 3.3f},
         QStringLiteral("1,1,0,%1,%2,%3,22.6761436462402,216,177.109222412109,-4.34454345703125,5.92352294921875,-89.5017852783203,10.4982147216797,28.4633140563965,0,0,0,0;")},
        {QStringLiteral("blue"), {30.0f, 30.0f}, {59.0f, 50.0f}, {5.0f, 3.5f},
         QStringLiteral("1,1,0,%1,%2,%3,61.345775604248,87.8979263305664,165,-14.3739013671875,22.6552124023438,-62.820743560791,37.179256439209,27.3963947296143,0,0,0,0;")},
        {QStringLiteral("purple"), {30.0f, 30.0f}, {100.0f, 100.0f}, {7.0f, 6.3f},
         QStringLiteral("1,1,0,%1,%2,%3,104,0,148,-12.1621704101562,2.99188232421875,-100,0,26.3488998413086,0,0,0,0;")},
        {QStringLiteral("magenta"), {30.0f, 30.0f}, {70.0f, 60.0f}, {8.0f, 4.6f},
         QStringLiteral("1,1,0,%1,%2,%3,235,50.884838104248,191.595169067383,-6.26992797851562,5.4552001953125,-78.3468780517578,21.6531219482422,20.9790744781494,0,0,0,0;")},
    };
    // clang-format on
    return records;
}

// Vibrance has no slider of its own in the colour editor: it is told by six
// neutral records whose shifts stay 0, then one record (switched off in its first
// field) that carries the vibrance in its saturation field.
const QString& vibrance_block()
{
    static const QString block = QStringLiteral(
        "1,1,1,0,0,0,127,63,119,-28.822566986084,28.822566986084,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,67,63,127,-21.9782791137695,21.9782791137695,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,63,118,127,-22.3223114013672,22.3223114013672,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,69,127,63,-38.9258460998535,38.9258460998535,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,127,115,63,-13.5424394607544,13.5424394607544,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,127,68,63,-18.4085693359375,18.4085693359375,-50,50,12,0,0,0,0;"
        "0,1,1,0,%1,0,0,0,0,0,0,0,0,0,0,0,0,0;");
    return block;
}

// Ends every ColorCorrections value, and is the whole value of a preset without
// colour settings; it alone has no ";" behind it.
const QString& closing_record()
{
    static const QString record = QStringLiteral(
        "1,1,2,2.36563158035278,-15.9744558334351,0,174,139,97,0,25,-42.1264381408691,"
        "25.6254768371582,25,0,0,0,0");
    return record;
}

// Every colour slider spans -100..100.
float scale_slider(float value, scale_bounds bounds)
{
    return two_sided_scale(value, 100.0f, bounds.negative, bounds.positive);
}

} // namespace

colour_adjustments read_colour_adjustments(const conversion_state& state, const QString& colour,
                                           bool& any_colour_value)
{
    const QString suffix = colour.left(1).toUpper() + colour.mid(1);
    const auto read = [&](const char* prefix) {
        const QString key = QLatin1String(prefix) + suffix;
        const std::optional<float> value = read_number(state, key);
        if (!value) {
            return 0.0f;
        }
        any_colour_value = true;
        return *value;
    };
    colour_adjustments adjustments;
    adjustments.hue = read("HueAdjustment");
    adjustments.saturation = read("SaturationAdjustment");
    adjustments.luminance = read("LuminanceAdjustment");
    return adjustments;
}

void map_saturation(conversion_state& state)
{
    copy_as_fixed(state, QStringLiteral("Saturation"), QStringLiteral("Saturation"));
}

void map_colour_editor(conversion_state& state)
{
    const QString key = QStringLiteral("ColorCorrections");

    // A Vibrance key counts as a colour value even when it is 0 or unreadable.
    bool any_colour_value = false;
    float vibrance = 0.0f;
    if (has_source_key(state, QStringLiteral("Vibrance"))) {
        const float value = source_text(state, QStringLiteral("Vibrance"), QString()).toFloat();
        any_colour_value = true;
        vibrance = two_sided_scale(value, 100.0f, 80.0f, 80.0f);
    }

    QVector<colour_adjustments> adjustments;
    for (const colour_record& record : colour_records()) {
        adjustments.append(read_colour_adjustments(state, record.colour, any_colour_value));
    }
    if (!any_colour_value) {
        state.values[key] = closing_record();
        return;
    }

    QString text;
    if (vibrance != 0.0f) {
        text += vibrance_block().arg(six_decimal(vibrance));
    }
    // All eight records stand in the value, also those whose shifts are all 0.
    for (int i = 0; i < colour_records().size(); ++i) {
        const colour_record& record = colour_records()[i];
        const colour_adjustments& a = adjustments[i];
        text += record.record.arg(six_decimal(scale_slider(a.hue, record.hue)),
                                  six_decimal(scale_slider(a.saturation, record.saturation)),
                                  six_decimal(scale_slider(a.luminance, record.luminance)));
    }
    text += closing_record();
    state.values[key] = text;
}
