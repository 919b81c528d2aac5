#pragma once

#include "converter/converter_options.h"

#include <QString>

class console_report;

// Routes the core's log through the converter's report: standard output stays
// free for the summary, and lines below the chosen verbosity are dropped (quiet:
// none, normal: warnings and worse, verbose: all). Each line names the file it is
// about, "lookwright-convert: warning: presets/a.xmp: Premature end of document.",
// while a log_file_scope names one.
void install_converter_log(console_report* report, converter_options::verbosity level);

// Names the file that the core's log lines are about while it lives: the preset
// being read, converted and written, or the archive being written.
class log_file_scope
{
public:
    explicit log_file_scope(const QString& path);
    ~log_file_scope();
    log_file_scope(const log_file_scope&) = delete;
    log_file_scope& operator=(const log_file_scope&) = delete;

private:
    QString previous_;
};
