#pragma once

// Helpers for the stage tests: presets and expectations written as "Key=Value"
// entries separated by blanks (no key or value of a style holds one), so that a
// data row reads like the settings it converts.

#include "convert/lut_set.h"
#include "support/test_support.h"

#include <QRegularExpression>
#include <QStringList>

namespace converted_entries {

inline QStringList words(const QString& text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// A preset with these "Key=Value" settings (split at the first '=') and no name.
inline preset_settings preset_from(const QStringList& entries)
{
    preset_settings preset;
    for (const QString& entry : entries) {
        preset.settings[entry.section(QLatin1Char('='), 0, 0)] = entry.section(QLatin1Char('='), 1);
    }
    return preset;
}

inline QString convert(const preset_settings& preset, const QString& colour_space)
{
    QString out;
    lut_set().convert_preset(preset, &out, colour_space);
    return out;
}

// The document's entries without the three that every style holds (Name, UUID,
// ColorCorrections): what the other stages wrote, in document order.
inline QStringList stage_entries_in(const QString& document)
{
    static const QRegularExpression other_stages(
        QStringLiteral("^(?!Name=|UUID=|ColorCorrections=)"));
    return test_support::document_entries(document).filter(other_stages);
}

// The entries the stages write for these blank-separated settings, joined by blanks.
inline QString stage_entries(const QString& settings, const QString& colour_space)
{
    return stage_entries_in(convert(preset_from(words(settings)), colour_space))
        .join(QLatin1Char(' '));
}

} // namespace converted_entries
