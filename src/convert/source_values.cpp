#include "convert/source_values.h"

std::optional<float> read_number(const preset_settings& preset, const QString& key)
{
    if (!preset.settings.contains(key)) {
        return std::nullopt;
    }
    bool ok = false;
    const float value = value_or(preset.settings, key, QString()).toFloat(&ok);
    if (!ok) {
        return std::nullopt;
    }
    return value;
}

float number_or(const preset_settings& preset, const QString& key, const QString& default_text)
{
    // toFloat reports failure but still returns infinity for an overflowing text
    // ("1e39"); a text that doesn't parse counts as 0, whatever the reason.
    bool ok = false;
    const float value = value_or(preset.settings, key, default_text).toFloat(&ok);
    return ok ? value : 0.0f;
}
