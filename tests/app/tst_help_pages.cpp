#include "app/app_resources.h"
#include "app/main_window.h"

#include "support/test_support.h"

#include <QDesktopServices>
#include <QDir>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

#include <memory>

// The help page is opened from a copy in the temporary folder, on a machine that
// may have no network: every link of it, and of the documents it leads to, must
// open a real file there. The test takes the "file" scheme over to see the page
// that the window's help button sends to the browser, then follows the links as a
// reader would.
class tst_help_pages : public QObject
{
    Q_OBJECT

public slots:
    void open_url(const QUrl& url) { opened << url; }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void every_link_opens_a_file_data();
    void every_link_opens_a_file();

private:
    QList<QUrl> opened;
    std::unique_ptr<QTemporaryDir> temp;
};

void tst_help_pages::initTestCase()
{
    init_lookwright_resources();
}

void tst_help_pages::init()
{
    test_support::use_test_settings();
    opened.clear();
    temp = std::make_unique<QTemporaryDir>();
    qputenv("TMPDIR", temp->path().toUtf8());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open_url");
}

void tst_help_pages::cleanup()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    qunsetenv("TMPDIR");
}

void tst_help_pages::every_link_opens_a_file_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("documents");
    QTest::newRow("English") << "en"
                             << "Help - Lookwright" << 3;
    QTest::newRow("German") << "de"
                            << "Hilfe - Lookwright" << 3;
    QTest::newRow("French falls back to English") << "fr"
                                                  << "Help - Lookwright" << 3;
}

void tst_help_pages::every_link_opens_a_file()
{
    QFETCH(QString, stored);
    QFETCH(QString, title);
    QFETCH(int, documents);
    QSettings().setValue(QStringLiteral("lang"), stored);

    MainWindow window(nullptr);
    QPushButton* help_button = nullptr;
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->toolTip() == QLatin1String("Display the help page for this program")) {
            help_button = button;
        }
    }
    QVERIFY(help_button != nullptr);
    help_button->click();
    QCOMPARE(opened.size(), 1);

    const QRegularExpression link(QStringLiteral("<a\\s+href=\"([^\"]*)\""));
    QList<QUrl> to_visit{opened.first()};
    QSet<QString> visited;
    while (!to_visit.isEmpty()) {
        const QUrl url = to_visit.takeFirst();
        const QString path = QDir::cleanPath(url.toLocalFile());
        if (visited.contains(path)) {
            continue;
        }
        visited.insert(path);
        QFile file(path);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable("dead link to " + url.toString()));
        const QByteArray data = file.readAll();
        if (path.endsWith(QLatin1String(".pdf"))) {
            QVERIFY2(data.startsWith("%PDF-"), qPrintable(path + " is no PDF"));
            continue;
        }
        const QString text = QString::fromUtf8(data);
        if (visited.size() == 1) {
            QVERIFY2(text.contains("<title>" + title + "</title>"), qPrintable(text.left(300)));
        }
        auto links = link.globalMatch(text);
        while (links.hasNext()) {
            const QUrl target = url.resolved(QUrl(links.next().captured(1)));
            QVERIFY2(target.isLocalFile(),
                     qPrintable("link leaves the machine: " + target.toString()));
            to_visit << target;
        }
    }
    // The page, the tutorial and the manual, all beside the page's copy.
    QCOMPARE(visited.size(), documents);
    for (const QString& path : qAsConst(visited)) {
        QCOMPARE(QFileInfo(path).absolutePath(), QFileInfo(temp->path()).absoluteFilePath());
    }
}

QTEST_MAIN(tst_help_pages)

#include "tst_help_pages.moc"
