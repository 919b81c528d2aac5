#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <unistd.h>

// The readers take a path, as the program gives them one: each input is written to
// a file of this process in memory-backed storage and read back through it.
inline QString fuzz_input_file(const char* suffix, const QByteArray& bytes)
{
    static const QString base = QStringLiteral("/dev/shm/lookwright-fuzz-%1.").arg(getpid());
    const QString path = base + QLatin1String(suffix);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        file.write(bytes);
    }
    return path;
}
