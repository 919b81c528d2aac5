#pragma once

#include <QString>

class loss_report;

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

    // Every error and warning about a file also goes to `losses` (none: nullptr),
    // a quiet report's too, and so do the core's warnings that keep() is given.
    void record_in(loss_report* losses) { losses_ = losses; }
    void keep(const QString& file, const QString& text);

    void progress(int done, int total);
    void finish_progress();

private:
    void clear_bar();

    bool show_progress_;
    bool quiet_;
    bool bar_visible_ = false;
    loss_report* losses_ = nullptr;
};
