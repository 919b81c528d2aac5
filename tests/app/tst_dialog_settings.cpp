#include "app/dialog_settings.h"

#include "orn/current_language.h"
#include "support/modal_answerer.h"
#include "support/test_support.h"

#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QProcess>
#include <QSettings>
#include <QTimer>
#include <QtTest>

#include <cstring>

namespace {

// What the user does in the dialog before closing it: the rows to choose, by
// stored value, in this order. Rows are format, colour space and language.
using choices = QList<QPair<int, QString>>;

modal_answerer::answer choose_and_close(const choices& steps, QStringList* shown = nullptr)
{
    return [steps, shown](QWidget* dialog) {
        const QList<QComboBox*> rows = dialog->findChildren<QComboBox*>();
        if (shown != nullptr) {
            for (QComboBox* row : rows) {
                *shown << row->currentData().toString();
            }
        }
        for (const auto& step : steps) {
            QComboBox* row = rows.value(step.first);
            row->setCurrentIndex(row->findData(step.second));
        }
        dialog->close();
    };
}

// One visit of the settings button, as the main window makes it: the dialog, then
// the language question, which is answered "Continue working" if it comes.
struct visit_result
{
    bool quit = false;
    QStringList shown;  // the rows' values as the dialog opened
    QStringList titles; // of the dialogs the user met
};

visit_result visit(QSettings& settings, const choices& steps, const QString& previous)
{
    visit_result result;
    modal_answerer answers;
    answers.expect(choose_and_close(steps, &result.shown));
    answers.expect(modal_answerer::click(QStringLiteral("Continue working")));
    {
        dialog_settings dialog(&settings, nullptr);
        dialog.exec();
        result.quit = confirm_language_change(nullptr, previous);
    }
    for (const auto& seen : answers.seen()) {
        result.titles << seen.title;
    }
    return result;
}

// The language the program starts in when none is stored; the suite runs once under
// an English and once under a German system locale.
QString system_language()
{
    return QLocale::system().language() == QLocale::German ? QStringLiteral("de")
                                                           : QStringLiteral("en");
}

QMap<QString, QString> stored()
{
    QSettings settings;
    QMap<QString, QString> values;
    for (const QString& key : settings.allKeys()) {
        values.insert(key, settings.value(key).toString());
    }
    return values;
}

} // namespace

class tst_dialog_settings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void opening_shows_the_stored_values_and_stores_nothing_data();
    void opening_shows_the_stored_values_and_stores_nothing();
    void a_change_stores_all_three_data();
    void a_change_stores_all_three();
    void a_language_changed_back_asks_nothing();
    void german_system_without_lang_data();
    void german_system_without_lang();
    void the_question_quits_on_quit_now_data();
    void the_question_quits_on_quit_now();
};

void tst_dialog_settings::initTestCase() {}

void tst_dialog_settings::init()
{
    test_support::use_test_settings();
}

void tst_dialog_settings::opening_shows_the_stored_values_and_stores_nothing_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("colorspace");
    QTest::addColumn<QString>("lang");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("first start") << ""
                                 << ""
                                 << "" << QStringList{"separate", "raw", system_language()};
    QTest::newRow("known values") << "stylepack"
                                  << "widegamut"
                                  << "de" << QStringList{"stylepack", "widegamut", "de"};
    QTest::newRow("third format") << "stylepack_category"
                                  << "adobe"
                                  << "en" << QStringList{"stylepack_category", "adobe", "en"};
    QTest::newRow("foreign texts") << "zip"
                                   << "Adobe"
                                   << "fr" << QStringList{"stylepack_category", "raw", "en"};
}

void tst_dialog_settings::opening_shows_the_stored_values_and_stores_nothing()
{
    QFETCH(QString, format);
    QFETCH(QString, colorspace);
    QFETCH(QString, lang);
    QFETCH(QStringList, shown);
    QSettings settings;
    const QStringList keys{"format", "colorspace", "lang"};
    const QStringList values{format, colorspace, lang};
    for (int i = 0; i < keys.size(); ++i) {
        if (!values.at(i).isEmpty()) {
            settings.setValue(keys.at(i), values.at(i));
        }
    }
    const QMap<QString, QString> before = stored();

    const visit_result result = visit(settings, {}, lang.isEmpty() ? system_language() : lang);

    QCOMPARE(result.shown, shown);
    QCOMPARE(result.titles, QStringList{"Settings"});
    QCOMPARE(stored(), before);
}

void tst_dialog_settings::a_change_stores_all_three_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<choices>("steps");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("format alone pins the language")
        << "" << choices{{0, "stylepack"}} << QStringList{"stylepack", "raw", system_language()};
    QTest::newRow("colour space alone")
        << "" << choices{{1, "prophoto"}} << QStringList{"separate", "prophoto", system_language()};
    QTest::newRow("a foreign format becomes the third row")
        << "zip" << choices{{1, "srgb"}}
        << QStringList{"stylepack_category", "srgb", system_language()};
}

void tst_dialog_settings::a_change_stores_all_three()
{
    QFETCH(QString, format);
    QFETCH(choices, steps);
    QFETCH(QStringList, expected);
    QSettings settings;
    if (!format.isEmpty()) {
        settings.setValue("format", format);
    }
    QCOMPARE(visit(settings, steps, system_language()).titles, QStringList{"Settings"});
    const QMap<QString, QString> values = stored();
    QCOMPARE(values.keys(), QStringList({"colorspace", "format", "lang"}));
    QCOMPARE(QStringList({values["format"], values["colorspace"], values["lang"]}), expected);
}

void tst_dialog_settings::a_language_changed_back_asks_nothing()
{
    QSettings settings;
    const visit_result result = visit(settings, {{2, "de"}, {2, "en"}}, "en");
    QCOMPARE(result.titles, QStringList{"Settings"});
    QCOMPARE(stored().value("lang"), QString("en"));
}

// The system locale is read once per process, so the German system is a child
// process of this test, started with LC_ALL=de_DE.UTF-8 and "--german-visit".
void tst_dialog_settings::german_system_without_lang_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("expected");
    QTest::newRow("English asks") << "en"
                                  << "Settings|Application language changed";
    QTest::newRow("English, then German again, asks nothing") << "en,de"
                                                              << "Settings";
}

void tst_dialog_settings::german_system_without_lang()
{
    QFETCH(QString, chosen);
    QFETCH(QString, expected);
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "de_DE.UTF-8");
    environment.insert("LANG", "de_DE.UTF-8");
    environment.insert("LANGUAGE", "");
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {"--german-visit", chosen});
    QVERIFY(child.waitForFinished(60000));
    QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()), expected);
}

void tst_dialog_settings::the_question_quits_on_quit_now_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("quits");
    QTest::newRow("Quit now") << "Quit now" << true;
    QTest::newRow("Continue working") << "Continue working" << false;
}

void tst_dialog_settings::the_question_quits_on_quit_now()
{
    QFETCH(QString, button);
    QFETCH(bool, quits);
    QSettings().setValue("lang", "de");
    modal_answerer answers;
    answers.expect(modal_answerer::click(button));

    // The question runs inside an event loop, as it does after the settings button;
    // "Quit now" must ask that loop to end.
    QEventLoop loop;
    bool quit = false;
    bool loop_ended = false;
    QTimer start;
    start.setSingleShot(true);
    connect(&start, &QTimer::timeout, &loop, [&] {
        quit = confirm_language_change(nullptr, "en");
        loop_ended = !loop.isRunning();
        loop.exit();
    });
    start.start(0);
    loop.exec();
    QCOMPARE(loop_ended, quits);
    QCOMPARE(quit, quits);
    if (quits) {
        // An application told to quit lets no event loop of this thread start again
        // until its own has run; run it once, so that later tests get their dialogs.
        QTimer stop;
        stop.setSingleShot(true);
        connect(&stop, &QTimer::timeout, qApp, &QCoreApplication::quit);
        stop.start(0);
        QCoreApplication::exec();
    }

    QCOMPARE(answers.seen().size(), size_t(1));
    const modal_answerer::seen_dialog& box = answers.seen().front();
    QCOMPARE(box.title, QString("Application language changed"));
    QCOMPARE(box.buttons, QStringList({"Continue working", "Quit now"}));
    QCOMPARE(box.default_button, QString("Continue working"));
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--german-visit") == 0) {
        test_support::use_test_settings();
        choices steps;
        for (const QString& lang : QString::fromLatin1(argv[2]).split(',')) {
            steps << qMakePair(2, lang);
        }
        QSettings settings;
        const visit_result result = visit(settings, steps, orn::current_language("lang"));
        std::fputs(qPrintable(result.titles.join('|')), stdout);
        return 0;
    }
    tst_dialog_settings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialog_settings.moc"
