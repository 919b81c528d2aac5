#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

// Every text the program or the toolkit passes through tr must have a translated
// row in its catalogue, or a German user meets it in English. lupdate collects the
// texts from the sources as they stand now, and each one is looked up in the .ts
// sources of the catalogues. The program's own contexts go to de.ts; everything
// else, the QObject context included, belongs to the toolkit's four catalogues.

namespace {

// "context\nsource" of a message, the key of a row.
using message_key = QPair<QString, QString>;

struct catalogue
{
    QString name;
    QMap<message_key, QString> translated; // rows with a finished translation
    QSet<message_key> all;                 // every row, finished or not
};

catalogue read_ts(const QString& path)
{
    catalogue result;
    result.name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return result;
    }
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const QString type = xml.attributes().value(QLatin1String("type")).toString();
            const QString text = xml.readElementText();
            result.all.insert({context, source});
            if (type.isEmpty() && !text.isEmpty()) {
                result.translated.insert({context, source}, text);
            }
        }
    }
    return result;
}

// The texts that stay English in a German program: they have no row, and stale
// rows under older wordings must not match them. Two of them carry the support
// address, so they are known by their beginning.
bool kept_english(const message_key& message)
{
    if (message.first != QLatin1String("MainWindow")) {
        return false;
    }
    static const QStringList whole{QStringLiteral("Select output folder"),
                                   QStringLiteral("Capture One Stylepack(*.costylepack)"),
                                   QStringLiteral("Preset conversion failed")};
    static const QStringList beginnings{
        QStringLiteral("The preset %1 could not be converted to Capture One format."),
        QStringLiteral("Your preset %1 can't be processed by Lookwright."),
        QStringLiteral("Your selected preset %1 contains the following parameters")};
    if (whole.contains(message.second)) {
        return true;
    }
    for (const QString& beginning : beginnings) {
        if (message.second.startsWith(beginning)) {
            return true;
        }
    }
    return false;
}

bool program_context(const QString& context)
{
    return context == QLatin1String("MainWindow") || context == QLatin1String("dialog_settings");
}

} // namespace

class tst_catalogues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void every_text_has_a_row_data();
    void every_text_has_a_row();
    void kept_english_texts_have_no_row();

private:
    QList<message_key> found;
    catalogue program;
    QList<catalogue> toolkit;
};

void tst_catalogues::initTestCase()
{
    QTemporaryDir work;
    const QString collected = work.filePath(QStringLiteral("collected.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(LOOKWRIGHT_LUPDATE),
                  {QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none"),
                   QStringLiteral(LOOKWRIGHT_SOURCE_DIR "/src/app"),
                   QStringLiteral(LOOKWRIGHT_SOURCE_DIR "/orn_toolkit"), QStringLiteral("-ts"),
                   collected});
    QVERIFY(lupdate.waitForFinished(60000));
    QVERIFY2(lupdate.exitCode() == 0, lupdate.readAllStandardError().constData());
    const catalogue sources = read_ts(collected);
    found = sources.all.values();
    std::sort(found.begin(), found.end());
    // The fatal box's texts are in the toolkit from the start: finding none means
    // lupdate looked in the wrong place.
    QVERIFY(found.contains({QStringLiteral("QObject"), QStringLiteral("Fatal error")}));

    const QString translations = QStringLiteral(LOOKWRIGHT_SOURCE_DIR "/resources/translations/");
    program = read_ts(translations + QStringLiteral("de.ts"));
    QVERIFY(!program.translated.isEmpty());
    for (const char* lang : {"de", "es", "fr", "it"}) {
        toolkit << read_ts(translations + QStringLiteral("toolkit_%1.ts").arg(QLatin1String(lang)));
        QVERIFY(!toolkit.last().translated.isEmpty());
    }
}

void tst_catalogues::every_text_has_a_row_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    for (const message_key& message : qAsConst(found)) {
        if (!kept_english(message)) {
            QTest::newRow(qPrintable(message.first + ": " +
                                     message.second.left(60).replace('\n', QLatin1String("\\n"))))
                << message.first << message.second;
        }
    }
}

void tst_catalogues::every_text_has_a_row()
{
    QFETCH(QString, context);
    QFETCH(QString, source);
    const message_key message{context, source};
    if (program_context(context)) {
        QVERIFY2(program.translated.contains(message), "no German row for the program's text");
        return;
    }
    for (const catalogue& each : qAsConst(toolkit)) {
        QVERIFY2(each.translated.contains(message), qPrintable("no row in " + each.name));
    }
}

void tst_catalogues::kept_english_texts_have_no_row()
{
    for (const message_key& row : program.all) {
        QVERIFY2(!kept_english(row),
                 qPrintable("a row for a text that stays English: " + row.second.left(60)));
    }
}

QTEST_GUILESS_MAIN(tst_catalogues)

#include "tst_catalogues.moc"
