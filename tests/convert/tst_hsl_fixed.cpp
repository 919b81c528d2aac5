#include "convert/hsl_fixed.h"

#include <QtTest>

#include <limits>

namespace {

QString levels_text(const rgb_levels& colour)
{
    return QStringLiteral("%1,%2,%3").arg(colour.red).arg(colour.green).arg(colour.blue);
}

// One 8-bit level is 1/255 of a 60 degree sector, 235.3 thousandths of a degree;
// the way there and back truncates once each, in opposite directions.
constexpr int round_trip_tolerance = 236;

} // namespace

class tst_hsl_fixed : public QObject
{
    Q_OBJECT

private slots:
    void hsl_to_rgb_data();
    void hsl_to_rgb();
    void rgb_to_hue_data();
    void rgb_to_hue();
    void round_trip_around_the_circle();
};

void tst_hsl_fixed::hsl_to_rgb_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("saturation");
    QTest::addColumn<int>("lightness");
    QTest::addColumn<QString>("expected");
    const int int_min = std::numeric_limits<int>::min();
    const int int_max = std::numeric_limits<int>::max();

    QTest::newRow("red") << 0 << 100000 << 50000 << "255,0,0";
    QTest::newRow("orange, products beyond 32 bits") << 30000 << 100000 << 50000 << "255,128,0";
    QTest::newRow("chartreuse, falling sector") << 90000 << 100000 << 50000 << "128,255,0";
    QTest::newRow("cyan") << 180000 << 100000 << 50000 << "0,255,255";
    QTest::newRow("magenta") << 300000 << 100000 << 50000 << "255,0,255";
    QTest::newRow("rose, last sector") << 330000 << 100000 << 50000 << "255,0,128";
    QTest::newRow("a full turn is red") << 360000 << 100000 << 50000 << "255,0,0";
    QTest::newRow("negative hue counts back") << -60000 << 100000 << 50000 << "255,0,255";
    QTest::newRow("lowest 32-bit hue") << int_min << 100000 << 50000 << "155,0,255";
    QTest::newRow("highest 32-bit hue") << int_max << 100000 << 50000 << "155,255,0";
    QTest::newRow("half saturation") << 0 << 50000 << 50000 << "192,64,64";
    QTest::newRow("light tint, saturation limited") << 0 << 100000 << 75000 << "255,128,128";
    QTest::newRow("dark shade") << 0 << 100000 << 25000 << "128,0,0";
    QTest::newRow("saturation above full is cut") << 0 << 250000 << 50000 << "255,0,0";
    QTest::newRow("negative saturation is grey") << 0 << -5 << 50000 << "128,128,128";
    QTest::newRow("lightness above full is white") << 0 << 100000 << 150000 << "255,255,255";
    QTest::newRow("negative lightness is black") << 0 << 100000 << -1 << "0,0,0";
}

void tst_hsl_fixed::hsl_to_rgb()
{
    QFETCH(int, hue);
    QFETCH(int, saturation);
    QFETCH(int, lightness);
    QFETCH(QString, expected);
    QCOMPARE(levels_text(hsl_to_rgb_fixed(hue, saturation, lightness)), expected);
}

void tst_hsl_fixed::rgb_to_hue_data()
{
    QTest::addColumn<int>("red");
    QTest::addColumn<int>("green");
    QTest::addColumn<int>("blue");
    QTest::addColumn<int>("expected");
    QTest::newRow("grey") << 128 << 128 << 128 << 0;
    QTest::newRow("red, a full turn wraps to 0") << 255 << 0 << 0 << 0;
    QTest::newRow("red, green just above blue") << 255 << 1 << 0 << 235;
    QTest::newRow("red, blue just above green") << 255 << 0 << 1 << 359765;
    QTest::newRow("rose truncates towards zero") << 255 << 0 << 128 << 329883;
    QTest::newRow("yellow, red ties green") << 255 << 255 << 0 << 60000;
    QTest::newRow("magenta, red ties blue") << 255 << 0 << 255 << 300000;
    QTest::newRow("green above red and blue") << 100 << 200 << 50 << 100000;
    QTest::newRow("cyan, green ties blue") << 0 << 255 << 255 << 180000;
    QTest::newRow("blue, green above red truncates") << 10 << 100 << 200 << 211579;
}

void tst_hsl_fixed::rgb_to_hue()
{
    QFETCH(int, red);
    QFETCH(int, green);
    QFETCH(int, blue);
    QFETCH(int, expected);
    QCOMPARE(rgb_to_hue_fixed({red, green, blue}), expected);
}

// Every whole degree at full saturation comes back within one level's worth of
// hue, measured the short way round the circle.
void tst_hsl_fixed::round_trip_around_the_circle()
{
    for (int degree = 0; degree < 360; ++degree) {
        const rgb_levels colour = hsl_to_rgb_fixed(degree * 1000, 100000, 50000);
        const int hue = rgb_to_hue_fixed(colour);
        QVERIFY2(hue >= 0 && hue < 360000, qPrintable(QString::number(hue)));
        int difference = hue - degree * 1000;
        if (difference > 180000) {
            difference -= 360000;
        } else if (difference < -180000) {
            difference += 360000;
        }
        QVERIFY2(std::abs(difference) <= round_trip_tolerance,
                 qPrintable(QStringLiteral("%1 degrees: %2 gives %3")
                                .arg(degree)
                                .arg(levels_text(colour))
                                .arg(hue)));
    }
}

QTEST_GUILESS_MAIN(tst_hsl_fixed)
#include "tst_hsl_fixed.moc"
