#include "convert/lut_set.h"

#include <QtTest>

// The preset's own map of key to text.
using setting_map = QMap<QString, QString>;

class tst_preset_inspection : public QObject
{
    Q_OBJECT

private slots:
    void flags_data();
    void flags();
};

void tst_preset_inspection::flags_data()
{
    QTest::addColumn<setting_map>("settings");
    QTest::addColumn<bool>("white_balance");
    QTest::addColumn<bool>("rgb_table");
    QTest::addColumn<bool>("calibration");

    QTest::newRow("empty") << setting_map{} << false << false << false;
    QTest::newRow("unrelated keys")
        << setting_map{{"Exposure2012", "1"}, {"temperature", "5000"}} << false << false << false;
    QTest::newRow("temperature of 0")
        << setting_map{{"Temperature", "0"}} << true << false << false;
    QTest::newRow("empty temperature")
        << setting_map{{"Temperature", ""}} << true << false << false;
    QTest::newRow("unreadable relative tint")
        << setting_map{{"IncrementalTint", "abc"}} << true << false << false;
    QTest::newRow("empty colour table") << setting_map{{"RGBTable", ""}} << false << true << false;
    QTest::newRow("red hue 0") << setting_map{{"RedHue", "0"}} << false << false << false;
    QTest::newRow("red hue +0") << setting_map{{"RedHue", "+0"}} << false << false << false;
    QTest::newRow("red hue 0.00") << setting_map{{"RedHue", "0.00"}} << false << false << false;
    QTest::newRow("red hue 0.01") << setting_map{{"RedHue", "0.01"}} << false << false << true;
    QTest::newRow("red hue abc") << setting_map{{"RedHue", "abc"}} << false << false << false;
    QTest::newRow("red hue beyond float range")
        << setting_map{{"RedHue", "1e39"}} << false << false << false;
    QTest::newRow("not a number is not 0")
        << setting_map{{"RedHue", "nan"}} << false << false << true;
    QTest::newRow("last calibration key")
        << setting_map{{"BlueSaturation", "-5"}} << false << false << true;
    QTest::newRow("all seven spelled out as 0")
        << setting_map{{"ShadowTint", "0"},    {"RedHue", "0"},          {"RedSaturation", "0"},
                       {"GreenHue", "0"},      {"GreenSaturation", "0"}, {"BlueHue", "0"},
                       {"BlueSaturation", "0"}}
        << false << false << false;
    QTest::newRow("all three at once")
        << setting_map{{"Tint", "5"}, {"RGBTable", "x"}, {"ShadowTint", "1"}} << true << true
        << true;
}

void tst_preset_inspection::flags()
{
    preset_settings preset;
    QFETCH(setting_map, settings);
    preset.settings = settings;
    bool white_balance = false;
    bool rgb_table = false;
    bool calibration = false;
    lut_set().inspect_preset(preset, white_balance, rgb_table, calibration);
    QTEST(white_balance, "white_balance");
    QTEST(rgb_table, "rgb_table");
    QTEST(calibration, "calibration");
}

QTEST_GUILESS_MAIN(tst_preset_inspection)
#include "tst_preset_inspection.moc"
