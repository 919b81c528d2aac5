#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

struct preset_settings;

// What of a preset a style does not carry: the keys of its settings that no stage
// of the conversion read, and the lists its reader dropped, under the headings a
// photographer looks for them by. Keys that only describe the preset (names,
// versions, UUIDs, panel switches) and keys that set nothing (0, false, an empty
// text, or a dependent value whose governing slider sets nothing) lose nothing
// and are left out.

struct lost_group
{
    QString heading;  // "local adjustments", "lens and geometry", ...
    QStringList keys; // sorted
};

// True when the preset doesn't hold `key`, or holds a value for it that sets
// nothing: 0, false, an empty text, or the key's own neutral value.
bool key_sets_nothing(const preset_settings& preset, const QString& key);

// The groups in a fixed order of headings, empty ones left out; no groups when
// nothing is lost. `read_keys` are the keys the conversion read (lut_set::convert_preset).
QVector<lost_group> lost_settings(const preset_settings& preset, const QSet<QString>& read_keys);
