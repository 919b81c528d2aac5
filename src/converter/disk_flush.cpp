#include "converter/disk_flush.h"

#include <QFile>
#include <QtGlobal>

#if defined(Q_OS_WIN)
#include <QDir>

#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

#if !defined(Q_OS_WIN)

// Runs `flush` on a descriptor of `path` opened for reading (a folder too).
template<typename Flush>
bool flush_path(const QString& path, Flush flush, QString* error)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        *error = qt_error_string(errno);
        return false;
    }
    const bool flushed = flush(fd) == 0;
    const int flush_error = errno;
    ::close(fd);
    if (!flushed) {
        *error = qt_error_string(flush_error);
    }
    return flushed;
}

#endif

} // namespace

bool flush_to_disk(const QString& folder, const QStringList& written, QString* error)
{
#if defined(Q_OS_LINUX)
    // One call, whatever the number of files; since Linux 5.8 it also reports a
    // failed write-back of any of them.
    Q_UNUSED(written);
    return flush_path(folder, ::syncfs, error);
#elif defined(Q_OS_MACOS)
    // fsync only hands a file to the drive, which may keep it in its cache;
    // F_FULLFSYNC empties that cache, once, for everything handed to it before.
    for (const QString& file : written) {
        if (!flush_path(file, ::fsync, error)) {
            return false;
        }
    }
    return flush_path(
        folder, [](int fd) { return ::fcntl(fd, F_FULLFSYNC); }, error);
#elif defined(Q_OS_WIN)
    // Flushing a whole volume needs an administrator; each file is flushed, and
    // with it the file system's journal that holds the renames.
    Q_UNUSED(folder);
    for (const QString& file : written) {
        const QString native = QDir::toNativeSeparators(file);
        const HANDLE handle =
            CreateFileW(reinterpret_cast<const wchar_t*>(native.utf16()), GENERIC_WRITE,
                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle == INVALID_HANDLE_VALUE) {
            *error = qt_error_string(static_cast<int>(GetLastError()));
            return false;
        }
        const bool flushed = FlushFileBuffers(handle) != 0;
        const DWORD flush_error = GetLastError();
        CloseHandle(handle);
        if (!flushed) {
            *error = qt_error_string(static_cast<int>(flush_error));
            return false;
        }
    }
    return true;
#else
    // Other systems: sync() may return before the data is written, so each file
    // is flushed, then the folder that holds their names.
    for (const QString& file : written) {
        if (!flush_path(file, ::fsync, error)) {
            return false;
        }
    }
    return flush_path(folder, ::fsync, error);
#endif
}
