#include "output/stylepack.h"
#include "support/test_support.h"

#include <QtTest>

namespace {

using test_support::archive_entry;
using test_support::read_archive;

QStringList names_of(const QVector<archive_entry>& entries)
{
    QStringList names;
    for (const archive_entry& entry : entries) {
        names << entry.name;
    }
    return names;
}

// The general-purpose flags of the first local file header; bit 11 marks a UTF-8 name.
quint16 first_entry_flags(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray head = file.read(8);
    if (head.size() < 8 || !head.startsWith("PK\x03\x04")) {
        return 0;
    }
    return quint16(quint8(head[6]) | (quint8(head[7]) << 8));
}

const QMap<QString, QString> documents{
    {QStringLiteral("Warm.costyle"),
     QStringLiteral("<?xml version=\"1.0\"?>\n<SL Engine=\"900\"/>\n")},
    {QStringLiteral("Cool.costyle"), QStringLiteral("cool document")},
    {QStringLiteral("Ärger.costyle"), QStringLiteral("Grün")},
};

} // namespace

class tst_stylepack : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void entry_names_data();
    void entry_names();
    void entry_data_is_the_document();
    void utf8_names_are_marked();
    void existing_archive_replaced();
    void unwritable_path_logs_and_survives_data();
    void unwritable_path_logs_and_survives();

private:
    QTemporaryDir dir_;
};

void tst_stylepack::initTestCase()
{
    QVERIFY(dir_.isValid());
}

void tst_stylepack::entry_names_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("stylepack") << "My Looks.costylepack"
                               << "stylepack"
                               << "";
    QTest::newRow("category from the archive name") << "My Looks.costylepack"
                                                    << "stylepack_category"
                                                    << "My Looks/";
    QTest::newRow("category keeps inner dots") << "a.b.costylepack"
                                               << "stylepack_category"
                                               << "a.b/";
    QTest::newRow("unknown format acts as stylepack") << "x.costylepack"
                                                      << "zip"
                                                      << "";
}

void tst_stylepack::entry_names()
{
    QFETCH(QString, file);
    QFETCH(QString, format);
    QFETCH(QString, prefix);
    const QString path = dir_.filePath(file);
    write_stylepack(path, format, documents);
    // Key order is QString's operator<: code units, so "Ä" (U+00C4) sorts last.
    QCOMPARE(names_of(read_archive(path)),
             (QStringList{prefix + "Cool.costyle", prefix + "Warm.costyle",
                          prefix + QStringLiteral("Ärger.costyle")}));
}

void tst_stylepack::entry_data_is_the_document()
{
    const QString flat = dir_.filePath(QStringLiteral("flat.costylepack"));
    const QString category = dir_.filePath(QStringLiteral("category.costylepack"));
    write_stylepack(flat, QStringLiteral("stylepack"), documents);
    write_stylepack(category, QStringLiteral("stylepack_category"), documents);
    const QVector<archive_entry> flat_entries = read_archive(flat);
    const QVector<archive_entry> category_entries = read_archive(category);
    QCOMPARE(flat_entries.size(), documents.size());
    QCOMPARE(category_entries.size(), documents.size());
    int i = 0;
    for (const QString& document : documents) {
        QCOMPARE(flat_entries[i].data, document.toUtf8());
        QCOMPARE(category_entries[i].data, document.toUtf8());
        ++i;
    }
}

void tst_stylepack::utf8_names_are_marked()
{
    const QString path = dir_.filePath(QStringLiteral("utf8.costylepack"));
    write_stylepack(path, QStringLiteral("stylepack"),
                    {{QStringLiteral("Ärger.costyle"), QStringLiteral("x")}});
    QVERIFY(first_entry_flags(path) & 0x0800);
}

void tst_stylepack::existing_archive_replaced()
{
    const QString path = dir_.filePath(QStringLiteral("again.costylepack"));
    write_stylepack(path, QStringLiteral("stylepack"), documents);
    QVERIFY(write_stylepack(path, QStringLiteral("stylepack"),
                            {{QStringLiteral("Only.costyle"), QStringLiteral("only")}}));
    QCOMPARE(names_of(read_archive(path)), QStringList{QStringLiteral("Only.costyle")});
}

void tst_stylepack::unwritable_path_logs_and_survives_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("warning");
    QTest::newRow("folder that doesn't exist")
        << dir_.filePath(QStringLiteral("missing/x.costylepack")) << "libzip zip_close error -1: ";
    QTest::newRow("path is a folder") << dir_.path() << "libzip zip_open error ";
}

void tst_stylepack::unwritable_path_logs_and_survives()
{
    QFETCH(QString, path);
    QFETCH(QString, warning);
    const test_support::log_capture log;
    QVERIFY(!write_stylepack(path, QStringLiteral("stylepack"), documents));
    const QStringList warnings = log.messages(QtWarningMsg);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().startsWith(warning), qPrintable(warnings.first()));
    QCOMPARE(log.messages(QtDebugMsg).size(), documents.size());
    QVERIFY(!QFileInfo(path).isFile());
}

QTEST_GUILESS_MAIN(tst_stylepack)
#include "tst_stylepack.moc"
