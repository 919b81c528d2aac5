#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::stage_entries;

namespace {

const QString dehaze_colour =
    QStringLiteral(" DehazeColor=0.211999446153641;0.391483038663864;0.239516332745552");

// The four grain keys for an amount of 25.
QString grain(const char* type)
{
    return QStringLiteral("FilmGrainAmount=25.000000 FilmGrainDensity=0 FilmGrainGranularity=50 "
                          "FilmGrainType=%1")
        .arg(QLatin1String(type));
}

void row(const char* name, const char* settings, const QString& expected)
{
    QTest::newRow(name) << QString(settings) << expected;
}

} // namespace

class tst_detail_effects : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { test_support::use_test_settings(); }
    void effects_data();
    void effects();
};

void tst_detail_effects::effects_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected");

    row("detail copies, uncut",
        "Sharpness=150 SharpenRadius=1.2 LuminanceSmoothing=-5 ColorNoiseReduction=+25 "
        "LuminanceNoiseReductionDetail=50",
        "CnrAmount=25.000000 NoiseDetailsAmount=50.000000 NrAmount=-5.000000 "
        "UsmAmount=150.000000 UsmRadius=1.200000");
    row("unreadable detail left out", "Sharpness=crisp SharpenRadius=1", "UsmRadius=1.000000");

    row("vignette 60, round 30", "PostCropVignetteAmount=60 PostCropVignetteRoundness=30",
        "Vignetting=4.000000|1|0|0");
    row("vignette 100 cut, round 29.5", "PostCropVignetteAmount=100 PostCropVignetteRoundness=29.5",
        "Vignetting=4.000000|1|0|1");
    row("vignette -60", "PostCropVignetteAmount=-60 PostCropVignetteRoundness=-100",
        "Vignetting=-4.000000|1|0|1");
    row("vignette below -60, round above 100",
        "PostCropVignetteAmount=-61 PostCropVignetteRoundness=150", "Vignetting=-4.000000|1|0|0");
    row("vignette -45", "PostCropVignetteAmount=-45 PostCropVignetteRoundness=100",
        "Vignetting=-3.000000|1|0|0");
    row("vignette amount alone", "PostCropVignetteAmount=-30", "");
    row("vignette roundness alone", "PostCropVignetteRoundness=0", "");
    row("vignette roundness unreadable",
        "PostCropVignetteAmount=-30 PostCropVignetteRoundness=oval", "");

    // Type 3 is never written.
    const char* const type_by_size[][2] = {{"10", "0"}, {"10.5", "1"}, {"22", "1"}, {"22.5", "2"},
                                           {"30", "2"}, {"30.5", "4"}, {"45", "4"}, {"45.5", "5"}};
    for (const auto& size_type : type_by_size) {
        QTest::addRow("grain size %s", size_type[0])
            << QStringLiteral("GrainAmount=25 GrainSize=%1").arg(QLatin1String(size_type[0]))
            << grain(size_type[1]);
    }
    row("grain amount alone", "GrainAmount=25", "");
    row("grain size alone", "GrainSize=25", "");
    row("grain size unreadable", "GrainAmount=25 GrainSize=fine", "");
    row("grain amount unreadable", "GrainAmount=lots GrainSize=25",
        "FilmGrainDensity=0 FilmGrainGranularity=50 FilmGrainType=2");

    row("dehaze 0", "Dehaze=0", "DehazeAmount=0.000000");
    row("dehaze 199", "Dehaze=199", "DehazeAmount=99.500000");
    row("dehaze 300 cut", "Dehaze=300", "DehazeAmount=100.000000");
    row("dehaze -49.9", "Dehaze=-49.9", "DehazeAmount=-99.800003" + dehaze_colour);
    row("dehaze -80 cut", "Dehaze=-80", "DehazeAmount=-100.000000" + dehaze_colour);
    row("dehaze unreadable counts as 0", "Dehaze=clear", "DehazeAmount=0.000000");
}

void tst_detail_effects::effects()
{
    QFETCH(QString, settings);
    QFETCH(QString, expected);
    QCOMPARE(stage_entries(settings, QStringLiteral("raw")), expected);
}

QTEST_GUILESS_MAIN(tst_detail_effects)
#include "tst_detail_effects.moc"
