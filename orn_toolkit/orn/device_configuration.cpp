#include "orn/device_configuration.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcessEnvironment>
#include <QSettings>

namespace orn {

void use_device_global_configuration()
{
    // PUBLIC is the shared profile folder of Windows machines; elsewhere it is
    // usually unset and this does nothing.
    const QString folder = QProcessEnvironment::systemEnvironment().value("PUBLIC");
    if (folder.isEmpty()) {
        return;
    }
    const QString path = folder + "/" + QCoreApplication::organizationName() + "/" +
                         QCoreApplication::applicationName() + ".ini";
    if (!QFile::exists(path)) {
        return;
    }
    qInfo("Using device global configuration from '%s'", path.toUtf8().constData());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, folder);
    QSettings::setDefaultFormat(QSettings::IniFormat);
}

} // namespace orn
