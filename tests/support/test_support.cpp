#include "support/test_support.h"

#include "orn/message_handler.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <zip.h>

namespace test_support {

namespace {

QList<QPair<QtMsgType, QString>>& captured()
{
    static QList<QPair<QtMsgType, QString>> messages;
    return messages;
}

void capture_handler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    captured().append({type, message});
}

} // namespace

log_capture::log_capture()
{
    captured().clear();
    previous_ = qInstallMessageHandler(capture_handler);
}

log_capture::~log_capture()
{
    qInstallMessageHandler(previous_);
}

QStringList log_capture::lines() const
{
    QStringList result;
    for (const auto& entry : captured()) {
        result << QString::fromLatin1(orn::message_prefix(entry.first)) + entry.second;
    }
    return result;
}

QStringList log_capture::messages(QtMsgType type) const
{
    QStringList result;
    for (const auto& entry : captured()) {
        if (entry.first == type) {
            result << entry.second;
        }
    }
    return result;
}

bool log_capture::contains(QtMsgType type, const QString& text) const
{
    return messages(type).contains(text);
}

void use_test_settings()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Corvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Lookwright"));
    QSettings().clear();
}

void set_colour_space(const QString& colour_space)
{
    QSettings settings;
    if (colour_space.isEmpty()) {
        settings.remove(QStringLiteral("colorspace"));
    } else {
        settings.setValue(QStringLiteral("colorspace"), colour_space);
    }
}

preset_settings preset_with(std::initializer_list<std::pair<const char*, const char*>> entries)
{
    preset_settings preset;
    for (const auto& entry : entries) {
        preset.settings.insert(QString::fromUtf8(entry.first), QString::fromUtf8(entry.second));
    }
    return preset;
}

const QByteArray warm_template = "s = {\n\ttitle = \"Warm\",\n\tvalue = {\n\t\tsettings = {\n"
                                 "\t\t\tExposure2012 = 0.5,\n\t\t\tContrast2012 = 20,\n"
                                 "\t\t},\n\t},\n}\n";

QByteArray xmp_preset(const QByteArray& name, const QByteArray& attributes,
                      const QByteArray& children)
{
    return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
           " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
           "  <rdf:Description rdf:about=\"\" "
           "xmlns:crs=\"http://ns.adobe.com/camera-raw-settings/1.0/\"\n"
           "   crs:Exposure2012=\"+0.50\" " +
           attributes + ">\n" + children + "   <crs:Name><rdf:Alt><rdf:li xml:lang=\"x-default\">" +
           name +
           "</rdf:li></rdf:Alt></crs:Name>\n"
           "  </rdf:Description>\n"
           " </rdf:RDF>\n"
           "</x:xmpmeta>\n";
}

QStringList document_entries(const QString& document)
{
    QStringList entries;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("E")) {
            const auto attributes = reader.attributes();
            entries << attributes.value(QLatin1String("K")).toString() + QLatin1Char('=') +
                           attributes.value(QLatin1String("V")).toString();
        }
    }
    return entries;
}

QString document_value(const QString& document, const QString& key)
{
    const QString prefix = key + QLatin1Char('=');
    for (const QString& entry : document_entries(document)) {
        if (entry.startsWith(prefix)) {
            return entry.mid(prefix.size());
        }
    }
    return QString();
}

point_list points_from(const QString& levels)
{
    point_list points;
    for (const QString& pair : levels.split(QLatin1Char(' '))) {
        if (pair.isEmpty()) {
            continue;
        }
        const QStringList xy = pair.split(QLatin1Char(','));
        points.append(QPoint(xy.value(0).toInt(), xy.value(1).toInt()));
    }
    return points;
}

QString levels_of(const point_list& points)
{
    QStringList pairs;
    for (const QPoint& point : points) {
        pairs << QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
    }
    return pairs.join(QLatin1Char(' '));
}

QVector<archive_entry> read_archive(const QString& path)
{
    QVector<archive_entry> entries;
    int error = 0;
    zip_t* archive = zip_open(path.toUtf8().constData(), ZIP_RDONLY, &error);
    if (archive == nullptr) {
        return entries;
    }
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t stat;
        zip_stat_index(archive, zip_uint64_t(i), 0, &stat);
        QByteArray data(int(stat.size), '\0');
        zip_file_t* file = zip_fopen_index(archive, zip_uint64_t(i), 0);
        if (file != nullptr) {
            zip_fread(file, data.data(), stat.size);
            zip_fclose(file);
        }
        entries.append({QString::fromUtf8(stat.name), data});
    }
    zip_close(archive);
    return entries;
}

bool write_archive(const QString& path, const QVector<archive_entry>& entries)
{
    int error = 0;
    zip_t* archive = zip_open(path.toUtf8().constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (archive == nullptr) {
        return false;
    }
    bool added = true;
    for (const archive_entry& entry : entries) {
        if (entry.name.endsWith(QLatin1Char('/'))) {
            added = added &&
                    zip_dir_add(archive, entry.name.toUtf8().constData(), ZIP_FL_ENC_UTF_8) >= 0;
            continue;
        }
        // The entries' bytes stay alive in `entries` until the archive is closed.
        zip_source_t* source =
            zip_source_buffer(archive, entry.data.constData(), zip_uint64_t(entry.data.size()), 0);
        if (source == nullptr ||
            zip_file_add(archive, entry.name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) < 0) {
            zip_source_free(source);
            added = false;
        }
    }
    if (zip_close(archive) != 0) {
        zip_discard(archive);
        return false;
    }
    return added;
}

QString write_file(const QString& dir, const QString& name, const QByteArray& contents)
{
    const QString path = dir + QLatin1Char('/') + name;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(contents);
    }
    return path;
}

QByteArray read_all(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray without_uuid(QByteArray document)
{
    const int at = document.indexOf("K=\"UUID\" V=\"");
    if (at >= 0) {
        document.replace(at + 12, 36, QByteArray(36, '-'));
    }
    return document;
}

process_result run_program(const QString& program, const QString& folder,
                           const QStringList& arguments, const QProcessEnvironment& extra)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       QDir(folder).filePath(QStringLiteral("config")));
    for (const QString& key : extra.keys()) {
        environment.insert(key, extra.value(key));
    }
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace test_support
