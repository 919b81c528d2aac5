#pragma once

#include <QMap>
#include <QString>

class QWidget;

namespace orn {

// The build's identity: system, ABI, compiler, program name and version, build
// time, the component revisions and then each `extra` entry as "key:\t\tvalue".
QString application_information(const QMap<QString, QString>& extra = {});

// Shows application_information in an information box titled "Application Information".
void show_application_information(QWidget* parent, const QMap<QString, QString>& extra = {});

} // namespace orn
