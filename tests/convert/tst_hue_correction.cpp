#include "convert/hue_correction.h"
#include "convert/lut_set.h"

#include <QtTest>

#include <limits>

namespace {

// A table that maps every colour to one (red, green, blue); entries are stored
// blue first.
lut_3d constant_table(float red, float green, float blue)
{
    lut_3d table;
    table.edge = 2;
    table.entries.assign(8, lut_entry{blue, green, red, 1.0f});
    return table;
}

} // namespace

Q_DECLARE_METATYPE(lut_3d)

class tst_hue_correction : public QObject
{
    Q_OBJECT

private slots:
    void thousandths_data();
    void thousandths();
    void through_table_data();
    void through_table();
};

void tst_hue_correction::thousandths_data()
{
    QTest::addColumn<float>("degrees");
    QTest::addColumn<int>("expected");
    const int int_min = std::numeric_limits<int>::min();
    const int int_max = std::numeric_limits<int>::max();
    const float infinity = std::numeric_limits<float>::infinity();

    QTest::newRow("truncated, not rounded") << 0.0015f << 1;
    QTest::newRow("negative truncated towards zero") << -0.0015f << -1;
    QTest::newRow("largest that fits") << 2147483.5f << 2147483520;
    QTest::newRow("just beyond the top") << 2147483.75f << int_max;
    QTest::newRow("lowest that fits") << -2147483.5f << -2147483520;
    QTest::newRow("just beyond the bottom") << -2147483.75f << int_min;
    QTest::newRow("infinity") << infinity << int_max;
    QTest::newRow("minus infinity") << -infinity << int_min;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << 0;
}

void tst_hue_correction::thousandths()
{
    QFETCH(float, degrees);
    QFETCH(int, expected);
    QCOMPARE(hue_thousandths(degrees), expected);
}

void tst_hue_correction::through_table_data()
{
    QTest::addColumn<lut_3d>("table");
    QTest::addColumn<float>("degrees");
    QTest::addColumn<int>("expected");
    // The identity leaves the probe's levels as they are: its 192 reads 192/255
    // and comes back as 192.75, truncated.
    const lut_3d identity = lut_set().identity();
    QTest::newRow("identity keeps orange") << identity << 30.0f << 30000;
    QTest::newRow("identity, negative hue") << identity << -330.0f << 30000;
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
    QFETCH(int, expected);
    QCOMPARE(corrected_hue(table, degrees), expected);
}

QTEST_GUILESS_MAIN(tst_hue_correction)
#include "tst_hue_correction.moc"
