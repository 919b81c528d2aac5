#include "preset/preset_settings.h"

QString value_or(const QMap<QString, QString>& settings, const QString& key,
                 const QString& default_value)
{
    const auto it = settings.constFind(key);
    return it == settings.constEnd() ? default_value : it.value();
}
