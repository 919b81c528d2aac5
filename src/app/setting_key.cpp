#include "app/setting_key.h"

#include <QStandardPaths>

QString setting_key::read(const QSettings& settings) const
{
    return settings.value(key, default_value).toString();
}

const setting_key input_dir_key{QStringLiteral("input_dir"),
                                QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)};
const setting_key output_dir_key{
    QStringLiteral("output_dir"),
    QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)};
