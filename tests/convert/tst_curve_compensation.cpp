// Compensating a channel curve for the master curve, and folding channels that
// it pushed out of range back in, the master curve taking over the offsets.
#include "convert/curve_compensation.h"

#include "convert/range_fold.h"
#include "support/test_support.h"

#include <QtTest>

using test_support::levels_of;
using test_support::points_from;

namespace {

// The inverse of the identity master curve, with some levels taken out and some
// given other inputs, to steer single points.
luma_inverse steered_inverse(const QVector<int>& missing, const QMap<int, QVector<int>>& moved)
{
    luma_inverse inverse;
    for (int level = 0; level <= 255; ++level) {
        if (!missing.contains(level)) {
            inverse[level] = moved.value(level, {level});
        }
    }
    return inverse;
}

// Three channels at the x values 0, 100, 200, ... from "r,g,b r,g,b ...", one
// triple of y values per point.
channel_curves channels_from(const QString& triples)
{
    channel_curves channels;
    int x = 0;
    for (const QString& triple : triples.split(QLatin1Char(' '))) {
        const QStringList ys = triple.split(QLatin1Char(','));
        for (int c = 0; c < 3; ++c) {
            channels[c].append(QPoint(x, ys.value(c).toInt()));
        }
        x += 100;
    }
    return channels;
}

QString triples_of(const channel_curves& channels)
{
    QStringList triples;
    for (int i = 0; i < channels[0].size(); ++i) {
        triples << QStringLiteral("%1,%2,%3")
                       .arg(channels[0][i].y())
                       .arg(channels[1][i].y())
                       .arg(channels[2][i].y());
    }
    return triples.join(QLatin1Char(' '));
}

} // namespace

class tst_curve_compensation : public QObject
{
    Q_OBJECT

private slots:
    void worked_examples_data();
    void worked_examples();
    void steered_points_data();
    void steered_points();
    void inverse_skips_levels();
    void folds_data();
    void folds();
    void resamples_master();
};

void tst_curve_compensation::worked_examples_data()
{
    QTest::addColumn<QString>("master");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("plain ends")
        << "0,0 128,160 255,255"
        << "0,0 128,100 255,255"
        << "0,0 22,12 46,27 71,46 97,69 127,101 162,142 205,194 255,255"
        << QStringList{
               "Replacing point QPoint(0,0) QPointF(0,0) with QPoint(0,0) QPointF(0,0)",
               "Replacing point QPoint(0,0) QPointF(0,0) with QPoint(0,0) QPointF(0,0)",
               "Replacing point QPoint(31,21) QPointF(0.121569,0.0823529) with QPoint(22,12) "
               "QPointF(0.0862745,0.0470588)",
               "Replacing point QPoint(63,44) QPointF(0.247059,0.172549) with QPoint(46,27) "
               "QPointF(0.180392,0.105882)",
               "Replacing point QPoint(95,70) QPointF(0.372549,0.27451) with QPoint(71,46) "
               "QPointF(0.278431,0.180392)",
               "Replacing point QPoint(127,99) QPointF(0.498039,0.388235) with QPoint(97,69) "
               "QPointF(0.380392,0.270588)",
               "Replacing point QPoint(159,133) QPointF(0.623529,0.521569) with QPoint(127,101) "
               "QPointF(0.498039,0.396078)",
               "Replacing point QPoint(191,171) QPointF(0.74902,0.670588) with QPoint(162,142) "
               "QPointF(0.635294,0.556863)",
               "Replacing point QPoint(223,212) QPointF(0.87451,0.831373) with QPoint(205,194) "
               "QPointF(0.803922,0.760784)",
               "Replacing point QPoint(255,255) QPointF(1,1) with QPoint(255,255) QPointF(1,1)",
               "Replacing point QPoint(255,255) QPointF(1,1) with QPoint(255,255) QPointF(1,1)"};
    QTest::newRow("lifted ends")
        << "0,20 128,128 255,235"
        << "0,10 128,140 255,250"
        << "0,11 13,25 51,64 89,102 127,139 165,174 203,208 241,241 255,253"
        << QStringList{
               "Replacing point QPoint(20,31) QPointF(0.0784314,0.121569) with QPoint(0,11) "
               "QPointF(0,0.0431373)",
               "Removing point QPoint(0,10) QPointF(0,0.0392157) -> No Y in range",
               "Replacing point QPoint(31,43) QPointF(0.121569,0.168627) with QPoint(13,25) "
               "QPointF(0.0509804,0.0980392)",
               "Replacing point QPoint(63,76) QPointF(0.247059,0.298039) with QPoint(51,64) "
               "QPointF(0.2,0.25098)",
               "Replacing point QPoint(95,108) QPointF(0.372549,0.423529) with QPoint(89,102) "
               "QPointF(0.34902,0.4)",
               "Replacing point QPoint(127,139) QPointF(0.498039,0.545098) with QPoint(127,139) "
               "QPointF(0.498039,0.545098)",
               "Replacing point QPoint(159,168) QPointF(0.623529,0.658824) with QPoint(165,174) "
               "QPointF(0.647059,0.682353)",
               "Replacing point QPoint(191,196) QPointF(0.74902,0.768627) with QPoint(203,208) "
               "QPointF(0.796078,0.815686)",
               "Replacing point QPoint(223,223) QPointF(0.87451,0.87451) with QPoint(241,241) "
               "QPointF(0.945098,0.945098)",
               "Removing point QPoint(255,250) QPointF(1,0.980392) -> No Y in range",
               "Replacing point QPoint(235,233) QPointF(0.921569,0.913725) with QPoint(255,253) "
               "QPointF(1,0.992157)"};
}

void tst_curve_compensation::worked_examples()
{
    QFETCH(QString, master);
    QFETCH(QString, channel);
    QFETCH(QString, expected);
    QFETCH(QStringList, log);
    const point_list master_curve = points_from(master);
    const test_support::log_capture capture;
    const point_list result = compensate_with_rgb_curve(points_from(channel), master_curve,
                                                        build_luma_inverse(master_curve));
    QCOMPARE(levels_of(result), expected);
    QCOMPARE(capture.messages(QtInfoMsg), log);
    QCOMPARE(capture.messages(QtWarningMsg), QStringList{});
}

void tst_curve_compensation::steered_points_data()
{
    QTest::addColumn<QVector<int>>("missing");
    QTest::addColumn<QMap<int, QVector<int>>>("moved");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("line");

    const QString diagonal = QStringLiteral("0,0 255,255");
    QTest::newRow("found four levels up before four down")
        << QVector<int>{28, 29, 30, 31, 32, 33, 34}
        << QMap<int, QVector<int>>{{35, {33}}, {27, {40}}} << diagonal
        << "0,0 29,29 63,63 95,95 127,127 159,159 191,191 223,223 255,255"
        << "";
    QTest::newRow("five levels away is dropped")
        << QVector<int>{27, 28, 29, 30, 31, 32, 33, 34, 35} << QMap<int, QVector<int>>{} << diagonal
        << "0,0 63,63 95,95 127,127 159,159 191,191 223,223 255,255"
        << "Info: Removing point QPoint(31,31) QPointF(0.121569,0.121569) -> No Y in range";
    QTest::newRow("inner point takes the nearest input, the first of equals")
        << QVector<int>{} << QMap<int, QVector<int>>{{127, {100, 120, 134, 150}}} << diagonal
        << "0,0 31,31 63,63 95,95 120,120 159,159 191,191 223,223 255,255"
        << "";
    QTest::newRow("edges: 10 and 245 go, 11 and 244 stay")
        << QVector<int>{}
        << QMap<int, QVector<int>>{{31, {10}}, {63, {11}}, {191, {245}}, {223, {244}}} << diagonal
        << "0,0 11,11 95,95 127,127 159,159 244,244 255,255"
        << "Debug: Removing point QPoint(10,10) QPointF(0.0392157,0.0392157) too close to or "
           "beyond the edge";
    QTest::newRow("no input closer than 255")
        << QVector<int>{} << QMap<int, QVector<int>>{{0, {255}}} << diagonal
        << "31,31 63,63 95,95 127,127 159,159 191,191 223,223 255,255"
        << "Warning: compensate_with_rgb_curve: Found y:0 with no matching x value";
    QTest::newRow("a raster point beats the end point of equal x")
        << QVector<int>{} << QMap<int, QVector<int>>{{20, {0}}} << "0,10 255,255"
        << "0,10 31,40 63,71 95,101 127,132 159,163 191,193 223,224 255,255"
        << "";
}

void tst_curve_compensation::steered_points()
{
    QFETCH(QVector<int>, missing);
    using moved_inputs = QMap<int, QVector<int>>;
    QFETCH(moved_inputs, moved);
    QFETCH(QString, channel);
    QFETCH(QString, expected);
    QFETCH(QString, line);
    // The end points come from the master curve; with 20 -> 0 steered, the master
    // must start at 20 for the last row.
    const point_list master = moved.contains(20) ? points_from(QStringLiteral("0,20 255,255"))
                                                 : points_from(QStringLiteral("0,0 255,255"));
    const test_support::log_capture log;
    const point_list result =
        compensate_with_rgb_curve(points_from(channel), master, steered_inverse(missing, moved));
    QCOMPARE(levels_of(result), expected);
    if (!line.isEmpty()) {
        QVERIFY2(log.lines().contains(line), qPrintable(log.lines().join(QLatin1Char('\n'))));
    }
}

// A steep master curve skips output levels; they have no entry at all.
void tst_curve_compensation::inverse_skips_levels()
{
    const luma_inverse inverse = build_luma_inverse(points_from(QStringLiteral("0,0 64,255")));
    QCOMPARE(inverse.value(0), QVector<int>{0});
    QCOMPARE(inverse.value(4), QVector<int>{1});
    QVERIFY(!inverse.contains(2));
    QCOMPARE(inverse.value(255).size(), 256 - 64);
    QCOMPARE(inverse.value(255).first(), 64);
}

void tst_curve_compensation::folds_data()
{
    QTest::addColumn<QString>("channels");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QVector<int>>("offsets");

    const auto row = [](const char* name, const char* channels, const char* expected,
                        const QVector<int>& offsets) {
        QTest::newRow(name) << QString(channels) << QString(expected) << offsets;
    };
    row("below 0: all three lifted, half to the next", "-30,0,5 10,20,30 20,20,20",
        "0,30,35 25,35,45 20,20,20", {-30, -15, 0});
    row("the half truncates towards zero", "-15,0,0 0,0,0", "0,15,15 7,7,7", {-15, -7});
    row("no half step onto a point below 0", "-30,0,0 -10,0,0 0,0,0", "0,30,30 0,10,10 5,5,5",
        {-30, -10, -5});
    row("above 255: all three lowered, half to the previous", "200,200,200 255,300,250",
        "178,178,178 210,255,205", {22, 45});
    row("just above 255 has no half to give", "100,100,100 256,0,0", "100,100,100 255,-1,-1",
        {0, 1});
    row("neighbours above 255 keep their own offsets", "100,100,100 300,0,0 280,0,0",
        "78,78,78 255,-45,-45 255,-25,-25", {22, 45, 25});
    row("the second pass overwrites the first", "-30,0,0 10,10,10 300,300,300",
        "0,30,30 3,3,3 255,255,255", {-30, 22, 45});
    row("a half step can leave a level below 0", "6,6,6 300,300,300", "-16,-16,-16 255,255,255",
        {22, 45});
}

void tst_curve_compensation::folds()
{
    QFETCH(QString, channels);
    QFETCH(QString, expected);
    QFETCH(QVector<int>, offsets);
    channel_curves curves = channels_from(channels);
    const range_fold fold = fold_into_range(curves);
    QCOMPARE(triples_of(curves), expected);
    QCOMPARE(fold.curve_offsets, offsets);
    QVector<double> positions;
    for (int i = 0; i < offsets.size(); ++i) {
        positions << 100.0 * i;
    }
    QCOMPARE(fold.raster_positions, positions);
}

// The master curve takes over the offsets at the raster positions, cut to 0..255
// with a warning on either side.
void tst_curve_compensation::resamples_master()
{
    range_fold fold;
    fold.raster_positions = {0.0, 100.0, 255.0};
    fold.curve_offsets = {-30, 10, 10};
    const test_support::log_capture capture;
    QCOMPARE(levels_of(resample_master(points_from(QStringLiteral("0,10 255,250")), fold)),
             QStringLiteral("0,0 100,114 255,255"));
    const QStringList log{
        "Info: Rastering RGB Curve at QVector(0, 100, 255)",
        "Info: Applying offsets QVector(-30, 10, 10) to curve QVector(QPoint(0,10), "
        "QPoint(100,104), QPoint(255,250))",
        "Warning: Applying offset -30 at QPoint(0,10) is resulting in out of range value -20.",
        "Warning: Applying offset 10 at QPoint(255,250) is resulting in out of range value 260.",
        "Info: QVector(QPoint(0,0), QPoint(100,114), QPoint(255,255))"};
    QCOMPARE(capture.lines(), log);
}

QTEST_GUILESS_MAIN(tst_curve_compensation)
#include "tst_curve_compensation.moc"
