#include "preset/template_lexer.h"

#include <QtTest>

namespace {

// "num(25|25)": the type without its "token_type::", the text and the number.
QString describe(const token& value)
{
    return token_type_name(value.type).mid(12) + QLatin1Char('(') + value.text.toString() +
           QLatin1Char('|') + QString::number(value.number) + QLatin1Char(')');
}

} // namespace

class tst_template_lexer : public QObject
{
    Q_OBJECT

private slots:
    void splits_and_classifies_data();
    void splits_and_classifies();
    void printer_data();
    void printer();
};

void tst_template_lexer::splits_and_classifies_data()
{
    QTest::addColumn<QString>("text");
    // All tokens before the final `eof`.
    QTest::addColumn<QString>("tokens");

    // clang-format off
    QTest::newRow("empty text") << "" << "";
    QTest::newRow("blanks only") << " \t\r\n " << "";
    QTest::newRow("entries without blanks") << "a=1,b=2" << "name(a|0) equals(=|0) num(1|1) comma(,|0) name(b|0) equals(=|0) num(2|2)";
    QTest::newRow("table with blanks") << "s = {\n\ta = true,\n}\n"
        << "name(s|0) equals(=|0) lbrace({|0) name(a|0) equals(=|0) boolean(true|1) comma(,|0) rbrace(}|0)";
    QTest::newRow("delimiters inside quotes") << "\"x = 1,\ny\"" << "str(x = 1,\ny|0)";
    QTest::newRow("empty string and lone quote") << "\"\" \"" << "str(|0) str(|0)";
    QTest::newRow("quotes inside a word") << "a\"b c\"d" << "name(a\"b c\"d|0)";
    QTest::newRow("backslash escapes nothing") << "\"a \\\"b c\\\" d\"" << "name(\"a \\\"b|0) name(c\\\" d\"|0)";
    QTest::newRow("unterminated quote") << "a = \"b, c = 1\n" << "name(a|0) equals(=|0) name(\"b, c = 1\n|0)";
    QTest::newRow("signs and leading zeros") << "+7 -7 007" << "num(+7|7) num(-7|-7) num(007|7)";
    QTest::newRow("unicode minus sign") << QString::fromUtf8("\xe2\x88\x92" "7") << QString::fromUtf8("num(\xe2\x88\x92" "7|-7)");
    QTest::newRow("largest 32-bit integer") << "2147483647" << "num(2147483647|2147483647)";
    QTest::newRow("just above 32 bits") << "2147483648" << "name(2147483648|0)";
    QTest::newRow("smallest 32-bit integer") << "-2147483648" << "num(-2147483648|-2147483648)";
    QTest::newRow("just below 32 bits") << "-2147483649" << "name(-2147483649|0)";
    QTest::newRow("no other numbers") << "7.0 1e3 0x10 - +" << "name(7.0|0) name(1e3|0) name(0x10|0) name(-|0) name(+|0)";
    QTest::newRow("booleans are lower case") << "false True" << "boolean(false|0) name(True|0)";
    QTest::newRow("braces touching") << "{} {1 2}" << "name({}|0) name({1|0) name(2}|0)";
    QTest::newRow("no other delimiters, no comments") << "[\"key\"] (x); -- note" << "name([\"key\"]|0) name((x);|0) name(--|0) name(note|0)";
    QTest::newRow("doubled and trailing delimiters") << "a==,," << "name(a|0) equals(=|0) equals(=|0) comma(,|0) comma(,|0)";
    // Vertical tab, form feed, next line, no-break space, em space; a zero width space
    // is no blank.
    QTest::newRow("other blanks") << QString::fromUtf8("a\vb\fc\xc2\x85" "d\xc2\xa0" "e\xe2\x80\x83" "f\xe2\x80\x8b" "g")
        << QString::fromUtf8("name(a|0) name(b|0) name(c|0) name(d|0) name(e|0) name(f\xe2\x80\x8b" "g|0)");
    // clang-format on
}

void tst_template_lexer::splits_and_classifies()
{
    QFETCH(QString, text);
    QFETCH(QString, tokens);

    QVector<token> result = tokenize(text);
    QCOMPARE(describe(result.takeLast()), QStringLiteral("eof(|0)"));
    QStringList described;
    for (const token& value : result) {
        described << describe(value);
        // Views into the text, not copies.
        QCOMPARE(value.text.string(), &text);
    }
    QCOMPARE(described.join(QLatin1Char(' ')), tokens);
}

void tst_template_lexer::printer_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("expected");

    const QStringList names{"name",  "str",    "boolean", "num", "equals",
                            "comma", "lbrace", "rbrace",  "eof"};
    for (int type = 0; type < names.size(); ++type) {
        QTest::newRow(qPrintable(names.at(type)))
            << type << QStringLiteral("token_type::%1(\"a\"b c\", -3)").arg(names.at(type));
    }
    QTest::newRow("just before the first") << -1 << "<unknown>(\"a\"b c\", -3)";
    QTest::newRow("just past the last") << 9 << "<unknown>(\"a\"b c\", -3)";
}

void tst_template_lexer::printer()
{
    QFETCH(int, type);
    QFETCH(QString, expected);

    const QString text = QStringLiteral("a\"b c");
    token value;
    value.type = static_cast<token_type>(type);
    value.text = QStringRef(&text);
    value.number = -3;
    QString out;
    QDebug(&out) << QStringLiteral("x") << value << QStringLiteral("y");

    // Nothing escaped or spaced within the token; around it, the stream's blanks and
    // quotes as they were.
    QCOMPARE(out, "\"x\" " + expected + " \"y\" ");
}

QTEST_GUILESS_MAIN(tst_template_lexer)
#include "tst_template_lexer.moc"
