#include "convert/range_fold.h"

#include "convert/cubic_spline.h"

#include <QtDebug>

#include <algorithm>

namespace {

int lowest_y(const channel_curves& channels, int i)
{
    return std::min({channels[0][i].y(), channels[1][i].y(), channels[2][i].y()});
}

int highest_y(const channel_curves& channels, int i)
{
    return std::max({channels[0][i].y(), channels[1][i].y(), channels[2][i].y()});
}

void lower_all(channel_curves& channels, int i, int amount)
{
    for (point_list& channel : channels) {
        channel[i].ry() -= amount;
    }
}

} // namespace

bool channels_in_range(const channel_curves& channels)
{
    for (const point_list& channel : channels) {
        for (const QPoint& point : channel) {
            if (point.y() < 0 || point.y() > 255) {
                return false;
            }
        }
    }
    return true;
}

range_fold fold_into_range(channel_curves& channels)
{
    // Compensated channels have equal sizes; the shortest is taken all the same, so
    // that no index can leave a list.
    const int n = std::min({channels[0].size(), channels[1].size(), channels[2].size()});
    range_fold fold;
    fold.curve_offsets.fill(0, n);

    // Upwards from the left. Half of a lift also goes to the next point, if that one
    // is in range, to soften the step the master curve gets; the half truncates
    // towards zero.
    for (int i = 0; i < n; ++i) {
        fold.raster_positions.append(double(channels[0][i].x()));
        const int m = lowest_y(channels, i);
        if (m >= 0) {
            continue;
        }
        lower_all(channels, i, m);
        fold.curve_offsets[i] = m;
        if (i + 1 < n && lowest_y(channels, i + 1) >= 0) {
            const int half = m / 2;
            lower_all(channels, i + 1, half);
            fold.curve_offsets[i + 1] = half;
        }
    }

    // Downwards from the right, overwriting what the first pass noted at a point.
    // The half step can take a point below 0 again; that level is cut later, where
    // it is used.
    for (int i = n - 1; i >= 0; --i) {
        const int top = highest_y(channels, i);
        if (top <= 255) {
            continue;
        }
        const int m = top - 255;
        lower_all(channels, i, m);
        fold.curve_offsets[i] = m;
        if (i > 0 && highest_y(channels, i - 1) <= 255) {
            const int half = m / 2;
            lower_all(channels, i - 1, half);
            fold.curve_offsets[i - 1] = half;
        }
    }
    return fold;
}

point_list resample_master(const point_list& master, const range_fold& fold)
{
    qInfo() << "Rastering RGB Curve at" << fold.raster_positions;
    const cubic_spline spline = spline_through(master);
    point_list result;
    for (const double position : fold.raster_positions) {
        result.append(
            QPoint(static_cast<int>(position), truncated_level(spline.value_at(position))));
    }

    qInfo() << "Applying offsets" << fold.curve_offsets << "to curve" << result;
    const int n = std::min(result.size(), fold.curve_offsets.size());
    for (int i = 0; i < n; ++i) {
        const int offset = fold.curve_offsets[i];
        QPoint& point = result[i];
        const int v = point.y() + offset;
        if (v < 0 || v > 255) {
            qWarning("Applying offset %d at QPoint(%d,%d) is resulting in out of range value %d.",
                     offset, point.x(), point.y(), v);
        }
        point.setY(std::clamp(v, 0, 255));
    }
    qInfo() << result;
    return result;
}
