#include "preset/preset_file.h"

#include "preset/template_reader.h"
#include "preset/xmp_reader.h"

#include <QFile>
#include <QFileInfo>

#include <stdexcept>

namespace {

enum class reader
{
    none,
    template_reader,
    xmp_reader
};

reader reader_for(const QString& name)
{
    const QString suffix = QFileInfo(name).suffix().toLower();
    if (suffix == QLatin1String("lrtemplate")) {
        return reader::template_reader;
    }
    return suffix == QLatin1String("xmp") ? reader::xmp_reader : reader::none;
}

} // namespace

preset_read_result read_preset_file(const QString& path, preset_settings& out)
{
    if (reader_for(path) == reader::none) {
        return {preset_read_status::unsupported_format, QString()};
    }
    QFile file(path);
    // A file that can't be opened leaves the record untouched, as the readers do.
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return read_preset(path, file, out);
}

preset_read_result read_preset(const QString& name, QIODevice& device, preset_settings& out)
{
    try {
        switch (reader_for(name)) {
        case reader::template_reader:
            load_template_from(out, device);
            break;
        case reader::xmp_reader:
            load_xmp_from(out, device);
            break;
        case reader::none:
            return {preset_read_status::unsupported_format, QString()};
        }
    } catch (const std::runtime_error& e) {
        return {preset_read_status::failed, QString::fromUtf8(e.what())};
    }
    return {};
}
