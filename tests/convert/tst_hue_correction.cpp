// The fixed-point hue arithmetic and the hue correction built on it: a hue to a
// colour, through a table, and back to a hue.
#include "convert/hue_correction.h"

#include "convert/hsl_fixed.h"
#include "convert/lut_set.h"

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

// A table that maps every colour to one (red, green, blue); entries are stored
// blue first.
lut_3d constant_table(float red, float green, float blue)
{
    lut_3d table;
    table.edge = 2;
    table.entries.assign(8, lut_entry{blue, green, red, 1.0f});
    return table;
}

constexpr int int_min = std::numeric_limits<int>::min();
constexpr int int_max = std::numeric_limits<int>::max();

} // namespace

Q_DECLARE_METATYPE(lut_3d)

class tst_hue_correction : public QObject
{
    Q_OBJECT

private slots:
    void hsl_to_rgb_data();
    void hsl_to_rgb();
    void rgb_to_hue_data();
    void rgb_to_hue();
    void round_trip_around_the_circle();
    void thousandths_data();
    void thousandths();
    void through_table_data();
    void through_table();
};

void tst_hue_correction::hsl_to_rgb_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("saturation");
    QTest::addColumn<int>("lightness");
    QTest::addColumn<QString>("expected");

    QTest::newRow("red") << 0 << 100000 << 50000 << "255,0,0";
    QTest::newRow("orange, products beyond 32 bits") << 30000 << 100000 << 50000 << "255,128,0";
    QTest::newRow("chartreuse, falling sector") << 90000 << 100000 << 50000 << "128,255,0";
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

void tst_hue_correction::hsl_to_rgb()
{
    QFETCH(int, hue);
    QFETCH(int, saturation);
    QFETCH(int, lightness);
    QTEST(levels_text(hsl_to_rgb_fixed(hue, saturation, lightness)), "expected");
}

void tst_hue_correction::rgb_to_hue_data()
{
    QTest::addColumn<int>("red");
    QTest::addColumn<int>("green");
    QTest::addColumn<int>("blue");
    QTest::addColumn<int>("expected");
    QTest::newRow("grey") << 128 << 128 << 128 << 0;
    QTest::newRow("red, green just above blue") << 255 << 1 << 0 << 235;
    QTest::newRow("red, blue just above green") << 255 << 0 << 1 << 359765;
    QTest::newRow("rose truncates towards zero") << 255 << 0 << 128 << 329883;
    QTest::newRow("cyan, green branch") << 0 << 255 << 255 << 180000;
    QTest::newRow("blue, green above red truncates") << 10 << 100 << 200 << 211579;
}

void tst_hue_correction::rgb_to_hue()
{
    QFETCH(int, red);
    QFETCH(int, green);
    QFETCH(int, blue);
    QTEST(rgb_to_hue_fixed({red, green, blue}), "expected");
}

// Every whole degree at full saturation comes back within one level's worth of
// hue, measured the short way round the circle.
void tst_hue_correction::round_trip_around_the_circle()
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

void tst_hue_correction::thousandths_data()
{
    QTest::addColumn<float>("degrees");
    QTest::addColumn<int>("expected");
    QTest::newRow("truncated, not rounded") << 0.0015f << 1;
    QTest::newRow("negative truncated towards zero") << -0.0015f << -1;
    QTest::newRow("largest that fits") << 2147483.5f << 2147483520;
    QTest::newRow("just beyond the top") << 2147483.75f << int_max;
    QTest::newRow("lowest that fits") << -2147483.5f << -2147483520;
    QTest::newRow("just beyond the bottom") << -2147483.75f << int_min;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << 0;
}

void tst_hue_correction::thousandths()
{
    QFETCH(float, degrees);
    QTEST(hue_thousandths(degrees), "expected");
}

void tst_hue_correction::through_table_data()
{
    QTest::addColumn<lut_3d>("table");
    QTest::addColumn<float>("degrees");
    QTest::addColumn<int>("expected");
    // The identity leaves the probe's levels as they are: its 192 reads 192/255
    // and comes back as 192.75, truncated.
    QTest::newRow("identity keeps orange") << lut_set().identity() << 30.0f << 30000;
    QTest::newRow("red just below 1.0 tops out")
        << constant_table(0.999f, 0.5f, 0) << 0.0f << 30117;
    QTest::newRow("red of 1.0 wraps to 0") << constant_table(1, 0.5f, 0) << 0.0f << 120000;
    QTest::newRow("negative red gives 0") << constant_table(-0.5f, 0.5f, 0.25f) << 0.0f << 150000;
    QTest::newRow("first result channel is blue") << constant_table(0, 0, 0.75f) << 0.0f << 240000;
}

void tst_hue_correction::through_table()
{
    QFETCH(lut_3d, table);
    QFETCH(float, degrees);
    QTEST(corrected_hue(table, degrees), "expected");
}

QTEST_GUILESS_MAIN(tst_hue_correction)
#include "tst_hue_correction.moc"
