#include "convert/cubic_spline.h"

#include <algorithm>

namespace {

int check_points(const QVector<double>& xs, const QVector<double>& ys)
{
    // Lists of unequal length have no pairing either, so they count as missing values.
    if (xs.isEmpty() || ys.isEmpty() || xs.size() != ys.size()) {
        return cubic_spline::no_values;
    }
    for (int i = 0; i + 1 < xs.size(); ++i) {
        if (xs[i + 1] < xs[i]) {
            return cubic_spline::not_ascending;
        }
    }
    for (int i = 0; i + 1 < xs.size(); ++i) {
        if (xs[i + 1] - xs[i] < cubic_spline::tolerance) {
            return cubic_spline::too_close;
        }
    }
    return cubic_spline::fine;
}

} // namespace

void cubic_spline::set_points(const QVector<double>& xs, const QVector<double>& ys)
{
    segments_.clear();
    error_ = check_points(xs, ys);
    if (error_ != fine || xs.size() < 2) {
        return;
    }

    // The textbook tridiagonal sweep with natural ends (c = 0 at both). Every
    // expression keeps the order in which it is usually written down: the raster
    // truncates, so a changed rounding can change a level.
    const int n = xs.size() - 1;
    QVector<double> h(n);
    for (int i = 0; i < n; ++i) {
        h[i] = xs[i + 1] - xs[i];
    }
    QVector<double> alpha(n);
    for (int i = 1; i < n; ++i) {
        alpha[i] = 3.0 * (ys[i + 1] - ys[i]) / h[i] - 3.0 * (ys[i] - ys[i - 1]) / h[i - 1];
    }
    QVector<double> l(n + 1);
    QVector<double> mu(n + 1);
    QVector<double> z(n + 1);
    l[0] = 1.0;
    mu[0] = 0.0;
    z[0] = 0.0;
    for (int i = 1; i < n; ++i) {
        l[i] = 2.0 * (xs[i + 1] - xs[i - 1]) - h[i - 1] * mu[i - 1];
        mu[i] = h[i] / l[i];
        z[i] = (alpha[i] - h[i - 1] * z[i - 1]) / l[i];
    }
    QVector<double> c(n + 1);
    c[n] = 0.0;
    segments_.resize(n);
    for (int j = n - 1; j >= 0; --j) {
        c[j] = z[j] - mu[j] * c[j + 1];
        const double b = (ys[j + 1] - ys[j]) / h[j] - h[j] * (c[j + 1] + 2.0 * c[j]) / 3.0;
        const double d = (c[j + 1] - c[j]) / (3.0 * h[j]);
        segments_[j] = cubic_segment{ys[j], b, c[j], d, xs[j]};
    }
}

double cubic_spline::value_at(double v) const
{
    if (segments_.isEmpty()) {
        return v;
    }
    // The segment left of the first start beyond v; the last one if none lies beyond.
    int chosen = segments_.size() - 1;
    for (int j = 0; j < segments_.size(); ++j) {
        if (segments_[j].x > v) {
            chosen = std::max(j - 1, 0);
            break;
        }
    }
    const cubic_segment& s = segments_[chosen];
    const double t = v - s.x;
    // Term by term, left to right, not in nested form: the raster truncates, so the
    // order decides levels at the curve's ends.
    return s.a + s.b * t + s.c * t * t + s.d * t * t * t;
}
