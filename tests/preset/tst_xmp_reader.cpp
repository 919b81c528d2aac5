#include "preset/xmp_reader.h"

#include "preset/record_text.h"
#include "support/test_support.h"

#include <QtTest>

using record_text::curves;
using record_text::entries;

namespace {

const QString data_dir = QStringLiteral(LOOKWRIGHT_TEST_DATA "/xmp/");

// A preset document with these attributes on its Description and these children.
QByteArray xmp(const QByteArray& attributes, const QByteArray& children = QByteArray())
{
    return "<x:xmpmeta xmlns:x=\"urn:x-example:meta\">\n"
           " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
           "  <rdf:Description rdf:about=\"\"\n"
           "    xmlns:crs=\"urn:x-example:settings\"" +
           attributes + ">\n" + children +
           "  </rdf:Description>\n"
           " </rdf:RDF>\n"
           "</x:xmpmeta>\n";
}

QByteArray alt(const QByteArray& element, const QByteArray& items)
{
    return "<crs:" + element + "><rdf:Alt>" + items + "</rdf:Alt></crs:" + element + ">\n";
}

QByteArray seq(const QByteArray& element, const QByteArray& items)
{
    return "<crs:" + element + "><rdf:Seq>" + items + "</rdf:Seq></crs:" + element + ">\n";
}

QByteArray name_element(const QByteArray& name)
{
    return alt("Name", "<rdf:li xml:lang=\"x-default\">" + name + "</rdf:li>");
}

QStringList without_debug(const QStringList& lines)
{
    QStringList result;
    for (const QString& line : lines) {
        if (!line.startsWith(QLatin1String("Debug: "))) {
            result << line;
        }
    }
    return result;
}

const char* const premature_end = "Warning: 4 \"Premature end of document.\"";

} // namespace

class tst_xmp_reader : public QObject
{
    Q_OBJECT

private slots:
    void reads_fixture();
    void reads_description_data();
    void reads_description();
    void log_lines();
    void broken_documents_data();
    void broken_documents();
    void missing_file_is_silent();
    void external_entities_stay_unread_data();
    void external_entities_stay_unread();
    void entity_expansion_is_limited();
    void encodings_data();
    void encodings();
    void deep_list_item();
    void large_file();
    void costly_documents_cut_short_data();
    void costly_documents_cut_short();

private:
    QString write(const QByteArray& contents)
    {
        return test_support::write_file(dir_.path(), QStringLiteral("preset.xmp"), contents);
    }

    QTemporaryDir dir_;
};

void tst_xmp_reader::reads_fixture()
{
    QFile expected(data_dir + QStringLiteral("full_preset.expected"));
    QVERIFY(expected.open(QIODevice::ReadOnly));
    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, data_dir + QStringLiteral("full_preset.xmp"));

    QCOMPARE(record_text::describe(preset), QString::fromUtf8(expected.readAll()));
    QCOMPARE(without_debug(log.lines()), QStringList());
}

void tst_xmp_reader::reads_description_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("curves");

    // The fixture full_preset.xmp holds the common cases; these are the others.
    const QString none = QStringLiteral("|||");
    const QStringList about{"about="};
    // clang-format off
    QTest::newRow("namespaces on the root")
        << QByteArray("<x:xmpmeta xmlns:x=\"urn:x-example:meta\" xmlns:c=\"c\" xmlns:rdf=\"urn:r\"><rdf:RDF>"
                      "<rdf:Description c:A=\"1\"/></rdf:RDF></x:xmpmeta>") << QStringList{"A=1"} << "" << none;
    QTest::newRow("foreign namespaces count alike")
        << QByteArray("<m:xmpmeta xmlns:m=\"urn:m\"><r:RDF xmlns:r=\"urn:r\"><r:Description r:A=\"1\"/>"
                      "</r:RDF></m:xmpmeta>") << QStringList{"A=1"} << "" << none;
    QTest::newRow("name as attribute is a setting") << xmp(" crs:Name=\"Attribute\"")
        << QStringList{"Name=Attribute", "about="} << "" << none;
    QTest::newRow("name without a list") << xmp("", "<crs:Name>Plain</crs:Name>") << about << "" << none;
    QTest::newRow("name from children of the item")
        << xmp("", alt("Name", "<rdf:li>a<b>b<c>c</c></b>d<!-- no --><![CDATA[<e>]]></rdf:li>")) << about << "abcd<e>" << none;
    QTest::newRow("other children of the list skipped")
        << xmp("", alt("Name", "<rdf:Bag><rdf:li>No</rdf:li></rdf:Bag><rdf:li>Yes</rdf:li>")) << about << "Yes" << none;
    QTest::newRow("malformed points")
        << xmp("", seq("ToneCurvePV2012", "<rdf:li>abc</rdf:li><rdf:li> 12 , 34 , 56</rdf:li><rdf:li>7</rdf:li>"
                       "<rdf:li></rdf:li><rdf:li>1,x</rdf:li><rdf:li>+5,-6</rdf:li><rdf:li>1.5, 2</rdf:li>"))
        << about << "" << "0,0 12,34 7,0 0,0 1,0 5,-6 0,2|||";
    QTest::newRow("old master curve after the new one")
        << xmp("", seq("ToneCurvePV2012", "<rdf:li>2, 2</rdf:li>") + seq("ToneCurve", "<rdf:li>1, 1</rdf:li>"))
        << about << "" << "1,1|||";
    QTest::newRow("other children of the sequence skipped")
        << xmp("", "<crs:ToneCurvePV2012><rdf:Bag><rdf:li>8, 8</rdf:li></rdf:Bag><rdf:Seq><rdf:Other>9, 9</rdf:Other>"
                   "<rdf:li>1, 1</rdf:li></rdf:Seq></crs:ToneCurvePV2012>") << about << "" << "1,1|||";
    QTest::newRow("broken behind the first description")
        << QByteArray("<x:xmpmeta xmlns:x=\"a\"><rdf:RDF xmlns:rdf=\"r\"><rdf:Description x:A=\"1\">"
                      "</rdf:Description></rdf:Broken><<<") << QStringList{"A=1"} << "" << none;
    // clang-format on
}

void tst_xmp_reader::reads_description()
{
    QFETCH(QByteArray, document);
    QFETCH(QStringList, entries);
    QFETCH(QString, name);
    QFETCH(QString, curves);

    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, write(document));
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(preset.name, name);
    QCOMPARE(::curves(preset), curves);
    QCOMPARE(without_debug(log.lines()), QStringList());
}

void tst_xmp_reader::log_lines()
{
    const QByteArray document =
        xmp(" crs:Temperature=\"5000\" crs:Text=\"say &quot;hi&quot;\"",
            name_element("Warm") + alt("Description", "<rdf:li>Desc</rdf:li>") +
                seq("ToneCurvePV2012", "<rdf:li>0, 0</rdf:li><rdf:li>255, 255</rdf:li>") +
                seq("ToneCurve", "") + seq("ToneCurvePV2012Red", "<rdf:li>1, 2</rdf:li>") +
                seq("ToneCurvePV2012Green", "") + seq("ToneCurvePV2012Blue", "") + "<crs:Look/>\n");
    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, write(document));

    QCOMPARE(log.lines(),
             (QStringList{"Debug: \"about\" -> \"\"", "Debug: \"Temperature\" -> \"5000\"",
                          "Debug: \"Text\" -> \"say \\\"hi\\\"\"", "Debug: Name -> \"Warm\"",
                          "Debug: Description -> \"Desc\"",
                          "Debug: ToneCurvePV2012 ->  QVector(QPoint(0,0), QPoint(255,255))",
                          "Debug: ToneCurvePV2012 ->  QVector()",
                          "Debug: ToneCurvePV2012Red ->  QVector(QPoint(1,2))",
                          "Debug: ToneCurvePV2012Green ->  QVector()",
                          "Debug: ToneCurvePV2012Blue ->  QVector()", "Debug: Skipping \"Look\""}));
}

void tst_xmp_reader::broken_documents_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("name");

    const QByteArray complete =
        xmp(" crs:A=\"1\"", name_element("Kept") + seq("ToneCurvePV2012", "<rdf:li>1, 1</rdf:li>"));
    const QStringList kept{"A=1", "about="};
    // clang-format off
    QTest::newRow("root not xmpmeta") << QByteArray("<x:other xmlns:x=\"urn:x-example:meta\"/>")
        << QStringList{"Critical: No xmpmeta element found at start of document"} << QStringList() << "";
    QTest::newRow("broken behind a foreign root") << QByteArray("<other></wrong>")
        << QStringList{"Critical: No xmpmeta element found at start of document"} << QStringList() << "";
    QTest::newRow("no RDF") << QByteArray("<x:xmpmeta xmlns:x=\"a\"><x:Bag/></x:xmpmeta>")
        << QStringList{"Critical: No RDF element found at start of document"} << QStringList() << "";
    QTest::newRow("no Description") << QByteArray("<x:xmpmeta xmlns:x=\"a\"><x:RDF><x:Bag/></x:RDF></x:xmpmeta>")
        << QStringList{"Critical: No Description element found at start of document"} << QStringList() << "";
    QTest::newRow("empty xmpmeta") << QByteArray("<?xml version=\"1.0\"?><x:xmpmeta xmlns:x=\"a\"/>")
        << QStringList() << QStringList() << "";
    QTest::newRow("empty RDF") << QByteArray("<x:xmpmeta xmlns:x=\"a\"><x:RDF/></x:xmpmeta>")
        << QStringList() << QStringList() << "";
    QTest::newRow("empty file") << QByteArray() << QStringList{premature_end} << QStringList() << "";
    QTest::newRow("not XML") << QByteArray("hello") << QStringList{"Warning: 3 \"Start tag expected.\""} << QStringList() << "";
    QTest::newRow("repeated attribute") << xmp(" crs:A=\"1\" crs:A=\"2\"")
        << QStringList{"Warning: 3 \"Attribute 'crs:A' redefined.\""} << QStringList() << "";
    QTest::newRow("truncated inside a curve") << complete.left(complete.indexOf("1, 1"))
        << QStringList{premature_end} << kept << "Kept";
    QTest::newRow("mismatched tags") << xmp(" crs:A=\"1\"", name_element("Kept") + "<crs:X></crs:Y>")
        << QStringList{"Warning: 3 \"Opening and ending tag mismatch.\""} << kept << "Kept";
    // clang-format on
}

void tst_xmp_reader::broken_documents()
{
    QFETCH(QByteArray, document);
    QFETCH(QStringList, lines);
    QFETCH(QStringList, entries);
    QFETCH(QString, name);

    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, write(document));
    QCOMPARE(without_debug(log.lines()), lines);
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(preset.name, name);
}

void tst_xmp_reader::missing_file_is_silent()
{
    preset_settings preset;
    preset.name = QStringLiteral("kept");
    test_support::log_capture log;

    load_xmp(preset, dir_.path() + QStringLiteral("/absent.xmp"));
    QCOMPARE(preset.name, QStringLiteral("kept"));
    QCOMPARE(log.lines(), QStringList());
}

void tst_xmp_reader::external_entities_stay_unread_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QByteArray>("children");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("name");

    const QByteArray general = "<!ENTITY secret SYSTEM \"secret.txt\">";
    QTest::newRow("in an attribute")
        << general << QByteArray(" crs:A=\"&secret;\"") << name_element("unread")
        << QStringList{"Warning: 3 \"Reference to external entity 'secret' in attribute value.\""}
        << "";
    QTest::newRow("in an item") << general << QByteArray()
                                << alt("Name", "<rdf:li>before &secret; after</rdf:li>")
                                << QStringList() << "before  after";
    QTest::newRow("as a parameter entity")
        << QByteArray("<!ENTITY % secret SYSTEM \"secret.txt\"> %secret;") << QByteArray()
        << name_element("plain") << QStringList() << "plain";
}

void tst_xmp_reader::external_entities_stay_unread()
{
    QFETCH(QByteArray, declaration);
    QFETCH(QByteArray, attributes);
    QFETCH(QByteArray, children);
    QFETCH(QStringList, lines);
    QFETCH(QString, name);

    const QString secret_path =
        test_support::write_file(dir_.path(), QStringLiteral("secret.txt"), "SECRET-CONTENT");
    const QByteArray url = QUrl::fromLocalFile(secret_path).toEncoded();
    const QByteArray doctype =
        "<!DOCTYPE x:xmpmeta [" + QByteArray(declaration).replace("secret.txt", url) + "]>\n";
    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, write(doctype + xmp(attributes, children)));

    QCOMPARE(without_debug(log.lines()), lines);
    QCOMPARE(preset.name, name);
    for (const QString& value : preset.settings) {
        QVERIFY(!value.contains(QLatin1String("SECRET")));
    }
}

void tst_xmp_reader::entity_expansion_is_limited()
{
    // Each level multiplies by ten: the last would be 10^9 characters.
    QByteArray doctype = "<!DOCTYPE x:xmpmeta [\n<!ENTITY e0 \"ha\">\n";
    for (int level = 1; level <= 9; ++level) {
        doctype += "<!ENTITY e" + QByteArray::number(level) + " \"" +
                   QByteArray("&e" + QByteArray::number(level - 1) + ";").repeated(10) + "\">\n";
    }
    doctype += "]>\n";
    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset,
             write(doctype + xmp(" crs:A=\"1\"", name_element("Kept") +
                                                     alt("Description", "<rdf:li>&e9;</rdf:li>"))));

    QCOMPARE(
        without_debug(log.lines()),
        QStringList{
            "Warning: 3 \"Entity expands to more characters than the entity expansion limit.\""});
    QCOMPARE(preset.name, QStringLiteral("Kept"));
    QCOMPARE(entries(preset), (QStringList{"A=1", "about="}));
}

void tst_xmp_reader::encodings_data()
{
    QTest::addColumn<QByteArray>("document");

    const QString text =
        QString::fromUtf8(xmp(" crs:A=\"\xc3\xa9\"", name_element("M\xc3\xa0u \xe1\xba\xa1")));
    QTest::newRow("utf-8") << text.toUtf8();
    QByteArray utf16("\xff\xfe", 2);
    utf16.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    QTest::newRow("utf-16 with byte order mark") << utf16;
    QTextCodec* latin1 = QTextCodec::codecForName("ISO-8859-1");
    QTest::newRow("declared latin-1") << latin1->fromUnicode(
        QStringLiteral("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n") +
        QString(text).replace(QString::fromUtf8("\xe1\xba\xa1"), QStringLiteral("&#x1ea1;")));
}

void tst_xmp_reader::encodings()
{
    QFETCH(QByteArray, document);

    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, write(document));
    QCOMPARE(preset.name, QString::fromUtf8("M\xc3\xa0u \xe1\xba\xa1"));
    QCOMPARE(entries(preset), (QStringList{QString::fromUtf8("A=\xc3\xa9"), "about="}));
    QCOMPARE(without_debug(log.lines()), QStringList());
}

void tst_xmp_reader::deep_list_item()
{
    // The text of an item includes that of all its descendants, however deep.
    const int depth = 1000000;
    const QByteArray document = "<crs:Name xmlns:crs=\"c\"><Alt><li>a" +
                                QByteArray("<b>").repeated(depth) + "z" +
                                QByteArray("</b>").repeated(depth) + "a</li></Alt></crs:Name>";
    QXmlStreamReader reader(document);
    QVERIFY(reader.readNextStartElement());

    QCOMPARE(read_alt_text(reader), QStringLiteral("aza"));
    QVERIFY(!reader.hasError());
}

void tst_xmp_reader::large_file()
{
    // 50 MB of a long curve and of elements to skip.
    constexpr int half = 25 * 1024 * 1024;
    const QByteArray point = "<rdf:li>0, 255</rdf:li>\n";
    const QByteArray skipped = "<crs:Item crs:A=\"1\"><rdf:li>x</rdf:li></crs:Item>\n";
    const int point_count = half / point.size();
    const QString path =
        write(xmp(" crs:A=\"1\"", name_element("Large") +
                                      seq("ToneCurvePV2012", point.repeated(point_count)) +
                                      "<crs:Many>" + skipped.repeated(half / skipped.size()) +
                                      "</crs:Many>" + seq("ToneCurvePV2012Red", point)));
    preset_settings preset;
    const record_text::quiet_log quiet;
    load_xmp(preset, path);

    QCOMPARE(preset.name, QStringLiteral("Large"));
    QCOMPARE(preset.tone_curve.size(), point_count);
    QCOMPARE(preset.tone_curve.constLast(), QPoint(0, 255));
    QCOMPARE(test_support::levels_of(preset.tone_curve_red), QStringLiteral("0,255"));
}

void tst_xmp_reader::costly_documents_cut_short_data()
{
    QTest::addColumn<QByteArray>("document");

    QByteArray attributes;
    for (int i = 0; i < 300000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=\"\"";
    }
    QTest::newRow("many attributes on one element") << "<crs:Other" + attributes + "/>";
    QTest::newRow("very deep nesting")
        << QByteArray("<a>").repeated(5000000) + QByteArray("</a>").repeated(5000000);
}

void tst_xmp_reader::costly_documents_cut_short()
{
    QFETCH(QByteArray, document);

    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, write(xmp(" crs:A=\"1\"", name_element("Read before") + document)));

    const QStringList warnings = log.messages(QtWarningMsg);
    QCOMPARE(warnings.size(), 2);
    QVERIFY2(
        warnings.at(0).startsWith(QLatin1String("XMP data too costly to parse, read up to byte ")),
        qPrintable(warnings.at(0)));
    QCOMPARE(warnings.at(1), QStringLiteral("4 \"Premature end of document.\""));
    QCOMPARE(preset.name, QStringLiteral("Read before"));
    QCOMPARE(entries(preset), (QStringList{"A=1", "about="}));
}

QTEST_GUILESS_MAIN(tst_xmp_reader)
#include "tst_xmp_reader.moc"
