#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

#include <cmath>

using test_support::document_value;
using test_support::points_from;

namespace {

const QStringList curve_keys{"GradationCurve", "GradationCurveRed", "GradationCurveGreen",
                             "GradationCurveBlue"};

const QString identity = QStringLiteral("0,0 255,255");
const QString diagonal =
    QStringLiteral("0,0 31,31 63,63 95,95 127,127 159,159 191,191 223,223 255,255");

// The written fractions back as levels, "x,y x,y ..."; a null string for no entry.
QString written_levels(const QString& document, const QString& key)
{
    const QString text = document_value(document, key);
    if (text.isNull()) {
        return text;
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

QString convert(const QString& colour_space, const QStringList& curves, bool grayscale = false)
{
    preset_settings preset;
    preset.tone_curve = points_from(curves.value(0));
    preset.tone_curve_red = points_from(curves.value(1));
    preset.tone_curve_green = points_from(curves.value(2));
    preset.tone_curve_blue = points_from(curves.value(3));
    if (grayscale) {
        preset.settings[QStringLiteral("ConvertToGrayscale")] = QStringLiteral("True");
    }
    return converted_entries::convert(preset, colour_space);
}

// n points along x from `first` in steps of `step`, y falling from `top` by one.
QString many_points(int n, int first, double step, int top)
{
    QStringList pairs;
    for (int i = 0; i < n; ++i) {
        pairs << QStringLiteral("%1,%2").arg(first + int(i * step)).arg(top - i);
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
    QTest::addColumn<QStringList>("curves"); // master, red, green, blue
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("warnings");

    const QString none;
    const auto out_of_range = [](const char* key, const char* point) {
        return QStringLiteral("%1 point %2 is out of range and will be clamped!")
            .arg(QLatin1String(key), QLatin1String(point));
    };

    QTest::newRow("no curves") << "srgb" << false << QStringList{"", "", "", ""}
                               << QStringList{none, none, none, none} << QStringList{};
    QTest::newRow("master only: written unchanged, uneased")
        << "srgb" << false << QStringList{"0,20 128,64 255,255", "", "", ""}
        << QStringList{"0,20 128,64 255,255", identity, identity, identity} << QStringList{};
    QTest::newRow("red only, not converted: own points, eased")
        << "raw" << false << QStringList{"", "0,20 128,160 255,255", "", ""}
        << QStringList{identity, "0,10 128,160 255,255", identity, identity} << QStringList{};
    QTest::newRow("red only, converted: nine points of each through the table")
        << "srgb" << false << QStringList{"", "0,20 255,255", "", ""}
        << QStringList{identity,
                       "0,19 41,67 79,106 114,139 145,163 175,187 203,211 230,233 255,255",
                       "0,0 41,36 80,76 114,111 145,143 175,173 203,202 230,229 255,255",
                       "0,0 41,41 80,80 114,114 146,145 175,175 203,203 230,230 255,255"}
        << QStringList{};
    QTest::newRow("red only, unknown space: rastered, 255 comes back as 256")
        << "sRGB" << false << QStringList{"", "0,20 255,255", "", ""}
        << QStringList{identity, "0,10 31,43 63,76 95,108 127,137 159,166 191,196 223,225 255,255",
                       diagonal, diagonal}
        << QStringList{out_of_range("GradationCurveRed", "QPoint(256,256)"),
                       out_of_range("GradationCurveGreen", "QPoint(256,256)"),
                       out_of_range("GradationCurveBlue", "QPoint(256,256)")};
    QTest::newRow("custom master: identity channels stay")
        << "prophoto" << false << QStringList{"0,0 128,160 255,255", "0,0 128,100 255,255", "", ""}
        << QStringList{"0,0 128,160 255,255",
                       "0,0 22,15 46,31 71,47 97,69 127,101 162,142 205,194 255,255", identity,
                       identity}
        << QStringList{};
    QTest::newRow("lifted master is eased")
        << "raw" << false << QStringList{"0,20 128,128 255,235", "0,10 128,140 255,250", "", ""}
        << QStringList{"0,10 128,128 255,235",
                       "0,5 13,19 51,61 89,102 127,139 165,174 203,208 241,241 255,253", identity,
                       identity}
        << QStringList{};
    QTest::newRow("grayscale leaves the master uneased")
        << "raw" << true << QStringList{"0,20 128,128 255,235", "0,10 128,140 255,250", "", ""}
        << QStringList{"0,20 128,128 255,235",
                       "0,5 13,19 51,61 89,102 127,139 165,174 203,208 241,241 255,253", identity,
                       identity}
        << QStringList{};
    QTest::newRow("compensated to nothing: no red, no table")
        << "srgb" << false << QStringList{"0,140 255,127", "0,0 128,100 255,255", "", ""}
        << QStringList{"0,70 255,127", none, diagonal, diagonal} << QStringList{};
    QTest::newRow("one-point master with plain channels")
        << "raw" << false << QStringList{"100,50", "", "", ""}
        << QStringList{"100,50", identity, identity, identity} << QStringList{};
    QTest::newRow("one-point red rastered as identity")
        << "other" << false << QStringList{"", "100,50", "", ""}
        << QStringList{identity, diagonal, diagonal, diagonal}
        << QStringList{out_of_range("GradationCurveRed", "QPoint(256,256)"),
                       out_of_range("GradationCurveGreen", "QPoint(256,256)"),
                       out_of_range("GradationCurveBlue", "QPoint(256,256)")};
    QTest::newRow("equal x compensated as identity")
        << "prophoto" << false
        << QStringList{"0,0 128,160 255,255", "0,0 128,50 128,200 255,255", "", ""}
        << QStringList{"0,0 128,160 255,255",
                       "0,0 22,22 46,46 71,71 97,97 127,127 162,162 205,205 255,255", identity,
                       identity}
        << QStringList{};
    QTest::newRow("descending x kept")
        << "raw" << false << QStringList{"", "255,255 128,50 0,0", "", ""}
        << QStringList{identity, "255,255 128,50 0,0", identity, identity} << QStringList{};
    QTest::newRow("y far outside is cut with warnings")
        << "prophoto" << false << QStringList{"", "0,-1000 128,5000 255,255", "", ""}
        << QStringList{identity, "0,0 128,255 255,255", identity, identity}
        << QStringList{out_of_range("GradationCurveRed", "QPoint(0,-500)"),
                       out_of_range("GradationCurveRed", "QPoint(128,5000)")};
}

void tst_curve_stage::writes_curves()
{
    QFETCH(QString, colour_space);
    QFETCH(bool, grayscale);
    QFETCH(QStringList, curves);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, warnings);
    const test_support::log_capture log;
    const QString document = convert(colour_space, curves, grayscale);
    QStringList written;
    for (const QString& key : curve_keys) {
        written << written_levels(document, key);
    }
    QCOMPARE(written, expected);
    QCOMPARE(log.messages(QtWarningMsg), warnings);
}

void tst_curve_stage::survives_odd_curves_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<QStringList>("curves");
    QTest::addColumn<QVector<int>>("sizes"); // points written: master, red, green, blue
    QTest::addColumn<int>("out_of_range");
    QTest::addColumn<bool>("table_clamps");

    QTest::newRow("a level below 0 reaches the table")
        << "srgb" << QStringList{"0,0 128,48 255,255", "", "", "0,192 128,224 255,0"}
        << QVector<int>{9, 9, 9, 9} << 0 << true;
    QTest::newRow("1000 points kept as they are")
        << "prophoto" << QStringList{"", many_points(1000, 0, 1, 999), "", ""}
        << QVector<int>{2, 1000, 2, 2} << 1000 << false;
    QTest::newRow("1000-point master beyond 255")
        << "srgb" << QStringList{many_points(1000, 0, 1, 1250), "0,0 128,100 255,255", "", ""}
        << QVector<int>{1000, 9, 9, 9} << 1000 << false;
    QTest::newRow("y at the ends of int")
        << "raw" << QStringList{"", "0,2147483647 84,-2147483647 255,0", "", ""}
        << QVector<int>{2, 3, 2, 2} << 2 << false;
}

void tst_curve_stage::survives_odd_curves()
{
    QFETCH(QString, colour_space);
    QFETCH(QStringList, curves);
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
