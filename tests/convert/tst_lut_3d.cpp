#include "convert/lut_3d.h"
#include "convert/lut_set.h"
#include "orn/exception.h"
#include "support/test_support.h"

#include <QtTest>

namespace {

// A .3dl text with the given grid line and rows r g b for every grid point, where
// each row is produced by `row(i, j, k)`.
template<typename Row>
QByteArray table_text(int edge, const QByteArray& header, Row row)
{
    QByteArray text = header;
    for (int i = 0; i < edge; ++i) {
        for (int j = 0; j < edge; ++j) {
            for (int k = 0; k < edge; ++k) {
                text += row(i, j, k) + '\n';
            }
        }
    }
    return text;
}

QByteArray grid_line(int edge, int top)
{
    QByteArray line;
    for (int i = 0; i < edge; ++i) {
        line += QByteArray::number(i * top / (edge - 1)) + (i + 1 < edge ? " " : "\n");
    }
    return line;
}

QByteArray ramp_row(int i, int j, int k)
{
    return QByteArray::number(i * 64) + ' ' + QByteArray::number(j * 64) + ' ' +
           QByteArray::number(std::min(k * 64, 1023));
}

QStringList resource_lines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

} // namespace

class tst_lut_3d : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void missing_file_keeps_zero_table();
    void loads_ten_bit_table();
    void optional_header_lines();
    void edge_from_grid_count();
    void load_failures_data();
    void load_failures();
    void larger_actual_maximum_warns();
    void surplus_rows_ignored();
    void lookup_identity_data();
    void lookup_identity();
    void lookup_at_grid_points();
    void lookup_clamps_levels_data();
    void lookup_clamps_levels();
    void resource_tables_shape_data();
    void resource_tables_shape();
    void lut_sets_share_tables();

private:
    QTemporaryDir dir_;
};

void tst_lut_3d::initTestCase()
{
    QVERIFY(dir_.isValid());
}

void tst_lut_3d::missing_file_keeps_zero_table()
{
    lut_3d table;
    load_3dl(table, dir_.path() + QStringLiteral("/absent.3dl"));
    QCOMPARE(table.edge, 17);
    QCOMPARE(table.entries.size(), std::size_t(17 * 17 * 17));
    QCOMPARE(table.entries.back(), lut_entry{});
}

void tst_lut_3d::loads_ten_bit_table()
{
    const QByteArray text =
        table_text(17, "#Title: test\n3DMESH\nMesh 4 10\n" + grid_line(17, 1023) + "\n", ramp_row);
    lut_3d table;
    table.title = QStringLiteral("old");
    load_3dl(table, test_support::write_file(dir_.path(), QStringLiteral("ramp.3dl"), text));
    QCOMPARE(table.edge, 17);
    QCOMPARE(table.title, QString());
    QCOMPARE(table.entries.size(), std::size_t(4913));
    // Entry (1, 2, 3) holds the row "64 128 192" reversed and divided by 1024.
    const lut_entry& entry = table.entries[(1 * 17 + 2) * 17 + 3];
    QCOMPARE(entry, (lut_entry{192.0f / 1024, 128.0f / 1024, 64.0f / 1024, 1.0f}));
    QCOMPARE(table.entries.back()[0], 1023.0f / 1024);
}

void tst_lut_3d::optional_header_lines()
{
    const QByteArray text = table_text(2, "0 1023\n", [](int i, int j, int k) {
        return QByteArray::number(i * 1023) + ' ' + QByteArray::number(j * 1023) + ' ' +
               QByteArray::number(k * 1023);
    });
    lut_3d table;
    load_3dl(table, test_support::write_file(dir_.path(), QStringLiteral("bare.3dl"), text));
    QCOMPARE(table.edge, 2);
    QCOMPARE(table.entries.size(), std::size_t(8));
    QCOMPARE(table.entries[1], (lut_entry{1023.0f / 1024, 0.0f, 0.0f, 1.0f}));
}

void tst_lut_3d::edge_from_grid_count()
{
    const QByteArray text = table_text(33, "3DMESH\n" + grid_line(33, 1023),
                                       [](int, int, int) { return QByteArray("1 2 3"); });
    lut_3d table;
    load_3dl(table, test_support::write_file(dir_.path(), QStringLiteral("edge33.3dl"), text));
    QCOMPARE(table.edge, 33);
    QCOMPARE(table.entries.size(), std::size_t(33 * 33 * 33));
}

void tst_lut_3d::load_failures_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");

    const QString edge_message =
        QStringLiteral("ERROR while loading 3DL LUT: Edge length is less than 2.");
    const QString count_message =
        QStringLiteral("ERROR while loading 3DL LUT: Less values than needed.");
    QTest::newRow("grid of one value") << QByteArray("3DMESH\n0\n0 0 0\n") << edge_message;
    QTest::newRow("no grid line at all")
        << QByteArray("# only a comment\nMesh 4 10\n") << count_message;
    QTest::newRow("empty file") << QByteArray() << count_message;
    QByteArray short_table = table_text(2, "0 1023\n", ramp_row);
    short_table.chop(short_table.size() - short_table.lastIndexOf('\n', -2) - 1);
    QTest::newRow("one row short") << short_table << count_message;
    QTest::newRow("tab separated rows are ignored")
        << table_text(2, "0 1023\n", [](int, int, int) { return QByteArray("1\t2\t3"); })
        << count_message;
}

void tst_lut_3d::load_failures()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    lut_3d table;
    const QString path = test_support::write_file(dir_.path(), QStringLiteral("bad.3dl"), text);
    try {
        load_3dl(table, path);
        QFAIL("no exception");
    } catch (const orn::exception& e) {
        QCOMPARE(QString::fromStdString(e.message), message);
    }
}

void tst_lut_3d::larger_actual_maximum_warns()
{
    const QByteArray text = table_text(2, "0 1023\n", [](int i, int, int) {
        return i == 0 ? QByteArray("0 0 0") : QByteArray("4095 2048 1");
    });
    const QString path = test_support::write_file(dir_.path(), QStringLiteral("12bit.3dl"), text);
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(path + QStringLiteral(": Actual maximum data value is 4095 "
                                                          "which differs from value indicated in "
                                                          "file 1023")));
    lut_3d table;
    load_3dl(table, path);
    QCOMPARE(table.entries.back(), (lut_entry{1.0f / 4096, 2048.0f / 4096, 4095.0f / 4096, 1.0f}));
}

void tst_lut_3d::surplus_rows_ignored()
{
    QByteArray text = table_text(2, "0 1023\n", ramp_row);
    text += "garbage that is never read\n1 2 3\n";
    lut_3d table;
    load_3dl(table, test_support::write_file(dir_.path(), QStringLiteral("surplus.3dl"), text));
    QCOMPARE(table.entries.size(), std::size_t(8));
}

void tst_lut_3d::lookup_identity_data()
{
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("c");

    QTest::newRow("black") << 0 << 0 << 0;
    QTest::newRow("white") << 255 << 255 << 255;
    QTest::newRow("between grid points") << 1 << 17 << 100;
    QTest::newRow("top of the last cell") << 254 << 239 << 240;
}

void tst_lut_3d::lookup_identity()
{
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, c);
    const lut_set luts;
    const lut_entry result = lookup(luts.identity(), a, b, c);
    QVERIFY(qAbs(result[0] - c / 255.0f) < 1e-6f);
    QVERIFY(qAbs(result[1] - b / 255.0f) < 1e-6f);
    QVERIFY(qAbs(result[2] - a / 255.0f) < 1e-6f);
    QCOMPARE(result[3], 1.0f);
}

void tst_lut_3d::lookup_at_grid_points()
{
    const lut_set luts;
    const lut_3d& srgb = luts.srgb();
    QCOMPARE(lookup(srgb, 255, 255, 255), srgb.entries.back());
    QCOMPARE(lookup(srgb, 0, 0, 0), srgb.entries.front());
    const lut_entry& entry = srgb.entries[(4 * 17 + 8) * 17 + 12];
    const lut_entry found = lookup(srgb, 4 * 255 / 16, 8 * 255 / 16, 12 * 255 / 16);
    // 255 / 16 is no whole number, so the levels miss the grid points by a little.
    for (int channel = 0; channel < 4; ++channel) {
        QVERIFY(qAbs(found[channel] - entry[channel]) < 0.01f);
    }
}

void tst_lut_3d::lookup_clamps_levels_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("clamped");
    QTest::newRow("below zero") << -16 << 0;
    QTest::newRow("above 255") << 256 << 255;
}

void tst_lut_3d::lookup_clamps_levels()
{
    QFETCH(int, level);
    QFETCH(int, clamped);
    const lut_set luts;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("out of range")));
    QCOMPARE(lookup(luts.srgb(), level, 0, 0), lookup(luts.srgb(), clamped, 0, 0));
}

void tst_lut_3d::resource_tables_shape_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("title");
    QTest::newRow("AdobeRGB") << ":/data/ProPhotoRGB_to_AdobeRGB1998.3dl"
                              << "ProPhotoRGB_to_AdobeRGB1998";
    QTest::newRow("sRGB") << ":/data/ProPhotoRGB_to_sRGB.3dl"
                          << "ProPhotoRGB_to_sRGB";
    QTest::newRow("WideGamut") << ":/data/ProPhotoRGB_to_WideGamutRGB.3dl"
                               << "ProPhotoRGB_to_WideGamutRGB";
}

void tst_lut_3d::resource_tables_shape()
{
    QFETCH(QString, path);
    QFETCH(QString, title);
    const lut_set luts; // makes the resources available
    QStringList lines = resource_lines(path);
    QCOMPARE(lines.takeLast(), QString()); // the file ends with a line feed
    QCOMPARE(lines.size(), 4918);
    QCOMPARE(lines[0], QStringLiteral("#Generated by Corvane - Title: ") + title);
    QCOMPARE(lines[1], QStringLiteral("3DMESH"));
    QCOMPARE(lines[2], QStringLiteral("Mesh 4 10"));
    QCOMPARE(lines[3],
             QStringLiteral("0 64 128 192 256 320 384 448 512 576 640 704 768 832 896 960 1023"));
    QCOMPARE(lines[4], QString());
    QCOMPARE(lines[5], QStringLiteral("0 0 0"));
    QCOMPARE(lines.last(), QStringLiteral("1023 1023 1023"));
    const QRegularExpression row(QStringLiteral("^(\\d+) (\\d+) (\\d+)$"));
    for (int n = 0; n < 4913; ++n) {
        const auto match = row.match(lines[5 + n]);
        QVERIFY2(match.hasMatch(), qPrintable(lines[5 + n]));
        for (int c = 1; c <= 3; ++c) {
            QVERIFY(match.captured(c).toInt() <= 1023);
        }
        const int i = n / 289;
        if (n == i * 289 + i * 17 + i) { // a grid point on the grey axis
            QCOMPARE(match.captured(1), match.captured(2));
            QCOMPARE(match.captured(2), match.captured(3));
        }
    }
}

void tst_lut_3d::lut_sets_share_tables()
{
    const lut_set first;
    const lut_set second;
    QCOMPARE(&first.srgb(), &second.srgb());
    QCOMPARE(first.srgb().entries.size(), std::size_t(4913));
    QCOMPARE(first.identity().entries.back(), (lut_entry{1.0f, 1.0f, 1.0f, 1.0f}));
    QVERIFY(first.adobe_rgb().entries.back()[0] == 1023.0f / 1024);
}

QTEST_GUILESS_MAIN(tst_lut_3d)
#include "tst_lut_3d.moc"
