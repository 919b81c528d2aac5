#include "orn/current_language.h"

#include <QSettings>
#include <QVariant>

namespace orn {

const QList<QLocale> supported_locales = {QLocale(QLocale::German), QLocale(QLocale::English)};

const QMap<QLocale::Language, QString> language_codes = {
    {QLocale::English, "en"},
    {QLocale::French, "fr"},
    {QLocale::German, "de"},
    {QLocale::Korean, "kr"},
};

QString current_language(const QString& key)
{
    // A stored choice wins whatever it holds: a hand-edited code without a
    // catalogue simply leaves the program in English.
    QString stored = QSettings().value(key, QVariant()).toString();
    if (!stored.isEmpty()) {
        return stored;
    }
    const QLocale::Language system = QLocale::system().language();
    if (language_codes.contains(system) && supported_locales.contains(QLocale(system))) {
        return language_codes.value(system);
    }
    return language_codes.value(QLocale::English);
}

} // namespace orn
