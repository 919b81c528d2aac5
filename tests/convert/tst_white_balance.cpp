#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::stage_entries;

class tst_white_balance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { test_support::use_test_settings(); }
    void white_balance_data();
    void white_balance();
};

void tst_white_balance::white_balance_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QStringList>("expected");
    // Each expected warning is the start of the logged one, in order.
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    const QString unknown =
        QStringLiteral("get_tint_shift: Unknown color space: %1. Not ofsetting.");
    const QString lookup_failed = QStringLiteral("map_to_points failed.");

    // The offset columns: 5500 K is half way between the offsets at 5000 and 6000.
    QTest::newRow("srgb column") << "srgb" << QStringList{"Temperature=5500", "Tint=0"}
                                 << QStringList{"WhiteBalanceTemperature=5500",
                                                "WhiteBalanceTint=-6.000000"}
                                 << none;
    QTest::newRow("prophoto column")
        << "prophoto" << QStringList{"Temperature=5500", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=5500", "WhiteBalanceTint=-6.000000"} << none;
    QTest::newRow("widegamut column")
        << "widegamut" << QStringList{"Temperature=5500", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=5500", "WhiteBalanceTint=-6.000000"} << none;
    QTest::newRow("raw has no offset, silently")
        << "raw" << QStringList{"Temperature=5500", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=5500", "WhiteBalanceTint=0.000000"} << none;
    QTest::newRow("adobe has no column and warns")
        << "adobe" << QStringList{"Temperature=5500", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=5500", "WhiteBalanceTint=0.000000"}
        << QStringList{unknown.arg("adobe")};
    QTest::newRow("unknown text warns with its spelling")
        << "sRGB" << QStringList{"Temperature=5500", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=5500", "WhiteBalanceTint=0.000000"}
        << QStringList{unknown.arg("sRGB")};
    QTest::newRow("prophoto 6500 K")
        << "prophoto" << QStringList{"Temperature=6500", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=6500", "WhiteBalanceTint=-15.500000"} << none;
    QTest::newRow("fraction kept to six digits")
        << "prophoto" << QStringList{"Temperature=6543.21", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=6543.21", "WhiteBalanceTint=-15.802469"} << none;
    QTest::newRow("prophoto alone has a point at 11000 K")
        << "prophoto" << QStringList{"Temperature=11000", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=11000", "WhiteBalanceTint=-40.000000"} << none;
    QTest::newRow("above 14000 K is cut")
        << "srgb" << QStringList{"Temperature=20000", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=14000", "WhiteBalanceTint=-32.000000"} << none;
    QTest::newRow("below 800 K is cut")
        << "srgb" << QStringList{"Temperature=500", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=800", "WhiteBalanceTint=-22.000000"} << none;
    QTest::newRow("just above 800 K")
        << "srgb" << QStringList{"Temperature=800.5", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=800.5", "WhiteBalanceTint=-21.997381"} << none;
    QTest::newRow("widegamut offset at 800 K")
        << "widegamut" << QStringList{"Temperature=500", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=800", "WhiteBalanceTint=-7.600000"} << none;
    QTest::newRow("plus sign parses")
        << "srgb" << QStringList{"Temperature=+6000", "Tint=+0"}
        << QStringList{"WhiteBalanceTemperature=6000", "WhiteBalanceTint=-12.000000"} << none;

    // Tint on -150..150, its offset added afterwards and the sum cut to -50..50.
    QTest::newRow("tint at 150") << "srgb" << QStringList{"Temperature=7000", "Tint=150"}
                                 << QStringList{"WhiteBalanceTemperature=7000",
                                                "WhiteBalanceTint=34.000000"}
                                 << none;
    QTest::newRow("tint above 150")
        << "srgb" << QStringList{"Temperature=7000", "Tint=151"}
        << QStringList{"WhiteBalanceTemperature=7000", "WhiteBalanceTint=34.000000"} << none;
    QTest::newRow("tint just below 150")
        << "srgb" << QStringList{"Temperature=7000", "Tint=149"}
        << QStringList{"WhiteBalanceTemperature=7000", "WhiteBalanceTint=33.666668"} << none;
    QTest::newRow("tint at -150, sum cut")
        << "srgb" << QStringList{"Temperature=7000", "Tint=-150"}
        << QStringList{"WhiteBalanceTemperature=7000", "WhiteBalanceTint=-50.000000"} << none;
    QTest::newRow("negative tint")
        << "srgb" << QStringList{"Temperature=7000", "Tint=-30"}
        << QStringList{"WhiteBalanceTemperature=7000", "WhiteBalanceTint=-26.000000"} << none;
    QTest::newRow("tint just above -150")
        << "raw" << QStringList{"Tint=-149"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=-49.666668"} << none;
    QTest::newRow("relative tint on its own cut")
        << "srgb" << QStringList{"Temperature=6000", "IncrementalTint=-100"}
        << QStringList{"WhiteBalanceTemperature=6000", "WhiteBalanceTint=-50.000000"} << none;

    // The relative temperature table.
    QTest::newRow("relative 0") << "raw" << QStringList{"IncrementalTemperature=0"}
                                << QStringList{"WhiteBalanceTemperature=5500", "WhiteBalanceTint=0"}
                                << none;
    QTest::newRow("relative 100, cut")
        << "raw" << QStringList{"IncrementalTemperature=100"}
        << QStringList{"WhiteBalanceTemperature=14000", "WhiteBalanceTint=0"} << none;
    QTest::newRow("relative 12.5")
        << "raw" << QStringList{"IncrementalTemperature=12.5"}
        << QStringList{"WhiteBalanceTemperature=6228.5", "WhiteBalanceTint=0"} << none;
    QTest::newRow("relative -60") << "raw" << QStringList{"IncrementalTemperature=-60"}
                                  << QStringList{"WhiteBalanceTemperature=2757.8",
                                                 "WhiteBalanceTint=0"}
                                  << none;
    QTest::newRow("relative above 100 fails the lookup")
        << "raw" << QStringList{"IncrementalTemperature=150"}
        << QStringList{"WhiteBalanceTemperature=800", "WhiteBalanceTint=0"}
        << QStringList{lookup_failed};
    QTest::newRow("relative below -100 fails the lookup")
        << "raw" << QStringList{"IncrementalTemperature=-100.5"}
        << QStringList{"WhiteBalanceTemperature=800", "WhiteBalanceTint=0"}
        << QStringList{lookup_failed};
    QTest::newRow("relative tint 100")
        << "raw" << QStringList{"IncrementalTint=100"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=50.000000"} << none;
    QTest::newRow("relative tint above 100")
        << "raw" << QStringList{"IncrementalTint=101"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=50.000000"} << none;
    QTest::newRow("relative tint -100")
        << "raw" << QStringList{"IncrementalTint=-100"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=-50.000000"} << none;
    QTest::newRow("relative tint just above -100")
        << "raw" << QStringList{"IncrementalTint=-99.5"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=-49.750000"} << none;

    // Completion and the choice between absolute and relative keys.
    QTest::newRow("temperature alone drops its offset")
        << "srgb" << QStringList{"Temperature=7000"}
        << QStringList{"WhiteBalanceTemperature=7000", "WhiteBalanceTint=0"} << none;
    QTest::newRow("tint alone has no offset")
        << "srgb" << QStringList{"Tint=30"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=10.000000"} << none;
    QTest::newRow("tint alone does not reach the adobe warning")
        << "adobe" << QStringList{"Tint=30"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=10.000000"} << none;
    QTest::newRow("unreadable temperature blocks the relative one")
        << "raw" << QStringList{"Temperature=warm", "IncrementalTemperature=10"} << QStringList()
        << none;
    QTest::newRow("unreadable temperature with a tint")
        << "raw" << QStringList{"Temperature=warm", "Tint=30"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=10.000000"} << none;
    QTest::newRow("unreadable tint gives way to the relative one")
        << "raw" << QStringList{"Tint=x", "IncrementalTint=50"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=25.000000"} << none;
    QTest::newRow("absolute temperature wins")
        << "srgb" << QStringList{"Temperature=6000", "IncrementalTemperature=0", "Tint=0"}
        << QStringList{"WhiteBalanceTemperature=6000", "WhiteBalanceTint=-12.000000"} << none;
    QTest::newRow("absolute tint wins")
        << "raw" << QStringList{"Tint=30", "IncrementalTint=100"}
        << QStringList{"WhiteBalanceTemperature=5000", "WhiteBalanceTint=10.000000"} << none;
    QTest::newRow("none of the four keys")
        << "srgb" << QStringList{"Exposure2012Typo=1"} << QStringList() << none;
}

void tst_white_balance::white_balance()
{
    QFETCH(QString, colour_space);
    QFETCH(QStringList, settings);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, warnings);
    const test_support::log_capture log;
    QCOMPARE(stage_entries(settings, colour_space), expected);
    const QStringList logged = log.messages(QtWarningMsg);
    QCOMPARE(logged.size(), warnings.size());
    for (int i = 0; i < warnings.size(); ++i) {
        QVERIFY2(logged[i].startsWith(warnings[i]), qPrintable(logged[i]));
    }
}

QTEST_GUILESS_MAIN(tst_white_balance)
#include "tst_white_balance.moc"
