#include "convert/range_mapping.h"
#include "convert/conversion_state.h"
#include "convert/lut_set.h"
#include "convert/number_text.h"
#include "converted_entries.h"

#include <QtTest>

using converted_entries::preset_from;

namespace {

QStringList entries(const style_values& values)
{
    QStringList list;
    for (auto it = values.begin(); it != values.end(); ++it) {
        list << it.key() + QLatin1Char('=') + it.value();
    }
    return list;
}

} // namespace

class tst_range_mapping : public QObject
{
    Q_OBJECT

private slots:
    void two_sided_scale_data();
    void two_sided_scale();
    void copies_data();
    void copies();
};

void tst_range_mapping::two_sided_scale_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("expected");

    // Bound 100, negative side to -50, positive side to 22: the two slopes differ.
    QTest::newRow("above the bound") << 100.5f << "22.000000";
    QTest::newRow("at the bound") << 100.0f << "22.000000";
    QTest::newRow("just inside the bound") << 99.5f << "21.889999";
    QTest::newRow("positive half") << 50.0f << "11.000000";
    QTest::newRow("zero") << 0.0f << "0.000000";
    QTest::newRow("negative half") << -50.0f << "-25.000000";
    QTest::newRow("just inside the negative bound") << -99.5f << "-49.750000";
    QTest::newRow("at the negative bound") << -100.0f << "-50.000000";
    QTest::newRow("below the negative bound") << -100.5f << "-50.000000";
}

void tst_range_mapping::two_sided_scale()
{
    QFETCH(float, value);
    QFETCH(QString, expected);
    QCOMPARE(six_decimal(::two_sided_scale(value, 100.0f, 50.0f, 22.0f)), expected);
}

void tst_range_mapping::copies_data()
{
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QStringList>("expected");

    // Source "In" into target "Out"; copy_scaled over -2..4 onto -10..30.
    QTest::newRow("absent") << QStringList{"Other=1"} << QStringList();
    QTest::newRow("empty text") << QStringList{"In="} << QStringList();
    QTest::newRow("not a number") << QStringList{"In=1x"} << QStringList();
    QTest::newRow("plus sign") << QStringList{"In=+3"}
                               << QStringList{"Out=22.500000", "Raw=3.000000"};
    QTest::newRow("exponent") << QStringList{"In=-1e0"}
                              << QStringList{"Out=-5.000000", "Raw=-1.000000"};
    QTest::newRow("above the input range")
        << QStringList{"In=5"} << QStringList{"Out=30.000000", "Raw=5.000000"};
    QTest::newRow("below the input range")
        << QStringList{"In=-3"} << QStringList{"Out=-10.000000", "Raw=-3.000000"};
}

void tst_range_mapping::copies()
{
    QFETCH(QStringList, settings);
    QFETCH(QStringList, expected);
    const preset_settings preset = preset_from(settings);
    const lut_set luts;
    conversion_state state{preset, luts, QStringLiteral("raw"), {}, false, false, {}};
    copy_scaled(state, QStringLiteral("In"), QStringLiteral("Out"), -2.0f, 4.0f, -10.0f, 30.0f);
    copy_as_fixed(state, QStringLiteral("In"), QStringLiteral("Raw"));
    QCOMPARE(entries(state.values), expected);
}

QTEST_GUILESS_MAIN(tst_range_mapping)
#include "tst_range_mapping.moc"
