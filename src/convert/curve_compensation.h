#pragma once

#include "preset/preset_settings.h"

#include <QMap>
#include <QVector>

// Compensating channel curves for the master curve. The style applies its channel
// curves and its master curve one after the other, so a channel point is moved to
// where the master curve's input lies: along the diagonal, so that its distance
// from the diagonal survives.

// Output level of the master curve -> the input levels that reach it, ascending, as
// far as 256 sample positions can tell. Levels the curve jumps over have no entry.
using luma_inverse = QMap<int, QVector<int>>;

luma_inverse build_luma_inverse(const point_list& master);

// The channel curve moved so that each of its points sits at the master curve's
// input for its x. Points that can't be placed, or that land within ten levels of
// either edge, are dropped with a log line. The result is sorted by x, without
// duplicates, and its x values depend on the master curve alone, so all channels
// compensated against one master have the same x values.
point_list compensate_with_rgb_curve(const point_list& channel, const point_list& master,
                                     const luma_inverse& inverse);
