#include "app/app_resources.h"
#include "app/main_window.h"
#include "orn/application_log.h"
#include "orn/component_versions.h"

#include "support/modal_answerer.h"
#include "support/test_support.h"

#include <QtTest>

#include <memory>

namespace {

QWidget* log_window()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->windowTitle() == QLatin1String("Application Log")) {
            return widget;
        }
    }
    return nullptr;
}

} // namespace

// The main window's keys for the log window and the build identity box, pressed
// as a user presses them, with the log made as the program makes it.
class tst_log_shortcuts : public QObject
{
    Q_OBJECT

private slots:
    void keys_open_the_log_and_the_identity_box();
};

// Ctrl+Shift+L works in the main window; Ctrl+Shift+G is wanted from whichever
// window of the program has the focus, here the log window.
void tst_log_shortcuts::keys_open_the_log_and_the_identity_box()
{
    init_lookwright_resources();
    test_support::use_test_settings();
    auto log = std::make_unique<orn::application_log>(qApp);
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(!log_window()->isVisible());
    QTest::keyClick(&window, Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(log_window()->isVisible());

    log_window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(log_window()));
    modal_answerer answers;
    answers.expect(modal_answerer::click(QStringLiteral("OK")));
    QTest::keyClick(log_window(), Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(answers.done());
    QCOMPARE(answers.seen().front().title, QStringLiteral("Application Information"));
    const QString text = answers.seen().front().text;
    QVERIFY2(text.startsWith(QLatin1String("OS: ")), qPrintable(text));
    QVERIFY2(text.endsWith("\n" + QString::fromStdString(orn::component_report())),
             qPrintable(text));
    // The log hands its window over for deletion; let that happen before the end.
    log.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QTEST_MAIN(tst_log_shortcuts)
#include "tst_log_shortcuts.moc"
