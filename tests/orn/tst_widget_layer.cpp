#include "orn/message_handler.h"

#include "support/modal_answerer.h"

#include <QMessageBox>
#include <QtTest>

#include <iostream>
#include <sstream>

class tst_widget_layer : public QObject
{
    Q_OBJECT

private slots:
    void fatal_message_shows_box_after_the_line();
};

void tst_widget_layer::fatal_message_shows_box_after_the_line()
{
    // Nothing here installs the layer: linking it is enough. The box names the
    // program by its display name.
    QCoreApplication::setApplicationName(QStringLiteral("lookwright"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Lookwright"));
    qSetMessagePattern(QString::fromLatin1(orn::message_pattern));

    std::ostringstream console;
    std::streambuf* const previous = std::cerr.rdbuf(console.rdbuf());
    QString console_at_box;
    bool parentless = false;
    modal_answerer answers;
    answers.expect([&](QWidget* dialog) {
        console_at_box = QString::fromStdString(console.str());
        parentless = dialog->parentWidget() == nullptr;
        modal_answerer::click("OK")(dialog);
    });
    // The handler is called as Qt would call it; qFatal itself would end the test.
    orn::message_handler(QtFatalMsg, QMessageLogContext(), QStringLiteral("the disk is gone"));
    std::cerr.rdbuf(previous);

    QVERIFY(answers.done());
    const modal_answerer::seen_dialog& box = answers.seen().front();
    QCOMPARE(box.title, QStringLiteral("Fatal error"));
    QCOMPARE(box.text, QStringLiteral("Lookwright encountered a fatal error and must be "
                                      "terminated:\nthe disk is gone"));
    QCOMPARE(box.buttons, QStringList{QStringLiteral("OK")});
    QVERIFY(parentless);
    QVERIFY2(console_at_box.startsWith("Fatal: ") && console_at_box.endsWith(" the disk is gone\n"),
             qPrintable(console_at_box));
}

QTEST_MAIN(tst_widget_layer)
#include "tst_widget_layer.moc"
