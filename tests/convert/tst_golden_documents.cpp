#include "convert/lut_set.h"
#include "preset/preset_file.h"

#include "support/test_support.h"

#include <QtTest>

// Every preset of the shared golden set through the converter's road (reader by
// suffix, conversion for a given colour space), compared byte for byte with the
// documents an independent computation expects. Each document is made twice: under
// the system's locale and with German as the application's default locale, since a
// user's language must never change a number that is read or written.

namespace {

const QString golden = QStringLiteral(LOOKWRIGHT_SHARED_GOLDEN);
const QString fixed_uuid = QStringLiteral("00000000-0000-0000-0000-000000000000");

// Folder of expected documents to the text of the "colorspace" setting. The folder
// names differ from the texts only where case alone would tell two of them apart.
const QList<QPair<QString, QString>> colour_spaces{
    {QStringLiteral("raw"), QStringLiteral("raw")},
    {QStringLiteral("adobe"), QStringLiteral("adobe")},
    {QStringLiteral("srgb"), QStringLiteral("srgb")},
    {QStringLiteral("prophoto"), QStringLiteral("prophoto")},
    {QStringLiteral("widegamut"), QStringLiteral("widegamut")},
    {QStringLiteral("unknown-sRGB"), QStringLiteral("sRGB")},
};

using test_support::read_all;

const QRegularExpression uuid_entry(QStringLiteral("<E K=\"UUID\" V=\"([^\"]*)\"/>"));
const QRegularExpression
    uuid_form(QStringLiteral("^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"));

// The document as the converter would save it, with its fresh UUID checked for form
// and then replaced by the fixed one the expected documents carry.
QByteArray converted(const QString& preset_path, const QString& colour_space)
{
    const test_support::log_capture quiet;
    preset_settings preset;
    if (read_preset_file(preset_path, preset).status != preset_read_status::read) {
        return QByteArray("(unreadable)");
    }
    QString document;
    lut_set().convert_preset(preset, &document, colour_space);
    const QRegularExpressionMatch uuid = uuid_entry.match(document);
    if (!uuid.hasMatch() || !uuid_form.match(uuid.captured(1)).hasMatch()) {
        return QByteArray("(no UUID of the right form)\n") + document.toUtf8();
    }
    document.replace(uuid.capturedStart(1), uuid.capturedLength(1), fixed_uuid);
    return document.toUtf8();
}

} // namespace

class tst_golden_documents : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void every_preset_has_its_documents();
    void same_bytes_data();
    void same_bytes();
};

void tst_golden_documents::initTestCase()
{
    // A missing folder fails rather than skips: a skip would let a run that compared
    // nothing pass.
    QVERIFY2(
        QFileInfo(golden).isDir(),
        qPrintable(QStringLiteral("No golden documents at %1: nothing to compare.").arg(golden)));
    test_support::use_test_settings();
}

void tst_golden_documents::cleanup()
{
    QLocale::setDefault(QLocale::system());
}

// A preset without expected documents, or documents without a preset, would
// silently shrink the comparison.
void tst_golden_documents::every_preset_has_its_documents()
{
    const QDir presets(golden + QStringLiteral("/presets/generated"));
    QStringList bases;
    for (const QFileInfo& file : presets.entryInfoList(QDir::Files, QDir::Name)) {
        bases << file.completeBaseName() + QStringLiteral(".costyle");
    }
    QVERIFY(!bases.isEmpty());
    for (const auto& space : colour_spaces) {
        const QDir expected(golden + QStringLiteral("/expected/") + space.first);
        QCOMPARE(expected.entryList(QDir::Files, QDir::Name), bases);
    }
}

void tst_golden_documents::same_bytes_data()
{
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("colour_space");

    const QDir presets(golden + QStringLiteral("/presets/generated"));
    for (const QFileInfo& file : presets.entryInfoList(QDir::Files, QDir::Name)) {
        for (const auto& space : colour_spaces) {
            const QString expected = QStringLiteral("%1/expected/%2/%3.costyle")
                                         .arg(golden, space.first, file.completeBaseName());
            QTest::addRow("%s %s", qPrintable(space.first), qPrintable(file.fileName()))
                << file.filePath() << expected << space.second;
        }
    }
}

void tst_golden_documents::same_bytes()
{
    QFETCH(QString, preset);
    QFETCH(QString, expected);
    QFETCH(QString, colour_space);

    const QByteArray wanted = read_all(expected);
    QVERIFY(!wanted.isEmpty());
    QCOMPARE(converted(preset, colour_space), wanted);

    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(converted(preset, colour_space), wanted);
}

QTEST_GUILESS_MAIN(tst_golden_documents)
#include "tst_golden_documents.moc"
