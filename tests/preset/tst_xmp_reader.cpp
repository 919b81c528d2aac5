#include "preset/xmp_reader.h"

#include "support/test_support.h"

#include <QtTest>

namespace {

const QString data_dir = QStringLiteral(LOOKWRIGHT_TEST_DATA "/xmp/");

// A preset document with these attributes on its Description and these children.
QByteArray xmp(const QByteArray& attributes, const QByteArray& children = QByteArray())
{
    return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
           " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
           "  <rdf:Description rdf:about=\"\"\n"
           "    xmlns:crs=\"http://ns.adobe.com/camera-raw-settings/1.0/\"" +
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

QStringList entries(const preset_settings& preset)
{
    QStringList result;
    for (auto it = preset.settings.constBegin(); it != preset.settings.constEnd(); ++it) {
        result << it.key() + QLatin1Char('=') + it.value();
    }
    return result;
}

QString points(const point_list& curve)
{
    QStringList result;
    for (const QPoint& point : curve) {
        result << QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
    }
    return result.join(QLatin1Char(' '));
}

QString curves(const preset_settings& preset)
{
    return QStringList{points(preset.tone_curve), points(preset.tone_curve_red),
                       points(preset.tone_curve_green), points(preset.tone_curve_blue)}
        .join(QLatin1Char('|'));
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

class quiet_log
{
public:
    quiet_log() : previous_(qInstallMessageHandler(drop)) {}
    ~quiet_log() { qInstallMessageHandler(previous_); }

private:
    static void drop(QtMsgType, const QMessageLogContext&, const QString&) {}
    QtMessageHandler previous_;
};

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
    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, data_dir + QStringLiteral("full_preset.xmp"));

    QCOMPARE(preset.name, QStringLiteral("Cool Morning"));
    QCOMPARE(preset.description, QStringLiteral("A cool look for early light"));
    QCOMPARE(
        entries(preset),
        (QStringList{"Cluster=", "ConvertToGrayscale=False",
                     QString::fromUtf8("Copyright=\xc2\xa9 Lookwright & friends"),
                     "Exposure2012=-0.35", "PresetType=Normal", "ProcessVersion=11.0",
                     "Shadows2012=+12", "Temperature=5200", "Tint=+7", "ToneCurveName2012=Custom",
                     "Version=14.4", "WhiteBalance=Custom", "about="}));
    QCOMPARE(curves(preset),
             QStringLiteral("0,0 64,58 255,255|0,0 255,250|0,3 255,255|0,12 128,136 255,255"));
    QCOMPARE(without_debug(log.lines()), QStringList());
}

void tst_xmp_reader::reads_description_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("curves");

    const QString no_curves = QStringLiteral("|||");
    QTest::newRow("prefix dropped")
        << xmp(" crs:Temperature=\"5000\" crs:Shadows2012=\"+12\"")
        << QStringList{"Shadows2012=+12", "Temperature=5000", "about="} << "" << no_curves;
    QTest::newRow("same local name, later prefix wins")
        << xmp(" xmlns:crd=\"d\" crs:WhiteBalance=\"Custom\" crd:WhiteBalance=\"Auto\"")
        << QStringList{"WhiteBalance=Auto", "about="} << "" << no_curves;
    QTest::newRow("empty value is present")
        << xmp(" crs:Look=\"\"") << QStringList{"Look=", "about="} << "" << no_curves;
    QTest::newRow("value unescaped")
        << xmp(" crs:Text=\"a &amp; b &quot;c&quot; &#x41;\"")
        << QStringList{"Text=a & b \"c\" A", "about="} << "" << no_curves;
    QTest::newRow("namespaces on the root")
        << QByteArray("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" xmlns:crs=\"c\" "
                      "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:RDF>"
                      "<rdf:Description crs:A=\"1\"/></rdf:RDF></x:xmpmeta>")
        << QStringList{"A=1"} << "" << no_curves;
    QTest::newRow("foreign namespaces count alike")
        << QByteArray("<m:xmpmeta xmlns:m=\"urn:other\"><r:RDF xmlns:r=\"urn:r\"><r:Description "
                      "r:A=\"1\"/></r:RDF></m:xmpmeta>")
        << QStringList{"A=1"} << "" << no_curves;
    QTest::newRow("name as attribute is a setting")
        << xmp(" crs:Name=\"Attribute\"") << QStringList{"Name=Attribute", "about="} << ""
        << no_curves;
    QTest::newRow("name element") << xmp("", name_element("Warm")) << QStringList{"about="}
                                  << "Warm" << no_curves;
    QTest::newRow("first non-empty item wins")
        << xmp("", alt("Name", "<rdf:li xml:lang=\"de\"></rdf:li><rdf:li>Second</rdf:li>"
                               "<rdf:li>Third</rdf:li>"))
        << QStringList{"about="} << "Second" << no_curves;
    QTest::newRow("name without a list")
        << xmp("", "<crs:Name>Plain</crs:Name>") << QStringList{"about="} << "" << no_curves;
    QTest::newRow("name from children of the item")
        << xmp("", alt("Name", "<rdf:li>a<b>b<c>c</c></b>d<!-- no --><![CDATA[<e>]]></rdf:li>"))
        << QStringList{"about="} << "abcd<e>" << no_curves;
    QTest::newRow("other children of the list skipped")
        << xmp("", alt("Name", "<rdf:Bag><rdf:li>No</rdf:li></rdf:Bag><rdf:li>Yes</rdf:li>"))
        << QStringList{"about="} << "Yes" << no_curves;
    QTest::newRow("later name wins") << xmp("", name_element("One") + name_element("Two"))
                                     << QStringList{"about="} << "Two" << no_curves;
    QTest::newRow("points") << xmp("", seq("ToneCurvePV2012",
                                           "<rdf:li>0, 0</rdf:li><rdf:li>255, 255</rdf:li>"))
                            << QStringList{"about="} << ""
                            << "0,0 255,255|||";
    QTest::newRow("malformed points")
        << xmp("", seq("ToneCurvePV2012",
                       "<rdf:li>abc</rdf:li><rdf:li> 12 , 34 , 56</rdf:li><rdf:li>7</rdf:li>"
                       "<rdf:li></rdf:li><rdf:li>1,x</rdf:li><rdf:li>+5,-6</rdf:li>"
                       "<rdf:li>1.5, 2</rdf:li>"))
        << QStringList{"about="} << ""
        << "0,0 12,34 7,0 0,0 1,0 5,-6 0,2|||";
    QTest::newRow("old master curve before the new one")
        << xmp("", seq("ToneCurve", "<rdf:li>1, 1</rdf:li>") +
                       seq("ToneCurvePV2012", "<rdf:li>2, 2</rdf:li>"))
        << QStringList{"about="} << ""
        << "2,2|||";
    QTest::newRow("old master curve after the new one")
        << xmp("", seq("ToneCurvePV2012", "<rdf:li>2, 2</rdf:li>") +
                       seq("ToneCurve", "<rdf:li>1, 1</rdf:li>"))
        << QStringList{"about="} << ""
        << "1,1|||";
    QTest::newRow("channel curves")
        << xmp("", seq("ToneCurvePV2012Red", "<rdf:li>1, 2</rdf:li>") +
                       seq("ToneCurvePV2012Green", "<rdf:li>3, 4</rdf:li>") +
                       seq("ToneCurvePV2012Blue", "<rdf:li>5, 6</rdf:li>"))
        << QStringList{"about="} << ""
        << "|1,2|3,4|5,6";
    QTest::newRow("old channel curve skipped")
        << xmp("", seq("ToneCurveRed", "<rdf:li>1, 2</rdf:li>")) << QStringList{"about="} << ""
        << no_curves;
    QTest::newRow("other children of the sequence skipped")
        << xmp("", "<crs:ToneCurvePV2012><rdf:Bag><rdf:li>8, 8</rdf:li></rdf:Bag><rdf:Seq>"
                   "<rdf:Other>9, 9</rdf:Other><rdf:li>1, 1</rdf:li></rdf:Seq>"
                   "</crs:ToneCurvePV2012>\n")
        << QStringList{"about="} << ""
        << "1,1|||";
    QTest::newRow("nested description of a skipped element")
        << xmp(" crs:A=\"1\"", "<crs:Look><rdf:Description crs:A=\"2\" crs:B=\"3\">" +
                                   seq("ToneCurvePV2012", "<rdf:li>9, 9</rdf:li>") +
                                   name_element("Inner") + "</rdf:Description></crs:Look>\n")
        << QStringList{"A=1", "about="} << "" << no_curves;
    QTest::newRow("second description never read")
        << QByteArray(
               "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
               "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
               "<rdf:Description x:A=\"1\"/><rdf:Description x:B=\"2\"/></rdf:RDF></x:xmpmeta>")
        << QStringList{"A=1"} << "" << no_curves;
    QTest::newRow("broken behind the first description")
        << QByteArray("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
                      "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
                      "<rdf:Description x:A=\"1\"></rdf:Description></rdf:Broken><<<")
        << QStringList{"A=1"} << "" << no_curves;
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

    const QByteArray rdf_namespace = "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"";
    QTest::newRow("root not xmpmeta")
        << QByteArray("<x:other xmlns:x=\"adobe:ns:meta/\"/>")
        << QStringList{"Critical: No xmpmeta element found at start of document"} << QStringList()
        << "";
    QTest::newRow("broken behind a foreign root")
        << QByteArray("<other></wrong>")
        << QStringList{"Critical: No xmpmeta element found at start of document"} << QStringList()
        << "";
    QTest::newRow("no RDF") << QByteArray("<x:xmpmeta xmlns:x=\"a\"><rdf:Bag " + rdf_namespace +
                                          "/></x:xmpmeta>")
                            << QStringList{"Critical: No RDF element found at start of document"}
                            << QStringList() << "";
    QTest::newRow("no Description")
        << QByteArray("<x:xmpmeta xmlns:x=\"a\"><rdf:RDF " + rdf_namespace +
                      "><rdf:Bag/></rdf:RDF></x:xmpmeta>")
        << QStringList{"Critical: No Description element found at start of document"}
        << QStringList() << "";
    QTest::newRow("empty xmpmeta")
        << QByteArray("<?xml version=\"1.0\"?><x:xmpmeta xmlns:x=\"a\"/>") << QStringList()
        << QStringList() << "";
    QTest::newRow("empty RDF") << QByteArray("<x:xmpmeta xmlns:x=\"a\"><rdf:RDF " + rdf_namespace +
                                             "/></x:xmpmeta>")
                               << QStringList() << QStringList() << "";
    QTest::newRow("empty file") << QByteArray() << QStringList{premature_end} << QStringList()
                                << "";
    QTest::newRow("not XML") << QByteArray("hello")
                             << QStringList{"Warning: 3 \"Start tag expected.\""} << QStringList()
                             << "";
    QTest::newRow("repeated attribute")
        << xmp(" crs:A=\"1\" crs:A=\"2\"")
        << QStringList{"Warning: 3 \"Attribute 'crs:A' redefined.\""} << QStringList() << "";
    const QByteArray complete =
        xmp(" crs:A=\"1\"", name_element("Kept") + seq("ToneCurvePV2012", "<rdf:li>1, 1</rdf:li>"));
    QTest::newRow("truncated inside a curve")
        << complete.left(complete.indexOf("1, 1")) << QStringList{premature_end}
        << QStringList{"A=1", "about="} << "Kept";
    QTest::newRow("mismatched tags")
        << xmp(" crs:A=\"1\"", name_element("Kept") + "<crs:X></crs:Y>")
        << QStringList{"Warning: 3 \"Opening and ending tag mismatch.\""}
        << QStringList{"A=1", "about="} << "Kept";
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
    const quiet_log quiet;
    load_xmp(preset, path);

    QCOMPARE(preset.name, QStringLiteral("Large"));
    QCOMPARE(preset.tone_curve.size(), point_count);
    QCOMPARE(preset.tone_curve.constLast(), QPoint(0, 255));
    QCOMPARE(points(preset.tone_curve_red), QStringLiteral("0,255"));
}

void tst_xmp_reader::costly_documents_cut_short_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("name");

    const QByteArray name = name_element("Read before");
    // The parser gets no part of the block of data in which the cost runs over, so
    // what is to be read before must stand in an earlier block.
    const QByteArray padding(64 * 1024, ' ');
    QByteArray attributes;
    for (int i = 0; i < 300000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=\"\"";
    }
    QTest::newRow("many attributes on one element")
        << xmp("", name + "<crs:Other" + attributes + "/>\n") << "Read before";
    QTest::newRow("a namespace declared at every level")
        << xmp("", name + QByteArray("<a xmlns:p=\"u\">").repeated(100000) +
                       QByteArray("</a>").repeated(100000))
        << "Read before";
    QTest::newRow("very deep nesting") << xmp("", name + QByteArray("<a>").repeated(5000000) +
                                                      QByteArray("</a>").repeated(5000000))
                                       << "Read before";
    QTest::newRow("entity references")
        << "<!DOCTYPE x:xmpmeta [<!ENTITY e \"" + QByteArray(4000, 'e') + "\">]>" +
               xmp("", name + padding + "<crs:Other>" + QByteArray("&e;").repeated(100000) +
                           "</crs:Other>")
        << "Read before";
    QByteArray attribute_lists;
    for (int i = 0; i < 100000; ++i) {
        attribute_lists += "<!ATTLIST a b" + QByteArray::number(i) + " CDATA #IMPLIED>";
    }
    QTest::newRow("attribute list declarations")
        << "<!DOCTYPE x:xmpmeta [" + attribute_lists + "]>" + xmp("", name) << "";
}

void tst_xmp_reader::costly_documents_cut_short()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, name);

    preset_settings preset;
    test_support::log_capture log;
    load_xmp(preset, write(document));

    const QStringList warnings = log.messages(QtWarningMsg);
    QCOMPARE(warnings.size(), 2);
    QVERIFY2(
        warnings.at(0).startsWith(QLatin1String("XMP data too costly to parse, read up to byte ")),
        qPrintable(warnings.at(0)));
    QCOMPARE(warnings.at(1), QStringLiteral("4 \"Premature end of document.\""));
    QCOMPARE(preset.name, name);
}

QTEST_GUILESS_MAIN(tst_xmp_reader)
#include "tst_xmp_reader.moc"
