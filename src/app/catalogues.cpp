#include "app/catalogues.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

QStringList install_catalogues(const QString& lang)
{
    const QStringList names{
        QLibraryInfo::location(QLibraryInfo::TranslationsPath) + QStringLiteral("/qt_") + lang,
        QStringLiteral(":/translations/") + lang, QStringLiteral(":/translations/toolkit_") + lang};
    QStringList missing;
    for (const QString& name : names) {
        // Owned by the application, which outlives every window that reads it.
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (!translator->load(name)) {
            missing << name;
        }
        QCoreApplication::installTranslator(translator);
    }
    return missing;
}
