#include "convert/colour_editor.h"
#include "convert/number_text.h"
#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::convert;
using converted_entries::preset_from;
using converted_entries::stage_entries;

namespace {

const QString closing_record =
    QStringLiteral("1,1,2,2.36563158035278,-15.9744558334351,0,174,139,97,0,25,-42.1264381408691,"
                   "25.6254768371582,25,0,0,0,0");

QString colour_corrections(const QStringList& settings)
{
    return test_support::document_value(convert(preset_from(settings), QStringLiteral("raw")),
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
    void reading_adjustments_data();
    void reading_adjustments();
    void saturation_data();
    void saturation();
};

void tst_colour_editor::closing_record_alone_data()
{
    QTest::addColumn<QStringList>("settings");
    QTest::newRow("no source key") << QStringList();
    QTest::newRow("only keys of other stages") << QStringList{"Saturation=50", "Exposure2012=1"};
    QTest::newRow("unreadable slider alone") << QStringList{"HueAdjustmentRed=warm"};
    QTest::newRow("key names are case-sensitive") << QStringList{"HueAdjustmentred=10"};
}

void tst_colour_editor::closing_record_alone()
{
    QFETCH(QStringList, settings);
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
    QCOMPARE(colour_corrections({"Vibrance=100", "HueAdjustmentRed=0"}), expected);
}

// The carried constants keep the shape of the style's records: 18 fields, the
// slider records' field 13 one hundred above field 12, the last four fields 0.
void tst_colour_editor::record_layout()
{
    const QStringList records =
        colour_corrections({"Vibrance=-30", "SaturationAdjustmentBlue=10"}).split(QLatin1Char(';'));
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
    QTest::addColumn<QStringList>("settings");
    // Field 5 of the vibrance record, or empty when the value has no vibrance block.
    QTest::addColumn<QString>("vibrance");
    // The shifts of the eight slider records, red to magenta.
    QTest::addColumn<QStringList>("expected");

    const auto with = [&](int index, const QString& triple) {
        QStringList records = unmoved();
        records[index] = triple;
        return records;
    };
    const int red = 0, orange = 1, aqua = 4, purple = 6, magenta = 7;

    QTest::newRow("one zero slider gives all eight records")
        << QStringList{"HueAdjustmentRed=0"} << QString() << unmoved();
    QTest::newRow("orange saturation +100")
        << QStringList{"SaturationAdjustmentOrange=100"} << QString()
        << with(orange, "0.000000,22.000000,0.000000");
    QTest::newRow("orange saturation -100")
        << QStringList{"SaturationAdjustmentOrange=-100"} << QString()
        << with(orange, "0.000000,-50.000000,0.000000");
    QTest::newRow("orange saturation above 100")
        << QStringList{"SaturationAdjustmentOrange=150"} << QString()
        << with(orange, "0.000000,22.000000,0.000000");
    QTest::newRow("orange saturation below -100")
        << QStringList{"SaturationAdjustmentOrange=-150"} << QString()
        << with(orange, "0.000000,-50.000000,0.000000");
    QTest::newRow("orange saturation just below 100")
        << QStringList{"SaturationAdjustmentOrange=99.5"} << QString()
        << with(orange, "0.000000,21.889999,0.000000");
    QTest::newRow("orange saturation just above -100")
        << QStringList{"SaturationAdjustmentOrange=-99.5"} << QString()
        << with(orange, "0.000000,-49.750000,0.000000");
    QTest::newRow("orange saturation 50")
        << QStringList{"SaturationAdjustmentOrange=50"} << QString()
        << with(orange, "0.000000,11.000000,0.000000");
    QTest::newRow("orange saturation -50")
        << QStringList{"SaturationAdjustmentOrange=-50"} << QString()
        << with(orange, "0.000000,-25.000000,0.000000");
    QTest::newRow("orange luminance -50")
        << QStringList{"LuminanceAdjustmentOrange=-50"} << QString()
        << with(orange, "0.000000,0.000000,-2.200000");
    QTest::newRow("magenta luminance 100")
        << QStringList{"LuminanceAdjustmentMagenta=100"} << QString()
        << with(magenta, "0.000000,0.000000,4.600000");
    QTest::newRow("aqua luminance 33") << QStringList{"LuminanceAdjustmentAqua=33"} << QString()
                                       << with(aqua, "0.000000,0.000000,1.089000");
    QTest::newRow("purple luminance -10")
        << QStringList{"LuminanceAdjustmentPurple=-10"} << QString()
        << with(purple, "0.000000,0.000000,-0.700000");
    QTest::newRow("red hue -100 and +sign")
        << QStringList{"HueAdjustmentRed=-100", "LuminanceAdjustmentRed=+100"} << QString()
        << with(red, "-30.000000,0.000000,3.000000");
    QTest::newRow("every slider, mixed signs")
        << QStringList{"HueAdjustmentRed=10",
                       "SaturationAdjustmentRed=-20",
                       "LuminanceAdjustmentRed=30",
                       "HueAdjustmentOrange=-40",
                       "SaturationAdjustmentOrange=50",
                       "LuminanceAdjustmentOrange=-60",
                       "HueAdjustmentYellow=70",
                       "SaturationAdjustmentYellow=-80",
                       "LuminanceAdjustmentYellow=90",
                       "HueAdjustmentGreen=-15",
                       "SaturationAdjustmentGreen=25",
                       "LuminanceAdjustmentGreen=-35",
                       "HueAdjustmentAqua=45",
                       "SaturationAdjustmentAqua=-55",
                       "LuminanceAdjustmentAqua=65",
                       "HueAdjustmentBlue=-75",
                       "SaturationAdjustmentBlue=85",
                       "LuminanceAdjustmentBlue=-95",
                       "HueAdjustmentPurple=5",
                       "SaturationAdjustmentPurple=-5",
                       "LuminanceAdjustmentPurple=100",
                       "HueAdjustmentMagenta=-100",
                       "SaturationAdjustmentMagenta=100",
                       "LuminanceAdjustmentMagenta=-1"}
        << QString()
        << QStringList{"3.000000,-12.000000,0.900000",  "-12.000000,11.000000,-2.640000",
                       "21.000000,-64.000000,4.500000", "-4.500000,13.750000,-1.750000",
                       "13.500000,-29.700001,2.145000", "-22.500000,42.500000,-4.750000",
                       "1.500000,-5.000000,6.300000",   "-30.000000,60.000000,-0.080000"};

    QTest::newRow("vibrance 100") << QStringList{"Vibrance=100"} << "80.000000" << unmoved();
    QTest::newRow("vibrance above 100") << QStringList{"Vibrance=101"} << "80.000000" << unmoved();
    QTest::newRow("vibrance -100") << QStringList{"Vibrance=-100"} << "-80.000000" << unmoved();
    QTest::newRow("vibrance 20") << QStringList{"Vibrance=20"} << "16.000000" << unmoved();
    QTest::newRow("vibrance -7") << QStringList{"Vibrance=-7"} << "-5.599998" << unmoved();
    QTest::newRow("vibrance 0: records, no block")
        << QStringList{"Vibrance=0"} << QString() << unmoved();
    QTest::newRow("unreadable vibrance still counts")
        << QStringList{"Vibrance=lively"} << QString() << unmoved();
    QTest::newRow("vibrance with a slider")
        << QStringList{"Vibrance=-100", "HueAdjustmentMagenta=50"} << "-80.000000"
        << with(magenta, "15.000000,0.000000,0.000000");
}

void tst_colour_editor::shifts()
{
    QFETCH(QStringList, settings);
    QFETCH(QString, vibrance);
    QFETCH(QStringList, expected);
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
    QCOMPARE(produced, expected);
}

void tst_colour_editor::reading_adjustments_data()
{
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<bool>("flag_before");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("flag_after");

    QTest::newRow("three keys") << "aqua"
                                << QStringList{"HueAdjustmentAqua=1", "SaturationAdjustmentAqua=-2",
                                               "LuminanceAdjustmentAqua=3.5"}
                                << false << "1.000000 -2.000000 3.500000" << true;
    QTest::newRow("other colours are not read") << "aqua" << QStringList{"HueAdjustmentBlue=1"}
                                                << false << "0.000000 0.000000 0.000000" << false;
    QTest::newRow("a zero sets the flag") << "purple" << QStringList{"LuminanceAdjustmentPurple=0"}
                                          << false << "0.000000 0.000000 0.000000" << true;
    QTest::newRow("unreadable gives 0, flag untouched")
        << "green" << QStringList{"HueAdjustmentGreen=x", "SaturationAdjustmentGreen="} << false
        << "0.000000 0.000000 0.000000" << false;
    QTest::newRow("a set flag stays set")
        << "green" << QStringList() << true << "0.000000 0.000000 0.000000" << true;
}

void tst_colour_editor::reading_adjustments()
{
    QFETCH(QString, colour);
    QFETCH(QStringList, settings);
    QFETCH(bool, flag_before);
    QFETCH(QString, expected);
    QFETCH(bool, flag_after);
    bool flag = flag_before;
    const colour_adjustments read = read_colour_adjustments(preset_from(settings), colour, flag);
    QCOMPARE(QStringList(
                 {six_decimal(read.hue), six_decimal(read.saturation), six_decimal(read.luminance)})
                 .join(QLatin1Char(' ')),
             expected);
    QCOMPARE(flag, flag_after);
}

void tst_colour_editor::saturation_data()
{
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("50") << QStringList{"Saturation=50"} << QStringList{"Saturation=50.000000"};
    QTest::newRow("not cut") << QStringList{"Saturation=-150"}
                             << QStringList{"Saturation=-150.000000"};
    QTest::newRow("no number") << QStringList{"Saturation=vivid"} << QStringList();
}

void tst_colour_editor::saturation()
{
    QFETCH(QStringList, settings);
    QFETCH(QStringList, expected);
    QCOMPARE(stage_entries(settings, QStringLiteral("raw")), expected);
}

QTEST_GUILESS_MAIN(tst_colour_editor)
#include "tst_colour_editor.moc"
