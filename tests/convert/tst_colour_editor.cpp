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

QString colour_corrections(const QString& settings)
{
    return test_support::document_value(
        convert(preset_from(words(settings)), QStringLiteral("raw")),
        QStringLiteral("ColorCorrections"));
}

// A ColorCorrections value in short, after checking that it ends in the closing
// record: "vibrance=" and the saturation field of the vibrance record, then the
// hue, saturation and luminance shifts of each slider record, "0" for none. The
// carried constants are checked once, in full_value_with_vibrance.
QString shifts_of(const QString& value)
{
    QStringList records = value.split(QLatin1Char(';'));
    if (records.takeLast() != closing_record) {
        return QStringLiteral("no closing record: ") + value;
    }
    QStringList shifts;
    for (const QString& record : records) {
        const QStringList fields = record.split(QLatin1Char(','));
        if (fields.value(2) == QLatin1String("1")) {
            if (fields.value(0) == QLatin1String("0")) {
                shifts << QStringLiteral("vibrance=") + fields.value(4);
            }
            continue;
        }
        const QString triple = fields.mid(3, 3).join(QLatin1Char(','));
        shifts << (triple == QLatin1String("0.000000,0.000000,0.000000") ? QStringLiteral("0")
                                                                         : triple);
    }
    return shifts.join(QLatin1Char(' '));
}

} // namespace

class tst_colour_editor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { test_support::use_test_settings(); }
    void full_value_with_vibrance();
    void shifts_data();
    void shifts();
    void saturation();
};

void tst_colour_editor::full_value_with_vibrance()
{
    const QString records = QStringLiteral(
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
        "5.4552001953125,-78.3468780517578,21.6531219482422,20.9790744781494,0,0,0,0;");
    QCOMPARE(colour_corrections(QStringLiteral("Vibrance=100 HueAdjustmentRed=0")),
             records + closing_record);
}

void tst_colour_editor::shifts_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected"); // shifts_of the value

    const auto row = [](const char* name, const char* settings, const QString& expected) {
        QTest::newRow(name) << QString(settings) << expected;
    };
    const QString none = QStringLiteral("0 0 0 0 0 0 0 0");

    row("no source key: the closing record alone", "", "");
    row("unreadable slider alone", "HueAdjustmentRed=warm", "");
    row("one zero slider: all eight records", "HueAdjustmentRed=0", none);
    // Each group scales its two sides apart: orange saturation +100 is 22, -100 is -50.
    const char* const orange_saturation[][2] = {{"150", "22.000000"},
                                                {"99.5", "21.889999"},
                                                {"-150", "-50.000000"},
                                                {"-99.5", "-49.750000"}};
    for (const auto& value_shift : orange_saturation) {
        QTest::addRow("orange saturation %s", value_shift[0])
            << QStringLiteral("SaturationAdjustmentOrange=%1").arg(QLatin1String(value_shift[0]))
            << QStringLiteral("0 0.000000,%1,0.000000 0 0 0 0 0 0").arg(value_shift[1]);
    }
    row("every slider, mixed signs",
        "HueAdjustmentRed=10 SaturationAdjustmentRed=-20 LuminanceAdjustmentRed=30 "
        "HueAdjustmentOrange=-40 SaturationAdjustmentOrange=50 LuminanceAdjustmentOrange=-60 "
        "HueAdjustmentYellow=70 SaturationAdjustmentYellow=-80 LuminanceAdjustmentYellow=90 "
        "HueAdjustmentGreen=-15 SaturationAdjustmentGreen=25 LuminanceAdjustmentGreen=-35 "
        "HueAdjustmentAqua=45 SaturationAdjustmentAqua=-55 LuminanceAdjustmentAqua=65 "
        "HueAdjustmentBlue=-75 SaturationAdjustmentBlue=85 LuminanceAdjustmentBlue=-95 "
        "HueAdjustmentPurple=5 SaturationAdjustmentPurple=-5 LuminanceAdjustmentPurple=100 "
        "HueAdjustmentMagenta=-100 SaturationAdjustmentMagenta=100 LuminanceAdjustmentMagenta=-1",
        "3.000000,-12.000000,0.900000 -12.000000,11.000000,-2.640000 "
        "21.000000,-64.000000,4.500000 -4.500000,13.750000,-1.750000 "
        "13.500000,-29.700001,2.145000 -22.500000,42.500000,-4.750000 "
        "1.500000,-5.000000,6.300000 -30.000000,60.000000,-0.080000");

    row("vibrance above 100", "Vibrance=101", "vibrance=80.000000 " + none);
    row("vibrance -100", "Vibrance=-100", "vibrance=-80.000000 " + none);
    row("vibrance -7", "Vibrance=-7", "vibrance=-5.599998 " + none);
    row("vibrance 0: records, no block", "Vibrance=0", none);
    row("unreadable vibrance still counts", "Vibrance=lively", none);
    row("vibrance with a slider", "Vibrance=-100 HueAdjustmentMagenta=50",
        "vibrance=-80.000000 0 0 0 0 0 0 0 15.000000,0.000000,0.000000");
}

void tst_colour_editor::shifts()
{
    QFETCH(QString, settings);
    QTEST(shifts_of(colour_corrections(settings)), "expected");
}

// Saturation is copied uncut; a text that doesn't read writes nothing.
void tst_colour_editor::saturation()
{
    QCOMPARE(stage_entries(QStringLiteral("Saturation=-150"), QStringLiteral("raw")),
             QStringLiteral("Saturation=-150.000000"));
    QCOMPARE(stage_entries(QStringLiteral("Saturation=vivid"), QStringLiteral("raw")), QString());
}

QTEST_GUILESS_MAIN(tst_colour_editor)
#include "tst_colour_editor.moc"
