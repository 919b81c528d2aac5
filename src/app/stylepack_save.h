#pragma once

#include <QMap>
#include <QString>

class QWidget;

// The tail of a run in the stylepack formats: asks where the collected styles go
// and writes them as one archive there. A cancelled dialog drops them in silence;
// failures of writing stay in the log, as with every file the run writes.
void save_stylepack(QWidget* parent, const QString& output_dir, const QString& format,
                    const QMap<QString, QString>& stylepack_documents);
