#include "orn/network_report.h"

#include <QNetworkAddressEntry>
#include <QNetworkInterface>
#include <QStringList>

#include <utility>

namespace orn {

QString network_report()
{
    // In the order of the flag bits.
    static const std::pair<QNetworkInterface::InterfaceFlag, const char*> flag_names[] = {
        {QNetworkInterface::IsUp, "IsUp"},
        {QNetworkInterface::IsRunning, "IsRunning"},
        {QNetworkInterface::CanBroadcast, "CanBroadcast"},
        {QNetworkInterface::IsLoopBack, "IsLoopBack"},
        {QNetworkInterface::IsPointToPoint, "IsPointToPoint"},
        {QNetworkInterface::CanMulticast, "CanMulticast"},
    };

    QString report;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& device : interfaces) {
        report += QStringLiteral("Interface: ") + device.name() + QStringLiteral(" (") +
                  device.humanReadableName() + QStringLiteral(") HW: ") + device.hardwareAddress() +
                  QLatin1Char('\n');
        QStringList flags;
        for (const auto& [flag, name] : flag_names) {
            if (device.flags().testFlag(flag)) {
                flags << QLatin1String(name);
            }
        }
        report += QLatin1Char('\t') + flags.join(QLatin1Char('|')) + QLatin1Char('\n');
        const QList<QNetworkAddressEntry> entries = device.addressEntries();
        for (const QNetworkAddressEntry& entry : entries) {
            report += QStringLiteral("\tAddress: ") + entry.ip().toString() + QLatin1Char('/') +
                      QString::number(entry.prefixLength()) + QLatin1Char('\n');
        }
    }
    return report;
}

} // namespace orn
