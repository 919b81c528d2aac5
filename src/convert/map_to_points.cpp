#include "convert/map_to_points.h"

#include <QtDebug>

#include <algorithm>

namespace {

float fail(float value, const QPointF& lo, const QPointF& hi)
{
    qWarning() << "map_to_points failed." << value << lo << hi;
    return 0.0f;
}

} // namespace

float map_to_points(float value, const QVector<QPointF>& points)
{
    if (points.size() < 2) {
        return fail(value, {}, {});
    }
    for (int i = 0; i + 1 < points.size(); ++i) {
        const QPointF& lo = points[i];
        const QPointF& hi = points[i + 1];
        if (!(lo.x() <= double(value) && double(value) <= hi.x())) {
            continue;
        }
        if (lo == QPointF(0, 0) || hi == QPointF(0, 0)) {
            return fail(value, lo, hi);
        }
        const float lo_x = static_cast<float>(lo.x());
        const float lo_y = static_cast<float>(lo.y());
        const float hi_x = static_cast<float>(hi.x());
        const float hi_y = static_cast<float>(hi.y());
        const float c = std::max(std::min(value, hi_x), lo_x);
        return (hi_y - lo_y) * ((c - lo_x) / (hi_x - lo_x)) + lo_y;
    }
    return fail(value, {}, {});
}
