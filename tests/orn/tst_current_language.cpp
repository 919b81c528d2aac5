#include "orn/current_language.h"
#include "orn/device_configuration.h"

#include "support/test_support.h"

#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>

// The system locale is read once per process, so each system language is tried in
// a child process of this very executable, started with "--print-language".
class tst_current_language : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void stored_text_stands_as_it_is_data();
    void stored_text_stands_as_it_is();
    void empty_store_follows_the_system_data();
    void empty_store_follows_the_system();
    void device_configuration_data();
    void device_configuration();
};

void tst_current_language::init()
{
    test_support::use_test_settings();
}

void tst_current_language::stored_text_stands_as_it_is_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("German") << "de";
    QTest::newRow("French, which has no catalogue") << "fr";
    QTest::newRow("a code nobody knows") << "xx";
}

void tst_current_language::stored_text_stands_as_it_is()
{
    QFETCH(QString, stored);
    QSettings().setValue("lang", stored);
    QCOMPARE(orn::current_language("lang"), stored);
}

void tst_current_language::empty_store_follows_the_system_data()
{
    QTest::addColumn<QString>("system_locale");
    QTest::addColumn<QString>("expected");
    QTest::newRow("English system") << "en_US.UTF-8"
                                    << "en";
    QTest::newRow("German system") << "de_DE.UTF-8"
                                   << "de";
    QTest::newRow("French system: a code, but no support") << "fr_FR.UTF-8"
                                                           << "en";
    QTest::newRow("Korean system: a code, but no support") << "ko_KR.UTF-8"
                                                           << "en";
    QTest::newRow("unknown language") << "fi_FI.UTF-8"
                                      << "en";
}

void tst_current_language::empty_store_follows_the_system()
{
    QFETCH(QString, system_locale);
    QFETCH(QString, expected);
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", system_locale);
    environment.insert("LANG", system_locale);
    environment.insert("LANGUAGE", "");
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {"--print-language"});
    QVERIFY(child.waitForFinished(30000));
    QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()), expected);
    // Looking the language up stores nothing.
    QVERIFY(QSettings().allKeys().isEmpty());
}

void tst_current_language::device_configuration_data()
{
    QTest::addColumn<bool>("variable_set");
    QTest::addColumn<bool>("file_there");
    QTest::addColumn<bool>("moved");
    QTest::newRow("no variable") << false << false << false;
    QTest::newRow("variable, no file") << true << false << false;
    QTest::newRow("variable and file") << true << true << true;
}

void tst_current_language::device_configuration()
{
    QFETCH(bool, variable_set);
    QFETCH(bool, file_there);
    QFETCH(bool, moved);
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("Corvane"));
    if (file_there) {
        QFile file(folder.filePath("Corvane/Lookwright.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[General]\nlang=de\n");
    }
    if (variable_set) {
        qputenv("PUBLIC", folder.path().toUtf8());
    } else {
        qunsetenv("PUBLIC");
    }
    if (moved) {
        QTest::ignoreMessage(QtInfoMsg, qPrintable("Using device global configuration from '" +
                                                   folder.path() + "/Corvane/Lookwright.ini'"));
    }
    orn::use_device_global_configuration();
    QCOMPARE(QSettings::defaultFormat() == QSettings::IniFormat, moved);
    if (moved) {
        QCOMPARE(orn::current_language("lang"), QString("de"));
        QSettings::setDefaultFormat(QSettings::NativeFormat);
    }
    qunsetenv("PUBLIC");
}

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--print-language") == 0) {
        QCoreApplication app(argc, argv);
        test_support::use_test_settings();
        std::fputs(qPrintable(orn::current_language("lang")), stdout);
        return 0;
    }
    QCoreApplication app(argc, argv);
    tst_current_language test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_current_language.moc"
