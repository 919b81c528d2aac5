#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::stage_entries;

namespace {

// GradationCurveY with these four inner y values (blank-separated).
QString curve(const QString& points)
{
    const QStringList y = converted_entries::words(points);
    return QStringLiteral("GradationCurveY=0.0000,0.0000;0.2000,%1;0.4000,%2;0.6000,%3;0.8000,%4;"
                          "1.0000,1.0000")
        .arg(y[0], y[1], y[2], y[3]);
}

QString shadow(const char* level)
{
    return QStringLiteral("Shadow=0.0000;0.0000;0.0000;%1 TargetShadow=0.0000;0.0000;0.0000;0.0000")
        .arg(QLatin1String(level));
}

const QString diagonal = QStringLiteral("GradationCurveY=0.0000,0.0000;1.0000,1.0000");

void row(const char* name, const char* colour_space, const char* settings, const QString& expected)
{
    QTest::newRow(name) << QString(colour_space) << QString(settings) << expected;
}

} // namespace

class tst_tone_mapping : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { test_support::use_test_settings(); }
    void tone_data();
    void tone();
};

void tst_tone_mapping::tone_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected");

    // Range mappings of the 2012 process.
    row("exposure beyond the range", "srgb", "Exposure2012=5", "Exposure=4.000000");
    row("exposure at the lower end", "srgb", "Exposure2012=-3.5", "Exposure=-4.000000");
    row("exposure below the range", "srgb", "Exposure2012=-4", "Exposure=-4.000000");
    row("exposure inside, negative", "srgb", "Exposure2012=-1", "Exposure=-1.142857");
    row("exposure 1.75", "srgb", "Exposure2012=1.75", "Exposure=2.000000");
    row("contrast 100", "srgb", "Contrast2012=100", "Contrast=40.000000");
    row("contrast -100", "srgb", "Contrast2012=-100", "Contrast=-50.000000");
    row("contrast 0", "srgb", "Contrast2012=0", "Contrast=0.000000");
    row("contrast -25", "srgb", "Contrast2012=-25", "Contrast=-12.500000");
    row("unreadable contrast", "srgb", "Contrast2012=high", "");

    // The old process: brightness and exposure cross over.
    row("old exposure 1", "srgb", "Exposure=1", "Brightness=28.571430");
    row("old exposure -1, written order", "srgb", "Exposure=-1", "Brightness=-19.999998");
    row("old exposure -2.5", "srgb", "Exposure=-2.5", "Brightness=-50.000000");
    row("old brightness 50", "srgb", "Brightness=50", "Exposure=1.000000");
    row("old contrast -100", "srgb", "Contrast=-100", "Contrast=-50.000000");
    row("old highlight recovery 30", "srgb", "HighlightRecovery=30", "HighlightRecovery=15.000001");
    row("fill light with an old key", "srgb", "FillLight=10 Brightness=0",
        "Exposure=0.000000 ShadowRecovery=25.000000");
    row("fill light below 0 cut", "srgb", "FillLight=-5 Brightness=0",
        "Exposure=0.000000 ShadowRecovery=0.000000");
    row("fill light alone is not old", "srgb", "FillLight=10", "");
    row("2012 exposure wins, old one stays", "srgb", "Exposure=1 Exposure2012=1.75",
        "Brightness=28.571430 Exposure=2.000000");
    row("old shadows above 42", "srgb", "Shadows=43", shadow("0.189092"));
    row("old shadows 42", "srgb", "Shadows=42", shadow("0.189092"));
    row("old shadows 21", "srgb", "Shadows=21", shadow("0.094546"));
    row("old shadows below 0 written", "srgb", "Shadows=-5", shadow("0.000000"));
    row("negative blacks win over old shadows", "srgb", "Shadows=21 Blacks2012=-100",
        shadow("0.189092"));
    row("negative blacks win, other level", "srgb", "Shadows=43 Blacks2012=-99.5",
        shadow("0.188147"));

    // Shadows2012.
    const QString start = curve("0.200000 0.400000 0.600000 0.800000");
    row("positive shadows recover", "srgb", "Shadows2012=50", start + " ShadowRecovery=40.000000");
    row("shadow recovery not cut", "srgb", "Shadows2012=150", start + " ShadowRecovery=120.000000");
    row("shadows -100", "srgb", "Shadows2012=-100", curve("0.150000 0.400000 0.600000 0.800000"));
    row("shadows below -100", "srgb", "Shadows2012=-101",
        curve("0.150000 0.400000 0.600000 0.800000"));
    row("shadows just above -100", "srgb", "Shadows2012=-99.5",
        curve("0.150250 0.400000 0.600000 0.800000"));
    row("shadows -50", "srgb", "Shadows2012=-50", curve("0.175000 0.400000 0.600000 0.800000"));
    row("unreadable shadows ask for the curve", "srgb", "Shadows2012=dark", diagonal);

    // Highlights2012.
    const QString low = curve("0.200000 0.350000 0.530000 0.730000");
    row("highlights -100, raw recovers", "raw", "Highlights2012=-100",
        low + " HighlightRecovery=50.000000");
    row("highlights -100, srgb does not", "srgb", "Highlights2012=-100", low);
    row("highlights below -100", "srgb", "Highlights2012=-100.5", low);
    row("raw recovery not cut", "raw", "Highlights2012=-150", low + " HighlightRecovery=75.000000");
    row("highlights -50, raw", "raw", "Highlights2012=-50",
        curve("0.200000 0.375000 0.565000 0.765000") + " HighlightRecovery=25.000000");
    row("raw recovery replaces the old one", "raw", "HighlightRecovery=30 Highlights2012=-50",
        curve("0.200000 0.375000 0.565000 0.765000") + " HighlightRecovery=25.000000");
    row("highlights 50", "srgb", "Highlights2012=50", curve("0.200000 0.400000 0.655000 0.865000"));
    row("highlights 100", "srgb", "Highlights2012=100",
        curve("0.200000 0.400000 0.710000 0.930000"));
    row("highlights above 100", "srgb", "Highlights2012=101",
        curve("0.200000 0.400000 0.710000 0.930000"));

    // Blacks2012.
    row("blacks 100", "srgb", "Blacks2012=100", curve("0.250000 0.435000 0.600000 0.800000"));
    row("blacks above 100", "srgb", "Blacks2012=101", curve("0.250000 0.435000 0.600000 0.800000"));
    row("blacks 50", "srgb", "Blacks2012=50", curve("0.225000 0.417500 0.600000 0.800000"));
    row("blacks 0 alone: diagonal", "srgb", "Blacks2012=0", diagonal);
    row("blacks -100 alone: no curve", "srgb", "Blacks2012=-100", shadow("0.189092"));
    row("blacks below -100", "srgb", "Blacks2012=-150", shadow("0.189092"));
    row("blacks -50", "srgb", "Blacks2012=-50", shadow("0.094546"));
    row("negative blacks with highlights", "srgb", "Highlights2012=30 Blacks2012=-20",
        curve("0.200000 0.400000 0.633000 0.839000") + " " + shadow("0.037818"));
    row("unreadable blacks alone", "srgb", "Blacks2012=x", "");
    row("all three at 0: diagonal", "srgb", "Shadows2012=0 Highlights2012=0 Blacks2012=0",
        diagonal);
    row("all three together", "srgb", "Shadows2012=-30 Highlights2012=-40 Blacks2012=20",
        curve("0.195000 0.387000 0.572000 0.772000"));

    // Whites2012. The factors are differences of single-precision anchors, which
    // 6.7 and -83.5 tell from the rounded literals.
    const QString neutral_target = QStringLiteral(" TargetHighlight=1;1;1;1");
    row("whites 100", "srgb", "Whites2012=100", "Highlight=1;1;1;0.843500" + neutral_target);
    row("whites 100, raw", "raw", "Whites2012=100", "Highlight=1;1;1;0.500000" + neutral_target);
    row("whites above 100", "srgb", "Whites2012=101", "Highlight=1;1;1;0.843500" + neutral_target);
    row("whites 50", "srgb", "Whites2012=50", "Highlight=1;1;1;0.921750" + neutral_target);
    row("whites 50, raw", "raw", "Whites2012=50", "Highlight=1;1;1;0.750000" + neutral_target);
    row("whites 6.7", "srgb", "Whites2012=6.7", "Highlight=1;1;1;0.989515" + neutral_target);
    row("whites 0", "srgb", "Whites2012=0", "Highlight=1;1;1;1.000000" + neutral_target);
    row("whites -100", "srgb", "Whites2012=-100",
        "Highlight=1;1;1;1 Midtone=0;0;0;0.036500 TargetHighlight=1;1;1;0.834300");
    row("whites below -100, raw", "raw", "Whites2012=-101",
        "Highlight=1;1;1;1 Midtone=0;0;0;0.036500 TargetHighlight=1;1;1;0.834300");
    row("whites just above -100", "srgb", "Whites2012=-99.5",
        "Highlight=1;1;1;1 Midtone=0;0;0;0.036318 TargetHighlight=1;1;1;0.835128");
    row("whites -83.5", "srgb", "Whites2012=-83.5",
        "Highlight=1;1;1;1 Midtone=0;0;0;0.030477 TargetHighlight=1;1;1;0.861641");
    row("whites -50", "srgb", "Whites2012=-50",
        "Highlight=1;1;1;1 Midtone=0;0;0;0.018250 TargetHighlight=1;1;1;0.917150");

    // Clarity: with Clarity2012 present an old-process preset reads Clarity only.
    const QString clarity_30 =
        QStringLiteral("Clarity=30.000000 ClarityMethod=2 ClarityStructure=10.000000");
    row("2012 clarity", "srgb", "Clarity2012=30", clarity_30);
    row("old clarity", "srgb", "Clarity=30", clarity_30);
    row("old process reads old clarity", "srgb", "Clarity=30 Clarity2012=10", clarity_30);
    row("old process without old clarity", "srgb", "Clarity2012=30 Exposure=0",
        "Brightness=0.000000");
    row("clarity not cut", "srgb", "Clarity2012=150",
        "Clarity=150.000000 ClarityMethod=2 ClarityStructure=50.000000");
    row("structure a third", "srgb", "Clarity2012=10",
        "Clarity=10.000000 ClarityMethod=2 ClarityStructure=3.333333");
    row("negative clarity", "srgb", "Clarity2012=-25",
        "Clarity=-25.000000 ClarityMethod=2 ClarityStructure=-8.333333");
    row("unreadable clarity", "srgb", "Clarity2012=soft", "");
}

void tst_tone_mapping::tone()
{
    QFETCH(QString, colour_space);
    QFETCH(QString, settings);
    QFETCH(QString, expected);
    const test_support::log_capture log;
    QCOMPARE(stage_entries(settings, colour_space), expected);
    QCOMPARE(log.messages(QtWarningMsg), QStringList());
}

QTEST_GUILESS_MAIN(tst_tone_mapping)
#include "tst_tone_mapping.moc"
