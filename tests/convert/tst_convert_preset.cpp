#include "converted_entries.h"
#include "support/test_support.h"

#include <QtTest>

using converted_entries::convert;
using test_support::document_entries;
using test_support::document_value;
using test_support::preset_with;

namespace {

const QRegularExpression
    uuid_form(QStringLiteral("^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"));

} // namespace

class tst_convert_preset : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void name_only_document();
    void converting_twice_differs_in_uuid_only();
    void name_falls_back_to_about_data();
    void name_falls_back_to_about();
    void colour_space_read_from_settings_each_call();
    void colour_space_lines_data();
    void colour_space_lines();
};

void tst_convert_preset::initTestCase()
{
    test_support::use_test_settings();
}

void tst_convert_preset::name_only_document()
{
    preset_settings preset;
    preset.name = QStringLiteral("Warm & Soft");
    const QString document = convert(preset, QStringLiteral("raw"));
    const QString uuid = document_value(document, QStringLiteral("UUID"));
    QVERIFY2(uuid_form.match(uuid).hasMatch(), qPrintable(uuid));

    const QString expected =
        QStringLiteral("<?xml version=\"1.0\"?>\n"
                       "<SL Engine=\"900\">\n"
                       "    <E K=\"ColorCorrections\" "
                       "V=\"1,1,2,2.36563158035278,-15.9744558334351,0,174,139,97,0,25,"
                       "-42.1264381408691,25.6254768371582,25,0,0,0,0\"/>\n"
                       "    <E K=\"Name\" V=\"Warm &amp; Soft\"/>\n"
                       "    <E K=\"UUID\" V=\"%1\"/>\n"
                       "</SL>\n")
            .arg(uuid);
    QCOMPARE(document, expected);
}

void tst_convert_preset::converting_twice_differs_in_uuid_only()
{
    const preset_settings preset = preset_with({{"Exposure2012", "1.5"}, {"title", "x"}});
    const QStringList first = document_entries(convert(preset, QStringLiteral("srgb")));
    const QStringList second = document_entries(convert(preset, QStringLiteral("srgb")));
    QCOMPARE(first.size(), second.size());
    int differing = 0;
    for (int i = 0; i < first.size(); ++i) {
        if (first[i] != second[i]) {
            ++differing;
            QVERIFY(first[i].startsWith(QStringLiteral("UUID=")));
        }
    }
    QCOMPARE(differing, 1);
}

void tst_convert_preset::name_falls_back_to_about_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("has_about");
    QTest::addColumn<QString>("expected");
    QTest::newRow("name wins over about") << "Warm" << true << "Warm";
    QTest::newRow("empty name takes about") << "" << true << "uuid:1234";
    QTest::newRow("neither gives empty") << "" << false << "";
}

void tst_convert_preset::name_falls_back_to_about()
{
    QFETCH(QString, name);
    QFETCH(bool, has_about);
    QFETCH(QString, expected);
    preset_settings preset;
    preset.name = name;
    if (has_about) {
        preset.settings[QStringLiteral("about")] = QStringLiteral("uuid:1234");
    }
    const QString value =
        document_value(convert(preset, QStringLiteral("raw")), QStringLiteral("Name"));
    QCOMPARE(value, expected);
    QVERIFY(!value.isNull());
}

void tst_convert_preset::colour_space_read_from_settings_each_call()
{
    const lut_set luts;
    preset_settings preset;
    QString out;
    test_support::set_colour_space(QString());
    QTest::ignoreMessage(QtDebugMsg, "Using Wide Gamut RGB colorspace (RAW, some conversion)");
    QVERIFY(luts.convert_preset(preset, &out));

    test_support::set_colour_space(QStringLiteral("srgb"));
    QTest::ignoreMessage(QtDebugMsg, "Using sRGB colorspace (converting)");
    out.clear();
    QVERIFY(luts.convert_preset(preset, &out));
    test_support::set_colour_space(QString());
}

// The colour-space setting turns into behaviour in one place, which names its choice
// in a debug line; "adobe" and any unknown text also warn in the tint stage. What
// each choice writes, the golden documents compare in all six spaces.
void tst_convert_preset::colour_space_lines_data()
{
    QTest::addColumn<QString>("colour_space");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<QString>("using_line");

    const QString unknown =
        QStringLiteral("get_tint_shift: Unknown color space: %1. Not ofsetting.");
    QTest::newRow("adobe") << "adobe" << QStringList{unknown.arg("adobe")}
                           << "Using AdobeRGB colorspace (converting)";
    QTest::newRow("srgb") << "srgb" << QStringList() << "Using sRGB colorspace (converting)";
    QTest::newRow("prophoto") << "prophoto" << QStringList()
                              << "Using ProPhoto colorspace (some conversion)";
    QTest::newRow("widegamut") << "widegamut" << QStringList()
                               << "Using Wide Gamut RGB colorspace (converting)";
    QTest::newRow("raw") << "raw" << QStringList()
                         << "Using Wide Gamut RGB colorspace (RAW, some conversion)";
    // The literals are compared exactly: another spelling chooses nothing and says nothing.
    QTest::newRow("unknown") << "Raw" << QStringList{unknown.arg("Raw")} << "";
}

void tst_convert_preset::colour_space_lines()
{
    QFETCH(QString, colour_space);
    QFETCH(QStringList, warnings);
    QFETCH(QString, using_line);

    const test_support::log_capture log;
    QVERIFY(!convert(preset_with({{"Temperature", "6500"}}), colour_space).isEmpty());
    QCOMPARE(log.messages(QtWarningMsg), warnings);
    QCOMPARE(log.messages(QtDebugMsg).filter(QRegularExpression(QStringLiteral("^Using "))),
             using_line.isEmpty() ? QStringList() : QStringList{using_line});
}

QTEST_GUILESS_MAIN(tst_convert_preset)
#include "tst_convert_preset.moc"
