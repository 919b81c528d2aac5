#include "app/app_resources.h"
#include "app/catalogues.h"
#include "app/main_window.h"

#include "support/modal_answerer.h"
#include "support/test_support.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QtTest>

// A start in German, with the three catalogues loaded by the program's own function:
// Qt's, the program's and the toolkit's. The window and its dialogs must
// speak German, except for the texts that have no German row and stay English
// (the folder dialog's title here; the catalogue check covers the others).
class tst_german_start : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void the_window_speaks_german();
    void the_settings_dialog_speaks_german();
    void the_folder_dialog_stays_english();

private:
    QPushButton* button_with_tip(const QString& tip) const;

    std::unique_ptr<MainWindow> window;
};

void tst_german_start::initTestCase()
{
    init_lookwright_resources();
    test_support::use_test_settings();
    QSettings().setValue(QStringLiteral("lang"), QStringLiteral("de"));
    QCOMPARE(install_catalogues(QStringLiteral("de")), QStringList());
    window = std::make_unique<MainWindow>(nullptr);
}

QPushButton* tst_german_start::button_with_tip(const QString& tip) const
{
    for (QPushButton* button : window->findChildren<QPushButton*>()) {
        if (button->toolTip() == tip) {
            return button;
        }
    }
    return nullptr;
}

void tst_german_start::the_window_speaks_german()
{
    QStringList shown;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        shown << widget->toolTip();
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            shown << label->text();
        }
    }
    for (const char* text :
         {"Ausgabeordner", "Ausgabeordner für konvertierte Lightroom Presets wählen.",
          "Lightroom Preset(s) laden und zu Capture One konvertieren.", "Einstellungen anzeigen",
          "Informationen über die Anwendung anzeigen",
          "Die Hilfeseite für dieses Programm anzeigen"}) {
        QVERIFY2(shown.contains(QString::fromUtf8(text)), text);
    }
}

void tst_german_start::the_settings_dialog_speaks_german()
{
    QPushButton* settings_button = button_with_tip(QStringLiteral("Einstellungen anzeigen"));
    QVERIFY(settings_button != nullptr);
    QString title;
    QStringList labels;
    QStringList items;
    modal_answerer answers;
    answers.expect([&](QWidget* dialog) {
        title = dialog->windowTitle();
        for (QLabel* label : dialog->findChildren<QLabel*>()) {
            labels << label->text();
        }
        for (QComboBox* row : dialog->findChildren<QComboBox*>()) {
            for (int i = 0; i < row->count(); ++i) {
                items << row->itemText(i);
            }
        }
        // Choosing English brings the language question, from the toolkit's catalogue.
        QComboBox* language = dialog->findChildren<QComboBox*>().value(2);
        language->setCurrentIndex(language->findData(QStringLiteral("en")));
        dialog->close();
    });
    answers.expect(modal_answerer::click(QStringLiteral("Weiterarbeiten")));
    settings_button->click();

    QCOMPARE(title, QString("Einstellungen"));
    QCOMPARE(labels, QStringList({"Format", "Farbraum", "Sprache"}));
    QCOMPARE(items, QStringList({"Separate Styles", "Stylepack", "Stylepack mit Kategorie", "RAW",
                                 "JPG/TIF/etc. Adobe RGB", "JPG/TIF/etc. sRGB",
                                 "JPG/TIF/etc. ProPhoto RGB", "JPG/TIF/etc. Wide Gamut RGB",
                                 "English", "Deutsch"}));
    QCOMPARE(answers.seen().size(), size_t(2));
    const modal_answerer::seen_dialog& question = answers.seen().back();
    QCOMPARE(question.title, QString("Anwendungssprache geändert"));
    QCOMPARE(question.buttons, QStringList({"Weiterarbeiten", "Anwendung jetzt Beenden"}));
}

void tst_german_start::the_folder_dialog_stays_english()
{
    QPushButton* folder_button =
        button_with_tip(QStringLiteral("Ausgabeordner für konvertierte Lightroom Presets wählen."));
    QVERIFY(folder_button != nullptr);
    modal_answerer answers;
    answers.expect(modal_answerer::cancel());
    folder_button->click();
    QCOMPARE(answers.seen().size(), size_t(1));
    QCOMPARE(answers.seen().front().title, QString("Select output folder"));
}

QTEST_MAIN(tst_german_start)

#include "tst_german_start.moc"
