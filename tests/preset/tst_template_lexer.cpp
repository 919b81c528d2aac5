#include "preset/template_lexer.h"

#include <QtTest>

namespace {

// "num(25|25)": the type without its "token_type::", the text and the number.
QString describe(const token& value)
{
    return token_type_name(value.type).mid(12) + QLatin1Char('(') + value.text.toString() +
           QLatin1Char('|') + QString::number(value.number) + QLatin1Char(')');
}

QString printed(token_type type, const QString& text, qint32 number)
{
    token value;
    value.type = type;
    value.text = QStringRef(&text);
    value.number = number;
    QString result;
    QDebug(&result).nospace() << value;
    return result;
}

} // namespace

class tst_template_lexer : public QObject
{
    Q_OBJECT

private slots:
    void splits_and_classifies_data();
    void splits_and_classifies();
    void tokens_are_views_into_the_text();
    void scanner_stays_at_eof();
    void type_names_data();
    void type_names();
    void printer_data();
    void printer();
    void printer_restores_stream_state();
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
    QTest::newRow("delimiters inside quotes") << "\"x = 1, y\"" << "str(x = 1, y|0)";
    QTest::newRow("line end inside quotes") << "\"a\nb\"" << "str(a\nb|0)";
    QTest::newRow("empty string") << "\"\"" << "str(|0)";
    QTest::newRow("lone quote") << "\"" << "str(|0)";
    QTest::newRow("quotes inside a word") << "a\"b c\"d" << "name(a\"b c\"d|0)";
    QTest::newRow("backslash escapes nothing") << "\"a \\\"b c\\\" d\"" << "name(\"a \\\"b|0) name(c\\\" d\"|0)";
    QTest::newRow("unterminated quote") << "a = \"b, c = 1\n" << "name(a|0) equals(=|0) name(\"b, c = 1\n|0)";
    QTest::newRow("positive sign") << "+7" << "num(+7|7)";
    QTest::newRow("negative sign") << "-7" << "num(-7|-7)";
    QTest::newRow("unicode minus sign") << QString::fromUtf8("\xe2\x88\x92" "7") << QString::fromUtf8("num(\xe2\x88\x92" "7|-7)");
    QTest::newRow("leading zeros") << "007" << "num(007|7)";
    QTest::newRow("largest 32-bit integer") << "2147483647" << "num(2147483647|2147483647)";
    QTest::newRow("just above 32 bits") << "2147483648" << "name(2147483648|0)";
    QTest::newRow("smallest 32-bit integer") << "-2147483648" << "num(-2147483648|-2147483648)";
    QTest::newRow("just below 32 bits") << "-2147483649" << "name(-2147483649|0)";
    QTest::newRow("decimal point") << "7.0" << "name(7.0|0)";
    QTest::newRow("exponent and hexadecimal") << "1e3 0x10" << "name(1e3|0) name(0x10|0)";
    QTest::newRow("signs alone") << "- +" << "name(-|0) name(+|0)";
    QTest::newRow("false") << "false" << "boolean(false|0)";
    QTest::newRow("capitalised boolean") << "True" << "name(True|0)";
    QTest::newRow("braces touching") << "{}" << "name({}|0)";
    QTest::newRow("brace touching a number") << "{1 2}" << "name({1|0) name(2}|0)";
    QTest::newRow("brackets and parentheses") << "[\"key\"] (x);" << "name([\"key\"]|0) name((x);|0)";
    QTest::newRow("no comment syntax") << "-- note" << "name(--|0) name(note|0)";
    QTest::newRow("trailing comma") << "a," << "name(a|0) comma(,|0)";
    QTest::newRow("doubled delimiters") << "a==,," << "name(a|0) equals(=|0) equals(=|0) comma(,|0) comma(,|0)";
    QTest::newRow("vertical tab and form feed") << "a\vb\fc" << "name(a|0) name(b|0) name(c|0)";
    QTest::newRow("next line and no-break space") << QString::fromUtf8("a\xc2\x85" "b\xc2\xa0" "c") << "name(a|0) name(b|0) name(c|0)";
    QTest::newRow("unicode em space") << QString::fromUtf8("a\xe2\x80\x83" "b") << "name(a|0) name(b|0)";
    QTest::newRow("zero width space is no blank") << QString::fromUtf8("a\xe2\x80\x8b" "b") << QString::fromUtf8("name(a\xe2\x80\x8b" "b|0)");
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
    }
    QCOMPARE(described.join(QLatin1Char(' ')), tokens);
}

void tst_template_lexer::tokens_are_views_into_the_text()
{
    const QString text = QStringLiteral("key = \"abc\", 12");
    const QVector<token> tokens = tokenize(text);

    QCOMPARE(tokens.size(), 6);
    for (const token& value : tokens.mid(0, 5)) {
        QCOMPARE(value.text.string(), &text);
    }
    QCOMPARE(tokens.at(2).text.position(), 7);
    QCOMPARE(tokens.at(4).text.position(), 13);
    QVERIFY(tokens.constLast().text.isNull());
}

void tst_template_lexer::scanner_stays_at_eof()
{
    const QString text = QStringLiteral("a");
    token_scanner scanner(text);

    QCOMPARE(describe(scanner.next()), QStringLiteral("name(a|0)"));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(describe(scanner.next()), QStringLiteral("eof(|0)"));
    }
}

void tst_template_lexer::type_names_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");

    const QStringList names{"name",  "str",    "boolean", "num", "equals",
                            "comma", "lbrace", "rbrace",  "eof"};
    for (int type = 0; type < names.size(); ++type) {
        QTest::newRow(qPrintable(names.at(type))) << type << "token_type::" + names.at(type);
    }
    QTest::newRow("just past the last") << 9 << "<unknown>";
    QTest::newRow("just before the first") << -1 << "<unknown>";
}

void tst_template_lexer::type_names()
{
    QFETCH(int, type);
    QFETCH(QString, name);

    QCOMPARE(token_type_name(static_cast<token_type>(type)), name);
}

void tst_template_lexer::printer_data()
{
    QTest::addColumn<QString>("printed");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("number") << printed(token_type::num, "25", 25) << "token_type::num(\"25\", 25)";
    QTest::newRow("string") << printed(token_type::str, "abc", 0) << "token_type::str(\"abc\", 0)";
    QTest::newRow("quote and blank unescaped") << printed(token_type::name, "a\"b c", 0) << "token_type::name(\"a\"b c\", 0)";
    QTest::newRow("boolean") << printed(token_type::boolean, "true", 1) << "token_type::boolean(\"true\", 1)";
    QTest::newRow("out of range") << printed(static_cast<token_type>(12), "x", -3) << "<unknown>(\"x\", -3)";
    // clang-format on
}

void tst_template_lexer::printer()
{
    QFETCH(QString, printed);
    QFETCH(QString, expected);

    QCOMPARE(printed, expected);
}

void tst_template_lexer::printer_restores_stream_state()
{
    const QString text = QStringLiteral("b");
    token value;
    value.text = QStringRef(&text);
    QString out;
    QDebug(&out) << QStringLiteral("a") << value << QStringLiteral("c");

    // Blanks between the items and quotes around the texts, as the stream had them.
    QCOMPARE(out, QStringLiteral("\"a\" token_type::eof(\"b\", 0) \"c\" "));
}

QTEST_GUILESS_MAIN(tst_template_lexer)
#include "tst_template_lexer.moc"
