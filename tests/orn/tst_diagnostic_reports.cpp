#include "orn/component_versions.h"
#include "orn/network_report.h"

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

QTEST_MAIN(tst_diagnostic_reports)
#include "tst_diagnostic_reports.moc"
