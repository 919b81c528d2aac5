#pragma once

#include "convert/lost_settings.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

struct batch_summary;

// The file --report writes: what became of each preset of a batch, in the order
// the batch took them, as JSON with keys in a stable (sorted) order:
//
//   {
//     "presets": [
//       {
//         "input": "looks/Dusk.xmp",
//         "lost": { "lens and geometry": ["LensProfileEnable"],
//                   "local adjustments": ["GradientBasedCorrections"] },
//         "outcome": "converted",
//         "style": "styles/Dusk.costyle",
//         "warnings": ["white balance modified by preset"]
//       },
//       { "input": "looks/Grid.lrtemplate", "lost": {}, "outcome": "failed",
//         "reason": "can't be read as a preset: ...", "style": null, "warnings": [] }
//     ],
//     "summary": { "converted": 1, "failed": 1, "skipped": 0 }
//   }
//
// "reason" stands where "style" is null: the first error about the preset, or for a
// skipped one the warning that skipped it. "warnings" holds every warning about the
// preset, the core's log lines too, whatever the verbosity.
class loss_report
{
public:
    // Starts the entry of a preset; messages about files without one are not kept.
    void open(const QString& input);
    void note_warning(const QString& file, const QString& text);
    void note_error(const QString& file, const QString& text);
    void set_lost(const QString& input, const QVector<lost_group>& lost);
    void set_style(const QString& input, const QString& location);
    // "converted", "skipped" or "failed".
    void set_outcome(const QString& input, const QString& outcome);
    // The batch's styles didn't reach the disk (the archive or the flush failed):
    // every preset counted as converted failed for `reason`.
    void unwrite_all(const QString& reason);

    QByteArray json(const batch_summary& summary) const;

private:
    struct entry
    {
        QString input;
        QString outcome;
        QString style;
        QString first_error;
        QStringList warnings;
        QVector<lost_group> lost;
    };
    entry* find(const QString& input);

    QVector<entry> entries_;
    QHash<QString, int> index_;
};

// One line for the terminal: "local adjustments: GradientBasedCorrections; lens and
// geometry: LensProfileEnable, VignetteAmount".
QString lost_line(const QVector<lost_group>& lost);
