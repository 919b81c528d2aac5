#include "orn/clickable_label.h"
#include "orn/dialog_3rd_part_lib_info.h"
#include "orn/dialog_about.h"
#include "orn/label.h"

#include "support/modal_answerer.h"

#include <QLabel>
#include <QtTest>

// The test carries a 200 x 50 logo of one colour at the program's logo path;
// taking it out shows the box as it is without one.
static void remove_test_logo()
{
    Q_CLEANUP_RESOURCE(test_logo);
}

namespace {

const QColor logo_colour(200, 40, 40);
const QColor header_colour(0, 0, 255);
const QString header_style = QStringLiteral("#logobg{ background-color:rgb(0,0,255);}");

} // namespace

class tst_dialog_about : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void header_and_logo_data();
    void header_and_logo();
    void version_with_word_size();
    void link_opens_library_list_data();
    void link_opens_library_list();
    void library_list_readable_from_plain_parent();
};

void tst_dialog_about::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("Lookwright"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0"));
}

void tst_dialog_about::header_and_logo_data()
{
    QTest::addColumn<bool>("with_logo");
    QTest::addColumn<QSize>("logo_size");

    QTest::newRow("logo keeps its aspect at the reduced height") << true << QSize(348, 87);
    QTest::newRow("no logo: empty header") << false << QSize(0, 87);
}

void tst_dialog_about::header_and_logo()
{
    QFETCH(bool, with_logo);
    QFETCH(QSize, logo_size);
    if (!with_logo) {
        remove_test_logo();
    }

    orn::dialog_about about(nullptr, header_style, 97, 10);
    auto* header = about.findChild<QWidget*>(QStringLiteral("logobg"));
    QVERIFY(header != nullptr);
    auto* logo = header->findChild<orn::label*>();
    QVERIFY(logo != nullptr);
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));

    QCOMPARE(header->height(), 97);
    QCOMPARE(logo->size(), logo_size);
    const QImage shot = about.grab().toImage();
    QCOMPARE(shot.pixelColor(1, 1), header_colour);
    const QPoint centre = header->geometry().center();
    QCOMPARE(shot.pixelColor(centre), with_logo ? logo_colour : header_colour);
}

void tst_dialog_about::version_with_word_size()
{
    orn::dialog_about about(nullptr, header_style, 97, 10);
    QStringList texts;
    for (const QLabel* label : about.findChildren<QLabel*>()) {
        texts << label->text();
    }
    QVERIFY2(texts.contains("1.2.0 - " + QString::number(QSysInfo::WordSize) + " Bit"),
             qPrintable(texts.join('|')));
}

void tst_dialog_about::link_opens_library_list_data()
{
    QTest::addColumn<bool>("with_first");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("absent");

    QTest::newRow("as this program runs it")
        << false << QStringList{"Qt 5.9.6", "Little CMS"} << QStringList{"FreeImage"};
    QTest::newRow("with the first switch")
        << true << QStringList{"Qt 5.9.6", "Little CMS", "FreeImage"} << QStringList{};
}

void tst_dialog_about::link_opens_library_list()
{
    QFETCH(bool, with_first);
    QFETCH(QStringList, expected);
    QFETCH(QStringList, absent);

    orn::dialog_about about(nullptr, header_style, 97, 10);
    about.set_3rdparty_libs(orn::dialog_about::default_3rdparty_libs(with_first, false));
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));

    QStringList texts;
    QWidget* parent = nullptr;
    bool fixed_size = false;
    modal_answerer answers;
    answers.expect([&](QWidget* dialog) {
        parent = dialog->parentWidget();
        fixed_size = dialog->minimumSize() == dialog->maximumSize();
        for (const QLabel* label : dialog->findChildren<QLabel*>()) {
            texts << label->text();
        }
        modal_answerer::cancel()(dialog);
    });
    auto* link = about.findChild<orn::clickable_label*>();
    QVERIFY(link != nullptr);
    QTest::mousePress(link, Qt::LeftButton);

    QVERIFY(answers.done());
    QCOMPARE(answers.seen().front().class_name, QStringLiteral("orn::dialog_3rd_part_lib_info"));
    QCOMPARE(answers.seen().front().title, QStringLiteral("About 3rd party libraries"));
    QCOMPARE(parent, &about);
    QVERIFY(fixed_size);
    QVERIFY(
        texts.contains("Lookwright uses the following open source and/or 3rd party libraries:"));
    for (const QString& name : expected) {
        QVERIFY2(texts.contains(name), qPrintable(name));
    }
    for (const QString& name : absent) {
        QVERIFY2(!texts.contains(name), qPrintable(name));
    }
}

void tst_dialog_about::library_list_readable_from_plain_parent()
{
    QWidget parent;
    QStringList dark_labels;
    modal_answerer answers;
    answers.expect([&](QWidget* dialog) {
        for (const QLabel* label : dialog->findChildren<QLabel*>()) {
            if (label->palette().color(QPalette::WindowText) != QColor(198, 213, 210)) {
                dark_labels << label->text();
            }
        }
        modal_answerer::cancel()(dialog);
    });
    orn::dialog_about::default_3rdparty_libs(false, false)(&parent);

    QVERIFY(answers.done());
    QVERIFY2(dark_labels.isEmpty(), qPrintable(dark_labels.join('|')));
}

QTEST_MAIN(tst_dialog_about)
#include "tst_dialog_about.moc"
