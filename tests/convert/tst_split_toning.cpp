#include "convert/hue_correction.h"
#include "convert/lut_set.h"
#include "support/test_support.h"

#include <QtTest>

using test_support::document_entries;
using test_support::document_value;

namespace {

// The preset's own map of key to text.
using setting_map = QMap<QString, QString>;

QString convert(const setting_map& settings, const QString& colour_space = QStringLiteral("raw"))
{
    preset_settings preset;
    preset.name = QStringLiteral("Toned");
    preset.settings = settings;
    QString out;
    lut_set().convert_preset(preset, &out, colour_space);
    return out;
}

// The whole document but for the UUID's value and the colour editor's record,
// which every conversion writes.
QStringList entries_without_uuid(const QString& document)
{
    QStringList entries;
    for (const QString& entry : document_entries(document)) {
        if (entry.startsWith(QLatin1String("UUID="))) {
            entries << QStringLiteral("UUID");
        } else if (!entry.startsWith(QLatin1String("ColorCorrections="))) {
            entries << entry;
        }
    }
    return entries;
}

// BwDarkHue and BwLightHue: the hue corrected through the sRGB table, in degrees.
QString corrected_degrees(float degrees)
{
    const float corrected = static_cast<float>(corrected_hue(lut_set().srgb(), degrees));
    return QString::number(static_cast<double>(corrected / 1000.0f), 'f', 6);
}

QString triple(const char* factor)
{
    return QStringLiteral("%1;%1;%1").arg(QLatin1String(factor));
}

const QString ones = triple("1.000000");

} // namespace

class tst_split_toning : public QObject
{
    Q_OBJECT

private slots:
    void monochrome_without_toning_keys();
    void colour_with_only_a_parametric_key();
    void colour_balance_data();
    void colour_balance();
    void colour_toning_wiring();
    void monochrome_toning_data();
    void monochrome_toning();
};

void tst_split_toning::monochrome_without_toning_keys()
{
    const QString hue = corrected_degrees(0.0f);
    const QStringList expected{"BwBlue=0.000000",
                               "BwCyan=0.000000",
                               "BwDarkHue=" + hue,
                               "BwDarkSaturation=0.000000",
                               "BwEnabled=1",
                               "BwGreen=0.000000",
                               "BwLightHue=" + hue,
                               "BwLightSaturation=0.000000",
                               "BwMagenta=0.000000",
                               "BwRed=0.000000",
                               "BwYellow=0.000000",
                               "Name=Toned",
                               "UUID"};
    QCOMPARE(entries_without_uuid(convert({{"ConvertToGrayscale", "true"}})), expected);
}

void tst_split_toning::colour_with_only_a_parametric_key()
{
    const QStringList expected{"ColorBalanceHighlight=" + triple("1.333333"),
                               "ColorBalanceMidtone=" + ones, "ColorBalanceShadow=" + ones,
                               "Name=Toned", "UUID"};
    QCOMPARE(entries_without_uuid(convert({{"ParametricHighlights", "100"}})), expected);
}

// Untoned colour presets, whose multipliers are all 1: the keys show the factors,
// and are there only when a split-toning or parametric key is, readable or not.
void tst_split_toning::colour_balance_data()
{
    QTest::addColumn<setting_map>("settings");
    QTest::addColumn<QString>("shadow");
    QTest::addColumn<QString>("midtone");
    QTest::addColumn<QString>("highlight");
    const QString none;
    const QString quarter_down = triple("0.750000");
    const QString third_up = triple("1.333333");
    const QString eighth_down = triple("0.875000");

    QTest::newRow("no keys") << setting_map{} << none << none << none;
    QTest::newRow("unrelated keys")
        << setting_map{{"Saturation", "20"}, {"GrayMixerRed", "10"}} << none << none << none;
    QTest::newRow("shadow hue") << setting_map{{"SplitToningShadowHue", "30"}} << ones << ones
                                << ones;
    QTest::newRow("highlight saturation")
        << setting_map{{"SplitToningHighlightSaturation", "0"}} << ones << ones << ones;
    QTest::newRow("unreadable balance")
        << setting_map{{"SplitToningBalance", "x"}} << ones << ones << ones;
    QTest::newRow("shadows at -100")
        << setting_map{{"ParametricShadows", "-100"}} << quarter_down << ones << ones;
    QTest::newRow("shadows just below -100")
        << setting_map{{"ParametricShadows", "-100.5"}} << quarter_down << ones << ones;
    QTest::newRow("shadows just above -100")
        << setting_map{{"ParametricShadows", "-99"}} << triple("0.752500") << ones << ones;
    QTest::newRow("shadows never brighten")
        << setting_map{{"ParametricShadows", "50"}} << ones << ones << ones;
    QTest::newRow("darks -100 reach the shadows only")
        << setting_map{{"ParametricDarks", "-100"}} << quarter_down << ones << ones;
    QTest::newRow("darks below -100 are cut")
        << setting_map{{"ParametricDarks", "-150"}, {"ParametricShadows", "50"}} << eighth_down
        << ones << ones;
    QTest::newRow("darks 100 reach the midtones only")
        << setting_map{{"ParametricDarks", "100"}} << ones << third_up << ones;
    QTest::newRow("darks above 100 are cut")
        << setting_map{{"ParametricDarks", "150"}, {"ParametricLights", "-50"}} << ones
        << triple("1.142857") << ones;
    QTest::newRow("lights just above 100")
        << setting_map{{"ParametricLights", "100.5"}} << ones << third_up << ones;
    QTest::newRow("lights -50") << setting_map{{"ParametricLights", "-50"}} << ones << eighth_down
                                << ones;
    QTest::newRow("highlights -50")
        << setting_map{{"ParametricHighlights", "-50"}} << ones << ones << eighth_down;
    QTest::newRow("highlights are not cut")
        << setting_map{{"ParametricHighlights", "200"}} << ones << ones << triple("2.000000");
    QTest::newRow("unreadable highlights count as 0")
        << setting_map{{"ParametricHighlights", "abc"}} << ones << ones << ones;
}

void tst_split_toning::colour_balance()
{
    QFETCH(setting_map, settings);
    const QString document = convert(settings);
    QTEST(document_value(document, QStringLiteral("ColorBalanceShadow")), "shadow");
    QTEST(document_value(document, QStringLiteral("ColorBalanceMidtone")), "midtone");
    QTEST(document_value(document, QStringLiteral("ColorBalanceHighlight")), "highlight");
}

// A full-saturation pure colour always has a channel at 255 and one at 0: a
// greenish-cyan shadow at full strength keeps green and pulls red by 0.3.
void tst_split_toning::colour_toning_wiring()
{
    const QString document = convert({{"SplitToningShadowHue", "150"},
                                      {"SplitToningShadowSaturation", "50"},
                                      {"SplitToningBalance", "40"}});
    const QString shadow = document_value(document, QStringLiteral("ColorBalanceShadow"));
    QVERIFY2(shadow.startsWith(QLatin1String("0.700000;1.000000;")), qPrintable(shadow));
    QCOMPARE(document_value(document, QStringLiteral("ColorBalanceMidtone")), ones);
    QCOMPARE(document_value(document, QStringLiteral("ColorBalanceHighlight")), ones);
    QVERIFY(document_value(document, QStringLiteral("BwDarkHue")).isNull());
}

void tst_split_toning::monochrome_toning_data()
{
    QTest::addColumn<QString>("colour_space");
    for (const char* space : {"adobe", "srgb", "prophoto", "widegamut", "raw", "sRGB"}) {
        QTest::newRow(space) << QString::fromLatin1(space);
    }
}

// The hues go through the sRGB table in every colour space. Saturations pass as
// read on the dark side and times 0.4 on the light side, and the colour-balance
// keys carry the factors alone.
void tst_split_toning::monochrome_toning()
{
    QFETCH(QString, colour_space);
    const QString document = convert({{"ConvertToGrayscale", "true"},
                                      {"SplitToningShadowHue", "200"},
                                      {"SplitToningShadowSaturation", "100"},
                                      {"SplitToningHighlightHue", "40"},
                                      {"SplitToningHighlightSaturation", "30"},
                                      {"SplitToningBalance", "-100"},
                                      {"ParametricLights", "-50"}},
                                     colour_space);
    const QStringList toning = document_entries(document).filter(
        QRegularExpression(QStringLiteral("^(BwDark|BwLight|ColorBalance)")));
    const QStringList expected{"BwDarkHue=" + corrected_degrees(200.0f),
                               "BwDarkSaturation=100.000000",
                               "BwLightHue=" + corrected_degrees(40.0f),
                               "BwLightSaturation=12.000000",
                               "ColorBalanceHighlight=" + ones,
                               "ColorBalanceMidtone=" + triple("0.875000"),
                               "ColorBalanceShadow=" + ones};
    QCOMPARE(toning, expected);
}

QTEST_GUILESS_MAIN(tst_split_toning)
#include "tst_split_toning.moc"
