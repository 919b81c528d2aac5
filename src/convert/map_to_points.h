#pragma once

#include <QPointF>
#include <QVector>

// A piecewise-linear lookup through a list of (x, y) points, x ascending. The
// arithmetic is single precision; only the search compares in double. A value
// outside the list, a list of fewer than two points, or a segment touching the
// point (0, 0), which no list of this program holds and which therefore counts as
// unset, logs "map_to_points failed." and gives 0.
float map_to_points(float value, const QVector<QPointF>& points);
