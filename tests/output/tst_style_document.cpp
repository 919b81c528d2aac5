#include "output/style_document.h"

#include <QtTest>

class tst_style_document : public QObject
{
    Q_OBJECT

private slots:
    void empty_map();
    void byte_exact_document();
    void escaping_data();
    void escaping();
    void key_order();
    void appends_to_given_string();
};

void tst_style_document::empty_map()
{
    QString out;
    write_style_document({}, &out);
    QCOMPARE(out, QStringLiteral("<?xml version=\"1.0\"?>\n<SL Engine=\"900\"/>\n"));
}

void tst_style_document::byte_exact_document()
{
    style_values values;
    values[QStringLiteral("Name")] = QStringLiteral("Warm");
    values[QStringLiteral("Exposure")] = QStringLiteral("1.000000");
    QString out;
    write_style_document(values, &out);
    QCOMPARE(out, QStringLiteral("<?xml version=\"1.0\"?>\n"
                                 "<SL Engine=\"900\">\n"
                                 "    <E K=\"Exposure\" V=\"1.000000\"/>\n"
                                 "    <E K=\"Name\" V=\"Warm\"/>\n"
                                 "</SL>\n"));
}

void tst_style_document::escaping_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");
    QTest::newRow("ampersand") << "Black & White"
                               << "Black &amp; White";
    QTest::newRow("angle brackets") << "<Warm>"
                                    << "&lt;Warm&gt;";
    QTest::newRow("double quote") << "The \"Look\""
                                  << "The &quot;Look&quot;";
    QTest::newRow("apostrophe stays") << "Ann's"
                                      << "Ann's";
    QTest::newRow("non-ASCII stays")
        << QStringLiteral("Màu hàn bạc") << QStringLiteral("Màu hàn bạc");
}

void tst_style_document::escaping()
{
    QFETCH(QString, name);
    QFETCH(QString, written);
    QString out;
    write_style_document({{QStringLiteral("Name"), name}}, &out);
    QVERIFY2(out.contains(QStringLiteral("<E K=\"Name\" V=\"") + written + QStringLiteral("\"/>")),
             qPrintable(out));
}

void tst_style_document::key_order()
{
    style_values values;
    for (const char* key : {"UsmAmount", "UUID", "ColorBalanceShadow", "ColorBalanceMidtone",
                            "ColorBalanceHighlight", "GradationCurveBlue", "GradationCurve"}) {
        values[QLatin1String(key)] = QStringLiteral("1");
    }
    values[QStringLiteral("UUID")] = QStringLiteral("2"); // a second store replaces the first
    QString out;
    write_style_document(values, &out);
    QStringList keys;
    const QRegularExpression key(QStringLiteral("K=\"(\\w+)\""));
    for (auto it = key.globalMatch(out); it.hasNext();) {
        keys << it.next().captured(1);
    }
    QCOMPARE(keys,
             (QStringList{"ColorBalanceHighlight", "ColorBalanceMidtone", "ColorBalanceShadow",
                          "GradationCurve", "GradationCurveBlue", "UUID", "UsmAmount"}));
    QVERIFY(out.contains(QStringLiteral("K=\"UUID\" V=\"2\"")));
}

void tst_style_document::appends_to_given_string()
{
    QString out;
    write_style_document({{QStringLiteral("A"), QStringLiteral("b")}}, &out);
    QVERIFY(out.endsWith(QStringLiteral("</SL>\n")));
    QVERIFY(!out.endsWith(QStringLiteral("\n\n")));
    QVERIFY(!out.contains(QLatin1Char('\r')));
}

QTEST_GUILESS_MAIN(tst_style_document)
#include "tst_style_document.moc"
