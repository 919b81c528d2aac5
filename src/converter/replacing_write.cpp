#include "converter/replacing_write.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#if defined(Q_OS_WIN)
#include <windows.h>
#else
#include <cerrno>
#include <cstdio>
#endif

namespace {

// Tries for a temporary name that no other file has; a clash is rare enough that a
// handful of tries always finds one.
constexpr int name_tries = 16;

// Renames `from` over `to`, which may exist, in one step of the file system.
bool rename_over(const QString& from, const QString& to, QString* error)
{
#if defined(Q_OS_WIN)
    const QString native_from = QDir::toNativeSeparators(from);
    const QString native_to = QDir::toNativeSeparators(to);
    if (MoveFileExW(reinterpret_cast<const wchar_t*>(native_from.utf16()),
                    reinterpret_cast<const wchar_t*>(native_to.utf16()),
                    MOVEFILE_REPLACE_EXISTING) == 0) {
        *error = qt_error_string(static_cast<int>(GetLastError()));
        return false;
    }
#else
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
        *error = qt_error_string(errno);
        return false;
    }
#endif
    return true;
}

} // namespace

bool write_replacing(const QString& target, const QByteArray& bytes, QString* error)
{
    const QFileInfo target_info(target);
    QFile temporary;
    for (int i = 0; i < name_tries && !temporary.isOpen(); ++i) {
        temporary.setFileName(QDir(target_info.path())
                                  .filePath(QStringLiteral(".%1.%2")
                                                .arg(target_info.fileName())
                                                .arg(QRandomGenerator::global()->generate(), 8, 16,
                                                     QLatin1Char('0'))));
        // Unbuffered, so that a full disk fails the write itself. NewOnly never
        // takes over a file that is there.
        if (!temporary.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered) &&
            !temporary.exists()) {
            break;
        }
    }
    if (!temporary.isOpen()) {
        *error = temporary.errorString();
        return false;
    }
    const bool written = temporary.write(bytes) == bytes.size();
    if (!written) {
        *error = temporary.errorString();
    }
    temporary.close();
    if (written && target_info.exists()) {
        temporary.setPermissions(QFile::permissions(target));
    }
    if (!written || !rename_over(temporary.fileName(), target, error)) {
        temporary.remove();
        return false;
    }
    return true;
}
