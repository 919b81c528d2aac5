#include "app/app_resources.h"
#include "app/main_window.h"
#include "orn/button_dark.h"
#include "orn/clickable_label.h"
#include "orn/lineedit.h"

#include "support/modal_answerer.h"
#include "support/test_support.h"

#include <QAbstractItemView>
#include <QFileDialog>
#include <QLabel>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

// The main window as the user meets it: its real buttons clicked, its real dialogs
// answered as they open, its settings in the test's own store.
class tst_main_window : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void first_start_shows_the_pictures_folder();
    void folder_chooser_data();
    void folder_chooser();
    void only_the_width_changes();
    void folder_label_is_bold_free_sans();
    void about_box_leads_to_the_libraries();
};

namespace {

const QString folder_tip =
    QStringLiteral("Select the folder where the converted Lightroom presets will be saved.");

QString pictures_folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

orn::button_dark* button_with_tip(const MainWindow& window, const QString& tip)
{
    for (auto* button : window.findChildren<orn::button_dark*>()) {
        if (button->toolTip() == tip) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

void tst_main_window::initTestCase()
{
    init_lookwright_resources();
}

void tst_main_window::init()
{
    test_support::use_test_settings();
    // A user's pictures folder exists; without it the dialog would start elsewhere.
    QVERIFY(QDir().mkpath(pictures_folder()));
}

void tst_main_window::first_start_shows_the_pictures_folder()
{
    {
        MainWindow window(nullptr);
        QCOMPARE(window.findChild<orn::lineedit*>()->text(), pictures_folder());
    }
    // Showing the default stores nothing, also when the window is gone.
    QVERIFY(QSettings().allKeys().isEmpty());
}

void tst_main_window::folder_chooser_data()
{
    QTest::addColumn<QString>("stored");   // relative to a scratch folder; empty: nothing stored
    QTest::addColumn<QString>("chosen");   // likewise; empty: the dialog is cancelled
    QTest::addColumn<QString>("expected"); // the line and the setting afterwards

    const QString none;
    const QString earlier = "earlier";
    const QString styles = "styles";
    QTest::newRow("cancelled on a first start") << none << none << none;
    QTest::newRow("cancelled with a folder stored") << earlier << none << earlier;
    QTest::newRow("chosen on a first start") << none << styles << styles;
    QTest::newRow("chosen over a stored folder") << earlier << styles << styles;
}

void tst_main_window::folder_chooser()
{
    QFETCH(QString, stored);
    QFETCH(QString, chosen);
    QFETCH(QString, expected);
    QTemporaryDir scratch;
    QVERIFY(QDir(scratch.path()).mkpath("earlier") && QDir(scratch.path()).mkpath("styles"));
    const auto in_scratch = [&scratch](const QString& name) {
        return name.isEmpty() ? QString() : scratch.path() + '/' + name;
    };
    if (!stored.isEmpty()) {
        QSettings().setValue("output_dir", in_scratch(stored));
    }

    MainWindow window(nullptr);
    window.show();
    modal_answerer answers;
    QString start_folder;
    QPalette list_palette;
    answers.expect([&](QWidget* dialog) {
        start_folder = qobject_cast<QFileDialog*>(dialog)->directory().path();
        list_palette = dialog->findChild<QAbstractItemView*>("treeView")->palette();
        if (chosen.isEmpty()) {
            modal_answerer::cancel()(dialog);
        } else {
            modal_answerer::choose_files({in_scratch(chosen)})(dialog);
        }
    });
    QTest::mouseClick(button_with_tip(window, folder_tip), Qt::LeftButton);

    QVERIFY(answers.done());
    QCOMPARE(answers.seen().front().title, QString("Select output folder"));
    QCOMPARE(start_folder, stored.isEmpty() ? pictures_folder() : in_scratch(stored));
    // The window's light text stands on a dark ground in the dialog too.
    QVERIFY(list_palette.color(QPalette::Base).lightness() < 64);
    QVERIFY(list_palette.color(QPalette::Text).lightness() > 160);
    const QString shown = expected.isEmpty() ? pictures_folder() : in_scratch(expected);
    QCOMPARE(window.findChild<orn::lineedit*>()->text(), shown);
    QCOMPARE(QSettings().value("output_dir").toString(), in_scratch(expected));
}

void tst_main_window::only_the_width_changes()
{
    MainWindow window(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* line = window.findChild<orn::lineedit*>();
    const QSize before = window.size();
    const int line_before = line->width();

    window.resize(before.width() + 200, before.height() + 100);
    QTRY_COMPARE(window.width(), before.width() + 200);
    QCOMPARE(window.height(), before.height());
    QCOMPARE(line->width(), line_before + 200);

    // At its narrowest the window still shows the whole header.
    window.resize(1, before.height());
    QTRY_VERIFY(window.width() < before.width() + 200);
    auto* help = button_with_tip(window, "Display the help page for this program");
    QVERIFY(help->geometry().right() < help->parentWidget()->width());
    QVERIFY(help->x() > button_with_tip(window, "Show information about this program")->x());
    for (auto* label : window.findChildren<QLabel*>()) {
        const QPixmap logo = label->pixmap(Qt::ReturnByValue);
        if (!logo.isNull()) {
            QCOMPARE(label->size(), logo.size());
        }
    }
}

void tst_main_window::folder_label_is_bold_free_sans()
{
    MainWindow window(nullptr);
    QLabel* label = nullptr;
    for (auto* candidate : window.findChildren<QLabel*>()) {
        if (candidate->text() == "Output Folder") {
            label = candidate;
        }
    }
    if (label == nullptr) {
        QFAIL("no label reads \"Output Folder\"");
    }
    const QFontInfo shown(label->font());
    QCOMPARE(shown.family(), QString("FreeSans"));
    QVERIFY(shown.bold());
    QCOMPARE(shown.pointSize(), 11);
}

void tst_main_window::about_box_leads_to_the_libraries()
{
    MainWindow window(nullptr);
    window.move(300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    // The link opens a modal dialog of its own, which the next answer can meet only
    // once this one has returned: the link is pressed from the event loop.
    QPointer<orn::clickable_label> link;
    QTimer press_link;
    press_link.setSingleShot(true);
    connect(&press_link, &QTimer::timeout, [&link] { QTest::mouseClick(link, Qt::LeftButton); });

    modal_answerer answers;
    QWidget* about_parent = nullptr;
    Qt::WindowModality modality = Qt::NonModal;
    QPoint about_centre;
    answers.expect([&](QWidget* dialog) {
        about_parent = dialog->parentWidget();
        modality = dialog->windowModality();
        about_centre = dialog->geometry().center();
        link = dialog->findChild<orn::clickable_label*>();
        press_link.start(0);
    });
    answers.expect(modal_answerer::close());
    answers.expect(modal_answerer::close());
    QTest::mouseClick(button_with_tip(window, "Show information about this program"),
                      Qt::LeftButton);

    QVERIFY(answers.done());
    QCOMPARE(answers.seen().size(), std::size_t(3));
    QCOMPARE(answers.seen()[0].class_name, QString("orn::dialog_about"));
    QCOMPARE(about_parent, static_cast<QWidget*>(&window));
    QCOMPARE(modality, Qt::ApplicationModal);
    // Half a pixel of rounding on each axis.
    QVERIFY((about_centre - window.geometry().center()).manhattanLength() <= 2);
    QCOMPARE(answers.seen()[1].title, QString("About 3rd party libraries"));
    QCOMPARE(answers.seen()[2].class_name, QString("orn::dialog_about"));
}

QTEST_MAIN(tst_main_window)
#include "tst_main_window.moc"
