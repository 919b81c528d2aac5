#pragma once

#include <QString>

struct conversion_state;

// Lightroom's eight colour groups become records of the style's colour editor,
// ColorCorrections: a list of 18-field records of which the conversion fills only
// the three shifts. Nothing here depends on the colour space.

struct colour_adjustments
{
    float hue = 0.0f;
    float saturation = 0.0f;
    float luminance = 0.0f;
};

// The hue, saturation and luminance adjustments of one lower-case colour name
// ("red", "orange", ...), read from HueAdjustment<Colour> and its kin. A key that
// is absent or unreadable gives 0; a key that parses sets `any_colour_value`.
colour_adjustments read_colour_adjustments(const conversion_state& state, const QString& colour,
                                           bool& any_colour_value);

// The global saturation, copied as it is.
void map_saturation(conversion_state& state);

// Vibrance and the eight colour groups into ColorCorrections, which every style
// holds: a preset without any of these keys gets the closing record alone.
void map_colour_editor(conversion_state& state);
