#include "orn/copy_streambuf.h"

#include <QtTest>

#include <iomanip>
#include <memory>
#include <sstream>

using tap = orn::copy_streambuf<char, std::char_traits<char>>;

class tst_copy_streambuf : public QObject
{
    Q_OBJECT

private slots:
    void every_byte_reaches_both_data();
    void every_byte_reaches_both();
    void padding_is_not_repeated();
    void pending_text_survives_the_tap();
};

void tst_copy_streambuf::every_byte_reaches_both_data()
{
    QTest::addColumn<QByteArray>("text");

    // The put area holds 1022 characters: rows sit at, around and far beyond it.
    QTest::newRow("short") << QByteArray("one line\n");
    QTest::newRow("area exactly") << QByteArray(1022, 'a');
    QTest::newRow("area plus one") << QByteArray(1023, 'b');
    QByteArray burst;
    for (int i = 0; i < 5000; ++i) {
        burst += char('a' + i % 26);
    }
    QTest::newRow("burst without line ends") << burst;
    QByteArray lines;
    for (int i = 0; i < 400; ++i) {
        lines += "Info: 12:00:00.000 line " + QByteArray::number(i) + '\n';
    }
    QTest::newRow("burst of lines") << lines;
    QTest::newRow("multi-byte text across the area's end")
        << QByteArray(1021, 'c') + QString::fromUtf8("äöü€").toUtf8();
}

void tst_copy_streambuf::every_byte_reaches_both()
{
    QFETCH(QByteArray, text);

    std::stringstream console;
    std::ostream stream(console.rdbuf());
    std::ostringstream copy;
    {
        tap tapped(stream, copy);
        QCOMPARE(stream.rdbuf(), static_cast<std::streambuf*>(&tapped));
        // In pieces of odd sizes, as program output comes.
        for (int at = 0; at < text.size(); at += 333) {
            stream << text.mid(at, 333).toStdString();
        }
        stream.flush();
        QCOMPARE(QByteArray::fromStdString(console.str()), text);
        QCOMPARE(QByteArray::fromStdString(copy.str()), text);
    }
    QCOMPARE(stream.rdbuf(), console.rdbuf());
}

// A field width belongs to the text being written; handing a full area on must
// not pad it a second time.
void tst_copy_streambuf::padding_is_not_repeated()
{
    std::stringstream console;
    std::ostream stream(console.rdbuf());
    std::ostringstream copy;
    tap tapped(stream, copy);
    stream << std::setw(3000) << std::setfill('.') << "x" << std::flush;

    QCOMPARE(console.str().size(), size_t(3000));
    QCOMPARE(copy.str(), console.str());
}

void tst_copy_streambuf::pending_text_survives_the_tap()
{
    std::stringstream console;
    std::ostream stream(console.rdbuf());
    std::ostringstream copy;
    auto tapped = std::make_unique<tap>(stream, copy);
    stream << "not flushed";
    QCOMPARE(console.str(), std::string());
    tapped.reset();

    QCOMPARE(console.str(), std::string("not flushed"));
    stream << " after" << std::flush;
    QCOMPARE(console.str(), std::string("not flushed after"));
    QCOMPARE(copy.str(), std::string("not flushed"));
}

QTEST_GUILESS_MAIN(tst_copy_streambuf)
#include "tst_copy_streambuf.moc"
