#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

#include <cmath>

using test_support::document_value;
using test_support::points_from;

// Curves are written "master | red | green | blue", each as levels "x,y x,y ...".

namespace {

const QStringList curve_keys{"GradationCurve", "GradationCurveRed", "GradationCurveGreen",
                             "GradationCurveBlue"};

// The written fractions back as levels; "-" for no entry.
QString written_levels(const QString& document, const QString& key)
{
    const QString text = document_value(document, key);
    if (text.isNull()) {
        return QStringLiteral("-");
    }
    QStringList pairs;
    for (const QString& pair : text.split(QLatin1Char(';'))) {
        const QStringList xy = pair.split(QLatin1Char(','));
        pairs << QStringLiteral("%1,%2")
                     .arg(std::lround(xy.value(0).toDouble() * 255.0))
                     .arg(std::lround(xy.value(1).toDouble() * 255.0));
    }
    return pairs.join(QLatin1Char(' '));
}

QString convert(const QString& colour_space, const QString& curves, bool grayscale = false)
{
    const QStringList levels = curves.split(QLatin1Char('|'));
    preset_settings preset;
    preset.tone_curve = points_from(levels.value(0).trimmed());
    preset.tone_curve_red = points_from(levels.value(1).trimmed());
    preset.tone_curve_green = points_from(levels.value(2).trimmed());
    preset.tone_curve_blue = points_from(levels.value(3).trimmed());
    if (grayscale) {
        preset.settings[QStringLiteral("ConvertToGrayscale")] = QStringLiteral("True");
    }
    return converted_entries::convert(preset, colour_space);
}

// n points along x from 0 in steps of `step`, y falling from `top` by one.
QString many_points(int n, double step, int top)
{
    QStringList pairs;
    for (int i = 0; i < n; ++i) {
        pairs << QStringLiteral("%1,%2").arg(int(i * step)).arg(top - i);
    }
    return pairs.join(QLatin1Char(' '));
}

} // namespace

class tst_curve_stage : public QObject
{
    Q_OBJECT

private slots:
    void writes_curves_data();
    void writes_curves();
    void survives_odd_curves_data();
    void survives_odd_curves();
};

void tst_curve_stage::writes_curves_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<bool>("grayscale");
    QTest::addColumn<QString>("curves");
    QTest::addColumn<QString>("expected"); // "identity" and "diagonal" stand for their levels
    QTest::addColumn<QStringList>("warnings");

    const auto out_of_range = [](const char* key, const char* point) {
        return QStringLiteral("%1 point %2 is out of range and will be clamped!")
            .arg(QLatin1String(key), QLatin1String(point));
    };
    const QStringList all_256{out_of_range("GradationCurveRed", "QPoint(256,256)"),
                              out_of_range("GradationCurveGreen", "QPoint(256,256)"),
                              out_of_range("GradationCurveBlue", "QPoint(256,256)")};
    const auto row = [](const char* name, const char* colour_space, const QString& curves,
                        const QString& expected, const QStringList& warnings = {}) {
        QTest::newRow(name) << QString(colour_space) << false << curves << expected << warnings;
    };

    row("no curves", "srgb", " | | | ", "- | - | - | -");
    row("master only: written unchanged, uneased", "srgb", "0,20 128,64 255,255 | | |",
        "0,20 128,64 255,255 | identity | identity | identity");
    row("red only, not converted: own points, eased", "raw", " | 0,20 128,160 255,255 | |",
        "identity | 0,10 128,160 255,255 | identity | identity");
    row("red only, converted: nine points of each through the table", "srgb", " | 0,20 255,255 | |",
        "identity | 0,19 41,67 79,106 114,139 145,163 175,187 203,211 230,233 255,255 | "
        "0,0 41,36 80,76 114,111 145,143 175,173 203,202 230,229 255,255 | "
        "0,0 41,41 80,80 114,114 146,145 175,175 203,203 230,230 255,255");
    row("red only, unknown space: rastered, 255 comes back as 256", "sRGB", " | 0,20 255,255 | |",
        "identity | 0,10 31,43 63,76 95,108 127,137 159,166 191,196 223,225 255,255 | diagonal | "
        "diagonal",
        all_256);
    row("custom master: identity channels stay", "prophoto",
        "0,0 128,160 255,255 | 0,0 128,100 255,255 | |",
        "0,0 128,160 255,255 | 0,0 22,15 46,31 71,47 97,69 127,101 162,142 205,194 255,255 | "
        "identity | identity");
    row("lifted master is eased", "raw", "0,20 128,128 255,235 | 0,10 128,140 255,250 | |",
        "0,10 128,128 255,235 | 0,5 13,19 51,61 89,102 127,139 165,174 203,208 241,241 255,253 | "
        "identity | identity");
    QTest::newRow("grayscale leaves the master uneased")
        << "raw" << true << "0,20 128,128 255,235 | 0,10 128,140 255,250 | |"
        << "0,20 128,128 255,235 | 0,5 13,19 51,61 89,102 127,139 165,174 203,208 241,241 "
           "255,253 | identity | identity"
        << QStringList{};
    row("compensated to nothing: no red, no table", "srgb",
        "0,140 255,127 | 0,0 128,100 255,255 | |", "0,70 255,127 | - | diagonal | diagonal");
    row("one-point master with plain channels", "raw", "100,50 | | |",
        "100,50 | identity | identity | identity");
    row("one-point red rastered as identity", "other", " | 100,50 | |",
        "identity | diagonal | diagonal | diagonal", all_256);
    row("equal x compensated as identity", "prophoto",
        "0,0 128,160 255,255 | 0,0 128,50 128,200 255,255 | |",
        "0,0 128,160 255,255 | 0,0 22,22 46,46 71,71 97,97 127,127 162,162 205,205 255,255 | "
        "identity | identity");
    row("descending x kept", "raw", " | 255,255 128,50 0,0 | |",
        "identity | 255,255 128,50 0,0 | identity | identity");
    // Three generated presets whose expected documents came from an independent
    // computation; each shows a rounding that a plausible rewrite would change.
    row("master resampled at one of its own points", "raw",
        "0,7 98,36 146,221 255,259 | | | -6,236 45,183 67,253 132,234 169,47 231,88 255,162",
        "0,3 97,47 106,93 114,113 121,123 128,152 136,140 146,224 255,255 | "
        "0,0 97,82 106,76 114,95 121,121 128,128 136,180 146,155 255,255 | "
        "0,0 97,82 106,76 114,95 121,121 128,128 136,180 146,155 255,255 | "
        "0,98 97,220 106,255 114,255 121,246 128,57 136,0 146,0 255,162",
        {out_of_range("GradationCurveBlue", "QPoint(146,-3)"),
         "Applying offset 6 at QPoint(255,255) is resulting in out of range value 261."});
    row("spline terms added in their written order", "raw",
        "0,44 128,131 255,216 | 0,127 150,100 185,248 255,66 | |",
        "0,13 28,28 75,75 122,116 169,171 217,216 255,232 | "
        "0,0 28,9 75,4 122,28 169,140 217,255 255,255 | "
        "0,8 28,51 75,93 122,132 169,156 217,191 255,238 | "
        "0,8 28,51 75,93 122,132 169,156 217,191 255,238");
    row("channel end points rounded, not truncated", "raw",
        "0,2 65,56 133,134 196,204 255,249 | | 0,5 137,122 255,244 |",
        "0,1 65,57 133,134 196,204 255,249 | identity | "
        "0,2 37,36 72,66 101,90 127,113 154,138 183,168 219,205 255,244 | identity");
    row("y far outside is cut with warnings", "prophoto", " | 0,-1000 128,5000 255,255 | |",
        "identity | 0,0 128,255 255,255 | identity | identity",
        {out_of_range("GradationCurveRed", "QPoint(0,-500)"),
         out_of_range("GradationCurveRed", "QPoint(128,5000)")});
}

void tst_curve_stage::writes_curves()
{
    QFETCH(QString, colour_space);
    QFETCH(bool, grayscale);
    QFETCH(QString, curves);
    QFETCH(QString, expected);
    QFETCH(QStringList, warnings);
    const test_support::log_capture log;
    const QString document = convert(colour_space, curves, grayscale);
    QStringList written;
    for (const QString& key : curve_keys) {
        written << written_levels(document, key);
    }
    QCOMPARE(written.join(QLatin1String(" | ")),
             QString(expected)
                 .replace(QLatin1String("identity"), QLatin1String("0,0 255,255"))
                 .replace(QLatin1String("diagonal"),
                          QLatin1String("0,0 31,31 63,63 95,95 127,127 159,159 191,191 "
                                        "223,223 255,255")));
    QCOMPARE(log.messages(QtWarningMsg), warnings);
}

void tst_curve_stage::survives_odd_curves_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<QString>("curves");
    QTest::addColumn<QVector<int>>("sizes"); // points written: master, red, green, blue
    QTest::addColumn<int>("out_of_range");
    QTest::addColumn<bool>("table_clamps");

    QTest::newRow("a level below 0 reaches the table")
        << "srgb"
        << "0,0 128,48 255,255 | | | 0,192 128,224 255,0" << QVector<int>{9, 9, 9, 9} << 0 << true;
    QTest::newRow("1000 points kept as they are") << "prophoto"
                                                  << " | " + many_points(1000, 1, 999) + " | |"
                                                  << QVector<int>{2, 1000, 2, 2} << 1000 << false;
    QTest::newRow("1000-point master beyond 255")
        << "srgb" << many_points(1000, 1, 1250) + " | 0,0 128,100 255,255 | |"
        << QVector<int>{1000, 9, 9, 9} << 1000 << false;
    QTest::newRow("y at the ends of int")
        << "raw"
        << " | 0,2147483647 84,-2147483647 255,0 | |" << QVector<int>{2, 3, 2, 2} << 2 << false;
}

void tst_curve_stage::survives_odd_curves()
{
    QFETCH(QString, colour_space);
    QFETCH(QString, curves);
    QFETCH(QVector<int>, sizes);
    QFETCH(int, out_of_range);
    QFETCH(bool, table_clamps);
    const test_support::log_capture log;
    const QString document = convert(colour_space, curves);
    QVector<int> written;
    for (const QString& key : curve_keys) {
        written << document_value(document, key).count(QLatin1Char(';')) + 1;
    }
    QCOMPARE(written, sizes);
    const QStringList warnings = log.messages(QtWarningMsg);
    QCOMPARE(warnings.filter(QStringLiteral("is out of range and will be clamped!")).size(),
             out_of_range);
    QCOMPARE(!warnings.filter(QRegularExpression(QStringLiteral("^lookup: level -"))).isEmpty(),
             table_clamps);
}

QTEST_GUILESS_MAIN(tst_curve_stage)
#include "tst_curve_stage.moc"
