#include "orn/split_fields.h"

#include <QtTest>

#include <string>
#include <vector>

using fields = std::vector<std::string>;
Q_DECLARE_METATYPE(fields)

class tst_split_fields : public QObject
{
    Q_OBJECT

private slots:
    void splits_data();
    void splits();
};

void tst_split_fields::splits_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("max_fields");
    QTest::addColumn<fields>("expected");

    QTest::newRow("empty text is one empty field") << QByteArray("") << 0 << fields{""};
    QTest::newRow("no separator") << QByteArray("abc") << 0 << fields{"abc"};
    QTest::newRow("three values") << QByteArray("0 64 128") << 0 << fields{"0", "64", "128"};
    QTest::newRow("empty fields kept") << QByteArray("a  b ") << 0 << fields{"a", "", "b", ""};
    QTest::newRow("separator alone") << QByteArray(" ") << 0 << fields{"", ""};
    QTest::newRow("one cut at most") << QByteArray("a b c") << 1 << fields{"a", "b c"};
    QTest::newRow("limit above the cuts") << QByteArray("a b") << 5 << fields{"a", "b"};
    QTest::newRow("tab is no separator") << QByteArray("1\t2\t3") << 0 << fields{"1\t2\t3"};
}

void tst_split_fields::splits()
{
    QFETCH(QByteArray, text);
    QFETCH(int, max_fields);
    QFETCH(fields, expected);
    QCOMPARE(orn::split_fields(text.toStdString(), ' ', max_fields), expected);
}

QTEST_GUILESS_MAIN(tst_split_fields)
#include "tst_split_fields.moc"
