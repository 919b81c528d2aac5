#include "converter/preset_intake.h"

#include "preset/lua_template_reader.h"
#include "preset/preset_file.h"
#include "preset/xmp_outline.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <exception>
#include <optional>

namespace {

// True when the file holds nothing but ASCII white space. Reads only up to the
// first other byte, which is almost always the first.
bool is_blank(QIODevice& device)
{
    constexpr qint64 chunk = qint64(64) * 1024;
    while (!device.atEnd()) {
        const QByteArray bytes = device.read(chunk);
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

// Reads the template as Lua into a fresh `out`; Lua's error when it can't.
std::optional<QString> load_as_lua(const preset_source& source, preset_settings& out)
{
    out = preset_settings();
    try {
        const std::unique_ptr<QIODevice> device = source.open();
        if (device->isOpen()) {
            load_lua_template_from(out, *device);
        }
    } catch (const std::exception& e) {
        return QString::fromUtf8(e.what());
    }
    return std::nullopt;
}

// A value that the window's word scanner can only have taken from Lua it doesn't
// know: a separator stuck to the value (`20;`), a string in single quotes or in
// long brackets, a call with parentheses (`ZSTR("...")`). The scanner reads such a
// file without failing, but into values that convert to nothing or to a wrong name.
bool looks_misread(const QString& value)
{
    static const QRegularExpression call(QStringLiteral(R"(^[A-Za-z_]\w*\(\s*["'].*["']\s*\)$)"));
    return value.endsWith(QLatin1Char(';')) ||
           (value.size() >= 2 && value.startsWith(QLatin1Char('\'')) &&
            value.endsWith(QLatin1Char('\''))) ||
           value.startsWith(QLatin1String("[[")) || value.startsWith(QLatin1String("[=")) ||
           call.match(value).hasMatch();
}

// The keys whose values the two readers fill differently; the preset's name counts
// as its template key, "title".
QStringList differing_keys(const preset_settings& window, const preset_settings& lua)
{
    QSet<QString> keys;
    if (window.name != lua.name) {
        keys << QStringLiteral("title");
    }
    QSet<QString> all(window.settings.keyBegin(), window.settings.keyEnd());
    all.unite(QSet<QString>(lua.settings.keyBegin(), lua.settings.keyEnd()));
    for (const QString& key : all) {
        if (window.settings.value(key) != lua.settings.value(key) ||
            window.settings.contains(key) != lua.settings.contains(key)) {
            keys << key;
        }
    }
    QStringList sorted(keys.begin(), keys.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

// When the window's reading holds values it can only have misread, the file is
// read as Lua too, and where the readings differ, Lua's is the one converted.
preset_intake reread_misread_template(const preset_source& source, preset_settings& out)
{
    const bool suspicious = looks_misread(out.name) ||
                            std::any_of(out.settings.cbegin(), out.settings.cend(), looks_misread);
    if (!suspicious) {
        return {};
    }
    preset_settings as_lua;
    if (load_as_lua(source, as_lua)) {
        return {};
    }
    const QStringList keys = differing_keys(out, as_lua);
    if (keys.isEmpty()) {
        return {};
    }
    out = std::move(as_lua);
    return {intake_status::read_as_lua,
            QStringLiteral("misread: ") + keys.join(QLatin1String(", "))};
}

} // namespace

preset_source preset_source::file(const QString& path)
{
    return {path, QFileInfo(path).fileName(), path, QByteArray()};
}

preset_source preset_source::entry(const QString& archive, const QString& entry_name,
                                   const QByteArray& bytes)
{
    // Archives made on Windows may separate folders with backslashes; the style's
    // name is the file's own and never reaches into a folder.
    const int folder_end = std::max(entry_name.lastIndexOf(QLatin1Char('/')),
                                    entry_name.lastIndexOf(QLatin1Char('\\')));
    return {archive + QLatin1Char(':') + entry_name, entry_name.mid(folder_end + 1), QString(),
            bytes};
}

std::unique_ptr<QIODevice> preset_source::open() const
{
    if (!path.isEmpty()) {
        auto file = std::make_unique<QFile>(path);
        file->open(QIODevice::ReadOnly);
        return file;
    }
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

preset_intake take_in_preset(const preset_source& source, bool strict, preset_settings& out)
{
    bool blank = false;
    bool empty = false;
    {
        const std::unique_ptr<QIODevice> device = source.open();
        if (!device->isOpen()) {
            return {intake_status::unreadable, device->errorString()};
        }
        blank = is_blank(*device);
        empty = device->size() == 0;
    }

    const QString suffix = QFileInfo(source.file_name).suffix().toLower();
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
    preset_read_result read;
    {
        const std::unique_ptr<QIODevice> device = source.open();
        if (!device->isOpen()) {
            return {intake_status::unreadable, device->errorString()};
        }
        read = read_preset(source.file_name, *device, out);
    }
    if (read.status == preset_read_status::failed) {
        if (strict || !is_template) {
            return {intake_status::failed, read.error};
        }
        if (const std::optional<QString> lua_error = load_as_lua(source, out)) {
            return {intake_status::failed, *lua_error};
        }
        intake = {intake_status::read_as_lua, QStringLiteral("refuse: ") + read.error};
    } else if (is_template && !strict) {
        intake = reread_misread_template(source, out);
    }

    if (is_template) {
        const QString type = template_type(out);
        if (out.settings.contains(QStringLiteral("type")) && type != QLatin1String("Develop")) {
            return {intake_status::not_a_preset,
                    QStringLiteral("a template of type \"%1\"").arg(type)};
        }
    } else {
        const std::unique_ptr<QIODevice> device = source.open();
        const xmp_outline outline = outline_xmp(*device);
        if (!outline.missing_element.isEmpty()) {
            return {intake_status::not_a_preset,
                    QStringLiteral("no %1 element where an XMP preset has one")
                        .arg(outline.missing_element)};
        }
        intake.has_develop_attributes = outline.has_develop_attributes;
    }
    return intake;
}
