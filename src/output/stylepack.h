#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

// Writes one .costylepack archive at `path`: a ZIP holding one entry per style
// document, named after its key (the target file name, "Warm.costyle"), in key
// order. With `format` "stylepack_category" every entry lies in a folder named
// after the archive's complete base name ("My Looks/Warm.costyle"); any other
// format writes the entries at the top. Failures are logged, never thrown. The
// result tells whether the archive was written with every entry; the window's run
// doesn't ask, a batch tool does.
bool write_stylepack(const QString& path, const QString& format,
                     const QMap<QString, QString>& stylepack_documents);

// The same for documents already encoded as UTF-8. A batch of thousands of styles
// keeps them in this form, at half the memory of text. Where the archive fails,
// `failure_reason`, when given, receives libzip's own word for the first failure;
// the log lines keep the form they have in the window.
bool write_stylepack_utf8(const QString& path, const QString& format,
                          const QMap<QString, QByteArray>& entry_data,
                          QString* failure_reason = nullptr);
