#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::stage_entries;

namespace {

const QString dehaze_colour =
    QStringLiteral("DehazeColor=0.211999446153641;0.391483038663864;0.239516332745552");

QStringList grain(const char* type)
{
    return {QStringLiteral("FilmGrainAmount=25.000000"), QStringLiteral("FilmGrainDensity=0"),
            QStringLiteral("FilmGrainGranularity=50"), QStringLiteral("FilmGrainType=") + type};
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
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QStringList>("expected");

    // Detail: straight copies.
    QTest::newRow("detail copies, uncut")
        << QStringList{"Sharpness=150", "SharpenRadius=1.2", "LuminanceSmoothing=-5",
                       "ColorNoiseReduction=+25", "LuminanceNoiseReductionDetail=50"}
        << QStringList{"CnrAmount=25.000000", "NoiseDetailsAmount=50.000000", "NrAmount=-5.000000",
                       "UsmAmount=150.000000", "UsmRadius=1.200000"};
    QTest::newRow("unreadable detail left out")
        << QStringList{"Sharpness=crisp", "SharpenRadius=1"} << QStringList{"UsmRadius=1.000000"};

    // Vignette: both keys needed, both readable.
    QTest::newRow("vignette -30, round 0")
        << QStringList{"PostCropVignetteAmount=-30", "PostCropVignetteRoundness=0"}
        << QStringList{"Vignetting=-2.000000|1|0|1"};
    QTest::newRow("vignette 60, round 30")
        << QStringList{"PostCropVignetteAmount=60", "PostCropVignetteRoundness=30"}
        << QStringList{"Vignetting=4.000000|1|0|0"};
    QTest::newRow("vignette 100 is cut")
        << QStringList{"PostCropVignetteAmount=100", "PostCropVignetteRoundness=29.5"}
        << QStringList{"Vignetting=4.000000|1|0|1"};
    QTest::newRow("vignette -60") << QStringList{"PostCropVignetteAmount=-60",
                                                 "PostCropVignetteRoundness=-100"}
                                  << QStringList{"Vignetting=-4.000000|1|0|1"};
    QTest::newRow("vignette below -60")
        << QStringList{"PostCropVignetteAmount=-61", "PostCropVignetteRoundness=150"}
        << QStringList{"Vignetting=-4.000000|1|0|0"};
    QTest::newRow("vignette -45") << QStringList{"PostCropVignetteAmount=-45",
                                                 "PostCropVignetteRoundness=100"}
                                  << QStringList{"Vignetting=-3.000000|1|0|0"};
    QTest::newRow("vignette amount alone")
        << QStringList{"PostCropVignetteAmount=-30"} << QStringList();
    QTest::newRow("vignette roundness alone")
        << QStringList{"PostCropVignetteRoundness=0"} << QStringList();
    QTest::newRow("vignette with unreadable roundness")
        << QStringList{"PostCropVignetteAmount=-30", "PostCropVignetteRoundness=oval"}
        << QStringList();

    // Grain: the type from the size, never type 3.
    QTest::newRow("grain size 0") << QStringList{"GrainAmount=25", "GrainSize=0"} << grain("0");
    QTest::newRow("grain size 10") << QStringList{"GrainAmount=25", "GrainSize=10"} << grain("0");
    QTest::newRow("grain size 10.5")
        << QStringList{"GrainAmount=25", "GrainSize=10.5"} << grain("1");
    QTest::newRow("grain size 22") << QStringList{"GrainAmount=25", "GrainSize=22"} << grain("1");
    QTest::newRow("grain size 22.5")
        << QStringList{"GrainAmount=25", "GrainSize=22.5"} << grain("2");
    QTest::newRow("grain size 30") << QStringList{"GrainAmount=25", "GrainSize=30"} << grain("2");
    QTest::newRow("grain size 30.5")
        << QStringList{"GrainAmount=25", "GrainSize=30.5"} << grain("4");
    QTest::newRow("grain size 45") << QStringList{"GrainAmount=25", "GrainSize=45"} << grain("4");
    QTest::newRow("grain size 46") << QStringList{"GrainAmount=25", "GrainSize=46"} << grain("5");
    QTest::newRow("grain size above 100")
        << QStringList{"GrainAmount=25", "GrainSize=150"} << grain("5");
    QTest::newRow("grain amount alone") << QStringList{"GrainAmount=25"} << QStringList();
    QTest::newRow("grain size alone") << QStringList{"GrainSize=25"} << QStringList();
    QTest::newRow("unreadable grain size")
        << QStringList{"GrainAmount=25", "GrainSize=fine"} << QStringList();
    QTest::newRow("unreadable grain amount keeps the rest")
        << QStringList{"GrainAmount=lots", "GrainSize=25"}
        << QStringList{"FilmGrainDensity=0", "FilmGrainGranularity=50", "FilmGrainType=2"};

    // Dehaze: half upward, double downward, a colour only downward.
    QTest::newRow("dehaze 0") << QStringList{"Dehaze=0"} << QStringList{"DehazeAmount=0.000000"};
    QTest::newRow("dehaze 40") << QStringList{"Dehaze=40"} << QStringList{"DehazeAmount=20.000000"};
    QTest::newRow("dehaze 199") << QStringList{"Dehaze=199"}
                                << QStringList{"DehazeAmount=99.500000"};
    QTest::newRow("dehaze 300 is cut")
        << QStringList{"Dehaze=300"} << QStringList{"DehazeAmount=100.000000"};
    QTest::newRow("dehaze -10") << QStringList{"Dehaze=-10"}
                                << QStringList{"DehazeAmount=-20.000000", dehaze_colour};
    QTest::newRow("dehaze -49.9") << QStringList{"Dehaze=-49.9"}
                                  << QStringList{"DehazeAmount=-99.800003", dehaze_colour};
    QTest::newRow("dehaze -50") << QStringList{"Dehaze=-50"}
                                << QStringList{"DehazeAmount=-100.000000", dehaze_colour};
    QTest::newRow("dehaze -80 is cut")
        << QStringList{"Dehaze=-80"} << QStringList{"DehazeAmount=-100.000000", dehaze_colour};
    QTest::newRow("unreadable dehaze counts as 0")
        << QStringList{"Dehaze=clear"} << QStringList{"DehazeAmount=0.000000"};
}

void tst_detail_effects::effects()
{
    QFETCH(QStringList, settings);
    QFETCH(QStringList, expected);
    QCOMPARE(stage_entries(settings, QStringLiteral("raw")), expected);
}

QTEST_GUILESS_MAIN(tst_detail_effects)
#include "tst_detail_effects.moc"
