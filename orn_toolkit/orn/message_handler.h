#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

namespace orn {

// The console format every program of the toolkit sets before anything logs.
inline constexpr const char* message_pattern =
    "%{time hh:mm:ss.zzz} %{if-category}%{category}: %{endif}%{message}";

// Receives "<prefix><message>\n" for every line, besides the console. Empty by default.
extern std::function<void(const QString&)> log_sink;

// Shows a fatal message to the user before Qt ends the process. The core has no
// widgets, so a program with a window installs a box here; without one a fatal
// message is logged and the process ends as Qt ends it.
extern std::function<void(const QString& text, const QString& title)> fatal_message_hook;

// Adds source file, line and function to a console line when set.
extern bool append_context;

// "Debug: ", "Info: ", "Warning: ", "Critical: " or "Fatal: ": how a console line
// of each level begins.
const char* message_prefix(QtMsgType type);

void install_message_handler(bool install, bool with_context);
void message_handler(QtMsgType type, const QMessageLogContext& context, const QString& message);

} // namespace orn
