#include "orn/assert.h"
#include "orn/exception.h"
#include "orn/message_handler.h"

#include <QtTest>

#include <iostream>
#include <sstream>

namespace {

// Swaps a standard stream's buffer for a string for the life of the object.
class stream_capture
{
public:
    explicit stream_capture(std::ostream& stream) : stream_(stream)
    {
        old_ = stream_.rdbuf(buffer_.rdbuf());
    }
    ~stream_capture() { stream_.rdbuf(old_); }
    QString text() const { return QString::fromStdString(buffer_.str()); }

private:
    std::ostream& stream_;
    std::ostringstream buffer_;
    std::streambuf* old_ = nullptr;
};

const QMessageLogContext no_context;

} // namespace

class tst_message_handler : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void prefixes_and_streams_data();
    void prefixes_and_streams();
    void libpng_warning_dropped_data();
    void libpng_warning_dropped();
    void context_suffix();
    void sink_gets_unformatted_line();
    void fatal_message_goes_to_hook();
    void installed_handler_formats_qt_messages();
    void exception_prints_on_construction();
    void assertion_throws_text();
};

void tst_message_handler::initTestCase()
{
    qSetMessagePattern(QString::fromLatin1(orn::message_pattern));
}

void tst_message_handler::cleanup()
{
    orn::log_sink = nullptr;
    orn::fatal_message_hook = nullptr;
    orn::append_context = false;
}

void tst_message_handler::prefixes_and_streams_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<bool>("to_stderr");

    QTest::newRow("debug") << int(QtDebugMsg) << "Debug: " << false;
    QTest::newRow("info") << int(QtInfoMsg) << "Info: " << false;
    QTest::newRow("warning stays on stdout") << int(QtWarningMsg) << "Warning: " << false;
    QTest::newRow("critical") << int(QtCriticalMsg) << "Critical: " << true;
}

void tst_message_handler::prefixes_and_streams()
{
    QFETCH(int, type);
    QFETCH(QString, prefix);
    QFETCH(bool, to_stderr);

    stream_capture out(std::cout);
    stream_capture err(std::cerr);
    orn::message_handler(QtMsgType(type), no_context, QStringLiteral("Wrote 'x'"));

    const QString written = to_stderr ? err.text() : out.text();
    QCOMPARE((to_stderr ? out.text() : err.text()), QString());
    const QRegularExpression form(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(prefix) +
        QStringLiteral("\\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d Wrote 'x'\n")));
    QVERIFY2(form.match(written).hasMatch(), qPrintable(written));
}

void tst_message_handler::libpng_warning_dropped_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("dropped");

    QTest::newRow("exact text") << "libpng warning: iCCP: known incorrect sRGB profile" << true;
    QTest::newRow("one character differs")
        << "libpng warning: iCCP: known incorrect sRGB profilE" << false;
    QTest::newRow("with a trailing blank")
        << "libpng warning: iCCP: known incorrect sRGB profile " << false;
}

void tst_message_handler::libpng_warning_dropped()
{
    QFETCH(QString, message);
    QFETCH(bool, dropped);
    stream_capture out(std::cout);
    orn::message_handler(QtWarningMsg, no_context, message);
    QCOMPARE(out.text().isEmpty(), dropped);
}

void tst_message_handler::context_suffix()
{
    const QMessageLogContext with_file("file.cpp", 42, "void f()", "default");
    {
        stream_capture out(std::cout);
        orn::install_message_handler(false, true);
        orn::message_handler(QtInfoMsg, with_file, QStringLiteral("hello"));
        QVERIFY2(out.text().endsWith(QStringLiteral("hello (file.cpp:42, void f())\n")),
                 qPrintable(out.text()));
    }
    {
        stream_capture out(std::cout);
        orn::message_handler(QtInfoMsg, no_context, QStringLiteral("hello"));
        QVERIFY2(out.text().endsWith(QStringLiteral(" hello\n")), qPrintable(out.text()));
    }
}

void tst_message_handler::sink_gets_unformatted_line()
{
    QStringList received;
    orn::log_sink = [&received](const QString& line) { received << line; };
    stream_capture out(std::cout);
    orn::message_handler(QtWarningMsg, no_context, QStringLiteral("careful"));
    QCOMPARE(received, QStringList{QStringLiteral("Warning: careful\n")});
}

void tst_message_handler::fatal_message_goes_to_hook()
{
    QCoreApplication::setApplicationName(QStringLiteral("Lookwright"));
    QString shown_text;
    QString shown_title;
    orn::fatal_message_hook = [&](const QString& text, const QString& title) {
        shown_text = text;
        shown_title = title;
    };
    stream_capture err(std::cerr);
    orn::message_handler(QtFatalMsg, no_context, QStringLiteral("disk gone"));
    QVERIFY(err.text().startsWith(QStringLiteral("Fatal: ")));
    QCOMPARE(shown_title, QStringLiteral("Fatal error"));
    QCOMPARE(
        shown_text,
        QStringLiteral("Lookwright encountered a fatal error and must be terminated:\ndisk gone"));
}

void tst_message_handler::installed_handler_formats_qt_messages()
{
    stream_capture err(std::cerr);
    orn::install_message_handler(true, false);
    qCritical("Critical %s", "thing");
    orn::install_message_handler(false, false);
    QVERIFY2(err.text().startsWith(QStringLiteral("Critical: ")), qPrintable(err.text()));
    QVERIFY(err.text().endsWith(QStringLiteral(" Critical thing\n")));
}

void tst_message_handler::exception_prints_on_construction()
{
    stream_capture err(std::cerr);
    const orn::exception e("ERROR while loading");
    QCOMPARE(err.text(), QStringLiteral("ERROR while loading\n"));
    QCOMPARE(QString::fromUtf8(e.what()), QStringLiteral("ERROR while loading"));
}

void tst_message_handler::assertion_throws_text()
{
    const int bd = 0;
    try {
        ORN_ASSERT(bd);
        QFAIL("no throw");
    } catch (const std::string& text) {
        QVERIFY2(text.rfind("assert \"bd\" failed at ", 0) == 0, text.c_str());
        QVERIFY(text.find("tst_message_handler.cpp:") != std::string::npos);
        QVERIFY(text.find(" in void tst_message_handler::assertion_throws_text()") !=
                std::string::npos);
        QVERIFY(text.back() == '\n');
    }
}

QTEST_GUILESS_MAIN(tst_message_handler)
#include "tst_message_handler.moc"
