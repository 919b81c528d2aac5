#pragma once

// Short texts of a preset record, for comparing whole records at once.

#include "preset/preset_settings.h"
#include "support/test_support.h"

#include <QStringList>

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

// The four curves as "master|red|green|blue", each as "x,y x,y".
inline QString curves(const preset_settings& preset)
{
    using test_support::levels_of;
    return QStringList{levels_of(preset.tone_curve), levels_of(preset.tone_curve_red),
                       levels_of(preset.tone_curve_green), levels_of(preset.tone_curve_blue)}
        .join(QLatin1Char('|'));
}

// The whole record as the golden files of tests/data spell it: "name:", "description:"
// and "curves:" lines, then the settings, one "key=value" a line.
inline QString describe(const preset_settings& preset)
{
    const auto line = [](const char* label, const QString& text) {
        return QLatin1String(label) + (text.isEmpty() ? QString() : QLatin1Char(' ') + text);
    };
    const QStringList lines{line("name:", preset.name), line("description:", preset.description),
                            line("curves:", curves(preset))};
    return (lines + entries(preset)).join(QLatin1Char('\n')) + QLatin1Char('\n');
}

} // namespace record_text
