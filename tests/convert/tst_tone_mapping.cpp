#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::stage_entries;

namespace {

QString luma_curve(const char* y1, const char* y2, const char* y3, const char* y4)
{
    return QStringLiteral("GradationCurveY=0.0000,0.0000;0.2000,%1;0.4000,%2;0.6000,%3;0.8000,%4;"
                          "1.0000,1.0000")
        .arg(y1, y2, y3, y4);
}

const QString diagonal = QStringLiteral("GradationCurveY=0.0000,0.0000;1.0000,1.0000");
const QString start_points = luma_curve("0.200000", "0.400000", "0.600000", "0.800000");
const QString neutral_target_shadow = QStringLiteral("TargetShadow=0.0000;0.0000;0.0000;0.0000");

} // namespace

class tst_tone_mapping : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { test_support::use_test_settings(); }
    void range_mappings_data();
    void range_mappings();
    void luma_curve_and_levels_data();
    void luma_curve_and_levels();
    void clarity_data();
    void clarity();
};

void tst_tone_mapping::range_mappings_data()
{
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("exposure beyond the range")
        << QStringList{"Exposure2012=5"} << QStringList{"Exposure=4.000000"};
    QTest::newRow("exposure at the lower end")
        << QStringList{"Exposure2012=-3.5"} << QStringList{"Exposure=-4.000000"};
    QTest::newRow("exposure below the range")
        << QStringList{"Exposure2012=-4"} << QStringList{"Exposure=-4.000000"};
    QTest::newRow("exposure inside, negative")
        << QStringList{"Exposure2012=-1"} << QStringList{"Exposure=-1.142857"};
    QTest::newRow("exposure 1.75")
        << QStringList{"Exposure2012=1.75"} << QStringList{"Exposure=2.000000"};
    QTest::newRow("contrast +100")
        << QStringList{"Contrast2012=100"} << QStringList{"Contrast=40.000000"};
    QTest::newRow("contrast -100")
        << QStringList{"Contrast2012=-100"} << QStringList{"Contrast=-50.000000"};
    QTest::newRow("contrast 0") << QStringList{"Contrast2012=0"}
                                << QStringList{"Contrast=0.000000"};
    QTest::newRow("contrast -25") << QStringList{"Contrast2012=-25"}
                                  << QStringList{"Contrast=-12.500000"};
    QTest::newRow("unreadable text writes nothing")
        << QStringList{"Contrast2012=high"} << QStringList();

    // The old process: brightness and exposure cross over.
    QTest::newRow("old exposure 1")
        << QStringList{"Exposure=1"} << QStringList{"Brightness=28.571430"};
    QTest::newRow("old exposure -1, in written order")
        << QStringList{"Exposure=-1"} << QStringList{"Brightness=-19.999998"};
    QTest::newRow("old exposure -2.5")
        << QStringList{"Exposure=-2.5"} << QStringList{"Brightness=-50.000000"};
    QTest::newRow("old brightness 50")
        << QStringList{"Brightness=50"} << QStringList{"Exposure=1.000000"};
    QTest::newRow("old contrast -100")
        << QStringList{"Contrast=-100"} << QStringList{"Contrast=-50.000000"};
    QTest::newRow("old highlight recovery 30")
        << QStringList{"HighlightRecovery=30"} << QStringList{"HighlightRecovery=15.000001"};
    QTest::newRow("fill light with another old key")
        << QStringList{"FillLight=10", "Shadows=0"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.000000", "ShadowRecovery=25.000000",
                       neutral_target_shadow};
    QTest::newRow("fill light below 0 is cut")
        << QStringList{"FillLight=-5", "Brightness=0"}
        << QStringList{"Exposure=0.000000", "ShadowRecovery=0.000000"};
    QTest::newRow("fill light alone is no old preset")
        << QStringList{"FillLight=10"} << QStringList();
    QTest::newRow("2012 exposure wins, old exposure stays in brightness")
        << QStringList{"Exposure=1", "Exposure2012=1.75"}
        << QStringList{"Brightness=28.571430", "Exposure=2.000000"};

    // The old shadows level.
    QTest::newRow("old shadows above 42")
        << QStringList{"Shadows=43"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.189092", neutral_target_shadow};
    QTest::newRow("old shadows at 42")
        << QStringList{"Shadows=42"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.189092", neutral_target_shadow};
    QTest::newRow("old shadows 21")
        << QStringList{"Shadows=21"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.094546", neutral_target_shadow};
    QTest::newRow("old shadows below 0 still written")
        << QStringList{"Shadows=-5"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.000000", neutral_target_shadow};
    QTest::newRow("negative blacks win over old shadows")
        << QStringList{"Shadows=21", "Blacks2012=-100"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.189092", neutral_target_shadow};
    QTest::newRow("negative blacks win over old shadows, other level")
        << QStringList{"Shadows=43", "Blacks2012=-99.5"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.188147", neutral_target_shadow};
}

void tst_tone_mapping::range_mappings()
{
    QFETCH(QStringList, settings);
    QFETCH(QStringList, expected);
    QCOMPARE(stage_entries(settings, QStringLiteral("srgb")), expected);
}

void tst_tone_mapping::luma_curve_and_levels_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QStringList>("expected");

    // Shadows2012.
    QTest::newRow("positive shadows recover, points stay")
        << "srgb" << QStringList{"Shadows2012=50"}
        << QStringList{start_points, "ShadowRecovery=40.000000"};
    QTest::newRow("shadow recovery is not cut")
        << "srgb" << QStringList{"Shadows2012=150"}
        << QStringList{start_points, "ShadowRecovery=120.000000"};
    QTest::newRow("shadows -100") << "srgb" << QStringList{"Shadows2012=-100"}
                                  << QStringList{luma_curve("0.150000", "0.400000", "0.600000",
                                                            "0.800000")};
    QTest::newRow("shadows below -100")
        << "srgb" << QStringList{"Shadows2012=-101"}
        << QStringList{luma_curve("0.150000", "0.400000", "0.600000", "0.800000")};
    QTest::newRow("shadows just above -100")
        << "srgb" << QStringList{"Shadows2012=-99.5"}
        << QStringList{luma_curve("0.150250", "0.400000", "0.600000", "0.800000")};
    QTest::newRow("shadows -50") << "srgb" << QStringList{"Shadows2012=-50"}
                                 << QStringList{
                                        luma_curve("0.175000", "0.400000", "0.600000", "0.800000")};
    QTest::newRow("unreadable shadows still ask for the curve")
        << "srgb" << QStringList{"Shadows2012=dark"} << QStringList{diagonal};

    // Highlights2012.
    QTest::newRow("highlights -100, raw recovers")
        << "raw" << QStringList{"Highlights2012=-100"}
        << QStringList{luma_curve("0.200000", "0.350000", "0.530000", "0.730000"),
                       "HighlightRecovery=50.000000"};
    QTest::newRow("highlights -100, srgb does not recover")
        << "srgb" << QStringList{"Highlights2012=-100"}
        << QStringList{luma_curve("0.200000", "0.350000", "0.530000", "0.730000")};
    QTest::newRow("highlights below -100")
        << "srgb" << QStringList{"Highlights2012=-100.5"}
        << QStringList{luma_curve("0.200000", "0.350000", "0.530000", "0.730000")};
    QTest::newRow("highlights -50, raw")
        << "raw" << QStringList{"Highlights2012=-50"}
        << QStringList{luma_curve("0.200000", "0.375000", "0.565000", "0.765000"),
                       "HighlightRecovery=25.000000"};
    QTest::newRow("raw recovery is not cut")
        << "raw" << QStringList{"Highlights2012=-150"}
        << QStringList{luma_curve("0.200000", "0.350000", "0.530000", "0.730000"),
                       "HighlightRecovery=75.000000"};
    QTest::newRow("2012 recovery replaces the old one in raw")
        << "raw" << QStringList{"HighlightRecovery=30", "Highlights2012=-50"}
        << QStringList{luma_curve("0.200000", "0.375000", "0.565000", "0.765000"),
                       "HighlightRecovery=25.000000"};
    QTest::newRow("highlights 50")
        << "srgb" << QStringList{"Highlights2012=50"}
        << QStringList{luma_curve("0.200000", "0.400000", "0.655000", "0.865000")};
    QTest::newRow("highlights 100")
        << "srgb" << QStringList{"Highlights2012=100"}
        << QStringList{luma_curve("0.200000", "0.400000", "0.710000", "0.930000")};
    QTest::newRow("highlights above 100")
        << "srgb" << QStringList{"Highlights2012=101"}
        << QStringList{luma_curve("0.200000", "0.400000", "0.710000", "0.930000")};

    // Blacks2012.
    QTest::newRow("blacks 100") << "srgb" << QStringList{"Blacks2012=100"}
                                << QStringList{
                                       luma_curve("0.250000", "0.435000", "0.600000", "0.800000")};
    QTest::newRow("blacks above 100")
        << "srgb" << QStringList{"Blacks2012=101"}
        << QStringList{luma_curve("0.250000", "0.435000", "0.600000", "0.800000")};
    QTest::newRow("blacks 50") << "srgb" << QStringList{"Blacks2012=50"}
                               << QStringList{
                                      luma_curve("0.225000", "0.417500", "0.600000", "0.800000")};
    QTest::newRow("blacks 0 alone gives the diagonal")
        << "srgb" << QStringList{"Blacks2012=0"} << QStringList{diagonal};
    QTest::newRow("blacks -100 alone: shadow level, no curve")
        << "srgb" << QStringList{"Blacks2012=-100"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.189092", neutral_target_shadow};
    QTest::newRow("blacks below -100")
        << "srgb" << QStringList{"Blacks2012=-150"}
        << QStringList{"Shadow=0.0000;0.0000;0.0000;0.189092", neutral_target_shadow};
    QTest::newRow("blacks -50") << "srgb" << QStringList{"Blacks2012=-50"}
                                << QStringList{"Shadow=0.0000;0.0000;0.0000;0.094546",
                                               neutral_target_shadow};
    QTest::newRow("negative blacks with highlights keep the curve")
        << "srgb" << QStringList{"Highlights2012=30", "Blacks2012=-20"}
        << QStringList{luma_curve("0.200000", "0.400000", "0.633000", "0.839000"),
                       "Shadow=0.0000;0.0000;0.0000;0.037818", neutral_target_shadow};
    QTest::newRow("unreadable blacks alone")
        << "srgb" << QStringList{"Blacks2012=x"} << QStringList();
    QTest::newRow("all three at 0 give the diagonal")
        << "srgb" << QStringList{"Shadows2012=0", "Highlights2012=0", "Blacks2012=0"}
        << QStringList{diagonal};
    QTest::newRow("all three together")
        << "srgb" << QStringList{"Shadows2012=-30", "Highlights2012=-40", "Blacks2012=20"}
        << QStringList{luma_curve("0.195000", "0.387000", "0.572000", "0.772000")};

    // Whites2012.
    QTest::newRow("whites 100") << "srgb" << QStringList{"Whites2012=100"}
                                << QStringList{"Highlight=1;1;1;0.843500",
                                               "TargetHighlight=1;1;1;1"};
    QTest::newRow("whites 100, raw")
        << "raw" << QStringList{"Whites2012=100"}
        << QStringList{"Highlight=1;1;1;0.500000", "TargetHighlight=1;1;1;1"};
    QTest::newRow("whites above 100")
        << "srgb" << QStringList{"Whites2012=101"}
        << QStringList{"Highlight=1;1;1;0.843500", "TargetHighlight=1;1;1;1"};
    QTest::newRow("whites 50") << "srgb" << QStringList{"Whites2012=50"}
                               << QStringList{"Highlight=1;1;1;0.921750",
                                              "TargetHighlight=1;1;1;1"};
    QTest::newRow("whites 50, raw")
        << "raw" << QStringList{"Whites2012=50"}
        << QStringList{"Highlight=1;1;1;0.750000", "TargetHighlight=1;1;1;1"};
    // The depth factor is 1 minus 0.8435 in single precision, not the literal 0.1565.
    QTest::newRow("whites 6.7, factor from its anchors")
        << "srgb" << QStringList{"Whites2012=6.7"}
        << QStringList{"Highlight=1;1;1;0.989515", "TargetHighlight=1;1;1;1"};
    QTest::newRow("whites 0") << "srgb" << QStringList{"Whites2012=0"}
                              << QStringList{"Highlight=1;1;1;1.000000", "TargetHighlight=1;1;1;1"};
    QTest::newRow("whites -100") << "srgb" << QStringList{"Whites2012=-100"}
                                 << QStringList{"Highlight=1;1;1;1", "Midtone=0;0;0;0.036500",
                                                "TargetHighlight=1;1;1;0.834300"};
    QTest::newRow("whites below -100") << "raw" << QStringList{"Whites2012=-101"}
                                       << QStringList{"Highlight=1;1;1;1", "Midtone=0;0;0;0.036500",
                                                      "TargetHighlight=1;1;1;0.834300"};
    QTest::newRow("whites just above -100")
        << "srgb" << QStringList{"Whites2012=-99.5"}
        << QStringList{"Highlight=1;1;1;1", "Midtone=0;0;0;0.036318",
                       "TargetHighlight=1;1;1;0.835128"};
    QTest::newRow("whites -83.5, factor from its anchors")
        << "srgb" << QStringList{"Whites2012=-83.5"}
        << QStringList{"Highlight=1;1;1;1", "Midtone=0;0;0;0.030477",
                       "TargetHighlight=1;1;1;0.861641"};
    QTest::newRow("whites -50") << "srgb" << QStringList{"Whites2012=-50"}
                                << QStringList{"Highlight=1;1;1;1", "Midtone=0;0;0;0.018250",
                                               "TargetHighlight=1;1;1;0.917150"};
}

void tst_tone_mapping::luma_curve_and_levels()
{
    QFETCH(QString, colour_space);
    QFETCH(QStringList, settings);
    QFETCH(QStringList, expected);
    const test_support::log_capture log;
    QCOMPARE(stage_entries(settings, colour_space), expected);
    QCOMPARE(log.messages(QtWarningMsg), QStringList());
}

void tst_tone_mapping::clarity_data()
{
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QStringList>("expected");

    const QStringList clarity_30{"Clarity=30.000000", "ClarityMethod=2",
                                 "ClarityStructure=10.000000"};
    QTest::newRow("2012 clarity") << QStringList{"Clarity2012=30"} << clarity_30;
    QTest::newRow("old clarity") << QStringList{"Clarity=30"} << clarity_30;
    QTest::newRow("old process reads old clarity only")
        << QStringList{"Clarity=30", "Clarity2012=10"} << clarity_30;
    QTest::newRow("old process without old clarity writes none")
        << QStringList{"Clarity2012=30", "Exposure=0"} << QStringList{"Brightness=0.000000"};
    QTest::newRow("not cut, structure a third")
        << QStringList{"Clarity2012=150"}
        << QStringList{"Clarity=150.000000", "ClarityMethod=2", "ClarityStructure=50.000000"};
    QTest::newRow("structure in single precision")
        << QStringList{"Clarity2012=10"}
        << QStringList{"Clarity=10.000000", "ClarityMethod=2", "ClarityStructure=3.333333"};
    QTest::newRow("negative clarity")
        << QStringList{"Clarity2012=-25"}
        << QStringList{"Clarity=-25.000000", "ClarityMethod=2", "ClarityStructure=-8.333333"};
    QTest::newRow("unreadable clarity") << QStringList{"Clarity2012=soft"} << QStringList();
}

void tst_tone_mapping::clarity()
{
    QFETCH(QStringList, settings);
    QFETCH(QStringList, expected);
    QCOMPARE(stage_entries(settings, QStringLiteral("srgb")), expected);
}

QTEST_GUILESS_MAIN(tst_tone_mapping)
#include "tst_tone_mapping.moc"
