#pragma once

#include <QString>

#include <optional>

struct conversion_state;

// The conversion's only ways into the preset's settings. Every value read passes
// through source_text, which notes the key when the caller of the conversion asked
// which keys were read (conversion_state::read_keys): what a preset loses is then
// whatever no read asked for, with no second list of keys to keep in step.

// The stored text if `key` is present, even when it is empty; else `default_text`.
QString source_text(const conversion_state& state, const QString& key, const QString& default_text);

// Whether the preset holds `key`. Presence alone carries no value, so it isn't
// noted: every key whose presence decides something is read as well.
bool has_source_key(const conversion_state& state, const QString& key);

// Reading a source value: the key must be present and its text must parse as a
// C-locale float (QString::toFloat, a leading '+' accepted). Anything else is no
// value, and the target it would feed stays unwritten.
std::optional<float> read_number(const conversion_state& state, const QString& key);

// The value of `key`, or of `default_text` when the key is absent; a text that
// does not parse (an overflowing one included) counts as 0.
float number_or(const conversion_state& state, const QString& key, const QString& default_text);
