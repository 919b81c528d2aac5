#include "output/stylepack.h"

#include <QByteArray>
#include <QFileInfo>
#include <QtDebug>

#include <zip.h>

namespace {

QByteArray zip_code_text(int code)
{
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    QByteArray text(zip_error_strerror(&error));
    zip_error_fini(&error);
    return text;
}

} // namespace

bool write_stylepack(const QString& path, const QString& format,
                     const QMap<QString, QString>& stylepack_documents)
{
    QMap<QString, QByteArray> entry_data;
    for (auto it = stylepack_documents.constBegin(); it != stylepack_documents.constEnd(); ++it) {
        entry_data.insert(it.key(), it.value().toUtf8());
    }
    return write_stylepack_utf8(path, format, entry_data);
}

// libzip's buffer sources don't copy and read only when the archive is closed, so
// every entry's bytes, held by `entry_data`, must stay alive until zip_close.
bool write_stylepack_utf8(const QString& path, const QString& format,
                          const QMap<QString, QByteArray>& entry_data, QString* failure_reason)
{
    const auto note_failure = [failure_reason](const QByteArray& reason) {
        if (failure_reason != nullptr && failure_reason->isEmpty()) {
            *failure_reason = QString::fromUtf8(reason);
        }
    };
    const QString entry_prefix = format == QLatin1String("stylepack_category")
                                     ? QFileInfo(path).completeBaseName() + QLatin1Char('/')
                                     : QString();

    int error_code = 0;
    zip_t* archive = zip_open(path.toUtf8().constData(), ZIP_CREATE | ZIP_TRUNCATE, &error_code);
    if (archive == nullptr || error_code != 0) {
        qWarning("libzip zip_open error %d: %s", error_code, zip_code_text(error_code).constData());
        note_failure(zip_code_text(error_code));
        error_code = 0;
    }
    bool complete = archive != nullptr;

    int i = 0;
    for (auto it = entry_data.constBegin(); it != entry_data.constEnd(); ++it, ++i) {
        const QString entry_name = entry_prefix + it.key();
        qDebug("Key %i: '%s' -> '%s'", i, qUtf8Printable(it.key()), qUtf8Printable(entry_name));
        const QByteArray& data = it.value();
        zip_source_t* source = zip_source_buffer_create(
            data.constData(), static_cast<zip_uint64_t>(data.size()), 0, nullptr);
        if (source == nullptr) {
            note_failure("out of memory for an entry");
            complete = false;
            continue;
        }
        // Without an archive there is nothing to add to; the entry is dropped as a
        // failed add would drop it, and the open failure has been logged already.
        if (archive == nullptr) {
            zip_source_free(source);
            continue;
        }
        if (zip_file_add(archive, entry_name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) < 0) {
            qWarning("libzip zip_file_add error: %s", zip_strerror(archive));
            note_failure(zip_strerror(archive));
            zip_source_free(source);
            complete = false;
        }
    }

    if (archive != nullptr) {
        const int close_result = zip_close(archive);
        if (close_result != 0) {
            qWarning("libzip zip_close error %d: %s", close_result,
                     zip_code_text(close_result).constData());
            // The code says nothing; the archive's error holds the reason.
            note_failure(zip_strerror(archive));
            // A failed close leaves the archive open; let go of it without writing.
            zip_discard(archive);
            complete = false;
        }
    }
    return complete;
}
