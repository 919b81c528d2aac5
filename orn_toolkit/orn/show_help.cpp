#include "orn/show_help.h"

#include "orn/current_language.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTextStream>
#include <QUrl>

namespace orn {

QString help_file_stem()
{
    return QCoreApplication::applicationName().toLower().remove(QLatin1Char(' '));
}

void show_help(const QString& page_template)
{
    QString lang = current_language(QStringLiteral("lang"));
    if (!QFile::exists(page_template.arg(lang))) {
        lang = QStringLiteral("en");
    }

    QFile page(page_template.arg(lang));
    if (!page.open(QIODevice::ReadOnly)) {
        qWarning() << "Could not open help file for language" << lang << "with template"
                   << page_template << "resulting in" << page.fileName();
        return;
    }
    QString text = QString::fromUtf8(page.readAll());
    page.close();

    // Key names stand in the pages with an X inside them; the reader gets them whole.
    text.replace(QStringLiteral("StXrg"), QStringLiteral("Strg"), Qt::CaseSensitive);
    text.replace(QStringLiteral("CtXrl"), QStringLiteral("Ctrl"), Qt::CaseSensitive);

    // One file per language, rewritten on every request, so the folder never fills up.
    QFile copy(QDir::tempPath() + QStringLiteral("/%1_help_%2.html").arg(help_file_stem(), lang));
    copy.open(QIODevice::WriteOnly | QIODevice::Truncate);
    QTextStream stream(&copy);
    stream.setCodec("UTF-8");
    stream << text;
    stream.flush();
    copy.close();

    QDesktopServices::openUrl(QUrl(QStringLiteral("file:///%1").arg(copy.fileName())));
}

} // namespace orn
