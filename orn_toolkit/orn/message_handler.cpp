#include "orn/message_handler.h"

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>

#include <iostream>

namespace orn {

std::function<void(const QString&)> log_sink;
std::function<void(const QString& text, const QString& title)> fatal_message_hook;
bool append_context = false;

namespace {

// Qt's threads may log too: the lock keeps one line's parts together. It is made
// on first use, and a message logged after its destruction at exit goes out unguarded.
Q_GLOBAL_STATIC(QMutex, console_lock)

// A harmless warning that some image libraries print for common PNG files.
const QString libpng_srgb_warning =
    QStringLiteral("libpng warning: iCCP: known incorrect sRGB profile");

struct level_output
{
    const char* prefix;
    std::ostream& stream;
};

level_output output_for(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return {"Debug: ", std::cout};
    case QtInfoMsg:
        return {"Info: ", std::cout};
    case QtWarningMsg:
        return {"Warning: ", std::cout};
    case QtCriticalMsg:
        return {"Critical: ", std::cerr};
    case QtFatalMsg:
        break;
    }
    return {"Fatal: ", std::cerr};
}

} // namespace

void install_message_handler(bool install, bool with_context)
{
    append_context = with_context;
    qInstallMessageHandler(install ? message_handler : nullptr);
}

void message_handler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message == libpng_srgb_warning) {
        return;
    }
    QByteArray line = qFormatLogMessage(type, context, message).toUtf8();
    if (append_context && context.file != nullptr && context.function != nullptr) {
        line += " (" + QByteArray(context.file) + ":" + QByteArray::number(context.line) + ", " +
                QByteArray(context.function) + ")";
    }
    const level_output output = output_for(type);

    if (log_sink) {
        log_sink(QString::fromLatin1(output.prefix) + message + QLatin1Char('\n'));
    }

    if (console_lock.isDestroyed()) {
        output.stream << output.prefix << line.constData() << std::endl;
    } else {
        QMutexLocker locker(console_lock());
        output.stream << output.prefix << line.constData() << std::endl;
    }

    if (type == QtFatalMsg && fatal_message_hook) {
        fatal_message_hook(QObject::tr("%1 encountered a fatal error and must be terminated:\n%2")
                               .arg(QCoreApplication::applicationName(), message),
                           QObject::tr("Fatal error"));
    }
}

} // namespace orn
