#pragma once

#include <QList>
#include <QLocale>
#include <QMap>
#include <QString>

namespace orn {

// The languages the program ships a full catalogue for, in order of preference.
extern const QList<QLocale> supported_locales;

// Language codes the toolkit knows. Korean is "kr", not the ISO "ko": the code
// names a catalogue of ours, and that is how it was spelled when it was made.
extern const QMap<QLocale::Language, QString> language_codes;

// The language the program speaks: the stored text under `key` as it stands when
// there is one, else the system's language if the program supports it, else English.
QString current_language(const QString& key);

} // namespace orn
