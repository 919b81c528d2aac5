#include "orn/message_handler.h"

#include <QCoreApplication>
#include <QVariant>
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

// Warnings go to standard output with the rest; only what is critical or fatal
// goes to standard error.
std::ostream& stream_for(QtMsgType type)
{
    return type == QtCriticalMsg || type == QtFatalMsg ? std::cerr : std::cout;
}

// The name a user knows the program by. A program with a window may give it a
// display name of its own; that lives in the Gui module, out of this library's
// reach, but the application object carries it as a property.
QString display_name()
{
    const QCoreApplication* const app = QCoreApplication::instance();
    const QString shown =
        app != nullptr ? app->property("applicationDisplayName").toString() : QString();
    return shown.isEmpty() ? QCoreApplication::applicationName() : shown;
}

} // namespace

const char* message_prefix(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "Debug: ";
    case QtInfoMsg:
        return "Info: ";
    case QtWarningMsg:
        return "Warning: ";
    case QtCriticalMsg:
        return "Critical: ";
    case QtFatalMsg:
        break;
    }
    return "Fatal: ";
}

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
    const char* prefix = message_prefix(type);
    std::ostream& stream = stream_for(type);

    if (log_sink) {
        log_sink(QString::fromLatin1(prefix) + message + QLatin1Char('\n'));
    }

    if (console_lock.isDestroyed()) {
        stream << prefix << line.constData() << std::endl;
    } else {
        QMutexLocker locker(console_lock());
        stream << prefix << line.constData() << std::endl;
    }

    if (type == QtFatalMsg && fatal_message_hook) {
        fatal_message_hook(QObject::tr("%1 encountered a fatal error and must be terminated:\n%2")
                               .arg(display_name(), message),
                           QObject::tr("Fatal error"));
    }
}

} // namespace orn
