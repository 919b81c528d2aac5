// Every kind of file a photographer's preset folder may hold, through the whole
// road: reader, inspection, conversion in every colour space, document. Nothing
// may crash or hang; the outcome is the one the readers and stages define.

#include "convert/lut_set.h"
#include "preset/lua_lexer.h"
#include "preset/lua_template_reader.h"
#include "preset/preset_file.h"
#include "support/test_support.h"

#include <QtTest>

#include <random>

namespace {

const QStringList colour_spaces{QStringLiteral("raw"),       QStringLiteral("adobe"),
                                QStringLiteral("srgb"),      QStringLiteral("prophoto"),
                                QStringLiteral("widegamut"), QStringLiteral("Other")};

const QByteArray small_template = "s = {\n"
                                  "\ttitle = \"Warm\",\n"
                                  "\tvalue = {\n"
                                  "\t\tsettings = {\n"
                                  "\t\t\tExposure2012 = 0.5,\n"
                                  "\t\t\tToneCurvePV2012 = {\n"
                                  "\t\t\t\t0,\n\t\t\t\t10,\n\t\t\t\t255,\n\t\t\t\t245,\n"
                                  "\t\t\t},\n"
                                  "\t\t},\n"
                                  "\t},\n"
                                  "}\n";

const QByteArray small_xmp = test_support::xmp_preset("Warm");

QByteArray junk(int size, unsigned seed)
{
    std::mt19937 random(seed);
    QByteArray bytes(size, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random() & 0xff);
    }
    return bytes;
}

QByteArray utf16_with_bom(const QByteArray& utf8)
{
    const QString text = QString::fromUtf8(utf8);
    QByteArray bytes("\xff\xfe", 2);
    bytes.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    return bytes;
}

// An XMP whose Description carries `attributes`, after an optional DOCTYPE.
QByteArray xmp_with(const QByteArray& doctype, const QByteArray& attributes)
{
    return "<?xml version=\"1.0\"?>\n" + doctype +
           "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
           "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
           "<rdf:Description xmlns:crs=\"http://ns.adobe.com/camera-raw-settings/1.0/\" " +
           attributes + "/></rdf:RDF></x:xmpmeta>\n";
}

// Every source key the conversion reads as a number.
const char* const numeric_keys[] = {"Temperature",
                                    "IncrementalTemperature",
                                    "Tint",
                                    "IncrementalTint",
                                    "Brightness",
                                    "Contrast",
                                    "Exposure",
                                    "FillLight",
                                    "HighlightRecovery",
                                    "Shadows",
                                    "Exposure2012",
                                    "Contrast2012",
                                    "Shadows2012",
                                    "Highlights2012",
                                    "Blacks2012",
                                    "Whites2012",
                                    "Clarity2012",
                                    "Clarity",
                                    "Saturation",
                                    "Vibrance",
                                    "HueAdjustmentRed",
                                    "SaturationAdjustmentOrange",
                                    "LuminanceAdjustmentMagenta",
                                    "GrayMixerRed",
                                    "GrayMixerOrange",
                                    "GrayMixerPurple",
                                    "GrayMixerAqua",
                                    "SplitToningShadowHue",
                                    "SplitToningShadowSaturation",
                                    "SplitToningHighlightHue",
                                    "SplitToningHighlightSaturation",
                                    "SplitToningBalance",
                                    "ParametricShadows",
                                    "ParametricDarks",
                                    "ParametricLights",
                                    "ParametricHighlights",
                                    "Sharpness",
                                    "SharpenRadius",
                                    "LuminanceSmoothing",
                                    "ColorNoiseReduction",
                                    "LuminanceNoiseReductionDetail",
                                    "PostCropVignetteAmount",
                                    "PostCropVignetteRoundness",
                                    "GrainAmount",
                                    "GrainSize",
                                    "Dehaze",
                                    "RedHue",
                                    "ShadowTint"};

struct road_result
{
    preset_read_result read;
    preset_settings preset;
    QStringList documents; // one for each colour space, when the file was read
};

road_result take_road(const QString& path, bool grayscale = false)
{
    road_result result;
    result.read = read_preset_file(path, result.preset);
    if (result.read.status != preset_read_status::read) {
        return result;
    }
    if (grayscale) {
        result.preset.settings[QStringLiteral("ConvertToGrayscale")] = QStringLiteral("True");
    }
    const lut_set luts;
    bool white_balance = false;
    bool rgb_table = false;
    bool calibration = false;
    luts.inspect_preset(result.preset, white_balance, rgb_table, calibration);
    for (const QString& colour_space : colour_spaces) {
        QString document;
        luts.convert_preset(result.preset, &document, colour_space);
        result.documents << document;
    }
    return result;
}

} // namespace

class tst_bad_input : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void files_data();
    void files();
    void numbers_in_every_key_data();
    void numbers_in_every_key();
    void entity_bomb_is_refused();
    void external_entity_is_never_read();

private:
    QTemporaryDir dir_;
};

void tst_bad_input::initTestCase()
{
    QVERIFY(dir_.isValid());
    // The core logs freely here; only the outcome matters.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

void tst_bad_input::files_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error");    // the reader's message, when it fails
    QTest::addColumn<QString>("expected"); // a "K=V" the documents must hold, when read

    const int read = int(preset_read_status::read);
    const int failed = int(preset_read_status::failed);
    const QString unexpected = QStringLiteral("Unexpected token type found. ");

    QTest::newRow("empty template") << "a.lrtemplate" << QByteArray() << read << ""
                                    << "Name=";
    QTest::newRow("empty XMP") << "a.xmp" << QByteArray() << read << ""
                               << "Name=";
    QTest::newRow("binary junk as template")
        << "a.lrtemplate" << junk(4096, 1) << failed << unexpected << "";
    QTest::newRow("binary junk as XMP") << "a.xmp" << junk(4096, 2) << read << ""
                                        << "Name=";
    QTest::newRow("template cut after a comma")
        << "a.lrtemplate" << small_template.left(small_template.indexOf("0.5,") + 4) << failed
        << unexpected + QStringLiteral("Expected token_type::name, got token_type::eof") << "";
    QTest::newRow("template cut inside a curve")
        << "a.lrtemplate" << small_template.left(small_template.indexOf("10,") + 3) << failed
        << unexpected + QStringLiteral("Expected token_type::rbrace, got token_type::eof") << "";
    QTest::newRow("XMP cut in the middle")
        << "a.xmp" << small_xmp.left(small_xmp.indexOf("<crs:Name>") + 14) << read << ""
        << "Exposure=0.571429";
    QTest::newRow("template with UTF-8 BOM")
        << "a.lrtemplate" << QByteArray("\xef\xbb\xbf") + small_template << read << ""
        << "Name=Warm";
    QTest::newRow("XMP with UTF-8 BOM")
        << "a.xmp" << QByteArray("\xef\xbb\xbf") + small_xmp << read << ""
        << "Name=Warm";
    QTest::newRow("template in UTF-16")
        << "a.lrtemplate" << utf16_with_bom(small_template) << read << ""
        << "Name=Warm";
    QTest::newRow("XMP in UTF-16")
        << "a.xmp"
        << utf16_with_bom(QByteArray(small_xmp).replace(
               "<x:xmpmeta", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><x:xmpmeta"))
        << read << ""
        << "Name=Warm";
    QTest::newRow("template with CRLF")
        << "a.lrtemplate" << QByteArray(small_template).replace("\n", "\r\n") << read << ""
        << "GradationCurve=0.000000,0.039216;1.000000,0.960784";
    QTest::newRow("XMP with CRLF")
        << "a.xmp" << QByteArray(small_xmp).replace("\n", "\r\n") << read << ""
        << "Exposure=0.571429";
    QTest::newRow("line-form template with CRLF")
        << "a.lrtemplate"
        << QByteArray("s.value.settings = {}\r\n\ts.title = \"Line\"\r\n"
                      "\ts.value.settings.Exposure2012 = 0.5\r\n")
        << read << ""
        << "Exposure=0.571429";
    QTest::newRow("a curve of 1000 points") << "a.lrtemplate" <<
        [] {
            QByteArray text = "ToneCurvePV2012 = {\n";
            for (int i = 0; i < 1000; ++i) {
                text +=
                    QByteArray::number(i % 256) + ",\n" + QByteArray::number(i * 7 % 300) + ",\n";
            }
            return text + "},\n";
        }() << read << ""
                                            << "";
    QTest::newRow("curve y far outside")
        << "a.lrtemplate"
        << QByteArray("ToneCurvePV2012Red = {\n0,\n-2147483648,\n128,\n"
                      "2147483647,\n255,\n99999,\n},\n")
        << read << ""
        << "";
    QTest::newRow("tables nested a million deep")
        << "a.lrtemplate"
        << QByteArray("t = {\n").repeated(1000000) + "Exposure2012 = 0.5,\n" +
               QByteArray("},\n").repeated(1000000)
        << read << ""
        << "Exposure=0.571429";
    QTest::newRow("curve with one point and descending x")
        << "a.lrtemplate"
        << QByteArray("ToneCurvePV2012 = {\n200,\n10,\n},\nToneCurvePV2012Blue = {\n255,\n0,\n"
                      "128,\n128,\n128,\n200,\n0,\n255,\n},\n")
        << read << ""
        << "";
}

void tst_bad_input::files()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(int, status);
    QFETCH(QString, error);
    QFETCH(QString, expected);

    const QString path = test_support::write_file(dir_.path(), name, contents);
    if (name.endsWith(QLatin1String(".lrtemplate"))) {
        // The converter's second try: a record or its own error, whatever the bytes.
        preset_settings preset;
        try {
            load_lua_template(preset, path);
        } catch (const lua_syntax_error&) {
        }
    }
    for (const bool grayscale : {false, true}) {
        const road_result result = take_road(path, grayscale);
        QCOMPARE(int(result.read.status), status);
        QCOMPARE(result.read.error.left(error.size()), error);
        for (const QString& document : result.documents) {
            QVERIFY(document.startsWith(
                QStringLiteral("<?xml version=\"1.0\"?>\n<SL Engine=\"900\">\n")));
            QVERIFY(document.endsWith(QStringLiteral("</SL>\n")));
            if (!expected.isEmpty()) {
                QVERIFY2(test_support::document_entries(document).contains(expected),
                         qPrintable(document));
            }
        }
    }
}

void tst_bad_input::numbers_in_every_key_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<QString>("expected"); // a "K=V" of every document
    QTest::newRow("NaN") << QByteArray("NaN") << "Vignetting=nan|1|0|1";
    QTest::newRow("nan") << QByteArray("nan") << "UsmAmount=nan";
    QTest::newRow("inf") << QByteArray("inf") << "Exposure=4.000000";
    QTest::newRow("-inf") << QByteArray("-inf") << "Exposure=-4.000000";
    QTest::newRow("-0 prints without sign") << QByteArray("-0") << "Exposure=0.000000";
    QTest::newRow("40 digits count as absent")
        << QByteArray("1234567890123456789012345678901234567890") << "ClarityMethod=";
}

void tst_bad_input::numbers_in_every_key()
{
    QFETCH(QByteArray, number);
    QFETCH(QString, expected);
    QByteArray text;
    for (const char* key : numeric_keys) {
        text += QByteArray(key) + " = " + number + ",\n";
    }
    for (const char* curve : {"ToneCurvePV2012", "ToneCurvePV2012Red"}) {
        text += QByteArray(curve) + " = {\n0,\n10,\n128,\n140,\n255,\n250,\n},\n";
    }
    const QString path =
        test_support::write_file(dir_.path(), QStringLiteral("n.lrtemplate"), text);
    for (const bool grayscale : {false, true}) {
        const road_result result = take_road(path, grayscale);
        QCOMPARE(int(result.read.status), int(preset_read_status::read));
        QCOMPARE(result.documents.size(), colour_spaces.size());
        for (const QString& document : result.documents) {
            QVERIFY(document.endsWith(QStringLiteral("</SL>\n")));
            const QStringList entries = test_support::document_entries(document);
            if (expected.endsWith(QLatin1Char('='))) {
                QVERIFY2(!entries.filter(expected).size(), qPrintable(document));
            } else {
                QVERIFY2(entries.contains(expected), qPrintable(document));
            }
        }
    }
}

void tst_bad_input::entity_bomb_is_refused()
{
    QByteArray doctype = "<!DOCTYPE x [\n<!ENTITY a0 \"lollollollollollollollollollol\">\n";
    for (int i = 1; i <= 9; ++i) {
        doctype += "<!ENTITY a" + QByteArray::number(i) + " \"";
        for (int j = 0; j < 10; ++j) {
            doctype += "&a" + QByteArray::number(i - 1) + ";";
        }
        doctype += "\">\n";
    }
    doctype += "]>\n";
    const QString path =
        test_support::write_file(dir_.path(), QStringLiteral("bomb.xmp"),
                                 xmp_with(doctype, "crs:Exposure2012=\"1\" crs:Name=\"&a9;\""));
    const road_result result = take_road(path);
    QCOMPARE(int(result.read.status), int(preset_read_status::read));
    // Ten billion characters never arrive: the reader stops at the limit.
    QVERIFY(value_or(result.preset.settings, QStringLiteral("Name"), QString()).size() < 1000000);
    for (const QString& document : result.documents) {
        QVERIFY(document.size() < 100000);
    }
}

void tst_bad_input::external_entity_is_never_read()
{
    const QString secret =
        test_support::write_file(dir_.path(), QStringLiteral("secret.txt"), "SECRET-CONTENTS");
    const QByteArray doctype =
        "<!DOCTYPE x [\n<!ENTITY leak SYSTEM \"file://" + secret.toUtf8() + "\">\n]>\n";
    const QString path =
        test_support::write_file(dir_.path(), QStringLiteral("external.xmp"),
                                 xmp_with(doctype, "crs:Exposure2012=\"1\" crs:Name=\"&leak;\""));
    const road_result result = take_road(path);
    for (auto it = result.preset.settings.constBegin(); it != result.preset.settings.constEnd();
         ++it) {
        QVERIFY(!it.value().contains(QStringLiteral("SECRET")));
    }
    for (const QString& document : result.documents) {
        QVERIFY(!document.contains(QStringLiteral("SECRET")));
    }
}

QTEST_GUILESS_MAIN(tst_bad_input)
#include "tst_bad_input.moc"
