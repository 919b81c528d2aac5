#include "converter/converter_log.h"

#include "converter/console_report.h"
#include "orn/message_handler.h"

#include <QString>

namespace {

console_report* active_report = nullptr;
converter_options::verbosity active_level = converter_options::verbosity::normal;

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

void converter_message_handler(QtMsgType type, const QMessageLogContext& context,
                               const QString& message)
{
    if (active_report == nullptr || !shown(type)) {
        return;
    }
    active_report->log_line(QLatin1String(orn::message_prefix(type)) +
                            qFormatLogMessage(type, context, message));
}

} // namespace

void install_converter_log(console_report* report, converter_options::verbosity level)
{
    active_report = report;
    active_level = level;
    qInstallMessageHandler(report != nullptr ? converter_message_handler : nullptr);
}
