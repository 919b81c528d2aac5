#include "preset/xml_cost_guard.h"

#include "support/test_support.h"

#include <QtTest>

namespace {

struct guarded_read
{
    QByteArray bytes;
    bool tripped = false;
};

// Reads `document` through a guard, without parsing it.
guarded_read read_guarded(const QByteArray& document)
{
    QBuffer source;
    source.setData(document);
    source.open(QIODevice::ReadOnly);
    xml_cost_guard guard(source);
    return {guard.readAll(), guard.tripped()};
}

// `pattern` `count` times, with "@" standing for 0, 1, 2 and so on.
QByteArray numbered(const char* pattern, int count)
{
    QByteArray result;
    for (int i = 0; i < count; ++i) {
        result += QByteArray(pattern).replace('@', QByteArray::number(i));
    }
    return result;
}

QByteArray element_with_attributes(int count)
{
    return "<e" + numbered(" a@=\"1\"", count) + "/>";
}

QByteArray root(const QByteArray& content)
{
    return "<root>" + content + "</root>";
}

} // namespace

class tst_xml_cost_guard : public QObject
{
    Q_OBJECT

private slots:
    void estimate_data();
    void estimate();
    void passes_the_blocks_before_the_cut();
};

void tst_xml_cost_guard::estimate_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("tripped");

    QFile preset(QStringLiteral(LOOKWRIGHT_TEST_DATA "/xmp/full_preset.xmp"));
    QVERIFY(preset.open(QIODevice::ReadOnly));
    const QByteArray many = element_with_attributes(50000);
    // Read as UTF-8, the part in the Japanese character set would look like 50,000
    // attributes; in that set it is text within one value.
    const QByteArray japanese =
        "<e t=\"\x1b$B" + QByteArray("\"a1=\"1").repeated(50000) + "\x1b(B\"/>";
    const QByteArray namespaces = "<e" + numbered(" xmlns:p@=\"u\"", 5000) + ">";
    const QByteArray prefixed = "<p0:e" + numbered(" p0:a@=\"1\"", 20) + "/>";
    const QByteArray entity = "<!DOCTYPE root [<!ENTITY x \"" + QByteArray(4000, 'x') + "\">]>";
    const QByteArray lists = "<!ATTLIST e b@ CDATA #IMPLIED>";
    QTextCodec* utf16 = QTextCodec::codecForName("UTF-16");
    const QByteArray parameter_entity = "<!DOCTYPE root [<!ENTITY % p \"<!ENTITY y 'y'>\">";

    // clang-format off
    QTest::newRow("ordinary preset") << preset.readAll() << false;
    QTest::newRow("5,000 attributes on one element") << root(element_with_attributes(5000)) << false;
    QTest::newRow("20,000 attributes on one element") << root(element_with_attributes(20000)) << true;
    // The budget grows with the file.
    QTest::newRow("20,000 attributes in a 50 MB file") << root(element_with_attributes(20000) + QByteArray("<e/>").repeated(12500000)) << false;
    QTest::newRow("attributes behind quoted markup") << root("<e x=\"'>'\" y='\">\"'" + many.mid(2)) << true;
    // What hides markup must neither count it nor swallow what follows.
    QTest::newRow("attributes inside a comment, character data, an instruction")
        << root("<!-- > " + many + " --><![CDATA[> " + many + "]]><?pi > " + many + "?>") << false;
    QTest::newRow("attributes behind a comment, character data, an instruction")
        << root("<!-- > - ->--><![CDATA[ ]] > ]]><?pi ? > ?>" + many) << true;
    QTest::newRow("attributes behind a document type")
        << "<!DOCTYPE root SYSTEM \"a>b\" [<!ENTITY q \"<!ATTLIST e a CDATA '' >\"><!-- ]> '\" --><?pi ]> ?>]>" + root(many) << true;
    QTest::newRow("declared iso-2022-jp") << "<?xml version=\"1.0\" encoding=\"ISO-2022-JP\"?>" + root(japanese) << false;
    QTest::newRow("undeclared iso-2022-jp") << root(japanese) << true;
    // Read as UTF-8, the zero bytes of UTF-16 text would look like further attributes.
    QTest::newRow("utf-16 text, 5,000 attributes") << utf16->fromUnicode(QString::fromLatin1(root(element_with_attributes(5000)))) << false;
    QTest::newRow("utf-16 text, 50,000 attributes") << utf16->fromUnicode(QString::fromLatin1(root(many))) << true;

    QTest::newRow("10 namespaces over 100,000 elements")
        << "<root xmlns:a=\"1\" xmlns:b=\"2\" xmlns:c=\"3\" xmlns:d=\"4\" xmlns:e=\"5\" xmlns:f=\"6\" xmlns:g=\"7\" "
           "xmlns:h=\"8\" xmlns:i=\"9\" xmlns=\"10\">" + QByteArray("<a:e a:x=\"1\"/>").repeated(100000) + "</root>" << false;
    QTest::newRow("prefixed attributes under 5,000 namespaces") << root(namespaces + prefixed.repeated(1000) + "</e>") << true;
    QTest::newRow("elements under 5,000 namespaces") << root(namespaces + QByteArray("<p0:e/>").repeated(30000) + "</e>") << true;
    QTest::newRow("a namespace declared at each of 100,000 levels") << root(QByteArray("<e xmlns:p=\"u\">").repeated(100000) + QByteArray("</e>").repeated(100000)) << true;
    QTest::newRow("a namespace declared in each of 100,000 closed elements") << root(QByteArray("<e xmlns:p=\"u\"></e>").repeated(100000)) << false;

    QTest::newRow("100,000 levels") << root(QByteArray("<e>").repeated(100000) + QByteArray("</e>").repeated(100000)) << false;
    QTest::newRow("1,000,000 levels") << root(QByteArray("<e>").repeated(1000000) + QByteArray("</e>").repeated(1000000)) << true;

    QTest::newRow("1,000 entity references") << entity + root(QByteArray("&x;").repeated(1000)) << false;
    QTest::newRow("10,000 entity references") << entity + root(QByteArray("&x;").repeated(10000)) << true;
    QTest::newRow("10,000 entity references in attributes") << entity + root(QByteArray("<e a=\"&x;\"/>").repeated(10000)) << true;
    QTest::newRow("a million predefined and character references") << root(QByteArray("&lt;&gt;&amp;&apos;&quot;&#65;&#x42;").repeated(150000)) << false;
    QTest::newRow("10 attribute lists over 10,000 elements") << "<!DOCTYPE root [" + numbered(lists, 10) + "]>" + root(QByteArray("<e/>").repeated(10000)) << false;
    QTest::newRow("100,000 attribute lists") << "<!DOCTYPE root [" + numbered(lists, 100000) + "]><root/>" << true;
    QTest::newRow("3 parameter entity references") << parameter_entity + "%p;%p;%p;]>" + root("<e/>") << false;
    QTest::newRow("1,000 parameter entity references") << parameter_entity + QByteArray("%p;").repeated(1000) + "]>" + root("<e/>") << true;
    // clang-format on
}

void tst_xml_cost_guard::estimate()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, tripped);

    test_support::log_capture log;
    const guarded_read result = read_guarded(document);
    QCOMPARE(result.tripped, tripped);
    // The bytes pass unchanged, up to the block in which the estimate went over.
    QCOMPARE(result.bytes, tripped ? document.left(result.bytes.size()) : document);
    QCOMPARE(log.lines(), tripped ? QStringList{QStringLiteral("Warning: XMP data too costly to "
                                                               "parse, read up to byte %1")
                                                    .arg(result.bytes.size())}
                                  : QStringList());
}

void tst_xml_cost_guard::passes_the_blocks_before_the_cut()
{
    const QByteArray document = root(QByteArray(100000, ' ') + element_with_attributes(100000));
    test_support::log_capture log;

    const guarded_read result = read_guarded(document);
    QVERIFY(result.tripped);
    QVERIFY(result.bytes.size() >= 100000);
    QVERIFY(result.bytes.size() < document.size());
}

QTEST_GUILESS_MAIN(tst_xml_cost_guard)
#include "tst_xml_cost_guard.moc"
