#include "preset/template_reader.h"
#include "preset/xmp_reader.h"

#include "support/test_support.h"

#include <QtTest>

#include <exception>

// Reads the real presets of the shared folder (public presets kept outside the
// project) against the facts in real_preset_facts.tsv, and the presets saved in both
// formats against each other.

namespace {

const QString corpus = QStringLiteral(LOOKWRIGHT_SHARED_PRESETS);

struct read_result
{
    preset_settings preset;
    QString failure;
    QStringList problems;
};

// Reads a preset of the folder by its suffix; keeps what it throws and the warning
// and critical lines.
read_result read_preset(const QString& relative_path)
{
    read_result result;
    const QString path = corpus + QLatin1Char('/') + relative_path;
    test_support::log_capture log;
    try {
        if (path.endsWith(QLatin1String(".xmp"))) {
            load_xmp(result.preset, path);
        } else {
            load_template(result.preset, path);
        }
    } catch (const std::exception& error) {
        result.failure = QString::fromUtf8(error.what());
    }
    result.problems = log.messages(QtWarningMsg) + log.messages(QtCriticalMsg);
    return result;
}

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

// The formats spell a value differently: `35` and `+35`, `1` and `+1.0`, `false` and
// `False`.
bool same_value(const QString& a, const QString& b)
{
    bool a_is_number = false;
    bool b_is_number = false;
    const float a_number = a.toFloat(&a_is_number);
    const float b_number = b.toFloat(&b_is_number);
    if (a_is_number && b_is_number) {
        return a_number == b_number;
    }
    return a.compare(b, Qt::CaseInsensitive) == 0;
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
    void cross_format_pairs_data();
    void cross_format_pairs();
};

void tst_real_presets::initTestCase()
{
    if (!QFileInfo(corpus).isDir()) {
        QSKIP(qPrintable(
            QStringLiteral("No folder of real presets at %1: nothing to check.").arg(corpus)));
    }
}

void tst_real_presets::facts_cover_the_folder()
{
    QStringList files;
    for (const QString& kind : {QStringLiteral("lrtemplate"), QStringLiteral("xmp")}) {
        for (const QString& name : QDir(corpus + QLatin1Char('/') + kind).entryList(QDir::Files)) {
            files << kind + QLatin1Char('/') + name;
        }
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
    QCOMPARE(facts.size(), 6);

    const read_result result = read_preset(facts.at(0));
    QCOMPARE(result.failure, facts.at(4));
    QCOMPARE(result.problems, QStringList());
    const preset_settings& preset = result.preset;
    QCOMPARE(preset.name, facts.at(1));
    QCOMPARE(QString::number(preset.settings.size()), facts.at(2));
    QCOMPARE(QStringLiteral("%1/%2/%3/%4")
                 .arg(preset.tone_curve.size())
                 .arg(preset.tone_curve_red.size())
                 .arg(preset.tone_curve_green.size())
                 .arg(preset.tone_curve_blue.size()),
             facts.at(3));
    for (const QString& entry : facts.at(5).split(QStringLiteral(" | "))) {
        const QString key = entry.section(QLatin1Char('='), 0, 0);
        QCOMPARE(key + QLatin1Char('=') +
                     value_or(preset.settings, key, QStringLiteral("<absent>")),
                 entry);
    }
    // Keys are bare local names: no table path, no namespace prefix.
    for (const QString& key : preset.settings.keys()) {
        QVERIFY2(!key.contains(QLatin1Char('.')) && !key.contains(QLatin1Char(':')),
                 qPrintable(key));
    }
}

void tst_real_presets::cross_format_pairs_data()
{
    QTest::addColumn<int>("shared_keys");
    // Of those, some develop settings that any version writes.
    QTest::addColumn<QStringList>("develop_keys");

    QTest::newRow("usa_baker_01") << 75 << QStringList{"Contrast2012", "Shadows2012", "Vibrance"};
    QTest::newRow("usa_joshuaTree_01") << 83 << QStringList{"Blacks2012", "WhiteBalance"};
    QTest::newRow("tanzania_africaVintage_01") << 74 << QStringList{"SplitToningShadowHue"};
    QTest::newRow("curve_deepContrast_01") << 9 << QStringList{"ToneCurveName2012"};
    QTest::newRow("camStd_wbCloud_auto") << 13 << QStringList{"AutoTone", "Temperature", "Tint"};
}

void tst_real_presets::cross_format_pairs()
{
    QFETCH(int, shared_keys);
    QFETCH(QStringList, develop_keys);

    const QString base = QStringLiteral("thejoltjoker__") + QLatin1String(QTest::currentDataTag());
    const read_result braced = read_preset(QStringLiteral("lrtemplate/%1.lrtemplate").arg(base));
    const read_result xmp = read_preset(QStringLiteral("xmp/%1.xmp").arg(base));
    QCOMPARE(braced.failure + xmp.failure, QString());
    QCOMPARE(xmp.preset.name, braced.preset.name);
    QCOMPARE(xmp.preset.tone_curve, braced.preset.tone_curve);
    QCOMPARE(xmp.preset.tone_curve_red, braced.preset.tone_curve_red);
    QCOMPARE(xmp.preset.tone_curve_green, braced.preset.tone_curve_green);
    QCOMPARE(xmp.preset.tone_curve_blue, braced.preset.tone_curve_blue);

    // The two programs that saved the files wrote different sets of keys; the keys
    // they share carry the same values.
    int shared = 0;
    for (auto it = braced.preset.settings.constBegin(); it != braced.preset.settings.constEnd();
         ++it) {
        const auto other = xmp.preset.settings.constFind(it.key());
        if (other != xmp.preset.settings.constEnd()) {
            ++shared;
            QVERIFY2(same_value(it.value(), other.value()), qPrintable(it.key()));
        }
    }
    QCOMPARE(shared, shared_keys);
    for (const QString& key : develop_keys) {
        QVERIFY(braced.preset.settings.contains(key) && xmp.preset.settings.contains(key));
    }
}

QTEST_GUILESS_MAIN(tst_real_presets)
#include "tst_real_presets.moc"
