#pragma once

// Short texts of a preset record, for comparing whole records in one line.

#include "preset/preset_settings.h"

#include <QStringList>
#include <QtGlobal>

namespace record_text {

// "key=value" for every entry, in map order.
inline QStringList entries(const preset_settings& preset)
{
    QStringList result;
    for (auto it = preset.settings.constBegin(); it != preset.settings.constEnd(); ++it) {
        result << it.key() + QLatin1Char('=') + it.value();
    }
    return result;
}

// "0,0 255,255"
inline QString points(const point_list& curve)
{
    QStringList result;
    for (const QPoint& point : curve) {
        result << QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
    }
    return result.join(QLatin1Char(' '));
}

// The four curves as "master|red|green|blue".
inline QString curves(const preset_settings& preset)
{
    return QStringList{points(preset.tone_curve), points(preset.tone_curve_red),
                       points(preset.tone_curve_green), points(preset.tone_curve_blue)}
        .join(QLatin1Char('|'));
}

// The whole record as the golden files of tests/data spell it: one member a line,
// "name: text" ("name:" where empty), then the settings, one "key=value" a line.
inline QString describe(const preset_settings& preset)
{
    const auto line = [](const char* member, const QString& text) {
        return QLatin1String(member) + (text.isEmpty() ? QString() : QLatin1Char(' ') + text);
    };
    QStringList lines{line("name:", preset.name),
                      line("description:", preset.description),
                      line("tone_curve:", points(preset.tone_curve)),
                      line("tone_curve_red:", points(preset.tone_curve_red)),
                      line("tone_curve_green:", points(preset.tone_curve_green)),
                      line("tone_curve_blue:", points(preset.tone_curve_blue)),
                      QStringLiteral("settings:")};
    lines += entries(preset);
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

// Drops every message while it lives: the readers log each line or attribute, and a
// large file would flood the test output.
class quiet_log
{
public:
    quiet_log() : previous_(qInstallMessageHandler(drop)) {}
    ~quiet_log() { qInstallMessageHandler(previous_); }
    quiet_log(const quiet_log&) = delete;
    quiet_log& operator=(const quiet_log&) = delete;

private:
    static void drop(QtMsgType, const QMessageLogContext&, const QString&) {}
    QtMessageHandler previous_;
};

} // namespace record_text
