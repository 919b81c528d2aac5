#pragma once

#include "convert/cubic_spline.h"
#include "convert/lut_3d.h"
#include "output/style_document.h"
#include "preset/preset_settings.h"

#include <QString>

#include <array>

// The building blocks of the curve stage: a point list read as a smooth curve,
// resampled, eased, carried through a colour table and written as text. A curve is
// a point_list of whole levels; y may leave 0 to 255 while the stage works on it.

// The three channel curves of one preset, red, green and blue in that order. They
// are worked on together wherever entry i of each forms one colour.
using channel_curves = std::array<point_list, 3>;

// (0,0), (255,255).
point_list identity_curve();

// False only for exactly the two identity points in that order.
bool is_custom_curve(const point_list& points);

// The spline through the points, each coordinate widened to double.
cubic_spline spline_through(const point_list& points);

// A spline value as a level: 255 above 255, truncated above 0, else 0.
int truncated_level(double value);

// The curve through `points` at x, with a spline built for this one evaluation.
double curve_value(const point_list& points, double x);

// The curve resampled at nine evenly spaced positions, x 0, 31, 63, ... 223, 255,
// with y as a level. An empty list stays empty.
point_list raster_curve(const point_list& points);

// Pulls the points below x 85 halfway towards the diagonal at x 0, fading to no pull
// at x 84; x values and the points from x 85 up stay as they are.
point_list ease_low_end(const point_list& points);

// Carries the channel curves through `table`: entry i of the three lists forms one
// colour of inputs (the x values) and one of outputs (the y values).
void table_pass(channel_curves& channels, const lut_3d& table);

// Writes "x,y;x,y;..." with each level as a fraction of 255, cut to 0 to 1, under
// `key`; warns about each point that has to be cut. An empty list writes nothing.
void curve_to_text(style_values& values, const QString& key, const point_list& points);
