#include "orn/parse_number.h"

#include <QtTest>

#include <cmath>
#include <string>

class tst_parse_number : public QObject
{
    Q_OBJECT

private slots:
    void parses_data();
    void parses();
    void huge_exponent_is_defined();
};

void tst_parse_number::parses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("fallback");
    QTest::addColumn<double>("expected");

    QTest::newRow("empty text gives the default") << QByteArray("") << 7.0 << 7.0;
    QTest::newRow("letters only give the default") << QByteArray("abc") << -3.0 << -3.0;
    QTest::newRow("a lone minus gives the default") << QByteArray("-") << 5.0 << 5.0;
    QTest::newRow("integer") << QByteArray("1023") << 0.0 << 1023.0;
    QTest::newRow("negative decimal with point") << QByteArray("-1.5") << 0.0 << -1.5;
    QTest::newRow("decimal comma") << QByteArray("1,5") << 0.0 << 1.5;
    QTest::newRow("exponent") << QByteArray("2e3") << 0.0 << 2000.0;
    QTest::newRow("negative exponent, capital E") << QByteArray("1.5E-2") << 0.0 << 0.015;
    QTest::newRow("zero exponent keeps the mantissa") << QByteArray("7e0") << 0.0 << 7.0;
    QTest::newRow("grouped by commas") << QByteArray("1,234,567") << 0.0 << 1234567.0;
    QTest::newRow("grouped by points") << QByteArray("1.234.567") << 0.0 << 1234567.0;
    QTest::newRow("comma groups, point decimal") << QByteArray("1,234.56") << 0.0 << 1234.56;
    QTest::newRow("point groups, comma decimal") << QByteArray("1.234,56") << 0.0 << 1234.56;
    QTest::newRow("blanks and letters ignored") << QByteArray(" 1 2x3 ") << 0.0 << 123.0;
    QTest::newRow("minus anywhere makes negative") << QByteArray("12-") << 0.0 << -12.0;
    QTest::newRow("leading plus is ignored") << QByteArray("+64") << 0.0 << 64.0;
    QTest::newRow("separator first") << QByteArray(".5") << 0.0 << 0.5;
    QTest::newRow("separator last") << QByteArray("5.") << 0.0 << 5.0;
    QTest::newRow("zero is a number, not the default") << QByteArray("0") << 9.0 << 0.0;
}

void tst_parse_number::parses()
{
    QFETCH(QByteArray, text);
    QFETCH(double, fallback);
    QFETCH(double, expected);
    const double result = orn::parse_number(text.toStdString(), fallback);
    QVERIFY2(std::fabs(result - expected) <= 1e-12 * std::fmax(1.0, std::fabs(expected)),
             qPrintable(QString::number(result, 'g', 17)));
}

void tst_parse_number::huge_exponent_is_defined()
{
    QVERIFY(std::isinf(orn::parse_number("1e99999999999999999999", 0.0)));
    QCOMPARE(orn::parse_number("1e-99999999999999999999", 0.0), 0.0);
    const std::string forty_digits(40, '9');
    QVERIFY(orn::parse_number(forty_digits, 0.0) > 9.9e39);
}

QTEST_GUILESS_MAIN(tst_parse_number)
#include "tst_parse_number.moc"
