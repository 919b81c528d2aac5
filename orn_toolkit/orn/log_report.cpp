#include "orn/log_report.h"

#include "orn/application_log.h"
#include "orn/network_report.h"

#include <QCoreApplication>
#include <QDateTime>

namespace orn {

QString log_report(const application_log& log)
{
    const QString rule(80, QLatin1Char('-'));
    const QString main_name = QCoreApplication::applicationName();

    QString report = QStringLiteral("Application: ") + main_name + QStringLiteral(" (") +
                     QCoreApplication::applicationVersion() + QStringLiteral(")\n");
    report += QStringLiteral("Installed at: ") + QCoreApplication::applicationDirPath() +
              QLatin1Char('\n');
    report += QStringLiteral("Date: ") + QDateTime::currentDateTime().toString(Qt::TextDate) +
              QLatin1Char('\n');
    report += rule + QLatin1Char('\n');
    report += network_report();
    report += rule + QStringLiteral("\n\n");
    report += log.channels.value(main_name).text;
    for (const log_channel& channel : log.channels) {
        if (channel.name != main_name) {
            report += QStringLiteral("\n\n") + rule + QStringLiteral("\nApplication: ") +
                      channel.name + QLatin1Char('\n') + channel.text;
        }
    }
    return report;
}

} // namespace orn
