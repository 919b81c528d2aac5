#pragma once

#include "convert/curve_operations.h"

#include <QVector>

// Compensation can push a channel point below level 0 or above 255. The range fold
// takes the excess out of all three channels at that point, so that their
// differences survive, and hands it to the master curve instead.

struct range_fold
{
    // One entry for each channel point: the level the channels gave up there. A
    // negative offset lowers the master curve, a positive one raises it.
    QVector<int> curve_offsets;
    // The channel points' x values, where the master curve takes the offsets.
    QVector<double> raster_positions;
};

// True when every y of the three channels lies within 0 to 255.
bool channels_in_range(const channel_curves& channels);

// Folds the channels into range. They must have been compensated against one
// master curve, so that they share their x values.
range_fold fold_into_range(channel_curves& channels);

// The master curve resampled at the fold's positions, with its offsets applied
// and the result cut to 0 to 255, with a warning for every cut.
point_list resample_master(const point_list& master, const range_fold& fold);
