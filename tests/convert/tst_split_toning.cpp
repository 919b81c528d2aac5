// Split toning and the monochrome mixer: the toning multipliers, the colour
// balance and Bw keys they become, and the mixer's Bw sliders.
#include "convert/monochrome_mix.h"
#include "convert/number_text.h"
#include "convert/toning_multipliers.h"
#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::convert;
using converted_entries::preset_from;
using converted_entries::stage_entries;
using converted_entries::words;
using test_support::document_value;

namespace {

QString triple_text(const colour_factors& triple)
{
    return six_decimal(triple[0]) + QLatin1Char(';') + six_decimal(triple[1]) + QLatin1Char(';') +
           six_decimal(triple[2]);
}

QString triple(const char* factor)
{
    return QStringLiteral("%1;%1;%1").arg(QLatin1String(factor));
}

const QString ones = triple("1.000000");

const rgb_levels red{255, 0, 0};
const rgb_levels white{255, 255, 255};
const rgb_levels cyan{0, 255, 255};

} // namespace

Q_DECLARE_METATYPE(rgb_levels)

class tst_split_toning : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { test_support::use_test_settings(); }
    void balance_data();
    void balance();
    void multipliers_data();
    void multipliers();
    void mixer_sum_with_half_data();
    void mixer_sum_with_half();
    void colour_balance_data();
    void colour_balance();
    void entries_data();
    void entries();
};

void tst_split_toning::balance_data()
{
    QTest::addColumn<float>("source");
    QTest::addColumn<QString>("expected");
    QTest::newRow("just below the bottom") << -100.5f << "-100.000000";
    QTest::newRow("end of the flat part") << -68.0f << "-100.000000";
    QTest::newRow("just above the flat part") << -67.0f << "-98.888885";
    QTest::newRow("neutral leans to the shadows") << 0.0f << "-25.000000";
    QTest::newRow("just above the top") << 100.5f << "75.000000";
}

void tst_split_toning::balance()
{
    QFETCH(float, source);
    const test_support::log_capture log;
    QTEST(six_decimal(toning_balance(source)), "expected");
    QCOMPARE(log.messages(QtWarningMsg), QStringList());
}

// The colours are the pure colours of the corrected hues; saturations and balance
// are the preset's values.
void tst_split_toning::multipliers_data()
{
    QTest::addColumn<rgb_levels>("shadow_colour");
    QTest::addColumn<float>("shadow_saturation");
    QTest::addColumn<rgb_levels>("highlight_colour");
    QTest::addColumn<float>("highlight_saturation");
    QTest::addColumn<float>("balance");
    QTest::addColumn<QString>("shadow");
    QTest::addColumn<QString>("midtone");
    QTest::addColumn<QString>("highlight");
    const QString red_pull = QStringLiteral("1.000000;0.700000;0.700000");

    QTest::newRow("red shadow, saturation 100 as 50")
        << red << 100.0f << white << 0.0f << 40.0f << red_pull << ones << ones;
    QTest::newRow("negative saturation is none")
        << red << -10.0f << white << 0.0f << 40.0f << ones << ones << ones;
    QTest::newRow("neutral balance blends a quarter of shadow into midtone")
        << red << 50.0f << white << 0.0f << 0.0f << red_pull << "1.000000;0.925000;0.925000"
        << ones;
    QTest::newRow("balance -68 makes midtone the shadow")
        << red << 50.0f << white << 0.0f << -68.0f << red_pull << red_pull << ones;
    QTest::newRow("balance 100 blends three quarters of midtone into shadow")
        << red << 50.0f << white << 0.0f << 100.0f << "1.000000;0.925000;0.925000" << ones << ones;
    QTest::newRow("both sides, highlight outside the blend")
        << red << 50.0f << cyan << 50.0f << -68.0f << red_pull << red_pull
        << "0.900000;1.000000;1.000000";
}

void tst_split_toning::multipliers()
{
    QFETCH(rgb_levels, shadow_colour);
    QFETCH(float, shadow_saturation);
    QFETCH(rgb_levels, highlight_colour);
    QFETCH(float, highlight_saturation);
    QFETCH(float, balance);
    const toning_multipliers result =
        make_toning_multipliers(shadow_colour, toning_strength(shadow_saturation), highlight_colour,
                                toning_strength(highlight_saturation), toning_balance(balance));
    QTEST(triple_text(result.shadow), "shadow");
    QTEST(triple_text(result.midtone), "midtone");
    QTEST(triple_text(result.highlight), "highlight");
}

void tst_split_toning::mixer_sum_with_half_data()
{
    QTest::addColumn<float>("a");
    QTest::addColumn<float>("b");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a just inside the bottom") << -99.5f << 0.0f << "-99.500000";
    QTest::newRow("a just below the bottom") << -100.5f << 0.0f << "-100.000000";
    QTest::newRow("b cut before halving") << 0.0f << 300.0f << "50.000000";
    QTest::newRow("b just inside the bottom") << 0.0f << -99.0f << "-49.500000";
    QTest::newRow("sum below the bottom") << -80.0f << -80.0f << "-100.000000";
}

void tst_split_toning::mixer_sum_with_half()
{
    QFETCH(float, a);
    QFETCH(float, b);
    QTEST(six_decimal(clamped_sum_with_half(a, b)), "expected");
}

// Colour presets: the three colour-balance values, there only when a split-toning
// or parametric key is, readable or not. An untoned value is one factor thrice.
void tst_split_toning::colour_balance_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected"); // shadow midtone highlight, each factor once if equal

    const auto row = [](const char* name, const char* settings, const char* expected) {
        QTest::newRow(name) << QString(settings) << QString(expected);
    };
    row("no keys", "", "");
    row("a grayscale flag of 1 is colour: no mixer", "ConvertToGrayscale=1 GrayMixerRed=50", "");
    row("shadow hue", "SplitToningShadowHue=30", "1.000000 1.000000 1.000000");
    row("highlight saturation", "SplitToningHighlightSaturation=0", "1.000000 1.000000 1.000000");
    row("unreadable balance", "SplitToningBalance=x", "1.000000 1.000000 1.000000");
    row("shadows just below -100", "ParametricShadows=-100.5", "0.750000 1.000000 1.000000");
    row("shadows just above -100", "ParametricShadows=-99", "0.752500 1.000000 1.000000");
    row("shadows never brighten", "ParametricShadows=50", "1.000000 1.000000 1.000000");
    row("darks -100 reach the shadows only", "ParametricDarks=-100", "0.750000 1.000000 1.000000");
    row("darks below -100 are cut", "ParametricDarks=-150 ParametricShadows=50",
        "0.875000 1.000000 1.000000");
    row("darks 100 reach the midtones only", "ParametricDarks=100 ParametricShadows=-100",
        "0.750000 1.333333 1.000000");
    row("darks above 100 are cut", "ParametricDarks=150 ParametricLights=-50",
        "1.000000 1.142857 1.000000");
    row("lights just above 100", "ParametricLights=100.5", "1.000000 1.333333 1.000000");
    row("lights -50", "ParametricLights=-50", "1.000000 0.875000 1.000000");
    row("highlights -50", "ParametricHighlights=-50", "1.000000 1.000000 0.875000");
    row("highlights are not cut", "ParametricHighlights=200", "1.000000 1.000000 2.000000");
    row("unreadable highlights count as 0", "ParametricHighlights=abc",
        "1.000000 1.000000 1.000000");
    // The hues come out of the sRGB table as the pure colours (0,255,156) and
    // (255,139,0); the shadow tints at full strength, the highlight at half on the
    // midtones and a third of that on the highlights; a balance of 40 blends nothing.
    row("toned on both sides",
        "SplitToningShadowHue=150 SplitToningShadowSaturation=50 SplitToningHighlightHue=40 "
        "SplitToningHighlightSaturation=25 SplitToningBalance=40",
        "0.700000;1.000000;0.883529 1.000000;0.931765;0.850000 1.000000;0.977255;0.950000");
}

void tst_split_toning::colour_balance()
{
    QFETCH(QString, settings);
    const QString document = convert(preset_from(words(settings)), QStringLiteral("raw"));
    QStringList values;
    for (const char* key : {"ColorBalanceShadow", "ColorBalanceMidtone", "ColorBalanceHighlight"}) {
        const QString value = document_value(document, QLatin1String(key));
        const QStringList factors = value.split(QLatin1Char(';'));
        values << (factors.size() == 3 && factors.count(factors[0]) == 3 ? factors[0] : value);
    }
    QTEST(values.join(QLatin1Char(' ')).trimmed(), "expected");
    QVERIFY(document_value(document, QStringLiteral("BwEnabled")).isNull());
}

void tst_split_toning::entries_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected"); // all but Name, UUID and ColorCorrections

    // A monochrome preset writes the mixer and the toning keys even when it has
    // neither, untoned as hue 0 and saturation 0; hue 0 comes out of the sRGB
    // table as 341.4 degrees.
    QTest::newRow("monochrome without toning keys")
        << "raw"
        << "ConvertToGrayscale=true"
        << "BwBlue=0.000000 BwCyan=0.000000 BwDarkHue=341.411987 BwDarkSaturation=0.000000 "
           "BwEnabled=1 "
           "BwGreen=0.000000 BwLightHue=341.411987 BwLightSaturation=0.000000 BwMagenta=0.000000 "
           "BwRed=0.000000 BwYellow=0.000000";
    // Orange and purple go half to each neighbour; aqua and green pass uncut; a
    // text that doesn't read is 0.
    QTest::newRow("monochrome mixer")
        << "raw"
        << "ConvertToGrayscale=TRUE GrayMixerRed=-100 GrayMixerOrange=100 GrayMixerYellow=30 "
           "GrayMixerGreen=-120 GrayMixerAqua=150 GrayMixerBlue=abc GrayMixerPurple=60 "
           "GrayMixerMagenta=90"
        << "BwBlue=30.000000 BwCyan=150.000000 BwDarkHue=341.411987 BwDarkSaturation=0.000000 "
           "BwEnabled=1 BwGreen=-120.000000 BwLightHue=341.411987 BwLightSaturation=0.000000 "
           "BwMagenta=100.000000 BwRed=-50.000000 BwYellow=80.000000";
    QTest::newRow("colour with only a parametric key")
        << "raw"
        << "ParametricHighlights=100"
        << "ColorBalanceHighlight=1.333333;1.333333;1.333333 "
           "ColorBalanceMidtone=1.000000;1.000000;1.000000 "
           "ColorBalanceShadow=1.000000;1.000000;1.000000";
    // The hues go through the sRGB table in every colour space. Saturations pass
    // as read on the dark side and times 0.4 on the light side, and the
    // colour-balance keys carry the factors alone.
    for (const char* space : {"adobe", "srgb", "prophoto", "widegamut", "raw", "sRGB"}) {
        QTest::addRow("toned monochrome in %s", space)
            << space
            << "ConvertToGrayscale=true SplitToningShadowHue=200 SplitToningShadowSaturation=100 "
               "SplitToningHighlightHue=40 SplitToningHighlightSaturation=30 "
               "SplitToningBalance=-100 ParametricLights=-50"
            << "BwBlue=0.000000 BwCyan=0.000000 BwDarkHue=188.613007 BwDarkSaturation=100.000000 "
               "BwEnabled=1 BwGreen=0.000000 BwLightHue=32.615002 BwLightSaturation=12.000000 "
               "BwMagenta=0.000000 BwRed=0.000000 BwYellow=0.000000 "
               "ColorBalanceHighlight=1.000000;1.000000;1.000000 "
               "ColorBalanceMidtone=0.875000;0.875000;0.875000 "
               "ColorBalanceShadow=1.000000;1.000000;1.000000";
    }
}

void tst_split_toning::entries()
{
    QFETCH(QString, colour_space);
    QFETCH(QString, settings);
    QTEST(stage_entries(settings, colour_space), "expected");
}

QTEST_GUILESS_MAIN(tst_split_toning)
#include "tst_split_toning.moc"
