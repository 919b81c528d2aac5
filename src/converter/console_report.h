#pragma once

#include <QString>

// The converter's voice on the terminal. Messages go to standard error, one line
// each, "lookwright-convert: <kind>: <file>: <text>"; on a terminal a progress bar
// may stand on the last line, and every message first clears it, so bar and
// messages never mix. A quiet report says errors only. Whatever a message holds of
// a file's name or contents is shown escaped (terminal_text.h).
class console_report
{
public:
    console_report(bool show_progress, bool quiet);

    void error(const QString& file, const QString& reason);
    void warning(const QString& file, const QString& reason);
    // A line of the core's log, of the kind "debug", "info", "warning", ..., about
    // `file` (none when empty).
    void log_line(const char* kind, const QString& file, const QString& text);

    void progress(int done, int total);
    void finish_progress();

private:
    void clear_bar();

    bool show_progress_;
    bool quiet_;
    bool bar_visible_ = false;
};
