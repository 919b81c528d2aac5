#include "convert/curve_operations.h"

#include "convert/number_text.h"

#include <QtDebug>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Truncation towards zero that saturates at the ends of int, so that y values far
// outside the nominal range (a preset may hold any number) never make an
// unrepresentable conversion.
int truncate_to_int(float value)
{
    if (!(value > float(std::numeric_limits<int>::min()))) {
        return std::numeric_limits<int>::min();
    }
    if (value >= float(std::numeric_limits<int>::max())) {
        return std::numeric_limits<int>::max();
    }
    return static_cast<int>(value);
}

// A table result channel as a level. The factor is 256, not 255, because the
// loaded tables top out at 1023/1024; the identity table reaches 1 and so gives
// 256, which is kept: nothing is masked here, curve_to_text cuts and warns.
int table_level(float fraction)
{
    const float scaled = fraction * 256.0f;
    return scaled < 0.0f ? 0 : static_cast<int>(scaled);
}

QString fraction_text(int level)
{
    const float fraction = float(level) / 255.0f;
    return six_decimal(fraction > 1.0f ? 1.0f : fraction > 0.0f ? fraction : 0.0f);
}

bool level_in_range(int level)
{
    return level >= 0 && level <= 255;
}

} // namespace

point_list identity_curve()
{
    return {QPoint(0, 0), QPoint(255, 255)};
}

bool is_custom_curve(const point_list& points)
{
    return points != identity_curve();
}

cubic_spline spline_through(const point_list& points)
{
    QVector<double> xs;
    QVector<double> ys;
    xs.reserve(points.size());
    ys.reserve(points.size());
    for (const QPoint& point : points) {
        xs.append(point.x());
        ys.append(point.y());
    }
    cubic_spline spline;
    spline.set_points(xs, ys);
    return spline;
}

int truncated_level(double value)
{
    if (value > 255.0) {
        return 255;
    }
    return value > 0.0 ? static_cast<int>(value) : 0;
}

double curve_value(const point_list& points, double x)
{
    return spline_through(points).value_at(x);
}

point_list raster_curve(const point_list& points)
{
    point_list result;
    if (points.isEmpty()) {
        return result;
    }
    const cubic_spline spline = spline_through(points);
    for (int i = 0; i <= 8; ++i) {
        const float position = (float(i) * 0.125f) * 255.0f;
        result.append(
            QPoint(static_cast<int>(position), truncated_level(spline.value_at(double(position)))));
    }
    return result;
}

point_list ease_low_end(const point_list& points)
{
    point_list result = points;
    for (QPoint& point : result) {
        if (point.x() >= 85) {
            continue;
        }
        const float x = float(point.x());
        const float y = float(point.y());
        point.setY(truncate_to_int(y - (y - x) * (1.0f - x / 84.0f) * 0.5f));
    }
    return result;
}

void table_pass(channel_curves& channels, const lut_3d& table)
{
    point_list& red = channels[0];
    point_list& green = channels[1];
    point_list& blue = channels[2];
    if (red.size() != green.size() || red.size() != blue.size()) {
        for (point_list& channel : channels) {
            channel = raster_curve(channel);
        }
    }
    // An empty channel stays empty through the raster; the others then keep the
    // points that have no partner.
    const int common = std::min({red.size(), green.size(), blue.size()});
    for (int i = 0; i < common; ++i) {
        const lut_entry in = lookup(table, red[i].x(), green[i].x(), blue[i].x());
        const lut_entry out = lookup(table, red[i].y(), green[i].y(), blue[i].y());
        // Entries are stored B, G, R.
        red[i] = QPoint(table_level(in[2]), table_level(out[2]));
        green[i] = QPoint(table_level(in[1]), table_level(out[1]));
        blue[i] = QPoint(table_level(in[0]), table_level(out[0]));
    }
}

void curve_to_text(style_values& values, const QString& key, const point_list& points)
{
    if (points.isEmpty()) {
        return;
    }
    QString text;
    for (const QPoint& point : points) {
        if (!level_in_range(point.x()) || !level_in_range(point.y())) {
            qWarning() << qUtf8Printable(key) << "point" << point
                       << "is out of range and will be clamped!";
        }
        text += QStringLiteral("%1,%2;").arg(fraction_text(point.x()), fraction_text(point.y()));
    }
    text.chop(1);
    values[key] = text;
}
