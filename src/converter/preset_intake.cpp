#include "converter/preset_intake.h"

#include "preset/lua_template_reader.h"
#include "preset/preset_file.h"
#include "preset/xmp_outline.h"

#include <QFile>
#include <QFileInfo>

#include <exception>

namespace {

// True when the file holds nothing but ASCII white space. Reads only up to the
// first other byte, which is almost always the first.
bool is_blank(QFile& file)
{
    constexpr qint64 chunk = qint64(64) * 1024;
    while (!file.atEnd()) {
        const QByteArray bytes = file.read(chunk);
        if (bytes.isEmpty()) {
            return false;
        }
        for (const char byte : bytes) {
            if (byte != ' ' && (byte < '\t' || byte > '\r')) {
                return false;
            }
        }
    }
    return true;
}

// A template's own type: "Develop" for a develop preset. The line form keeps a
// value's quotes in the record; the type is the text inside them.
QString template_type(const preset_settings& preset)
{
    QString type = value_or(preset.settings, QStringLiteral("type"), QString());
    if (type.size() >= 2 && type.startsWith(QLatin1Char('"')) && type.endsWith(QLatin1Char('"'))) {
        type = type.mid(1, type.size() - 2);
    }
    return type;
}

preset_intake read_template_as_lua(const QString& path, const QString& window_error,
                                   preset_settings& out)
{
    out = preset_settings();
    try {
        load_lua_template(out, path);
    } catch (const std::exception& e) {
        return {intake_status::failed, QString::fromUtf8(e.what())};
    }
    return {intake_status::read_as_lua, window_error};
}

} // namespace

preset_intake take_in_preset(const QString& path, bool strict, preset_settings& out)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {intake_status::unreadable, file.errorString()};
    }
    const bool blank = is_blank(file);
    const bool empty = file.size() == 0;
    file.close();

    const QString suffix = QFileInfo(path).suffix().toLower();
    const bool is_template = suffix == QLatin1String("lrtemplate");
    if (!is_template && suffix != QLatin1String("xmp")) {
        return {intake_status::unsupported_format, QString()};
    }
    if (blank) {
        return {intake_status::not_a_preset,
                empty ? QStringLiteral("the file is empty")
                      : QStringLiteral("the file holds only white space")};
    }

    preset_intake intake;
    const preset_read_result read = read_preset_file(path, out);
    if (read.status == preset_read_status::failed) {
        if (strict || !is_template) {
            return {intake_status::failed, read.error};
        }
        intake = read_template_as_lua(path, read.error, out);
        if (intake.status == intake_status::failed) {
            return intake;
        }
    }

    if (is_template) {
        const QString type = template_type(out);
        if (out.settings.contains(QStringLiteral("type")) && type != QLatin1String("Develop")) {
            return {intake_status::not_a_preset,
                    QStringLiteral("a template of type \"%1\"").arg(type)};
        }
    } else {
        const xmp_outline outline = outline_xmp(path);
        if (!outline.missing_element.isEmpty()) {
            return {intake_status::not_a_preset,
                    QStringLiteral("no %1 element where an XMP preset has one")
                        .arg(outline.missing_element)};
        }
        intake.has_develop_attributes = outline.has_develop_attributes;
    }
    return intake;
}
