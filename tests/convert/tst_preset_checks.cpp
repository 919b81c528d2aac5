#include "convert/lut_set.h"
#include "converted_entries.h"

#include <QtTest>

class tst_preset_checks : public QObject
{
    Q_OBJECT

private slots:
    void flags_data();
    void flags();
};

void tst_preset_checks::flags_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<bool>("white_balance");
    QTest::addColumn<bool>("rgb_table");
    QTest::addColumn<bool>("calibration");

    const auto row = [](const char* name, const char* settings, bool white_balance, bool rgb_table,
                        bool calibration) {
        QTest::newRow(name) << QString(settings) << white_balance << rgb_table << calibration;
    };
    row("unrelated keys", "Exposure2012=1 temperature=5000", false, false, false);
    row("temperature of 0", "Temperature=0", true, false, false);
    row("unreadable relative tint", "IncrementalTint=abc", true, false, false);
    row("empty colour table", "RGBTable=", false, true, false);
    row("red hue 0", "RedHue=0", false, false, false);
    row("red hue 0.01", "RedHue=0.01", false, false, true);
    row("red hue abc", "RedHue=abc", false, false, false);
    row("red hue beyond float range", "RedHue=1e39", false, false, false);
    row("not a number is not 0", "RedHue=nan", false, false, true);
    row("last calibration key", "BlueSaturation=-5", false, false, true);
    row("all seven spelled out as 0",
        "ShadowTint=0 RedHue=0 RedSaturation=0 GreenHue=0 GreenSaturation=0 BlueHue=0 "
        "BlueSaturation=0",
        false, false, false);
    row("all three at once", "Tint=5 RGBTable=x ShadowTint=1", true, true, true);
}

void tst_preset_checks::flags()
{
    QFETCH(QString, settings);
    bool white_balance = false;
    bool rgb_table = false;
    bool calibration = false;
    lut_set().inspect_preset(converted_entries::preset_from(converted_entries::words(settings)),
                             white_balance, rgb_table, calibration);
    QTEST(white_balance, "white_balance");
    QTEST(rgb_table, "rgb_table");
    QTEST(calibration, "calibration");
}

QTEST_GUILESS_MAIN(tst_preset_checks)
#include "tst_preset_checks.moc"
