#include "orn/application_log.h"
#include "orn/network_report.h"
#include "orn/widget_layer.h"
#include "support/modal_answerer.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

#include <iostream>
#include <sstream>

// Every test runs with the console streams sent to strings, so that what the log
// hands on to the console can be read back, and with a fresh log.
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
    void help_data();
    void help();
    void hidden_window_takes_nothing();
    void burst_reaches_console_and_window_data();
    void burst_reaches_console_and_window();
    void tab_bar_shows_with_second_channel();
    void second_install_changes_nothing();
    void closing_does_not_end_the_program();
    void saved_file_data();
    void saved_file();
    void unwritable_desktop_warns();
    void clear_keeps_what_waits();
    void network_report_window();

private:
    QWidget* window() const;
    QTabWidget* tabs() const { return window()->findChild<QTabWidget*>(); }
    QTextEdit* view(int index) const { return qobject_cast<QTextEdit*>(tabs()->widget(index)); }
    QLineEdit* filter_line() const { return window()->findChild<QLineEdit*>(); }
    QPushButton* button(const QString& text) const;
    void wait_for_drain();

    QTemporaryDir home;
    QString main_name;
    orn::application_log* log = nullptr;
    std::stringstream console_out;
    std::stringstream console_err;
    std::streambuf* saved_out = nullptr;
    std::streambuf* saved_err = nullptr;
};

void tst_application_log::initTestCase()
{
    orn::install_widget_layer();
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0"));
    main_name = QCoreApplication::applicationName();
    // The desktop is the home's "Desktop" folder: a temporary one here.
    QVERIFY(home.isValid());
    qputenv("HOME", QFile::encodeName(home.path()));
}

void tst_application_log::init()
{
    console_out.str(std::string());
    console_err.str(std::string());
    saved_out = std::cout.rdbuf(console_out.rdbuf());
    saved_err = std::cerr.rdbuf(console_err.rdbuf());
    log = new orn::application_log(nullptr);
}

void tst_application_log::cleanup()
{
    delete log;
    log = nullptr;
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

QPushButton* tst_application_log::button(const QString& text) const
{
    const QList<QPushButton*> buttons = window()->findChildren<QPushButton*>();
    for (QPushButton* each : buttons) {
        if (each->text() == text) {
            return each;
        }
    }
    return nullptr;
}

// One tick of the drain timer; the drain is connected first, so it has run.
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
    QTest::newRow("inside a word") << "habe"
                                   << "Info: alphabet\n";
    QTest::newRow("across a blank") << "o: a"
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
    QTest::addColumn<QString>("ran");
    QTest::addColumn<QString>("arguments");

    QTest::newRow("key alone") << "show"
                               << "show"
                               << "";
    QTest::newRow("upper case, arguments as typed") << "SHOW Foo "
                                                    << "show"
                                                    << " Foo ";
    QTest::newRow("longest key wins") << "showall"
                                      << "showall"
                                      << "";
    QTest::newRow("longest key with arguments") << "ShowAllThings"
                                                << "showall"
                                                << "Things";
    QTest::newRow("no key at the start") << " show"
                                         << ""
                                         << "";
    QTest::newRow("part of a key") << "sho"
                                   << ""
                                   << "";
}

void tst_application_log::commands()
{
    QFETCH(QString, line);
    QFETCH(QString, ran);
    QFETCH(QString, arguments);

    QStringList calls;
    log->install();
    log->add_command(QStringLiteral("show"),
                     [&calls](const QString& rest) { calls << QStringLiteral("show:") + rest; });
    log->add_command(QStringLiteral("ShowAll"),
                     [&calls](const QString& rest) { calls << QStringLiteral("showall:") + rest; });
    log->open_log_window();
    QTest::keyClicks(filter_line(), line);
    QTest::keyClick(filter_line(), Qt::Key_Return);

    if (ran.isEmpty()) {
        QCOMPARE(calls, QStringList());
        QCOMPARE(filter_line()->text(), line);
    } else {
        QCOMPARE(calls, QStringList(ran + QLatin1Char(':') + arguments));
        QCOMPARE(filter_line()->text(), QString());
    }
}

void tst_application_log::help_data()
{
    QTest::addColumn<QString>("line");

    QTest::newRow("lower case") << "help";
    QTest::newRow("upper case") << "HELP";
    QTest::newRow("with arguments") << "helpfoo";
}

void tst_application_log::help()
{
    QFETCH(QString, line);

    log->install();
    log->add_command(QStringLiteral("zap"), [](const QString&) {});
    log->add_command(
        QStringLiteral("secret"), [](const QString&) {}, true);
    log->open_log_window();
    log->add_data(main_name, QStringLiteral("Info: help wanted\nInfo: other\n"));
    QTest::keyClicks(filter_line(), line.left(4));
    // The line filters while it is typed.
    QCOMPARE(view(0)->toPlainText(), QStringLiteral("Info: help wanted\n"));
    QTest::keyClicks(filter_line(), line.mid(4));
    QTest::keyClick(filter_line(), Qt::Key_Return);
    QCOMPARE(filter_line()->text(), QString());
    wait_for_drain();

    const QString list = QStringLiteral("List of commands:\n    help\n    zap\n");
    QCOMPARE(view(0)->toPlainText(), QStringLiteral("Info: help wanted\nInfo: other\n") + list);
    QCOMPARE(QString::fromStdString(console_out.str()), list);
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

void tst_application_log::burst_reaches_console_and_window_data()
{
    QTest::addColumn<bool>("to_error");
    QTest::addColumn<bool>("line_ends");

    QTest::newRow("output, lines") << false << true;
    QTest::newRow("output, no line ends") << false << false;
    QTest::newRow("error, lines") << true << true;
    QTest::newRow("error, no line ends") << true << false;
}

void tst_application_log::burst_reaches_console_and_window()
{
    QFETCH(bool, to_error);
    QFETCH(bool, line_ends);

    std::ostream& stream = to_error ? std::cerr : std::cout;
    const std::stringstream& console = to_error ? console_err : console_out;
    log->install();
    log->open_log_window();
    std::string burst;
    for (int i = 0; i < 600; ++i) {
        burst += "Info: burst line " + std::to_string(i) + (line_ends ? "\n" : " ");
    }
    QVERIFY(burst.size() > std::size_t{4} * 1022);
    stream << burst << std::flush;
    wait_for_drain();

    QCOMPARE(console.str(), burst);
    QCOMPARE(view(0)->toPlainText(), QString::fromStdString(burst));
}

void tst_application_log::tab_bar_shows_with_second_channel()
{
    log->open_log_window();
    QCOMPARE(tabs()->count(), 1);
    QVERIFY(!tabs()->tabBar()->isVisible());

    log->add_data(QStringLiteral("Converter"), QStringLiteral("first\n"));
    QVERIFY(tabs()->tabBar()->isVisible());
    QCOMPARE(tabs()->tabText(1), QStringLiteral("Converter"));
    QCOMPARE(view(1)->toPlainText(), QStringLiteral("first\n"));
}

void tst_application_log::second_install_changes_nothing()
{
    log->install();
    std::streambuf* const out_tap = std::cout.rdbuf();
    std::streambuf* const err_tap = std::cerr.rdbuf();
    QVERIFY(out_tap != console_out.rdbuf());
    log->install();
    {
        orn::application_log other(nullptr);
        other.install();
        QCOMPARE(orn::application_log::instance(), log);
        QCOMPARE(std::cout.rdbuf(), out_tap);
        QCOMPARE(std::cerr.rdbuf(), err_tap);
    }
    QCOMPARE(std::cout.rdbuf(), out_tap);
    QCOMPARE(std::cerr.rdbuf(), err_tap);
    log->open_log_window();
    std::cout << "once" << std::endl;
    wait_for_drain();
    QCOMPARE(view(0)->toPlainText(), QStringLiteral("once\n"));
    QCOMPARE(console_out.str(), std::string("once\n"));
}

// Qt ends the program when the last window that may quit it closes; it decides
// so only inside the event loop, so the close happens there.
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
    QVERIFY(!window()->isVisible());
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
    log->open_log_window();
    log->add_data(main_name, main_text);
    for (int i = 0; i + 1 < side_channels.size(); i += 2) {
        log->add_data(side_channels[i], side_channels[i + 1]);
    }
    modal_answerer answers;
    answers.expect(modal_answerer::click(QStringLiteral("OK")));
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    button(QStringLiteral("Save to disk"))->click();
    const qint64 after = QDateTime::currentSecsSinceEpoch();

    QVERIFY(answers.done());
    QCOMPARE(answers.seen().front().title, QStringLiteral("Application logs saved"));
    const QString prefix = QStringLiteral("The application logs were saved to\n");
    const QString path = answers.seen().front().text.mid(prefix.size());
    QCOMPARE(answers.seen().front().text, prefix + path);
    const QString name = QFileInfo(path).fileName();
    QCOMPARE(QFileInfo(path).absolutePath(), home.path() + QStringLiteral("/Desktop"));
    QVERIFY2(name.startsWith(main_name + QStringLiteral(" Log ")) && name.endsWith(".log"),
             qPrintable(name));
    const qint64 seconds = name.mid(main_name.size() + 5).chopped(4).toLongLong();
    QVERIFY(seconds >= before && seconds <= after);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    const QString rule(80, QLatin1Char('-'));
    const QStringList head = text.section(QLatin1Char('\n'), 0, 2).split(QLatin1Char('\n'));
    QCOMPARE(head.value(0), "Application: " + main_name + " (1.2.0)");
    QCOMPARE(head.value(1), "Installed at: " + QCoreApplication::applicationDirPath());
    QVERIFY(QDateTime::fromString(head.value(2).mid(6), Qt::TextDate).isValid());
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

void tst_application_log::clear_keeps_what_waits()
{
    log->install();
    log->add_data(main_name, QStringLiteral("old\n"));
    log->add_data(QStringLiteral("Converter"), QStringLiteral("old too\n"));
    std::cout << "waiting" << std::endl;
    modal_answerer answers;
    answers.expect(modal_answerer::click(QStringLiteral("&Yes")));
    button(QStringLiteral("Clear log"))->click();

    QVERIFY(answers.done());
    QCOMPARE(answers.seen().front().text,
             QStringLiteral("Do you really want to clear the application logs?"));
    QCOMPARE(view(1)->toPlainText(), QString());
    log->open_log_window();
    wait_for_drain();
    QCOMPARE(view(0)->toPlainText(), QStringLiteral("waiting\n"));
}

void tst_application_log::network_report_window()
{
    button(QStringLiteral("Network report"))->click();
    QPointer<QTextEdit> report = qobject_cast<QTextEdit*>(QApplication::activeModalWidget());
    QVERIFY(report);
    QCOMPARE(report->windowTitle(), QStringLiteral("Network report"));
    QCOMPARE(report->toPlainText(), orn::network_report());
    QVERIFY(report->isReadOnly());

    report->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(report.isNull());
}

QTEST_MAIN(tst_application_log)
#include "tst_application_log.moc"
