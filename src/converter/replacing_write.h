#pragma once

#include <QByteArray>
#include <QString>

// Writes `bytes` to a new temporary file beside `target` and renames it over the
// target once it is complete, so that the target holds the old file or the whole
// new one and never part of either; the temporary file is removed on any failure.
// Nothing is flushed to the disk here (disk_flush.h). A new target gets the
// permissions any new file gets, an existing one keeps its own. False, with the
// reason in `error`, when the target couldn't be written.
[[nodiscard]] bool write_replacing(const QString& target, const QByteArray& bytes, QString* error);
