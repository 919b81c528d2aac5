#include "convert/cubic_spline.h"

#include <QtTest>

using values = QVector<double>;

class tst_cubic_spline : public QObject
{
    Q_OBJECT

private slots:
    void checks_points_data();
    void checks_points();
    void evaluates_data();
    void evaluates();
};

void tst_cubic_spline::checks_points_data()
{
    QTest::addColumn<values>("xs");
    QTest::addColumn<values>("ys");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("segments");

    QTest::newRow("no points") << values{} << values{} << 2 << 0;
    QTest::newRow("x without y") << values{0, 1} << values{} << 2 << 0;
    QTest::newRow("unequal lengths") << values{0, 1, 2} << values{0, 1} << 2 << 0;
    QTest::newRow("one point is fine") << values{5} << values{9} << 0 << 0;
    QTest::newRow("descending") << values{0, 10, 9} << values{0, 1, 2} << 1 << 0;
    QTest::newRow("equal neighbours") << values{0, 4, 4} << values{0, 1, 2} << 3 << 0;
    QTest::newRow("just under the tolerance") << values{0, 0.999} << values{0, 1} << 3 << 0;
    QTest::newRow("at the tolerance") << values{0, 1} << values{0, 1} << 0 << 1;
    QTest::newRow("three points") << values{0, 128, 255} << values{0, 160, 255} << 0 << 2;
}

// A refused list and a single point leave no segments; evaluating is then the
// identity, whatever the points said.
void tst_cubic_spline::checks_points()
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

void tst_cubic_spline::evaluates_data()
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
    QTest::newRow("at the inner point") << hat_x << hat_y << 1.0 << 1.0;
    QTest::newRow("inside the last segment") << hat_x << hat_y << 1.5 << 0.6875;
    QTest::newRow("below the first point, unclamped") << hat_x << hat_y << -1.0 << -1.0;
    QTest::newRow("above the last point, unclamped") << hat_x << hat_y << 3.0 << -1.0;
    QTest::newRow("two points are a line") << values{0, 10} << values{0, 20} << 4.0 << 8.0;
    QTest::newRow("a line goes on beyond its end")
        << values{0, 10} << values{0, 20} << 20.0 << 40.0;
}

void tst_cubic_spline::evaluates()
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

QTEST_GUILESS_MAIN(tst_cubic_spline)
#include "tst_cubic_spline.moc"
