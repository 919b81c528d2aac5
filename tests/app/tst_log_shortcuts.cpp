#include "app/app_resources.h"
#include "app/main_window.h"
#include "orn/application_log.h"
#include "orn/widget_layer.h"

#include "support/modal_answerer.h"
#include "support/test_support.h"

#include <QtTest>

// The main window's keys for the log window and the build identity box, pressed
// as a user presses them.
class tst_log_shortcuts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void log_keys_bring_the_log_up_data();
    void log_keys_bring_the_log_up();
    void information_key_works_from_the_log_window();

private:
    QWidget* log_window() const;

    orn::application_log* log = nullptr;
    MainWindow* window = nullptr;
};

void tst_log_shortcuts::initTestCase()
{
    init_lookwright_resources();
    orn::install_widget_layer();
}

void tst_log_shortcuts::init()
{
    test_support::use_test_settings();
    log = new orn::application_log(qApp);
    window = new MainWindow(nullptr);
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

void tst_log_shortcuts::cleanup()
{
    delete window;
    delete log;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget* tst_log_shortcuts::log_window() const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->windowTitle() == QLatin1String("Application Log")) {
            return widget;
        }
    }
    return nullptr;
}

void tst_log_shortcuts::log_keys_bring_the_log_up_data()
{
    QTest::addColumn<int>("key");

    QTest::newRow("Ctrl+Shift+L") << int(Qt::Key_L);
    QTest::newRow("Ctrl+Shift+R") << int(Qt::Key_R);
}

void tst_log_shortcuts::log_keys_bring_the_log_up()
{
    QFETCH(int, key);

    QVERIFY(!log_window()->isVisible());
    QTest::keyClick(window, Qt::Key(key), Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(log_window()->isVisible());
    // Once more, with the log already open behind the main window: it comes forward.
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, Qt::Key(key), Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(QTest::qWaitForWindowActive(log_window()));
}

// The identity box is wanted from whichever window of the program has the focus.
void tst_log_shortcuts::information_key_works_from_the_log_window()
{
    log->open_log_window();
    log_window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(log_window()));
    modal_answerer answers;
    answers.expect(modal_answerer::click(QStringLiteral("OK")));
    QTest::keyClick(log_window(), Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);

    QTRY_VERIFY(answers.done());
    QCOMPARE(answers.seen().front().title, QStringLiteral("Application Information"));
    QVERIFY(answers.seen().front().text.startsWith(QLatin1String("OS: ")));
}

QTEST_MAIN(tst_log_shortcuts)
#include "tst_log_shortcuts.moc"
