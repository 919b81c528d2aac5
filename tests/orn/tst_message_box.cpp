#include "orn/message_box.h"

#include "support/modal_answerer.h"
#include "support/test_support.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using orn::message_box;
using button = QMessageBox::StandardButton;
using buttons = QMessageBox::StandardButtons;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)
Q_DECLARE_METATYPE(QMessageBox::Icon)

namespace {

// The entry points with caller-given labels, as the rows of a table name them.
enum class labelled
{
    question_two,
    question_three,
    question_four,
    critical_two,
};

button ask(labelled entry, button default_button)
{
    const QString title = QStringLiteral("Preset");
    const QString text = QStringLiteral("Convert it?");
    switch (entry) {
    case labelled::question_two:
        return message_box::question(nullptr, title, text, "Convert", "Skip", default_button);
    case labelled::question_three:
        return message_box::question(nullptr, title, text, "Convert", "Skip", "Stop",
                                     default_button);
    case labelled::question_four:
        return message_box::question(nullptr, title, text, "Convert", "Skip", "Convert All",
                                     "Skip All", default_button);
    case labelled::critical_two:
        break;
    }
    return message_box::critical(nullptr, title, text, "Convert", "Skip", default_button);
}

} // namespace

Q_DECLARE_METATYPE(labelled)

class tst_message_box : public QObject
{
    Q_OBJECT

private slots:
    void default_button_data();
    void default_button();
    void answer_without_a_click_is_cancel_data();
    void answer_without_a_click_is_cancel();
    void labelled_buttons_data();
    void labelled_buttons();
    void icon_label_styled();
};

void tst_message_box::default_button_data()
{
    QTest::addColumn<buttons>("mask");
    QTest::addColumn<button>("given");
    QTest::addColumn<button>("expected");

    QTest::newRow("none given: ok before cancel") << buttons(QMessageBox::Ok | QMessageBox::Cancel)
                                                  << QMessageBox::NoButton << QMessageBox::Ok;
    QTest::newRow("none given: first accepting bit, save before open")
        << buttons(QMessageBox::Open | QMessageBox::Save) << QMessageBox::NoButton
        << QMessageBox::Save;
    QTest::newRow("none given: retry accepts, cancel doesn't")
        << buttons(QMessageBox::Cancel | QMessageBox::Retry) << QMessageBox::NoButton
        << QMessageBox::Retry;
    QTest::newRow("none given: yes and no accept nothing")
        << buttons(QMessageBox::Yes | QMessageBox::No) << QMessageBox::NoButton
        << QMessageBox::NoButton;
    QTest::newRow("given and in the mask")
        << buttons(QMessageBox::Yes | QMessageBox::No) << QMessageBox::No << QMessageBox::No;
    QTest::newRow("given but not in the mask") << buttons(QMessageBox::Ok | QMessageBox::Cancel)
                                               << QMessageBox::Yes << QMessageBox::NoButton;
}

void tst_message_box::default_button()
{
    QFETCH(buttons, mask);
    QFETCH(button, given);
    QFETCH(button, expected);

    button seen_default = QMessageBox::Abort;
    modal_answerer answers;
    answers.expect([&](QWidget* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        QPushButton* chosen = box->defaultButton();
        seen_default = chosen != nullptr ? box->standardButton(chosen) : QMessageBox::NoButton;
        box->buttons().constFirst()->click();
    });
    message_box::information(nullptr, "Title", "Text", mask, given);

    QVERIFY(answers.done());
    QCOMPARE(seen_default, expected);
}

void tst_message_box::answer_without_a_click_is_cancel_data()
{
    QTest::addColumn<buttons>("mask");
    QTest::addColumn<bool>("reject");
    QTest::addColumn<button>("expected");
    QTest::addColumn<QString>("logged");

    // Qt refuses to close a box that has no button to stand for Escape; a box that
    // goes away all the same, without a click, answers Cancel.
    QTest::newRow("four buttons, rejected") << buttons(QMessageBox::Yes | QMessageBox::YesToAll |
                                                       QMessageBox::No | QMessageBox::NoToAll)
                                            << true << QMessageBox::Cancel << "Cancel";
    QTest::newRow("yes and no, rejected")
        << buttons(QMessageBox::Yes | QMessageBox::No) << true << QMessageBox::Cancel << "Cancel";
    QTest::newRow("one button, closed: the button answers")
        << buttons(QMessageBox::Ok) << false << QMessageBox::Ok << "OK";
}

void tst_message_box::answer_without_a_click_is_cancel()
{
    QFETCH(buttons, mask);
    QFETCH(bool, reject);
    QFETCH(button, expected);
    QFETCH(QString, logged);

    test_support::log_capture log;
    modal_answerer answers;
    answers.expect(reject ? modal_answerer::cancel() : modal_answerer::close());
    const button answer = message_box::warning(nullptr, "Disk", "Nearly \"full\"", mask);

    QCOMPARE(answer, expected);
    QCOMPARE(log.messages(QtDebugMsg),
             QStringList{QStringLiteral("MessageBox \"Disk\" \"Nearly \"full\"\": ") + logged});
}

void tst_message_box::labelled_buttons_data()
{
    QTest::addColumn<labelled>("entry");
    QTest::addColumn<button>("given");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QString>("default_label");
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<button>("expected");
    QTest::addColumn<QMessageBox::Icon>("icon");

    const QStringList two{"Convert", "Skip"};
    const QStringList four{"Convert", "Convert All", "Skip", "Skip All"};
    QTest::newRow("two texts: no") << labelled::question_two << QMessageBox::Yes << two << "Convert"
                                   << "Skip" << QMessageBox::No << QMessageBox::Question;
    QTest::newRow("three texts: cancel") << labelled::question_three << QMessageBox::No
                                         << QStringList{"Convert", "Skip", "Stop"} << "Skip"
                                         << "Stop" << QMessageBox::Cancel << QMessageBox::Question;
    QTest::newRow("four texts: yes")
        << labelled::question_four << QMessageBox::Yes << four << "Convert"
        << "Convert" << QMessageBox::Yes << QMessageBox::Question;
    QTest::newRow("four texts: yes to all")
        << labelled::question_four << QMessageBox::Yes << four << "Convert"
        << "Convert All" << QMessageBox::YesToAll << QMessageBox::Question;
    QTest::newRow("four texts: no")
        << labelled::question_four << QMessageBox::NoToAll << four << "Skip All"
        << "Skip" << QMessageBox::No << QMessageBox::Question;
    QTest::newRow("four texts: no to all")
        << labelled::question_four << QMessageBox::Yes << four << "Convert"
        << "Skip All" << QMessageBox::NoToAll << QMessageBox::Question;
    QTest::newRow("critical two texts: yes")
        << labelled::critical_two << QMessageBox::No << two << "Skip"
        << "Convert" << QMessageBox::Yes << QMessageBox::Critical;
}

void tst_message_box::labelled_buttons()
{
    QFETCH(labelled, entry);
    QFETCH(button, given);
    QFETCH(QStringList, labels);
    QFETCH(QString, default_label);
    QFETCH(QString, clicked);
    QFETCH(button, expected);
    QFETCH(QMessageBox::Icon, icon);

    test_support::log_capture log;
    QMessageBox::Icon seen_icon = QMessageBox::NoIcon;
    modal_answerer answers;
    answers.expect([&](QWidget* dialog) {
        seen_icon = qobject_cast<QMessageBox*>(dialog)->icon();
        modal_answerer::click(clicked)(dialog);
    });
    const button answer = ask(entry, given);

    QCOMPARE(answer, expected);
    QCOMPARE(seen_icon, icon);
    QStringList shown = answers.seen().front().buttons;
    shown.sort();
    labels.sort();
    QCOMPARE(shown, labels);
    QCOMPARE(answers.seen().front().default_button, default_label);
    QVERIFY(log.contains(QtDebugMsg, "MessageBox \"Preset\" \"Convert it?\": " + clicked));
}

void tst_message_box::icon_label_styled()
{
    QString sheet;
    modal_answerer answers;
    answers.expect([&](QWidget* dialog) {
        if (auto* icon = dialog->findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"))) {
            sheet = icon->styleSheet();
        }
        modal_answerer::click("OK")(dialog);
    });
    message_box::critical(nullptr, "Title", "Text");

    QVERIFY2(sheet.contains("color: rgb(184,196,191)"), qPrintable(sheet));
}

QTEST_MAIN(tst_message_box)
#include "tst_message_box.moc"
