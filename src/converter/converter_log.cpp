#include "converter/converter_log.h"

#include "converter/console_report.h"

#include <QRegularExpression>

namespace {

console_report* active_report = nullptr;
converter_options::verbosity active_level = converter_options::verbosity::normal;
QString active_file;
// A broken template's log line quotes the words around the fault, and an open
// quote makes the rest of the file one word: a terminal gets the start of it.
constexpr int longest_line = 1000;

int severity(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return 0;
    case QtInfoMsg:
        return 1;
    case QtWarningMsg:
        return 2;
    case QtCriticalMsg:
        return 3;
    case QtFatalMsg:
        break;
    }
    return 4;
}

const char* kind_word(QtMsgType type)
{
    static const char* const words[] = {"debug", "info", "warning", "critical", "fatal"};
    return words[severity(type)];
}

bool shown(QtMsgType type)
{
    switch (active_level) {
    case converter_options::verbosity::quiet:
        return type == QtFatalMsg;
    case converter_options::verbosity::normal:
        return severity(type) >= severity(QtWarningMsg);
    case converter_options::verbosity::verbose:
        break;
    }
    return true;
}

// The XMP reader logs the XML parser's error as the debug stream prints it, the
// error's number and its text in quotes: `4 "Premature end of document."`. The
// number means nothing to a reader of the terminal; the text is what tells.
QString readable(const QString& message)
{
    static const QRegularExpression stream_error(QStringLiteral("^\\d+ \"(.*)\"$"));
    const QRegularExpressionMatch match = stream_error.match(message);
    if (!match.hasMatch()) {
        return message;
    }
    QString text = match.captured(1);
    text.replace(QLatin1String("\\\""), QLatin1String("\""));
    text.replace(QLatin1String("\\\\"), QLatin1String("\\"));
    return text;
}

void converter_message_handler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    // A warning belongs in the report whether the terminal shows it or not.
    const bool warns = severity(type) >= severity(QtWarningMsg);
    if (active_report == nullptr || (!warns && !shown(type))) {
        return;
    }
    QString text = readable(message);
    if (text.size() > longest_line) {
        text = text.left(longest_line) +
               QStringLiteral("... (%1 more characters)").arg(text.size() - longest_line);
    }
    if (warns) {
        active_report->keep(active_file, text);
    }
    if (shown(type)) {
        active_report->log_line(kind_word(type), active_file, text);
    }
}

} // namespace

void install_converter_log(console_report* report, converter_options::verbosity level)
{
    active_report = report;
    active_level = level;
    qInstallMessageHandler(report != nullptr ? converter_message_handler : nullptr);
}

log_file_scope::log_file_scope(const QString& path) : previous_(active_file)
{
    active_file = path;
}

log_file_scope::~log_file_scope()
{
    active_file = previous_;
}
