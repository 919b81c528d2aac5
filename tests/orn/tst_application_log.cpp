#include "orn/application_log.h"
#include "orn/network_report.h"
#include "support/modal_answerer.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

#include <iomanip>
#include <iostream>
#include <sstream>

// Each test gets a fresh log, with the console streams sent to strings so that
// what the taps hand on to the console can be read back, and a temporary home
// whose "Desktop" is where logs are saved.
class tst_application_log : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void filter_data();
    void filter();
    void commands_data();
    void commands();
    void hidden_window_takes_nothing();
    void console_output_reaches_both_data();
    void console_output_reaches_both();
    void tab_bar_shows_with_second_channel();
    void second_install_changes_nothing();
    void closing_does_not_end_the_program();
    void saved_file_data();
    void saved_file();
    void unwritable_desktop_warns();

private:
    QWidget* window() const;
    QTextEdit* view(int tab) const;
    QLineEdit* filter_line() const { return window()->findChild<QLineEdit*>(); }
    void wait_for_drain();

    QTemporaryDir home;
    QString main_name;
    orn::application_log* log = nullptr;
    std::stringstream console_out, console_err;
    std::streambuf* saved_out = nullptr;
    std::streambuf* saved_err = nullptr;
};

void tst_application_log::initTestCase()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0"));
    main_name = QCoreApplication::applicationName();
    QVERIFY(home.isValid());
    qputenv("HOME", QFile::encodeName(home.path()));
}

void tst_application_log::init()
{
    console_out.str({});
    console_err.str({});
    saved_out = std::cout.rdbuf(console_out.rdbuf());
    saved_err = std::cerr.rdbuf(console_err.rdbuf());
    log = new orn::application_log(nullptr);
}

void tst_application_log::cleanup()
{
    delete log;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    std::cout.rdbuf(saved_out);
    std::cerr.rdbuf(saved_err);
}

QWidget* tst_application_log::window() const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->windowTitle() == QLatin1String("Application Log")) {
            return widget;
        }
    }
    return nullptr;
}

QTextEdit* tst_application_log::view(int tab) const
{
    return qobject_cast<QTextEdit*>(window()->findChild<QTabWidget*>()->widget(tab));
}

// One tick of the drain timer; the drain is connected before the spy, so it has run.
void tst_application_log::wait_for_drain()
{
    QSignalSpy tick(log->findChild<QTimer*>(), &QTimer::timeout);
    QVERIFY(tick.wait());
}

void tst_application_log::filter_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");

    QTest::newRow("no line matches") << "zzz"
                                     << "";
    QTest::newRow("case-insensitive") << "BETA"
                                      << "Warning: Beta two\nDebug: beta three\n";
    QTest::newRow("inside a word, across a blank") << "o: alpha"
                                                   << "Info: alphabet\n";
}

void tst_application_log::filter()
{
    QFETCH(QString, pattern);
    QFETCH(QString, expected);

    QString text;
    for (int i = 0; i < 150; ++i) {
        text += QStringLiteral("Info: tick %1\n").arg(i);
    }
    text += QStringLiteral("Warning: Beta two\n\nDebug: beta three\nInfo: alphabet\n");
    log->open_log_window();
    log->add_data(main_name, text);
    QTest::keyClicks(filter_line(), pattern);
    QCOMPARE(view(0)->toPlainText(), expected);

    filter_line()->clear();
    QCOMPARE(view(0)->toPlainText(), text);
    const QScrollBar* bar = view(0)->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
}

void tst_application_log::commands_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("ran"); // "help:" when help listed the commands

    QTest::newRow("help") << "help"
                          << "help:";
    QTest::newRow("HELP") << "HELP"
                          << "help:";
    QTest::newRow("helpfoo") << "helpfoo"
                             << "help:";
    QTest::newRow("arguments as typed") << "SHOW Foo "
                                        << "show: Foo ";
    QTest::newRow("longest key wins") << "ShowAllThings"
                                      << "showall:Things";
    QTest::newRow("no key at the start") << " show"
                                         << "";
    QTest::newRow("part of a key") << "sho"
                                   << "";
}

void tst_application_log::commands()
{
    QFETCH(QString, line);
    QFETCH(QString, ran);

    QString calls;
    log->install();
    log->add_command(QStringLiteral("show"),
                     [&calls](const QString& rest) { calls += "show:" + rest; });
    log->add_command(
        QStringLiteral("ShowAll"), [&calls](const QString& rest) { calls += "showall:" + rest; },
        true);
    log->open_log_window();
    QTest::keyClicks(filter_line(), line);
    QTest::keyClick(filter_line(), Qt::Key_Return);
    wait_for_drain();

    // A line that runs nothing stays as a filter.
    QCOMPARE(filter_line()->text(), ran.isEmpty() ? line : QString());
    const QString list = QStringLiteral("List of commands:\n    help\n    show\n");
    if (ran == QLatin1String("help:")) {
        QCOMPARE(view(0)->toPlainText(), list);
        QCOMPARE(QString::fromStdString(console_out.str()), list);
    } else {
        QCOMPARE(calls, ran);
    }
}

void tst_application_log::hidden_window_takes_nothing()
{
    log->install();
    std::cout << "Info: before opening" << std::endl;
    wait_for_drain();
    QCOMPARE(view(0)->toPlainText(), QString());

    log->open_log_window();
    wait_for_drain();
    QCOMPARE(view(0)->toPlainText(), QStringLiteral("Info: before opening\n"));
}

void tst_application_log::console_output_reaches_both_data()
{
    QTest::addColumn<bool>("to_error");
    QTest::addColumn<QString>("form");

    QTest::newRow("output, lines") << false << "lines";
    QTest::newRow("output, no line ends") << false << "words";
    QTest::newRow("error, lines") << true << "lines";
    // The field width belongs to the text written; passing it on must not pad again.
    QTest::newRow("output, padded to a width") << false << "padded";
}

// Bursts far beyond the taps' put area of 1022 characters.
void tst_application_log::console_output_reaches_both()
{
    QFETCH(bool, to_error);
    QFETCH(QString, form);

    std::ostream& stream = to_error ? std::cerr : std::cout;
    log->install();
    log->open_log_window();
    std::string burst;
    if (form == QLatin1String("padded")) {
        burst = std::string(4999, '.') + 'x';
        stream << std::setfill('.') << std::setw(5000) << "x" << std::flush;
    } else {
        for (int i = 0; i < 600; ++i) {
            burst +=
                "Info: burst " + std::to_string(i) + (form == QLatin1String("lines") ? "\n" : " ");
        }
        stream << burst << std::flush;
    }
    wait_for_drain();

    QCOMPARE((to_error ? console_err : console_out).str(), burst);
    QCOMPARE(view(0)->toPlainText(), QString::fromStdString(burst));
}

void tst_application_log::tab_bar_shows_with_second_channel()
{
    log->open_log_window();
    QTabBar* bar = window()->findChild<QTabBar*>();
    QVERIFY(!bar->isVisible());

    log->add_data(QStringLiteral("Converter"), QStringLiteral("first\n"));
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->tabText(1), QStringLiteral("Converter"));
    QCOMPARE(view(1)->toPlainText(), QStringLiteral("first\n"));
}

void tst_application_log::second_install_changes_nothing()
{
    log->install();
    std::streambuf* const tap = std::cout.rdbuf();
    log->install();
    {
        orn::application_log other(nullptr);
        other.install();
        QCOMPARE(std::cout.rdbuf(), tap);
        QCOMPARE(orn::application_log::instance(), log);
    }
    QCOMPARE(std::cout.rdbuf(), tap);
    log->open_log_window();
    std::cout << "once" << std::endl;
    wait_for_drain();
    QCOMPARE(view(0)->toPlainText(), QStringLiteral("once\n"));
    QCOMPARE(console_out.str(), std::string("once\n"));
}

// Qt decides whether a closed window ends the program only inside the event loop.
void tst_application_log::closing_does_not_end_the_program()
{
    QSignalSpy last_closed(qApp, &QGuiApplication::lastWindowClosed);
    bool was_visible = false;
    // Qt owns the single shots.
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks)
    QTimer::singleShot(0, this, [this, &was_visible] {
        log->open_log_window();
        was_visible = window()->isVisible();
        window()->close();
        QTimer::singleShot(50, [] { QCoreApplication::exit(7); });
    });
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
    QCOMPARE(QApplication::exec(), 7);
    QVERIFY(was_visible);
    QCOMPARE(last_closed.count(), 0);
}

void tst_application_log::saved_file_data()
{
    QTest::addColumn<QString>("main_text");
    QTest::addColumn<QStringList>("side_channels"); // name, text, name, text, ...
    QTest::addColumn<QString>("tail");

    const QString rule(80, QLatin1Char('-'));
    QTest::newRow("main channel only") << "Info: a\nInfo: b\n"
                                       << QStringList() << "Info: a\nInfo: b\n";
    QTest::newRow("side channels in name order")
        << "Info: a\n"
        << QStringList{"Zeta", "z\n", "Converter", "c1\nc2"}
        << "Info: a\n\n\n" + rule + "\nApplication: Converter\nc1\nc2\n\n" + rule +
               "\nApplication: Zeta\nz\n";
    QTest::newRow("no channel text") << "" << QStringList() << "";
}

void tst_application_log::saved_file()
{
    QFETCH(QString, main_text);
    QFETCH(QStringList, side_channels);
    QFETCH(QString, tail);

    QVERIFY(QDir(home.path()).mkpath(QStringLiteral("Desktop")));
    log->add_data(main_name, main_text);
    for (int i = 0; i + 1 < side_channels.size(); i += 2) {
        log->add_data(side_channels[i], side_channels[i + 1]);
    }
    modal_answerer answers;
    answers.expect(modal_answerer::click(QStringLiteral("OK")));
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    window()->findChild<QPushButton*>()->click(); // "Save to disk", the first button
    const qint64 after = QDateTime::currentSecsSinceEpoch();

    QVERIFY(answers.done());
    QCOMPARE(answers.seen().front().title, QStringLiteral("Application logs saved"));
    const QString path = answers.seen().front().text.section(QLatin1Char('\n'), 1);
    QCOMPARE(answers.seen().front().text, "The application logs were saved to\n" + path);
    const QString prefix = home.path() + "/Desktop/" + main_name + " Log ";
    QVERIFY2(path.startsWith(prefix) && path.endsWith(QLatin1String(".log")), qPrintable(path));
    const qint64 seconds = path.mid(prefix.size()).chopped(4).toLongLong();
    QVERIFY(seconds >= before && seconds <= after);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QCOMPARE(text.section(QLatin1Char('\n'), 0, 1),
             "Application: " + main_name + " (1.2.0)\n" +
                 "Installed at: " + QCoreApplication::applicationDirPath());
    const QString date = text.section(QLatin1Char('\n'), 2, 2);
    // The text form names day and month in the user's language, so only its frame is
    // the same everywhere.
    QVERIFY2(date.startsWith(QLatin1String("Date: ")) &&
                 date.endsWith(QString::number(QDate::currentDate().year())),
             qPrintable(date));
    const QString rule(80, QLatin1Char('-'));
    QCOMPARE(text.section(QLatin1Char('\n'), 3),
             rule + '\n' + orn::network_report() + rule + "\n\n" + tail);
}

void tst_application_log::unwritable_desktop_warns()
{
    QDir(home.path() + QStringLiteral("/Desktop")).removeRecursively();
    modal_answerer answers;
    answers.expect(modal_answerer::click(QStringLiteral("OK")));

    QCOMPARE(log->save_log(), QString());
    QVERIFY(answers.done());
    QCOMPARE(answers.seen().front().title, QStringLiteral("Failed to save application logs"));
    QVERIFY(answers.seen().front().text.startsWith(
        "Can't save the application logs to\n" + home.path() + "/Desktop/" + main_name + " Log "));
    QVERIFY(answers.seen().front().text.endsWith(
        ".log\n\nYou might not have write permission or the disk might be full."));
}

QTEST_MAIN(tst_application_log)
#include "tst_application_log.moc"
