#pragma once

// One flush for a whole batch. Writing each style through a temporary file and a
// rename keeps any reader from ever seeing half a style; flushing each one to the
// disk as well costs more than the conversion itself (about a millisecond a file
// on this project's machines, far more on a spinning disk). So the styles are
// written and renamed without a flush, and the batch flushes once before it
// reports them as converted.

#include <QString>
#include <QStringList>

// Brings the files `written` in `folder`, and their entries in it, safely onto
// the disk. Linux flushes the folder's whole file system at once (syncfs); macOS
// pushes each file to the drive and then has the drive empty its cache once
// (F_FULLFSYNC); other systems flush each file and then the folder. False, with
// the system's reason in `error`, when the flush reports a failure: some of the
// data may then never reach the disk.
[[nodiscard]] bool flush_to_disk(const QString& folder, const QStringList& written, QString* error);
