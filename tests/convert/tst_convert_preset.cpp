#include "convert/lut_set.h"
#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::preset_from;
using converted_entries::stage_entries_in;
using converted_entries::words;
using test_support::document_entries;
using test_support::document_value;
using test_support::preset_with;

namespace {

QString convert(const preset_settings& preset, const QString& colour_space)
{
    const lut_set luts;
    QString out;
    const bool converted = luts.convert_preset(preset, &out, colour_space);
    return converted ? out : QString();
}

const QRegularExpression
    uuid_form(QStringLiteral("^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"));

} // namespace

class tst_convert_preset : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void name_only_document();
    void converting_twice_differs_in_uuid_only();
    void name_falls_back_to_about_data();
    void name_falls_back_to_about();
    void colour_space_read_from_settings_each_call();
    void same_in_every_colour_space_data();
    void same_in_every_colour_space();
};

void tst_convert_preset::initTestCase()
{
    test_support::use_test_settings();
}

void tst_convert_preset::name_only_document()
{
    preset_settings preset;
    preset.name = QStringLiteral("Warm & Soft");
    const QString document = convert(preset, QStringLiteral("raw"));
    const QString uuid = document_value(document, QStringLiteral("UUID"));
    QVERIFY2(uuid_form.match(uuid).hasMatch(), qPrintable(uuid));

    const QString expected =
        QStringLiteral("<?xml version=\"1.0\"?>\n"
                       "<SL Engine=\"900\">\n"
                       "    <E K=\"ColorCorrections\" "
                       "V=\"1,1,2,2.36563158035278,-15.9744558334351,0,174,139,97,0,25,"
                       "-42.1264381408691,25.6254768371582,25,0,0,0,0\"/>\n"
                       "    <E K=\"Name\" V=\"Warm &amp; Soft\"/>\n"
                       "    <E K=\"UUID\" V=\"%1\"/>\n"
                       "</SL>\n")
            .arg(uuid);
    QCOMPARE(document, expected);
}

void tst_convert_preset::converting_twice_differs_in_uuid_only()
{
    const preset_settings preset = preset_with({{"Exposure2012", "1.5"}, {"title", "x"}});
    const QStringList first = document_entries(convert(preset, QStringLiteral("srgb")));
    const QStringList second = document_entries(convert(preset, QStringLiteral("srgb")));
    QCOMPARE(first.size(), second.size());
    int differing = 0;
    for (int i = 0; i < first.size(); ++i) {
        if (first[i] != second[i]) {
            ++differing;
            QVERIFY(first[i].startsWith(QStringLiteral("UUID=")));
        }
    }
    QCOMPARE(differing, 1);
}

void tst_convert_preset::name_falls_back_to_about_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("has_about");
    QTest::addColumn<QString>("expected");
    QTest::newRow("name wins over about") << "Warm" << true << "Warm";
    QTest::newRow("empty name takes about") << "" << true << "uuid:1234";
    QTest::newRow("neither gives empty") << "" << false << "";
}

void tst_convert_preset::name_falls_back_to_about()
{
    QFETCH(QString, name);
    QFETCH(bool, has_about);
    QFETCH(QString, expected);
    preset_settings preset;
    preset.name = name;
    if (has_about) {
        preset.settings[QStringLiteral("about")] = QStringLiteral("uuid:1234");
    }
    const QString value =
        document_value(convert(preset, QStringLiteral("raw")), QStringLiteral("Name"));
    QCOMPARE(value, expected);
    QVERIFY(!value.isNull());
}

void tst_convert_preset::colour_space_read_from_settings_each_call()
{
    const lut_set luts;
    preset_settings preset;
    QString out;
    test_support::set_colour_space(QString());
    QTest::ignoreMessage(QtDebugMsg, "Using Wide Gamut RGB colorspace (RAW, some conversion)");
    QVERIFY(luts.convert_preset(preset, &out));

    test_support::set_colour_space(QStringLiteral("srgb"));
    QTest::ignoreMessage(QtDebugMsg, "Using sRGB colorspace (converting)");
    out.clear();
    QVERIFY(luts.convert_preset(preset, &out));
    test_support::set_colour_space(QString());
}

// One preset with keys for white balance, both tone stages, clarity, saturation, the
// colour editor, detail, vignette, grain and dehaze. Only the tint offset, the raw
// highlight recovery and the raw white depth may differ between colour spaces.
void tst_convert_preset::same_in_every_colour_space_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<QString>("tint");
    QTest::addColumn<QString>("highlight_recovery");
    QTest::addColumn<QString>("highlight");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<QString>("using_line");

    const QString old_recovery = QStringLiteral("20.000000");
    const QString highlight = QStringLiteral("1;1;1;0.921750");
    const QString unknown =
        QStringLiteral("get_tint_shift: Unknown color space: %1. Not ofsetting.");
    QTest::newRow("adobe") << "adobe"
                           << "6.666667" << old_recovery << highlight
                           << QStringList{unknown.arg("adobe")}
                           << "Using AdobeRGB colorspace (converting)";
    QTest::newRow("srgb") << "srgb"
                          << "-7.333333" << old_recovery << highlight << QStringList()
                          << "Using sRGB colorspace (converting)";
    QTest::newRow("prophoto") << "prophoto"
                              << "-8.833333" << old_recovery << highlight << QStringList()
                              << "Using ProPhoto colorspace (some conversion)";
    QTest::newRow("widegamut") << "widegamut"
                               << "-8.333333" << old_recovery << highlight << QStringList()
                               << "Using Wide Gamut RGB colorspace (converting)";
    QTest::newRow("raw") << "raw"
                         << "6.666667"
                         << "15.000000"
                         << "1;1;1;0.750000" << QStringList()
                         << "Using Wide Gamut RGB colorspace (RAW, some conversion)";
    // The literals are compared exactly: another spelling chooses nothing and says nothing.
    QTest::newRow("unknown") << "Raw"
                             << "6.666667" << old_recovery << highlight
                             << QStringList{unknown.arg("Raw")} << "";
}

void tst_convert_preset::same_in_every_colour_space()
{
    QFETCH(QString, colour_space);
    QFETCH(QString, tint);
    QFETCH(QString, highlight_recovery);
    QFETCH(QString, highlight);
    QFETCH(QStringList, warnings);
    QFETCH(QString, using_line);

    const QString colour_keys = QStringLiteral("Vibrance=25 HueAdjustmentGreen=-40 "
                                               "SaturationAdjustmentBlue=60 "
                                               "LuminanceAdjustmentYellow=10");
    const preset_settings preset = preset_from(words(
        QStringLiteral("Temperature=6500 Tint=20 "
                       "Brightness=30 Contrast=20 Exposure=0.5 FillLight=10 HighlightRecovery=40 "
                       "Shadows=21 Exposure2012=0.7 Contrast2012=-10 Shadows2012=-30 "
                       "Highlights2012=-30 Blacks2012=20 Whites2012=50 "
                       "Clarity=30 Clarity2012=10 Saturation=-20 "
                       "Sharpness=40 SharpenRadius=1.1 LuminanceSmoothing=15 "
                       "ColorNoiseReduction=25 LuminanceNoiseReductionDetail=50 "
                       "PostCropVignetteAmount=-20 PostCropVignetteRoundness=40 "
                       "GrainAmount=30 GrainSize=35 Dehaze=-15 ") +
        colour_keys));
    const QString expected =
        QStringLiteral("Brightness=14.285715 Clarity=30.000000 ClarityMethod=2 "
                       "ClarityStructure=10.000000 CnrAmount=25.000000 Contrast=-5.000000 "
                       "DehazeAmount=-30.000000 "
                       "DehazeColor=0.211999446153641;0.391483038663864;0.239516332745552 "
                       "Exposure=0.800000 FilmGrainAmount=30.000000 FilmGrainDensity=0 "
                       "FilmGrainGranularity=50 FilmGrainType=4 "
                       "GradationCurveY=0.0000,0.0000;0.2000,0.195000;0.4000,0.392000;"
                       "0.6000,0.579000;0.8000,0.779000;1.0000,1.0000 "
                       "Highlight=%2 HighlightRecovery=%3 NoiseDetailsAmount=50.000000 "
                       "NrAmount=15.000000 Saturation=-20.000000 "
                       "Shadow=0.0000;0.0000;0.0000;0.094546 ShadowRecovery=25.000000 "
                       "TargetHighlight=1;1;1;1 TargetShadow=0.0000;0.0000;0.0000;0.0000 "
                       "UsmAmount=40.000000 UsmRadius=1.100000 Vignetting=-1.333333|1|0|0 "
                       "WhiteBalanceTemperature=6500 WhiteBalanceTint=%1")
            .arg(tint, highlight, highlight_recovery);

    const test_support::log_capture log;
    const QString document = convert(preset, colour_space);
    QCOMPARE(stage_entries_in(document).join(QLatin1Char(' ')), expected);
    QCOMPARE(log.messages(QtWarningMsg), warnings);
    QCOMPARE(log.messages(QtDebugMsg).filter(QRegularExpression(QStringLiteral("^Using "))),
             using_line.isEmpty() ? QStringList() : QStringList{using_line});
    // The colour editor neither depends on the colour space nor on the other keys.
    const QString colour_editor = QStringLiteral("ColorCorrections");
    QCOMPARE(document_value(document, colour_editor),
             document_value(convert(preset_from(words(colour_keys)), QStringLiteral("raw")),
                            colour_editor));
}

QTEST_GUILESS_MAIN(tst_convert_preset)
#include "tst_convert_preset.moc"
