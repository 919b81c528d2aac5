// The curve primitives: the natural cubic spline, and the operations on point
// lists built on it (raster, low-end easing, table pass, text form).
#include "convert/curve_operations.h"

#include "convert/cubic_spline.h"
#include "convert/lut_set.h"
#include "support/test_support.h"

#include <QtTest>

using test_support::levels_of;
using test_support::points_from;
using values = QVector<double>;

namespace {

// A row of a table of one input curve and the curve made of it.
void row(const char* name, const char* curve, const char* expected)
{
    QTest::newRow(name) << QString(curve) << QString(expected);
}

} // namespace

class tst_curve_operations : public QObject
{
    Q_OBJECT

private slots:
    void spline_checks_points_data();
    void spline_checks_points();
    void spline_evaluates_data();
    void spline_evaluates();
    void raster_curve_levels_data();
    void raster_curve_levels();
    void ease_low_end_levels_data();
    void ease_low_end_levels();
    void curve_to_text_form_data();
    void curve_to_text_form();
    void table_pass_rasters_unequal_channels();
};

void tst_curve_operations::spline_checks_points_data()
{
    QTest::addColumn<values>("xs");
    QTest::addColumn<values>("ys");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("segments");

    QTest::newRow("no points") << values{} << values{} << 2 << 0;
    QTest::newRow("unequal lengths") << values{0, 1, 2} << values{0, 1} << 2 << 0;
    QTest::newRow("one point is fine") << values{5} << values{9} << 0 << 0;
    QTest::newRow("descending") << values{0, 10, 9} << values{0, 1, 2} << 1 << 0;
    QTest::newRow("equal neighbours") << values{0, 4, 4} << values{0, 1, 2} << 3 << 0;
    QTest::newRow("just under the tolerance") << values{0, 0.999} << values{0, 1} << 3 << 0;
    QTest::newRow("at the tolerance") << values{0, 1} << values{0, 1} << 0 << 1;
}

// A refused list and a single point leave no segments; evaluating is then the
// identity, whatever the points said.
void tst_curve_operations::spline_checks_points()
{
    QFETCH(values, xs);
    QFETCH(values, ys);
    QFETCH(int, error);
    QFETCH(int, segments);
    cubic_spline spline;
    spline.set_points(values{0, 1, 2}, values{0, 1, 0});
    spline.set_points(xs, ys);
    QCOMPARE(spline.error(), error);
    QCOMPARE(spline.segments().size(), segments);
    if (segments == 0) {
        QCOMPARE(spline.value_at(7.5), 7.5);
    }
}

void tst_curve_operations::spline_evaluates_data()
{
    QTest::addColumn<values>("xs");
    QTest::addColumn<values>("ys");
    QTest::addColumn<double>("v");
    QTest::addColumn<double>("expected");

    // The natural spline through (0,0), (1,1), (2,0) is 1.5t - 0.5t^3 on the first
    // segment and 1 - 1.5t^2 + 0.5t^3 on the second.
    const values hat_x{0, 1, 2};
    const values hat_y{0, 1, 0};
    QTest::newRow("inside the first segment") << hat_x << hat_y << 0.5 << 0.6875;
    QTest::newRow("inside the last segment") << hat_x << hat_y << 1.5 << 0.6875;
    QTest::newRow("below the first point, unclamped") << hat_x << hat_y << -1.0 << -1.0;
    QTest::newRow("above the last point, unclamped") << hat_x << hat_y << 3.0 << -1.0;
    QTest::newRow("two points are a line") << values{0, 10} << values{0, 20} << 4.0 << 8.0;
}

void tst_curve_operations::spline_evaluates()
{
    QFETCH(values, xs);
    QFETCH(values, ys);
    QFETCH(double, v);
    QFETCH(double, expected);
    cubic_spline spline;
    spline.set_points(xs, ys);
    QCOMPARE(spline.error(), 0);
    QCOMPARE(spline.value_at(v), expected);
}

void tst_curve_operations::raster_curve_levels_data()
{
    QTest::addColumn<QString>("curve");
    QTest::addColumn<QString>("expected");
    row("descending x reads as identity", "255,255 128,50 0,0",
        "0,0 31,31 63,63 95,95 127,127 159,159 191,191 223,223 255,255");
    row("above 255 is cut, 255 itself truncates", "0,0 255,510",
        "0,0 31,63 63,127 95,191 127,255 159,255 191,255 223,255 255,255");
    row("0 and below are cut", "0,-255 255,255",
        "0,0 31,0 63,0 95,0 127,0 159,63 191,127 223,191 255,255");
}

void tst_curve_operations::raster_curve_levels()
{
    QFETCH(QString, curve);
    QFETCH(QString, expected);
    QCOMPARE(levels_of(raster_curve(points_from(curve))), expected);
}

void tst_curve_operations::ease_low_end_levels_data()
{
    QTest::addColumn<QString>("curve");
    QTest::addColumn<QString>("expected");
    row("x 0 loses half its height", "0,100 0,-100", "0,50 0,-50");
    row("halfway the pull is a quarter", "42,142", "42,117");
    row("the result truncates", "10,11", "10,10");
    row("x 84 and 85 stay", "84,200 85,-100", "84,200 85,-100");
    row("negative x pulls harder", "-84,0", "-84,-84");
    row("beyond int saturates", "84,2147483647", "84,2147483647");
}

void tst_curve_operations::ease_low_end_levels()
{
    QFETCH(QString, curve);
    QFETCH(QString, expected);
    QCOMPARE(levels_of(ease_low_end(points_from(curve))), expected);
}

void tst_curve_operations::curve_to_text_form_data()
{
    QTest::addColumn<QString>("curve");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("warnings");
    // These three levels print differently when divided in double precision.
    QTest::newRow("single-precision division")
        << "80,131 182,0"
        << "0.313726,0.513726;0.713726,0.000000" << QStringList{};
    QTest::newRow("cut with a warning")
        << "-1,0 256,255 0,-5"
        << "0.000000,0.000000;1.000000,1.000000;0.000000,0.000000"
        << QStringList{"GradationCurveRed point QPoint(-1,0) is out of range and will be clamped!",
                       "GradationCurveRed point QPoint(256,255) is out of range and will be "
                       "clamped!",
                       "GradationCurveRed point QPoint(0,-5) is out of range and will be "
                       "clamped!"};
}

void tst_curve_operations::curve_to_text_form()
{
    QFETCH(QString, curve);
    QFETCH(QString, expected);
    QFETCH(QStringList, warnings);
    style_values style;
    const test_support::log_capture log;
    curve_to_text(style, QStringLiteral("GradationCurveRed"), points_from(curve));
    QCOMPARE(style.value(QStringLiteral("GradationCurveRed")), expected);
    QCOMPARE(style.contains(QStringLiteral("GradationCurveRed")), !expected.isNull());
    QCOMPARE(log.messages(QtWarningMsg), warnings);
}

// The identity table gives every level back, except 255, which comes back as 256;
// channels of unequal size are rastered first, and any difference counts.
void tst_curve_operations::table_pass_rasters_unequal_channels()
{
    channel_curves channels{points_from(QStringLiteral("0,0 255,255")),
                            points_from(QStringLiteral("0,0 255,255")),
                            points_from(QStringLiteral("0,0 64,32 255,255"))};
    table_pass(channels, lut_set().identity());
    const QString diagonal =
        QStringLiteral("0,0 31,31 63,63 95,95 127,127 159,159 191,191 223,223 256,256");
    QCOMPARE(levels_of(channels[0]), diagonal);
    QCOMPARE(levels_of(channels[1]), diagonal);
    QCOMPARE(levels_of(channels[2]),
             QStringLiteral("0,0 31,13 63,31 95,56 127,88 159,125 191,166 223,210 256,256"));
}

QTEST_GUILESS_MAIN(tst_curve_operations)
#include "tst_curve_operations.moc"
