#pragma once

#include <QVector>

// One piece of a cubic spline: on it the curve is a + b*t + c*t*t + d*t*t*t, with t
// the distance from `x`, the piece's left end.
struct cubic_segment
{
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    double d = 0.0;
    double x = 0.0;
};

// The natural cubic spline through a list of points, in double precision. A short-
// lived value: the curve engine builds one for each evaluation or raster.
class cubic_spline
{
public:
    enum error_code : int
    {
        fine = 0,
        not_ascending = 1,
        no_values = 2,
        too_close = 3
    };

    // The smallest distance allowed between neighbouring x values. Curves hold whole
    // levels, so in practice only equal neighbours are refused.
    static constexpr double tolerance = 1.0;

    // Checks the points and computes the segments. A refused list leaves no segments
    // and the reason in error(); so does a single point, which is not an error.
    void set_points(const QVector<double>& xs, const QVector<double>& ys);

    // The curve at v. Beyond both ends the end segments' cubics go on, unclamped.
    // A spline without segments is the identity: it returns v.
    double value_at(double v) const;

    int error() const { return error_; }
    const QVector<cubic_segment>& segments() const { return segments_; }

private:
    int error_ = fine;
    QVector<cubic_segment> segments_;
};
