#include "orn/help_documents.h"
#include "orn/show_help.h"

#include "support/test_support.h"

#include <QDesktopServices>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

#include <memory>

// Help pages are opened in the desktop's browser. The test takes the "file" scheme
// over, so that it sees each URL that would reach the browser and no browser starts.
class tst_show_help : public QObject
{
    Q_OBJECT

public slots:
    void open_url(const QUrl& url) { opened << url; }

private slots:
    void init();
    void cleanup();
    void language_chooses_the_page_data();
    void language_chooses_the_page();
    void a_second_request_rewrites_the_copy();
    void key_names_are_mended_in_case();
    void a_missing_page_is_logged_and_opens_nothing();
    void documents_are_copied_byte_for_byte_beside_the_page();

private:
    // Writes a page "<name>" into the page folder, as UTF-8.
    void write_page(const QString& name, const QString& text);
    QString page_template() const { return pages->filePath(QStringLiteral("index_%1.html")); }
    QByteArray read_copy(const QString& name) const;

    QList<QUrl> opened;
    std::unique_ptr<QTemporaryDir> pages;
    std::unique_ptr<QTemporaryDir> temp;
};

void tst_show_help::init()
{
    test_support::use_test_settings();
    opened.clear();
    pages = std::make_unique<QTemporaryDir>();
    // QDir::tempPath() follows TMPDIR, so the copies land in a folder of this test.
    temp = std::make_unique<QTemporaryDir>();
    qputenv("TMPDIR", temp->path().toUtf8());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open_url");
}

void tst_show_help::cleanup()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    qunsetenv("TMPDIR");
}

void tst_show_help::write_page(const QString& name, const QString& text)
{
    QFile file(pages->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text.toUtf8());
}

QByteArray tst_show_help::read_copy(const QString& name) const
{
    QFile file(temp->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_show_help::language_chooses_the_page_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("copy_name");
    QTest::addColumn<QString>("text");
    // The suite runs once under an English and once under a German system locale.
    const bool german_system = QLocale::system().language() == QLocale::German;
    QTest::newRow("nothing stored: the system's language")
        << "" << (german_system ? "lookwright_help_de.html" : "lookwright_help_en.html")
        << (german_system ? "Hilfe ä" : "Help ü");
    QTest::newRow("German") << "de"
                            << "lookwright_help_de.html"
                            << "Hilfe ä";
    QTest::newRow("French has no page: English, under the English name")
        << "fr"
        << "lookwright_help_en.html"
        << "Help ü";
}

void tst_show_help::language_chooses_the_page()
{
    QFETCH(QString, stored);
    QFETCH(QString, copy_name);
    QFETCH(QString, text);
    write_page(QStringLiteral("index_en.html"), QStringLiteral("Help ü"));
    write_page(QStringLiteral("index_de.html"), QStringLiteral("Hilfe ä"));
    if (!stored.isEmpty()) {
        QSettings().setValue(QStringLiteral("lang"), stored);
    }

    orn::show_help(page_template());

    QCOMPARE(QString::fromUtf8(read_copy(copy_name)), text);
    QCOMPARE(QDir(temp->path()).entryList(QDir::Files), QStringList{copy_name});
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.first().toLocalFile(), "/" + temp->filePath(copy_name));
}

void tst_show_help::a_second_request_rewrites_the_copy()
{
    write_page(QStringLiteral("index_en.html"),
               QStringLiteral("first, and longer than the second"));
    orn::show_help(page_template());
    write_page(QStringLiteral("index_en.html"), QStringLiteral("second"));
    orn::show_help(page_template());

    QCOMPARE(read_copy(QStringLiteral("lookwright_help_en.html")), QByteArray("second"));
    QCOMPARE(QDir(temp->path()).entryList(QDir::Files).size(), 1);
    QCOMPARE(opened.size(), 2);
    QCOMPARE(opened.at(0), opened.at(1));
}

void tst_show_help::key_names_are_mended_in_case()
{
    write_page(QStringLiteral("index_en.html"),
               QStringLiteral("StXrg+C, CtXrl+V, StXrgStXrg; stxrg and ctxrl stay, StxRg too"));
    orn::show_help(page_template());
    QCOMPARE(QString::fromUtf8(read_copy(QStringLiteral("lookwright_help_en.html"))),
             QStringLiteral("Strg+C, Ctrl+V, StrgStrg; stxrg and ctxrl stay, StxRg too"));
}

void tst_show_help::a_missing_page_is_logged_and_opens_nothing()
{
    QSettings().setValue(QStringLiteral("lang"), QStringLiteral("de"));
    test_support::log_capture log;
    orn::show_help(page_template());

    const QString expected =
        QStringLiteral(
            "Could not open help file for language \"en\" with template \"%1\" resulting in \"%2\"")
            .arg(page_template(), pages->filePath(QStringLiteral("index_en.html")));
    QCOMPARE(log.messages(QtWarningMsg), QStringList{expected});
    QVERIFY(opened.isEmpty());
    QVERIFY(QDir(temp->path()).entryList(QDir::Files).isEmpty());
}

void tst_show_help::documents_are_copied_byte_for_byte_beside_the_page()
{
    // Bytes that are no UTF-8, as in a PDF: a text round trip would change them.
    const QByteArray binary("%PDF-1.4\n\xe2\xe3\xcf\xd3\x00\xff", 16);
    test_support::write_file(pages->path(), QStringLiteral("manual_en.pdf"), binary);
    test_support::write_file(pages->path(), QStringLiteral("tutorial_en.html"), "tutorial");
    test_support::write_file(pages->path(), QStringLiteral("tutorial_de.html"), "Anleitung");
    QSettings().setValue(QStringLiteral("lang"), QStringLiteral("de"));

    const QStringList written =
        orn::place_help_documents({pages->filePath(QStringLiteral("manual_%1.pdf")),
                                   pages->filePath(QStringLiteral("tutorial_%1.html"))});

    QCOMPARE(written, QStringList({temp->filePath(QStringLiteral("lookwright_manual_en.pdf")),
                                   temp->filePath(QStringLiteral("lookwright_tutorial_de.html"))}));
    QCOMPARE(read_copy(QStringLiteral("lookwright_manual_en.pdf")), binary);
    QCOMPARE(read_copy(QStringLiteral("lookwright_tutorial_de.html")), QByteArray("Anleitung"));
    QVERIFY(opened.isEmpty());
}

QTEST_MAIN(tst_show_help)

#include "tst_show_help.moc"
