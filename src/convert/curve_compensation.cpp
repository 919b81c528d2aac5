#include "convert/curve_compensation.h"

#include "convert/cubic_spline.h"
#include "convert/curve_operations.h"

#include <QPointF>
#include <QtDebug>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace {

// Where to look for a level the master curve doesn't reach: the level itself, then
// alternately above and below. A steeper master curve skips levels, and four is as
// far as a point may be from the one it is matched to.
constexpr int search_steps[] = {0, 1, -1, 2, -2, 3, -3, 4, -4};

QPointF as_fractions(const QPoint& point)
{
    // Divided in single precision, then held as Qt's double coordinates.
    return QPointF(static_cast<qreal>(float(point.x()) / 255.0f),
                   static_cast<qreal>(float(point.y()) / 255.0f));
}

double cut_to_levels(double value)
{
    return value > 255.0 ? 255.0 : value > 0.0 ? value : 0.0;
}

// The channel's point at the master curve's output for `input` (0 or 255), so that
// the compensated curve reaches the ends the master curve reaches.
QPoint end_point(const point_list& channel, const point_list& master, double input)
{
    const double a = cut_to_levels(curve_value(master, input));
    const double b = curve_value(channel, a);
    const int y = b > 255.0 ? 255 : b > 0.0 ? static_cast<int>(std::round(b)) : 0;
    return QPoint(static_cast<int>(std::round(a)), y);
}

struct key_match
{
    int key;
    int searched; // the level tried, before it was cut to 0..255
};

std::optional<key_match> find_key(const luma_inverse& inverse, int x)
{
    for (const int step : search_steps) {
        const int searched = x + step;
        const int key = std::clamp(searched, 0, 255);
        const auto found = inverse.constFind(key);
        if (found != inverse.constEnd() && !found->isEmpty()) {
            return key_match{key, searched};
        }
    }
    return std::nullopt;
}

// The input nearest to x, the first among equals; none unless closer than 255.
std::optional<int> nearest_input(const QVector<int>& inputs, int x)
{
    std::optional<int> nearest;
    int nearest_distance = 255;
    for (const int input : inputs) {
        const int distance = std::abs(x - input);
        if (distance < nearest_distance) {
            nearest = input;
            nearest_distance = distance;
        }
    }
    return nearest;
}

// Moves every point to the master curve's input for its x.
void move_to_master_inputs(point_list& points, const luma_inverse& inverse)
{
    int i = 0;
    while (i < points.size()) {
        const QPoint point = points[i];
        const std::optional<key_match> match = find_key(inverse, point.x());
        if (!match) {
            qInfo() << "Removing point" << point << as_fractions(point) << "-> No Y in range";
            points.remove(i);
            continue;
        }
        // A level may come from a run of inputs (a flat stretch of the master curve).
        // The end points take the run's far end on their own side; inner points the
        // input nearest to them.
        const QVector<int>& inputs = inverse[match->key];
        std::optional<int> target;
        if (i == 0 || i == points.size() - 1) {
            target = match->searched > 127 ? inputs.last() : inputs.first();
        } else {
            target = nearest_input(inputs, point.x());
        }
        if (!target) {
            qWarning("compensate_with_rgb_curve: Found y:%d with no matching x value", match->key);
            points.remove(i);
            continue;
        }
        const int shift = *target - match->key;
        const QPoint moved(point.x() + shift, point.y() + shift);
        qInfo() << "Replacing point" << point << as_fractions(point) << "with" << moved
                << as_fractions(moved);
        points[i] = moved;
        ++i;
    }
}

// A point between one and ten levels from an edge, or beyond it, would make a
// steep end of the curve; the edges themselves are fine.
void drop_edge_points(point_list& points)
{
    int i = 0;
    while (i < points.size()) {
        const QPoint point = points[i];
        const int x = point.x();
        if (x == 0 || (x >= 11 && x <= 244) || x == 255) {
            ++i;
            continue;
        }
        qDebug() << "Removing point" << point << as_fractions(point)
                 << "too close to or beyond the edge";
        points.remove(i);
    }
}

// Of a run of points with equal x the last survives: after the stable sort that is
// the rastered point rather than the end point put in front of it.
void keep_last_of_equal_x(point_list& points)
{
    int i = 0;
    while (i + 1 < points.size()) {
        if (points[i].x() == points[i + 1].x()) {
            points.remove(i);
        } else {
            ++i;
        }
    }
}

} // namespace

luma_inverse build_luma_inverse(const point_list& master)
{
    const cubic_spline spline = spline_through(master);
    luma_inverse inverse;
    for (int i = 0; i <= 255; ++i) {
        const double position = double(float(i) / 255.0f * 255.0f);
        const double output = std::round(spline.value_at(position));
        const int key = output > 255.0 ? 255 : output > 0.0 ? static_cast<int>(output) : 0;
        inverse[key].append(static_cast<int>(std::round(position)));
    }
    return inverse;
}

point_list compensate_with_rgb_curve(const point_list& channel, const point_list& master,
                                     const luma_inverse& inverse)
{
    point_list points = raster_curve(channel);
    points.prepend(end_point(channel, master, 0.0));
    points.append(end_point(channel, master, 255.0));
    move_to_master_inputs(points, inverse);
    drop_edge_points(points);
    std::stable_sort(points.begin(), points.end(),
                     [](const QPoint& a, const QPoint& b) { return a.x() < b.x(); });
    keep_last_of_equal_x(points);
    return points;
}
