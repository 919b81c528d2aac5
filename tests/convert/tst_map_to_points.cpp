#include "convert/map_to_points.h"
#include "support/test_support.h"

#include <QtTest>

#include <limits>

using points = QVector<QPointF>;

class tst_map_to_points : public QObject
{
    Q_OBJECT

private slots:
    void maps_data();
    void maps();
};

void tst_map_to_points::maps_data()
{
    QTest::addColumn<points>("list");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("expected");
    QTest::addColumn<bool>("fails");

    const points line{{-100, 2000}, {0, 5500}, {100, 50000}};
    QTest::newRow("at the first point") << line << -100.0f << 2000.0f << false;
    QTest::newRow("inside the first pair") << line << -50.0f << 3750.0f << false;
    QTest::newRow("shared point belongs to the earlier pair") << line << 0.0f << 5500.0f << false;
    QTest::newRow("at the last point") << line << 100.0f << 50000.0f << false;
    QTest::newRow("just above the last point") << line << 100.5f << 0.0f << true;
    QTest::newRow("just below the first point") << line << -100.5f << 0.0f << true;
    QTest::newRow("not a number") << line << std::numeric_limits<float>::quiet_NaN() << 0.0f
                                  << true;
    QTest::newRow("one point") << points{{1, 1}} << 1.0f << 0.0f << true;
    QTest::newRow("empty list") << points{} << 1.0f << 0.0f << true;
    QTest::newRow("origin counts as unset") << points{{0, 0}, {10, 10}} << 5.0f << 0.0f << true;
    QTest::newRow("origin in a later pair only fails there")
        << points{{-10, 5}, {-5, 10}, {0, 0}} << -7.5f << 7.5f << false;
}

void tst_map_to_points::maps()
{
    QFETCH(points, list);
    QFETCH(float, value);
    QFETCH(float, expected);
    QFETCH(bool, fails);
    const test_support::log_capture log;
    QCOMPARE(map_to_points(value, list), expected);
    const QStringList warnings = log.messages(QtWarningMsg);
    QCOMPARE(warnings.size(), fails ? 1 : 0);
    if (fails) {
        QVERIFY2(warnings.first().startsWith(QStringLiteral("map_to_points failed. ")),
                 qPrintable(warnings.first()));
    }
}

QTEST_GUILESS_MAIN(tst_map_to_points)
#include "tst_map_to_points.moc"
