#include "orn/application_information.h"
#include "orn/component_versions.h"
#include "orn/network_report.h"
#include "support/modal_answerer.h"

#include <QNetworkInterface>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

class tst_diagnostic_reports : public QObject
{
    Q_OBJECT

private slots:
    void network_report_has_one_block_per_interface();
    void component_report_names_the_checked_out_revision();
    void application_information_box_data();
    void application_information_box();
};

// One block per interface of this machine, in the system's order: the interface
// line, the flags line (only a tab when no flag is set) and one line per address.
void tst_diagnostic_reports::network_report_has_one_block_per_interface()
{
    const QStringList flag_order = {"IsUp",       "IsRunning",      "CanBroadcast",
                                    "IsLoopBack", "IsPointToPoint", "CanMulticast"};
    const QRegularExpression address_line(QStringLiteral("^\\tAddress: (\\S+)/(\\d+)$"));
    QStringList lines = orn::network_report().split(QLatin1Char('\n'));
    QCOMPARE(lines.takeLast(), QString());

    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    QVERIFY(!interfaces.isEmpty());
    bool saw_loopback_address = false;
    for (const QNetworkInterface& device : interfaces) {
        QVERIFY2(lines.size() >= 2, qPrintable(device.name()));
        QCOMPARE(lines.takeFirst(),
                 QStringLiteral("Interface: %1 (%2) HW: %3")
                     .arg(device.name(), device.humanReadableName(), device.hardwareAddress()));
        const QString flags = lines.takeFirst();
        QVERIFY2(flags.startsWith(QLatin1Char('\t')), qPrintable(flags));
        const QStringList names = flags.mid(1).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        QStringList expected_names;
        for (const QString& name : flag_order) {
            if (device.flags().testFlag(
                    QNetworkInterface::InterfaceFlag(1 << flag_order.indexOf(name)))) {
                expected_names << name;
            }
        }
        QCOMPARE(names, expected_names);
        for (int i = 0; i < device.addressEntries().size(); ++i) {
            QVERIFY(!lines.isEmpty());
            const QString line = lines.takeFirst();
            const auto match = address_line.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            saw_loopback_address |= match.captured(1) == QLatin1String("127.0.0.1") &&
                                    match.captured(2) == QLatin1String("8") &&
                                    names.contains(QLatin1String("IsLoopBack"));
        }
    }
    QCOMPARE(lines, QStringList());
#ifdef Q_OS_LINUX
    QVERIFY(saw_loopback_address);
#endif
}

// The revision is read from the source tree at build time; in a git checkout it
// must be the one checked out, not the marker of a tree without history.
void tst_diagnostic_reports::component_report_names_the_checked_out_revision()
{
    QProcess git;
    git.setWorkingDirectory(QStringLiteral(LOOKWRIGHT_SOURCE_DIR));
    git.start(QStringLiteral("git"), {"rev-parse", "--short=7", "HEAD"});
    QString revision = QStringLiteral("0000000");
    if (git.waitForFinished() && git.exitStatus() == QProcess::NormalExit && git.exitCode() == 0) {
        revision = QString::fromLatin1(git.readAllStandardOutput()).trimmed().left(7);
    }

    QCOMPARE(QString::fromStdString(orn::component_report()),
             QStringLiteral("Component: application\tVersion: %1\n"
                            "Component: orn_infrastructure\tVersion: %1\n"
                            "Component: orn_toolkit\tVersion: %1\n")
                 .arg(revision));
}

void tst_diagnostic_reports::application_information_box_data()
{
    QTest::addColumn<QVariantMap>("extra");
    QTest::addColumn<QString>("ending");

    const QString components = QString::fromStdString(orn::component_report());
    QTest::newRow("no extra lines") << QVariantMap() << "\n" + components;
    QTest::newRow("extra lines in key order")
        << QVariantMap{{"Renderer", "none"}, {"Device", "offscreen"}}
        << components + "\nDevice:\t\toffscreen\nRenderer:\t\tnone\n";
}

void tst_diagnostic_reports::application_information_box()
{
    QFETCH(QVariantMap, extra);
    QFETCH(QString, ending);

    QMap<QString, QString> lines;
    for (auto entry = extra.cbegin(); entry != extra.cend(); ++entry) {
        lines.insert(entry.key(), entry.value().toString());
    }
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0"));
    modal_answerer answers;
    answers.expect(modal_answerer::click(QStringLiteral("OK")));
    orn::show_application_information(nullptr, lines);

    QVERIFY(answers.done());
    const modal_answerer::seen_dialog& box = answers.seen().front();
    QCOMPARE(box.title, QStringLiteral("Application Information"));
    QCOMPARE(box.buttons, QStringList("OK"));
    const QStringList head = box.text.split(QLatin1Char('\n')).mid(0, 7);
    QCOMPARE(head.value(0), "OS: " + QSysInfo::prettyProductName());
    QCOMPARE(head.value(1), "ABI: " + QSysInfo::buildAbi());
    QVERIFY2(head.value(2).contains(" Version: "), qPrintable(head.value(2)));
    QCOMPARE(head.mid(3, 3), QStringList({"", "Application: " + QCoreApplication::applicationName(),
                                          "Version: 1.2.0"}));
    // The build stamp: a date and a time as the compiler gives them.
    QVERIFY2(QRegularExpression("^Build: \\w{3} [ \\d]\\d \\d{4} \\d\\d:\\d\\d:\\d\\d$")
                 .match(head.value(6))
                 .hasMatch(),
             qPrintable(head.value(6)));
    QVERIFY2(box.text.endsWith(ending), qPrintable(box.text));
}

QTEST_MAIN(tst_diagnostic_reports)
#include "tst_diagnostic_reports.moc"
