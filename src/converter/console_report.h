#pragma once

#include <QString>

// The converter's voice on the terminal. Messages go to standard error, one line
// each; on a terminal a progress bar may stand on the last line, and every message
// first clears it, so bar and messages never mix. A quiet report says errors only.
class console_report
{
public:
    console_report(bool show_progress, bool quiet);

    void error(const QString& file, const QString& reason);
    void warning(const QString& file, const QString& reason);
    // A log line, already formatted.
    void log_line(const QString& line);

    void progress(int done, int total);
    void finish_progress();

private:
    void clear_bar();

    bool show_progress_;
    bool quiet_;
    bool bar_visible_ = false;
};
