#include "preset/preset_file.h"

#include "preset/template_reader.h"
#include "preset/xmp_reader.h"

#include <QFileInfo>

#include <exception>

preset_read_result read_preset_file(const QString& path, preset_settings& out)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    try {
        if (suffix == QLatin1String("lrtemplate")) {
            load_template(out, path);
        } else if (suffix == QLatin1String("xmp")) {
            load_xmp(out, path);
        } else {
            return {preset_read_status::unsupported_format, QString()};
        }
    } catch (const std::exception& e) {
        return {preset_read_status::failed, QString::fromUtf8(e.what())};
    }
    return {};
}
