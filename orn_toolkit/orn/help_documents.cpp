#include "orn/help_documents.h"

#include "orn/current_language.h"
#include "orn/show_help.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace orn {

QStringList place_help_documents(const QStringList& document_templates)
{
    QStringList written;
    const QString lang = current_language(QStringLiteral("lang"));
    for (const QString& document_template : document_templates) {
        QString source = document_template.arg(lang);
        if (!QFile::exists(source)) {
            source = document_template.arg(QStringLiteral("en"));
        }
        QFile document(source);
        if (!document.open(QIODevice::ReadOnly)) {
            qWarning() << "Could not open help document" << source;
            continue;
        }
        // Copied as bytes: a manual may be a PDF, which no text codec may touch.
        const QByteArray data = document.readAll();
        QFile copy(QDir::tempPath() + QLatin1Char('/') + help_file_stem() + QLatin1Char('_') +
                   QFileInfo(source).fileName());
        if (!copy.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            copy.write(data) != data.size()) {
            qWarning() << "Could not write help document" << copy.fileName();
            continue;
        }
        written << copy.fileName();
    }
    return written;
}

} // namespace orn
