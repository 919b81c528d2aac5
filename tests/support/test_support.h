#pragma once

#include "preset/preset_settings.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

#include <initializer_list>
#include <utility>

namespace test_support {

// Collects every log message while it lives, in place of the test framework's
// handler, so that a test can assert on lines that must not appear as well as
// those that must. Not nestable.
class log_capture
{
public:
    log_capture();
    ~log_capture();
    log_capture(const log_capture&) = delete;
    log_capture& operator=(const log_capture&) = delete;

    // "Debug: text", "Warning: text", ... in order of arrival.
    QStringList lines() const;
    // The lines of one level, without their prefix.
    QStringList messages(QtMsgType type) const;
    bool contains(QtMsgType type, const QString& text) const;

private:
    QtMessageHandler previous_;
};

// Names the application for QSettings and clears the settings store of this test
// process (it lives under the test's own XDG_CONFIG_HOME, set by CTest).
void use_test_settings();

// Sets the persisted "colorspace" for the conversions that read it; an empty text
// removes the key.
void set_colour_space(const QString& colour_space);

// A preset with these settings and nothing else.
preset_settings preset_with(std::initializer_list<std::pair<const char*, const char*>> entries);

// A braced develop template titled "Warm", with an exposure and a contrast.
extern const QByteArray warm_template;

// An XMP develop preset named `name` with an exposure of +0.50, `attributes` after it
// on the Description and `children` before the name.
QByteArray xmp_preset(const QByteArray& name, const QByteArray& attributes = QByteArray(),
                      const QByteArray& children = QByteArray());

// The values of a style document, key by key, in document order: "K=V".
QStringList document_entries(const QString& document);

// The V of the entry with this K, or a null string when the document has none.
QString document_value(const QString& document, const QString& key);

// A curve from its levels, "x,y x,y ...", and back.
point_list points_from(const QString& levels);
QString levels_of(const point_list& points);

// One entry of a ZIP archive as read back.
struct archive_entry
{
    QString name;
    QByteArray data;
};

// Every entry of the archive at `path`, in archive order; empty if it can't be opened.
QVector<archive_entry> read_archive(const QString& path);

// Writes a ZIP archive at `path` holding `entries` in order, deflated; a name
// ending in '/' is a folder. False if libzip refused.
bool write_archive(const QString& path, const QVector<archive_entry>& entries);

// Writes `contents` to a new file in `dir` and returns its path.
QString write_file(const QString& dir, const QString& name, const QByteArray& contents);

// The whole file, or nothing if it can't be read.
QByteArray read_all(const QString& path);

// A document with its UUID blanked, so that two conversions of one preset compare equal.
QByteArray without_uuid(QByteArray document);

// How a run of a program ended and what it printed; exit_code is -1 when it
// crashed or had to be killed after a minute.
struct process_result
{
    int exit_code = -1;
    QString out;
    QString err;
};

// Runs `program` with `arguments` in `folder`, as a user would from a terminal
// there, with its settings in `folder`/config (so that nothing reaches the real
// ones) and `extra` added to the environment; standard input is closed.
process_result run_program(const QString& program, const QString& folder,
                           const QStringList& arguments,
                           const QProcessEnvironment& extra = QProcessEnvironment());

} // namespace test_support
