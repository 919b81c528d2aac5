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

const char* const premature_end = "Warning: 4 \"Premature end of document.\"";

} // namespace

class tst_xmp_reader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void reads_fixture();
    void reads_document_data();
    void reads_document();
    void log_lines();
    void deep_list_item();

private:
    QString write(const QByteArray& contents)
    {
        return test_support::write_file(dir_.path(), QStringLiteral("preset.xmp"), contents);
    }

    QTemporaryDir dir_;
};

void tst_xmp_reader::initTestCase()
{
    // The reader logs every attribute and element at debug level; but for `log_lines`
    // the tests look at the warnings and critical lines only.
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
}

void tst_xmp_reader::reads_fixture()
{
    QFile expected(data_dir + QStringLiteral("full_preset.expected"));
    QVERIFY(expected.open(QIODevice::ReadOnly));
    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, data_dir + QStringLiteral("full_preset.xmp"));

    QCOMPARE(record_text::describe(preset), QString::fromUtf8(expected.readAll()));
    QCOMPARE(log.lines(), QStringList());
}

void tst_xmp_reader::reads_document_data()
{
    // A null document stands for a file that isn't there.
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("curves");
    QTest::addColumn<QStringList>("problems");

    // The fixture full_preset.xmp holds the common cases; these are the others.
    const QString none = QStringLiteral("|||");
    const QStringList about{"about="};
    const QByteArray complete =
        xmp(" crs:A=\"1\"", name_element("Kept") + seq("ToneCurvePV2012", "<rdf:li>1, 1</rdf:li>"));
    // clang-format off
    QTest::newRow("foreign namespaces, broken behind the description")
        << QByteArray("<m:xmpmeta xmlns:m=\"urn:m\"><r:RDF xmlns:r=\"urn:r\"><r:Description r:A=\"1\">"
                      "</r:Description></r:Broken><<<") << QStringList{"A=1"} << "" << none << QStringList();
    QTest::newRow("name as attribute is a setting") << xmp(" crs:Name=\"Attribute\"")
        << QStringList{"Name=Attribute", "about="} << "" << none << QStringList();
    QTest::newRow("name without a list") << xmp("", "<crs:Name>Plain</crs:Name>") << about << "" << none << QStringList();
    QTest::newRow("name from children of the item")
        << xmp("", alt("Name", "<rdf:li>a<b>b<c>c</c></b>d<!-- no --><![CDATA[<e>]]></rdf:li>")) << about << "abcd<e>" << none
        << QStringList();
    QTest::newRow("other children of the lists skipped")
        << xmp("", alt("Name", "<rdf:Bag><rdf:li>No</rdf:li></rdf:Bag><rdf:li>Yes</rdf:li>") +
                   "<crs:ToneCurvePV2012><rdf:Bag><rdf:li>8, 8</rdf:li></rdf:Bag><rdf:Seq><rdf:Other>9, 9</rdf:Other>"
                   "<rdf:li>1, 1</rdf:li></rdf:Seq></crs:ToneCurvePV2012>") << about << "Yes" << "1,1|||" << QStringList();
    QTest::newRow("malformed points")
        << xmp("", seq("ToneCurvePV2012", "<rdf:li>abc</rdf:li><rdf:li> 12 , 34 , 56</rdf:li><rdf:li>7</rdf:li>"
                       "<rdf:li></rdf:li><rdf:li>1,x</rdf:li><rdf:li>+5,-6</rdf:li><rdf:li>1.5, 2</rdf:li>"))
        << about << "" << "0,0 12,34 7,0 0,0 1,0 5,-6 0,2|||" << QStringList();
    QTest::newRow("old master curve after the new one")
        << xmp("", seq("ToneCurvePV2012", "<rdf:li>2, 2</rdf:li>") + seq("ToneCurve", "<rdf:li>1, 1</rdf:li>"))
        << about << "" << "1,1|||" << QStringList();

    QTest::newRow("root not xmpmeta") << QByteArray("<x:other xmlns:x=\"urn:x-example:meta\"/>") << QStringList() << ""
        << none << QStringList{"Critical: No xmpmeta element found at start of document"};
    QTest::newRow("no RDF") << QByteArray("<x:xmpmeta xmlns:x=\"a\"><x:Bag/></x:xmpmeta>") << QStringList() << ""
        << none << QStringList{"Critical: No RDF element found at start of document"};
    QTest::newRow("no Description") << QByteArray("<x:xmpmeta xmlns:x=\"a\"><x:RDF><x:Bag/></x:RDF></x:xmpmeta>")
        << QStringList() << "" << none << QStringList{"Critical: No Description element found at start of document"};
    QTest::newRow("empty xmpmeta") << QByteArray("<?xml version=\"1.0\"?><x:xmpmeta xmlns:x=\"a\"/>") << QStringList()
        << "" << none << QStringList();
    QTest::newRow("empty file") << QByteArray("") << QStringList() << "" << none << QStringList{premature_end};
    // The item cut short still makes a point.
    QTest::newRow("truncated inside a curve") << complete.left(complete.indexOf("1, 1"))
        << QStringList{"A=1", "about="} << "Kept" << "0,0|||" << QStringList{premature_end};
    QTest::newRow("missing file is silent") << QByteArray() << QStringList() << "" << none << QStringList();
    // clang-format on

    // External entities stay unread.
    const QString secret =
        test_support::write_file(dir_.path(), QStringLiteral("secret.txt"), "SECRET-CONTENT");
    const QByteArray url = QUrl::fromLocalFile(secret).toEncoded();
    const QByteArray general = "<!DOCTYPE x:xmpmeta [<!ENTITY s SYSTEM \"" + url + "\">]>\n";
    QTest::newRow("external entity in an item")
        << general + xmp("", alt("Name", "<rdf:li>before &s; after</rdf:li>")) << about
        << "before  after" << none << QStringList();
    QTest::newRow("external parameter entity")
        << "<!DOCTYPE x:xmpmeta [<!ENTITY % s SYSTEM \"" + url + "\"> %s;]>\n" +
               xmp("", name_element("plain"))
        << about << "plain" << none << QStringList();

    // Each level multiplies by ten: the last would be 10^9 characters.
    QByteArray doctype = "<!DOCTYPE x:xmpmeta [\n<!ENTITY e0 \"ha\">\n";
    for (int level = 1; level <= 9; ++level) {
        doctype += "<!ENTITY e" + QByteArray::number(level) + " \"" +
                   QByteArray("&e" + QByteArray::number(level - 1) + ";").repeated(10) + "\">\n";
    }
    QTest::newRow("entity expansion limited")
        << doctype + "]>\n" +
               xmp(" crs:A=\"1\"",
                   name_element("Kept") + alt("Description", "<rdf:li>&e9;</rdf:li>"))
        << QStringList{"A=1", "about="} << "Kept" << none
        << QStringList{"Warning: 3 \"Entity expands to more characters than the entity "
                       "expansion limit.\""};

    // Five million open elements would take the parser gigabytes.
    QTest::newRow("costly document cut short")
        << xmp(" crs:A=\"1\"", name_element("Read before") + QByteArray("<a>").repeated(5000000) +
                                   QByteArray("</a>").repeated(5000000))
        << QStringList{"A=1", "about="} << "Read before" << none
        << QStringList{"Warning: XMP data too costly to parse, read up to byte N", premature_end};

    // 50 MB of a long curve and of elements to skip.
    const int half = 25 * 1024 * 1024;
    const QByteArray point = "<rdf:li>0, 255</rdf:li>\n";
    const QByteArray skipped = "<crs:Item crs:A=\"1\"><rdf:li>x</rdf:li></crs:Item>\n";
    QTest::newRow("large file")
        << xmp(" crs:A=\"1\"", name_element("Large") +
                                   seq("ToneCurvePV2012", point.repeated(half / point.size())) +
                                   "<crs:Many>" + skipped.repeated(half / skipped.size()) +
                                   "</crs:Many>" + seq("ToneCurvePV2012Red", point))
        << QStringList{"A=1", "about="} << "Large"
        << QString("0,255 ").repeated(half / point.size()).chopped(1) + "|0,255||" << QStringList();

    // The parser decides the encoding; the fixture is in UTF-8.
    QTest::newRow("declared latin-1")
        << "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n" +
               xmp(" crs:A=\"\xe9\"", name_element("M\xe0u &#x1ea1;"))
        << QStringList{QString::fromUtf8("A=\xc3\xa9"), "about="}
        << QString::fromUtf8("M\xc3\xa0u \xe1\xba\xa1") << none << QStringList();
}

void tst_xmp_reader::reads_document()
{
    QFETCH(QByteArray, document);
    QFETCH(QStringList, entries);
    QFETCH(QString, name);
    QFETCH(QString, curves);
    QFETCH(QStringList, problems);

    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset,
             document.isNull() ? dir_.path() + QStringLiteral("/absent.xmp") : write(document));
    QCOMPARE(::entries(preset), entries);
    QCOMPARE(preset.name, name);
    QCOMPARE(::curves(preset), curves);
    // Where the guard cuts depends on how the parser reads.
    QCOMPARE(log.lines().replaceInStrings(QRegularExpression(QStringLiteral("byte \\d+$")),
                                          QStringLiteral("byte N")),
             problems);
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
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, true);
    load_xmp(preset, write(document));
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);

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

QTEST_GUILESS_MAIN(tst_xmp_reader)
#include "tst_xmp_reader.moc"
