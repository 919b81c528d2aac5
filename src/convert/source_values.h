#pragma once

#include "preset/preset_settings.h"

#include <QString>

#include <optional>

// Reading a source value: the key must be present and its text must parse as a
// C-locale float (QString::toFloat, a leading '+' accepted). Anything else is no
// value, and the target it would feed stays unwritten.
std::optional<float> read_number(const preset_settings& preset, const QString& key);

// The value of `key`, or of `default_text` when the key is absent; a text that
// does not parse (an overflowing one included) counts as 0.
float number_or(const preset_settings& preset, const QString& key, const QString& default_text);
