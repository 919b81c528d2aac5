#include "convert/range_fold.h"
#include "support/test_support.h"

#include <QtTest>

using test_support::levels_of;
using test_support::points_from;

namespace {

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

class tst_range_fold : public QObject
{
    Q_OBJECT

private slots:
    void folds_data();
    void folds();
    void resamples_master_data();
    void resamples_master();
};

void tst_range_fold::folds_data()
{
    QTest::addColumn<QString>("channels");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QVector<int>>("offsets");

    QTest::newRow("in range nothing moves") << "0,0,0 10,20,255"
                                            << "0,0,0 10,20,255" << QVector<int>{0, 0};
    QTest::newRow("below 0: all three lifted, half to the next")
        << "-30,0,5 10,20,30 20,20,20"
        << "0,30,35 25,35,45 20,20,20" << QVector<int>{-30, -15, 0};
    QTest::newRow("the half truncates towards zero") << "-15,0,0 0,0,0"
                                                     << "0,15,15 7,7,7" << QVector<int>{-15, -7};
    QTest::newRow("no half step onto a point below 0")
        << "-30,0,0 -10,0,0 0,0,0"
        << "0,30,30 0,10,10 5,5,5" << QVector<int>{-30, -10, -5};
    QTest::newRow("above 255: all three lowered, half to the previous")
        << "200,200,200 255,300,250"
        << "178,178,178 210,255,205" << QVector<int>{22, 45};
    QTest::newRow("just above 255 has no half to give")
        << "100,100,100 256,0,0"
        << "100,100,100 255,-1,-1" << QVector<int>{0, 1};
    QTest::newRow("neighbours above 255 keep their own offsets")
        << "100,100,100 300,0,0 280,0,0"
        << "78,78,78 255,-45,-45 255,-25,-25" << QVector<int>{22, 45, 25};
    QTest::newRow("the second pass overwrites the first")
        << "-30,0,0 10,10,10 300,300,300"
        << "0,30,30 3,3,3 255,255,255" << QVector<int>{-30, 22, 45};
    QTest::newRow("a half step can leave a level below 0")
        << "6,6,6 300,300,300"
        << "-16,-16,-16 255,255,255" << QVector<int>{22, 45};
}

void tst_range_fold::folds()
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

void tst_range_fold::resamples_master_data()
{
    QTest::addColumn<QString>("master");
    QTest::addColumn<QVector<int>>("offsets");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("offsets within range")
        << "0,0 255,255" << QVector<int>{0, 10, -5} << "0,0 100,110 255,250"
        << QStringList{"Info: Rastering RGB Curve at QVector(0, 100, 255)",
                       "Info: Applying offsets QVector(0, 10, -5) to curve QVector(QPoint(0,0), "
                       "QPoint(100,100), QPoint(255,255))",
                       "Info: QVector(QPoint(0,0), QPoint(100,110), QPoint(255,250))"};
    QTest::newRow("a lowered point below 0 warns and ends at 0")
        << "0,10 255,265" << QVector<int>{-30, 10, -5} << "0,0 100,120 255,250"
        << QStringList{"Info: Rastering RGB Curve at QVector(0, 100, 255)",
                       "Info: Applying offsets QVector(-30, 10, -5) to curve QVector(QPoint(0,10), "
                       "QPoint(100,110), QPoint(255,255))",
                       "Warning: Applying offset -30 at QPoint(0,10) is resulting in out of range "
                       "value -20.",
                       "Info: QVector(QPoint(0,0), QPoint(100,120), QPoint(255,250))"};
}

void tst_range_fold::resamples_master()
{
    QFETCH(QString, master);
    QFETCH(QVector<int>, offsets);
    QFETCH(QString, expected);
    QFETCH(QStringList, log);
    range_fold fold;
    fold.raster_positions = {0.0, 100.0, 255.0};
    fold.curve_offsets = offsets;
    const test_support::log_capture capture;
    QCOMPARE(levels_of(resample_master(points_from(master), fold)), expected);
    QCOMPARE(capture.lines(), log);
}

QTEST_GUILESS_MAIN(tst_range_fold)
#include "tst_range_fold.moc"
