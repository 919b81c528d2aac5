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

// Whites below 0 lower the midtone and the white output.
QString whites_down(const char* midtone, const char* target)
{
    return QStringLiteral("Highlight=1;1;1;1 Midtone=0;0;0;%1 TargetHighlight=1;1;1;%2")
        .arg(QLatin1String(midtone), QLatin1String(target));
}

const QString diagonal = QStringLiteral("GradationCurveY=0.0000,0.0000;1.0000,1.0000");

void row(const char* name, const char* settings, const QString& expected,
         const char* colour_space = "srgb")
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
    row("exposure beyond the range", "Exposure2012=5", "Exposure=4.000000");
    row("exposure below the range", "Exposure2012=-4", "Exposure=-4.000000");
    row("exposure inside, negative", "Exposure2012=-1", "Exposure=-1.142857");
    row("contrast 100", "Contrast2012=100", "Contrast=40.000000");
    row("contrast -100", "Contrast2012=-100", "Contrast=-50.000000");
    row("unreadable contrast", "Contrast2012=high", "");

    // The old process: brightness and exposure cross over.
    row("old exposure 1", "Exposure=1", "Brightness=28.571430");
    row("old exposure -1, written order", "Exposure=-1", "Brightness=-19.999998");
    row("old brightness 50", "Brightness=50", "Exposure=1.000000");
    row("old highlight recovery 30", "HighlightRecovery=30", "HighlightRecovery=15.000001");
    row("fill light with an old key", "FillLight=10 Brightness=0",
        "Exposure=0.000000 ShadowRecovery=25.000000");
    row("fill light below 0 cut", "FillLight=-5 Brightness=0",
        "Exposure=0.000000 ShadowRecovery=0.000000");
    row("fill light alone is not old", "FillLight=10", "");
    row("2012 exposure wins, old one stays", "Exposure=1 Exposure2012=1.75",
        "Brightness=28.571430 Exposure=2.000000");
    row("old shadows just above 42", "Shadows=42.5", shadow("0.189092"));
    row("old shadows 21", "Shadows=21", shadow("0.094546"));
    row("old shadows below 0 written", "Shadows=-5", shadow("0.000000"));
    row("negative blacks win over old shadows", "Shadows=21 Blacks2012=-100", shadow("0.189092"));
    row("negative blacks win, other level", "Shadows=43 Blacks2012=-99.5", shadow("0.188147"));

    // Shadows2012.
    const QString lowest = curve("0.150000 0.400000 0.600000 0.800000");
    row("shadow recovery not cut", "Shadows2012=150",
        curve("0.200000 0.400000 0.600000 0.800000") + " ShadowRecovery=120.000000");
    row("shadows below -100", "Shadows2012=-101", lowest);
    row("shadows just above -100", "Shadows2012=-99.5",
        curve("0.150250 0.400000 0.600000 0.800000"));
    row("unreadable shadows ask for the curve", "Shadows2012=dark", diagonal);

    // Highlights2012; only "raw" recovers.
    const QString low = curve("0.200000 0.350000 0.530000 0.730000");
    const QString half_low = curve("0.200000 0.375000 0.565000 0.765000");
    const QString high = curve("0.200000 0.400000 0.710000 0.930000");
    row("raw recovery not cut", "Highlights2012=-150", low + " HighlightRecovery=75.000000", "raw");
    row("highlights -50", "Highlights2012=-50", half_low);
    row("raw recovery replaces the old one", "HighlightRecovery=30 Highlights2012=-50",
        half_low + " HighlightRecovery=25.000000", "raw");
    row("highlights just below 100", "Highlights2012=99.5",
        curve("0.200000 0.400000 0.709450 0.929350"));
    row("highlights above 100", "Highlights2012=101", high);

    // Blacks2012.
    const QString raised = curve("0.250000 0.435000 0.600000 0.800000");
    row("blacks above 100", "Blacks2012=101", raised);
    row("blacks 3.53, written order", "Blacks2012=3.53",
        curve("0.201765 0.401236 0.600000 0.800000"));
    row("blacks 0 alone: diagonal", "Blacks2012=0", diagonal);
    row("blacks below -100 alone: no curve", "Blacks2012=-150", shadow("0.189092"));
    row("negative blacks with highlights, written order", "Highlights2012=30 Blacks2012=-71.53",
        curve("0.200000 0.400000 0.633000 0.839000") + " " + shadow("0.135258"));
    row("unreadable blacks alone", "Blacks2012=x", "");
    row("all three together", "Shadows2012=-30 Highlights2012=-40 Blacks2012=20",
        curve("0.195000 0.387000 0.572000 0.772000"));

    // Whites2012. The factors are differences of single-precision anchors, which
    // 6.7 and -83.5 tell from the rounded literals.
    const QString neutral = QStringLiteral(" TargetHighlight=1;1;1;1");
    row("whites 100, raw", "Whites2012=100", "Highlight=1;1;1;0.500000" + neutral, "raw");
    row("whites above 100", "Whites2012=101", "Highlight=1;1;1;0.843500" + neutral);
    row("whites 6.7", "Whites2012=6.7", "Highlight=1;1;1;0.989515" + neutral);
    row("whites 0", "Whites2012=0", "Highlight=1;1;1;1.000000" + neutral);
    row("whites below -100, raw", "Whites2012=-101", whites_down("0.036500", "0.834300"), "raw");
    row("whites just above -100", "Whites2012=-99.5", whites_down("0.036318", "0.835128"));
    row("whites -83.5", "Whites2012=-83.5", whites_down("0.030477", "0.861641"));

    // Clarity: with Clarity2012 present an old-process preset reads Clarity only.
    const QString clarity_30 =
        QStringLiteral("Clarity=30.000000 ClarityMethod=2 ClarityStructure=10.000000");
    row("2012 clarity, structure a third", "Clarity2012=10",
        "Clarity=10.000000 ClarityMethod=2 ClarityStructure=3.333333");
    row("old clarity", "Clarity=30", clarity_30);
    row("old process reads old clarity", "Clarity=30 Clarity2012=10", clarity_30);
    row("old process without old clarity", "Clarity2012=30 Exposure=0", "Brightness=0.000000");
    row("unreadable clarity", "Clarity2012=soft", "");
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
