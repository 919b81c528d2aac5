#include "preset/template_reader.h"
#include "preset/xmp_reader.h"

#include "support/test_support.h"

#include <QtTest>

// Reads the real presets of the shared folder (public presets kept outside the
// project) against the facts in real_preset_facts.tsv.

namespace {

const QString corpus = QStringLiteral(LOOKWRIGHT_SHARED_PRESETS);

QList<QStringList> fact_rows()
{
    QFile file(QStringLiteral(LOOKWRIGHT_TEST_DATA "/real_preset_facts.tsv"));
    QList<QStringList> rows;
    if (file.open(QIODevice::ReadOnly)) {
        for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
            if (!line.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
                rows << line.split(QLatin1Char('\t'));
            }
        }
    }
    return rows;
}

} // namespace

class tst_real_presets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void facts_cover_the_folder();
    void reads_every_preset_data();
    void reads_every_preset();
};

void tst_real_presets::initTestCase()
{
    // A missing folder fails rather than skips: a skip would let a run that read
    // nothing pass.
    QVERIFY2(QFileInfo(corpus).isDir(),
             qPrintable(
                 QStringLiteral("No folder of real presets at %1: nothing to check.").arg(corpus)));
}

void tst_real_presets::facts_cover_the_folder()
{
    QStringList files;
    QDirIterator it(corpus, {QStringLiteral("*.lrtemplate"), QStringLiteral("*.xmp")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files << QDir(corpus).relativeFilePath(it.next());
    }
    QStringList described;
    for (const QStringList& row : fact_rows()) {
        described << row.at(0);
    }
    files.sort();
    described.sort();
    QCOMPARE(described, files);
}

void tst_real_presets::reads_every_preset_data()
{
    QTest::addColumn<QStringList>("facts");

    for (const QStringList& row : fact_rows()) {
        QTest::newRow(qPrintable(row.at(0))) << row;
    }
}

void tst_real_presets::reads_every_preset()
{
    QFETCH(QStringList, facts);
    QCOMPARE(facts.size(), 5);

    const QString path = corpus + QLatin1Char('/') + facts.at(0);
    preset_settings preset;
    test_support::log_capture log;
    if (path.endsWith(QLatin1String(".xmp"))) {
        load_xmp(preset, path);
    } else {
        load_template(preset, path);
    }
    QCOMPARE(log.messages(QtWarningMsg) + log.messages(QtCriticalMsg), QStringList());
    QCOMPARE(preset.name, facts.at(1));
    QCOMPARE(QString::number(preset.settings.size()), facts.at(2));
    QCOMPARE(QStringLiteral("%1/%2/%3/%4")
                 .arg(preset.tone_curve.size())
                 .arg(preset.tone_curve_red.size())
                 .arg(preset.tone_curve_green.size())
                 .arg(preset.tone_curve_blue.size()),
             facts.at(3));
    for (const QString& entry : facts.at(4).split(QStringLiteral(" | "))) {
        const QString key = entry.section(QLatin1Char('='), 0, 0);
        QCOMPARE(key + QLatin1Char('=') +
                     value_or(preset.settings, key, QStringLiteral("<absent>")),
                 entry);
    }
}

QTEST_GUILESS_MAIN(tst_real_presets)
#include "tst_real_presets.moc"
