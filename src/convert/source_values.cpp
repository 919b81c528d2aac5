#include "convert/source_values.h"

#include "convert/conversion_state.h"

QString source_text(const conversion_state& state, const QString& key, const QString& default_text)
{
    if (state.read_keys != nullptr) {
        state.read_keys->insert(key);
    }
    return value_or(state.preset.settings, key, default_text);
}

bool has_source_key(const conversion_state& state, const QString& key)
{
    return state.preset.settings.contains(key);
}

std::optional<float> read_number(const conversion_state& state, const QString& key)
{
    if (!has_source_key(state, key)) {
        return std::nullopt;
    }
    bool ok = false;
    const float value = source_text(state, key, QString()).toFloat(&ok);
    if (!ok) {
        return std::nullopt;
    }
    return value;
}

float number_or(const conversion_state& state, const QString& key, const QString& default_text)
{
    // toFloat reports failure but still returns infinity for an overflowing text
    // ("1e39"); a text that doesn't parse counts as 0, whatever the reason.
    bool ok = false;
    const float value = source_text(state, key, default_text).toFloat(&ok);
    return ok ? value : 0.0f;
}
