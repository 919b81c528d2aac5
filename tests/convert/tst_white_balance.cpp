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
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected"); // "temperature tint", or empty for neither key
    QTest::addColumn<QString>("warning");  // the start of the one warning, if any

    const QString unknown =
        QStringLiteral("get_tint_shift: Unknown color space: %1. Not ofsetting.");
    const QString lookup_failed = QStringLiteral("map_to_points failed.");
    const auto row = [](const char* name, const char* colour_space, const char* settings,
                        const char* expected, const QString& warning = {}) {
        QTest::newRow(name) << QString(colour_space) << QString(settings) << QString(expected)
                            << warning;
    };
    // The offset columns: 5500 K is half way between the offsets at 5000 and 6000 K.
    row("srgb column", "srgb", "Temperature=5500 Tint=0", "5500 -6.000000");
    row("prophoto, six significant digits", "prophoto", "Temperature=6543.21 Tint=0",
        "6543.21 -15.802469");
    row("prophoto alone has 11000 K", "prophoto", "Temperature=11000 Tint=0", "11000 -40.000000");
    row("raw: no offset, silently", "raw", "Temperature=5500 Tint=0", "5500 0.000000");
    row("adobe has no column and warns", "adobe", "Temperature=5500 Tint=0", "5500 0.000000",
        unknown.arg("adobe"));
    row("unknown text warns as spelt", "sRGB", "Temperature=5500 Tint=0", "5500 0.000000",
        unknown.arg("sRGB"));
    row("above 14000 K cut", "srgb", "Temperature=20000 Tint=0", "14000 -32.000000");
    row("below 800 K cut", "srgb", "Temperature=500 Tint=0", "800 -22.000000");
    row("just above 800 K", "srgb", "Temperature=800.5 Tint=0", "800.5 -21.997381");
    row("widegamut at 800 K", "widegamut", "Temperature=500 Tint=0", "800 -7.600000");

    // Tint on -150..150, the offset added afterwards and the sum cut to -50..50.
    row("tint above 150", "srgb", "Temperature=7000 Tint=151", "7000 34.000000");
    row("tint just below 150", "srgb", "Temperature=7000 Tint=149", "7000 33.666668");
    row("tint -150, sum cut", "srgb", "Temperature=7000 Tint=-150", "7000 -50.000000");
    row("tint just above -150", "raw", "Tint=-149", "5000 -49.666668");

    // The relative keys; the temperature's steps are uneven.
    row("relative 12.5", "raw", "IncrementalTemperature=12.5", "6228.5 0");
    row("relative 100, cut", "raw", "IncrementalTemperature=100", "14000 0");
    row("relative above 100 fails", "raw", "IncrementalTemperature=150", "800 0", lookup_failed);
    row("relative below -100 fails", "raw", "IncrementalTemperature=-100.5", "800 0",
        lookup_failed);
    row("relative tint above 100", "raw", "IncrementalTint=101", "5000 50.000000");
    row("relative tint -100", "raw", "IncrementalTint=-100", "5000 -50.000000");
    row("relative tint just above -100", "raw", "IncrementalTint=-99.5", "5000 -49.750000");

    // Completion, and the choice between absolute and relative keys.
    row("temperature alone drops its offset", "srgb", "Temperature=7000", "7000 0");
    row("tint alone has no offset", "srgb", "Tint=30", "5000 10.000000");
    row("tint alone skips adobe's warning", "adobe", "Tint=30", "5000 10.000000");
    row("unreadable temperature blocks relative", "raw",
        "Temperature=warm IncrementalTemperature=10", "");
    row("unreadable tint gives way", "raw", "Tint=x IncrementalTint=50", "5000 25.000000");
    row("absolute temperature wins", "srgb", "Temperature=6000 IncrementalTemperature=0 Tint=0",
        "6000 -12.000000");
    row("absolute tint wins", "raw", "Tint=30 IncrementalTint=100", "5000 10.000000");
}

void tst_white_balance::white_balance()
{
    QFETCH(QString, colour_space);
    QFETCH(QString, settings);
    QFETCH(QString, expected);
    QFETCH(QString, warning);
    const test_support::log_capture log;
    const QStringList pair = expected.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString entries = pair.isEmpty()
                                ? QString()
                                : QStringLiteral("WhiteBalanceTemperature=%1 WhiteBalanceTint=%2")
                                      .arg(pair.value(0), pair.value(1));
    QCOMPARE(stage_entries(settings, colour_space), entries);
    const QStringList warnings = log.messages(QtWarningMsg);
    QCOMPARE(warnings.size(), warning.isEmpty() ? 0 : 1);
    if (!warning.isEmpty()) {
        QVERIFY2(warnings.first().startsWith(warning), qPrintable(warnings.first()));
    }
}

QTEST_GUILESS_MAIN(tst_white_balance)
#include "tst_white_balance.moc"
