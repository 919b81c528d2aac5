#include "converter/preset_pack.h"

#include <QFile>
#include <QFileInfo>

#include <zip.h>

#include <algorithm>
#include <memory>

namespace {

QString zip_code_text(int code)
{
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    QString text = QString::fromUtf8(zip_error_strerror(&error));
    zip_error_fini(&error);
    return text;
}

// libzip takes a path as bytes: UTF-8 on Windows, the file system's own encoding
// elsewhere.
QByteArray native_path(const QString& path)
{
#ifdef Q_OS_WIN
    return path.toUtf8();
#else
    return QFile::encodeName(path);
#endif
}

struct archive_closer
{
    void operator()(zip_t* archive) const { zip_discard(archive); }
};

struct entry_closer
{
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

enum class entry_kind
{
    other,
    preset,
    archive
};

// What an entry's name says it is; nothing else is read of entries of no interest.
entry_kind kind_of(const QString& name)
{
    if (name.endsWith(QLatin1Char('/')) || name.startsWith(QLatin1String("__MACOSX/"))) {
        return entry_kind::other;
    }
    const int folder_end =
        std::max(name.lastIndexOf(QLatin1Char('/')), name.lastIndexOf(QLatin1Char('\\')));
    const QString suffix = QFileInfo(name.mid(folder_end + 1)).suffix().toLower();
    if (suffix == QLatin1String("xmp") || suffix == QLatin1String("lrtemplate")) {
        return entry_kind::preset;
    }
    return suffix == QLatin1String("zip") ? entry_kind::archive : entry_kind::other;
}

QString in_mib(qint64 bytes)
{
    return QStringLiteral("%1 MiB").arg(bytes >> 20);
}

void refuse(pack_entry& entry, const QString& reason)
{
    entry.state = pack_entry::status::refused;
    entry.error = reason;
    entry.bytes = QByteArray();
}

// Reads the entry, stopping one byte past `limit`; false when it holds more. The
// bytes are counted as they come: the declared size is only the archive's word.
bool read_entry(zip_t* archive, zip_uint64_t index, qint64 declared, qint64 limit,
                pack_entry& entry)
{
    const std::unique_ptr<zip_file_t, entry_closer> file(zip_fopen_index(archive, index, 0));
    if (!file) {
        refuse(entry, QStringLiteral("can't be read: ") + QString::fromUtf8(zip_strerror(archive)));
        return true;
    }
    constexpr qint64 chunk = qint64(64) * 1024;
    entry.bytes.reserve(static_cast<int>(std::min(declared, limit)));
    qint64 size = 0;
    while (size <= limit) {
        const qint64 wanted = std::min(chunk, limit + 1 - size);
        entry.bytes.resize(static_cast<int>(size + wanted));
        const zip_int64_t got =
            zip_fread(file.get(), entry.bytes.data() + size, static_cast<zip_uint64_t>(wanted));
        if (got < 0) {
            refuse(entry, QStringLiteral("is damaged: ") +
                              QString::fromUtf8(zip_file_strerror(file.get())));
            return true;
        }
        size += got;
        entry.bytes.resize(static_cast<int>(size));
        if (got == 0) {
            return true;
        }
    }
    refuse(
        entry,
        QStringLiteral("unpacks to more than %1, more than a preset may hold").arg(in_mib(limit)));
    return false;
}

} // namespace

QString read_preset_pack(const QString& path, const std::function<void(const pack_entry&)>& visit,
                         const pack_limits& limits)
{
    int error_code = 0;
    const std::unique_ptr<zip_t, archive_closer> archive(
        zip_open(native_path(path).constData(), ZIP_RDONLY, &error_code));
    if (!archive) {
        return QStringLiteral("can't be read as an archive: ") + zip_code_text(error_code);
    }
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    if (count > limits.entries) {
        return QStringLiteral("holds %1 entries, more than the %2 a preset pack may hold; "
                              "nothing in it was read")
            .arg(count)
            .arg(limits.entries);
    }
    const auto too_much = [&limits] {
        return QStringLiteral("its presets unpack to more than %1 together; the rest of it was "
                              "not read")
            .arg(in_mib(limits.total_bytes));
    };

    qint64 total = 0;
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        zip_stat_t stat;
        zip_stat_init(&stat);
        if (zip_stat_index(archive.get(), index, 0, &stat) != 0 ||
            (stat.valid & ZIP_STAT_NAME) == 0) {
            return QStringLiteral("entry %1 can't be read: %2")
                .arg(i + 1)
                .arg(QString::fromUtf8(zip_strerror(archive.get())));
        }
        pack_entry entry;
        entry.name = QString::fromUtf8(stat.name);
        const entry_kind kind = kind_of(entry.name);
        if (kind == entry_kind::other) {
            continue;
        }
        if (kind == entry_kind::archive) {
            entry.state = pack_entry::status::nested_archive;
        } else {
            const zip_uint64_t declared = (stat.valid & ZIP_STAT_SIZE) != 0 ? stat.size : 0;
            const qint64 remaining = limits.total_bytes - total;
            if (declared > static_cast<zip_uint64_t>(limits.entry_bytes)) {
                refuse(entry, QStringLiteral("declares %1 bytes, more than the %2 a preset "
                                             "may hold")
                                  .arg(declared)
                                  .arg(in_mib(limits.entry_bytes)));
            } else if (declared > static_cast<zip_uint64_t>(remaining)) {
                return too_much();
            } else {
                const qint64 limit = std::min(limits.entry_bytes, remaining);
                if (!read_entry(archive.get(), index, static_cast<qint64>(declared), limit,
                                entry) &&
                    limit < limits.entry_bytes) {
                    return too_much();
                }
                total += entry.bytes.size();
            }
        }
        visit(entry);
    }
    return QString();
}
