#pragma once

#include "preset/preset_settings.h"

#include <QString>

class QIODevice;

// Reads one preset file with the reader its suffix selects, compared in lower
// case: "lrtemplate" for templates, "xmp" for XMP presets. This is the one place
// that chooses a reader and catches a reader's failure, for every program.
enum class preset_read_status
{
    read,               // the record holds what the file gave (possibly nothing)
    unsupported_format, // the suffix selects no reader; the record is untouched
    failed,             // the reader threw; `error` holds its message
};

struct preset_read_result
{
    preset_read_status status = preset_read_status::read;
    QString error;
};

preset_read_result read_preset_file(const QString& path, preset_settings& out);

// The same for a preset that isn't a file of its own, such as an entry of an
// archive read into memory: `device` is open for reading at its start, and the
// suffix of `name` selects the reader. The same bytes fill the same record as
// read_preset_file gives for a file holding them.
preset_read_result read_preset(const QString& name, QIODevice& device, preset_settings& out);
