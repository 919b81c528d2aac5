#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::convert;
using converted_entries::preset_from;
using converted_entries::stage_entries;
using converted_entries::words;

namespace {

const QString closing_record =
    QStringLiteral("1,1,2,2.36563158035278,-15.9744558334351,0,174,139,97,0,25,-42.1264381408691,"
                   "25.6254768371582,25,0,0,0,0");

// ColorCorrections for these blank-separated settings.
QString colour_corrections(const QString& settings)
{
    return test_support::document_value(
        convert(preset_from(words(settings)), QStringLiteral("raw")),
        QStringLiteral("ColorCorrections"));
}

// Fields 4 to 6 of a record: its three shifts.
QString record_shifts(const QString& record)
{
    return record.section(QLatin1Char(','), 3, 5);
}

// The shifts of all eight slider records when none of them moved.
QStringList unmoved()
{
    const QString zero = QStringLiteral("0.000000,0.000000,0.000000");
    return {zero, zero, zero, zero, zero, zero, zero, zero};
}

} // namespace

class tst_colour_editor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { test_support::use_test_settings(); }
    void closing_record_alone_data();
    void closing_record_alone();
    void full_value_with_vibrance();
    void record_layout();
    void shifts_data();
    void shifts();
    void saturation_data();
    void saturation();
};

void tst_colour_editor::closing_record_alone_data()
{
    QTest::addColumn<QString>("settings");
    QTest::newRow("no source key") << "";
    QTest::newRow("only keys of other stages") << "Saturation=50 Exposure2012=1";
    QTest::newRow("unreadable slider alone") << "HueAdjustmentRed=warm";
    QTest::newRow("key names are case-sensitive") << "HueAdjustmentred=10";
}

void tst_colour_editor::closing_record_alone()
{
    QFETCH(QString, settings);
    QCOMPARE(colour_corrections(settings), closing_record);
}

void tst_colour_editor::full_value_with_vibrance()
{
    const QString expected = QStringLiteral(
        "1,1,1,0,0,0,127,63,119,-28.822566986084,28.822566986084,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,67,63,127,-21.9782791137695,21.9782791137695,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,63,118,127,-22.3223114013672,22.3223114013672,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,69,127,63,-38.9258460998535,38.9258460998535,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,127,115,63,-13.5424394607544,13.5424394607544,-50,50,12,0,0,0,0;"
        "1,1,1,0,0,0,127,68,63,-18.4085693359375,18.4085693359375,-50,50,12,0,0,0,0;"
        "0,1,1,0,80.000000,0,0,0,0,0,0,0,0,0,0,0,0,0;"
        "1,1,0,0.000000,0.000000,0.000000,237,45.3288917541504,66.479118347168,-9.59939575195312,"
        "9.18455505371094,-80.8738861083984,19.1261138916016,25.9748382568359,0,0,0,0;"
        "1,1,0,0.000000,0.000000,0.000000,255,130,12,0,4.55426025390625,-95.2941207885742,"
        "4.70587921142578,18.2099227905273,0,0,0,0;"
        "1,1,0,0.000000,0.000000,0.000000,255,225.91796875,36.1078147888184,-5.1807861328125,"
        "1.47015380859375,-85.8400726318359,14.1599273681641,20.3872756958008,0,0,0,0;"
        "1,1,0,0.000000,0.000000,0.000000,58.8606338500977,208,10.4000005722046,-33.7201843261719,"
        "32.3572998046875,-95,5,23.2739639282227,0,0,0,0;"
        "1,1,0,0.000000,0.000000,0.000000,22.6761436462402,216,177.109222412109,-4.34454345703125,"
        "5.92352294921875,-89.5017852783203,10.4982147216797,28.4633140563965,0,0,0,0;"
        "1,1,0,0.000000,0.000000,0.000000,61.345775604248,87.8979263305664,165,-14.3739013671875,"
        "22.6552124023438,-62.820743560791,37.179256439209,27.3963947296143,0,0,0,0;"
        "1,1,0,0.000000,0.000000,0.000000,104,0,148,-12.1621704101562,2.99188232421875,-100,0,"
        "26.3488998413086,0,0,0,0;"
        "1,1,0,0.000000,0.000000,0.000000,235,50.884838104248,191.595169067383,-6.26992797851562,"
        "5.4552001953125,-78.3468780517578,21.6531219482422,20.9790744781494,0,0,0,0;"
        "1,1,2,2.36563158035278,-15.9744558334351,0,174,139,97,0,25,-42.1264381408691,"
        "25.6254768371582,25,0,0,0,0");
    QCOMPARE(colour_corrections(QStringLiteral("Vibrance=100 HueAdjustmentRed=0")), expected);
}

// The carried constants keep the shape of the style's records: 18 fields, the
// slider records' field 13 one hundred above field 12, the last four fields 0.
void tst_colour_editor::record_layout()
{
    const QStringList records =
        colour_corrections(QStringLiteral("Vibrance=-30 SaturationAdjustmentBlue=10"))
            .split(QLatin1Char(';'));
    QCOMPARE(records.size(), 7 + 8 + 1);
    for (int i = 0; i < records.size(); ++i) {
        const QStringList fields = records[i].split(QLatin1Char(','));
        QCOMPARE(fields.size(), 18);
        QCOMPARE(fields.mid(14), (QStringList{"0", "0", "0", "0"}));
        const QString kind =
            i < 7 ? QStringLiteral("1") : (i < 15 ? QStringLiteral("0") : QStringLiteral("2"));
        QCOMPARE(fields[2], kind);
        QCOMPARE(fields[0], i == 6 ? QStringLiteral("0") : QStringLiteral("1"));
        if (kind == QLatin1String("0")) {
            QCOMPARE(QString::number(fields[12].toDouble() - fields[11].toDouble(), 'f', 9),
                     QStringLiteral("100.000000000"));
        }
    }
    QCOMPARE(record_shifts(records[6]), QStringLiteral("0,-24.000000,0"));
    QCOMPARE(record_shifts(records[12]), QStringLiteral("0.000000,5.000000,0.000000"));
}

void tst_colour_editor::shifts_data()
{
    QTest::addColumn<QString>("settings");
    // Field 5 of the vibrance record, or empty when the value has no vibrance block.
    QTest::addColumn<QString>("vibrance");
    // The shifts of the eight slider records, red to magenta, blank-separated.
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* name, const char* settings, const char* vibrance,
                        const QString& expected) {
        QTest::newRow(name) << QString(settings) << QString(vibrance) << expected;
    };
    // Only the record at `index` moved.
    const auto moved = [](int index, const char* triple) {
        QStringList records = unmoved();
        records[index] = QLatin1String(triple);
        return records.join(QLatin1Char(' '));
    };
    const QString none = unmoved().join(QLatin1Char(' '));
    const int red = 0, orange = 1, aqua = 4, purple = 6, magenta = 7;

    row("one zero slider: all eight records", "HueAdjustmentRed=0", "", none);
    row("orange saturation 100", "SaturationAdjustmentOrange=100", "",
        moved(orange, "0.000000,22.000000,0.000000"));
    row("orange saturation -100", "SaturationAdjustmentOrange=-100", "",
        moved(orange, "0.000000,-50.000000,0.000000"));
    row("orange saturation above 100", "SaturationAdjustmentOrange=150", "",
        moved(orange, "0.000000,22.000000,0.000000"));
    row("orange saturation below -100", "SaturationAdjustmentOrange=-150", "",
        moved(orange, "0.000000,-50.000000,0.000000"));
    row("orange saturation just below 100", "SaturationAdjustmentOrange=99.5", "",
        moved(orange, "0.000000,21.889999,0.000000"));
    row("orange saturation just above -100", "SaturationAdjustmentOrange=-99.5", "",
        moved(orange, "0.000000,-49.750000,0.000000"));
    row("orange saturation 50", "SaturationAdjustmentOrange=50", "",
        moved(orange, "0.000000,11.000000,0.000000"));
    row("orange saturation -50", "SaturationAdjustmentOrange=-50", "",
        moved(orange, "0.000000,-25.000000,0.000000"));
    row("orange luminance -50", "LuminanceAdjustmentOrange=-50", "",
        moved(orange, "0.000000,0.000000,-2.200000"));
    row("magenta luminance 100", "LuminanceAdjustmentMagenta=100", "",
        moved(magenta, "0.000000,0.000000,4.600000"));
    row("aqua luminance 33", "LuminanceAdjustmentAqua=33", "",
        moved(aqua, "0.000000,0.000000,1.089000"));
    row("purple luminance -10", "LuminanceAdjustmentPurple=-10", "",
        moved(purple, "0.000000,0.000000,-0.700000"));
    row("red hue -100, plus sign", "HueAdjustmentRed=-100 LuminanceAdjustmentRed=+100", "",
        moved(red, "-30.000000,0.000000,3.000000"));
    row("every slider, mixed signs",
        "HueAdjustmentRed=10 SaturationAdjustmentRed=-20 LuminanceAdjustmentRed=30 "
        "HueAdjustmentOrange=-40 SaturationAdjustmentOrange=50 LuminanceAdjustmentOrange=-60 "
        "HueAdjustmentYellow=70 SaturationAdjustmentYellow=-80 LuminanceAdjustmentYellow=90 "
        "HueAdjustmentGreen=-15 SaturationAdjustmentGreen=25 LuminanceAdjustmentGreen=-35 "
        "HueAdjustmentAqua=45 SaturationAdjustmentAqua=-55 LuminanceAdjustmentAqua=65 "
        "HueAdjustmentBlue=-75 SaturationAdjustmentBlue=85 LuminanceAdjustmentBlue=-95 "
        "HueAdjustmentPurple=5 SaturationAdjustmentPurple=-5 LuminanceAdjustmentPurple=100 "
        "HueAdjustmentMagenta=-100 SaturationAdjustmentMagenta=100 LuminanceAdjustmentMagenta=-1",
        "",
        "3.000000,-12.000000,0.900000 -12.000000,11.000000,-2.640000 "
        "21.000000,-64.000000,4.500000 -4.500000,13.750000,-1.750000 "
        "13.500000,-29.700001,2.145000 -22.500000,42.500000,-4.750000 "
        "1.500000,-5.000000,6.300000 -30.000000,60.000000,-0.080000");

    row("vibrance 100", "Vibrance=100", "80.000000", none);
    row("vibrance above 100", "Vibrance=101", "80.000000", none);
    row("vibrance -100", "Vibrance=-100", "-80.000000", none);
    row("vibrance 20", "Vibrance=20", "16.000000", none);
    row("vibrance -7", "Vibrance=-7", "-5.599998", none);
    row("vibrance 0: records, no block", "Vibrance=0", "", none);
    row("unreadable vibrance still counts", "Vibrance=lively", "", none);
    row("vibrance with a slider", "Vibrance=-100 HueAdjustmentMagenta=50", "-80.000000",
        moved(magenta, "15.000000,0.000000,0.000000"));
}

void tst_colour_editor::shifts()
{
    QFETCH(QString, settings);
    QFETCH(QString, vibrance);
    QFETCH(QString, expected);
    QStringList records = colour_corrections(settings).split(QLatin1Char(';'));
    QCOMPARE(records.takeLast(), closing_record);
    if (!vibrance.isEmpty()) {
        QCOMPARE(records.size(), 7 + 8);
        QCOMPARE(records[6], QStringLiteral("0,1,1,0,%1,0,0,0,0,0,0,0,0,0,0,0,0,0").arg(vibrance));
        records = records.mid(7);
    }
    QStringList produced;
    for (const QString& record : records) {
        produced.append(record_shifts(record));
    }
    QCOMPARE(produced.join(QLatin1Char(' ')), expected);
}

void tst_colour_editor::saturation_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected");
    QTest::newRow("50") << "Saturation=50"
                        << "Saturation=50.000000";
    QTest::newRow("not cut") << "Saturation=-150"
                             << "Saturation=-150.000000";
    QTest::newRow("no number") << "Saturation=vivid"
                               << "";
}

void tst_colour_editor::saturation()
{
    QFETCH(QString, settings);
    QFETCH(QString, expected);
    QCOMPARE(stage_entries(settings, QStringLiteral("raw")), expected);
}

QTEST_GUILESS_MAIN(tst_colour_editor)
#include "tst_colour_editor.moc"
