#pragma once

#include "converter/converter_options.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

class console_report;
class loss_report;
class lut_set;
struct preset_settings;
struct preset_source;

struct batch_summary
{
    int converted = 0;
    int skipped = 0;
    int failed = 0;
    // Templates that the window's reader refused and the Lua reader read.
    int read_as_lua = 0;
};

// Converts a list of preset files the way the window's run does (reader by
// suffix, inspection, conversion, delivery), with the window's questions answered
// by the options, and reports every failure instead of staying silent. A failed
// file never ends the batch. Unlike the window it reads templates that the
// window's reader refuses as Lua (not with --strict), refuses files that are no
// develop preset, skips presets of which nothing reaches a style, and converts
// the presets inside .zip archives (preset_pack.h). Styles count as converted
// only once they are flushed to the disk, with one flush for the whole batch.
class batch_conversion
{
public:
    batch_conversion(const converter_options& options, console_report& report);

    // Converts `files` in the order given, a .zip standing for the presets in it,
    // and, in the stylepack formats, writes the archive after the last one.
    batch_summary run(const QStringList& files);

    // What became of each preset goes to `losses` as well (--report).
    void record_in(loss_report* losses) { losses_ = losses; }

    // A preset (or archive) that failed before it could be read, said, counted and
    // recorded.
    void fail(const QString& name, const QString& reason, batch_summary& summary);

private:
    enum class outcome
    {
        converted,
        skipped,
        failed
    };

    outcome convert_one(const preset_source& source);
    // convert_one, counted, and its outcome recorded for the report.
    void convert_recorded(const preset_source& source, batch_summary& summary);
    // Names what of the preset its style doesn't carry, in -v's log and the report.
    void tell_losses(const QString& path, const preset_settings& preset,
                     const QSet<QString>& read_keys);
    QString style_location(const QString& target_name) const;
    void convert_pack(const QString& path, batch_summary& summary);
    void count(outcome result, batch_summary& summary);
    // True when the preset's style would hold nothing of the preset; says so.
    bool skipped_as_empty(const preset_source& source, const preset_settings& preset,
                          const QString& document, bool has_develop_attributes,
                          const lut_set& luts);
    bool skipped_for_warnings(const QString& file, const preset_settings& preset,
                              const lut_set& luts);
    bool deliver(const preset_source& source, const QString& document);
    bool save_separate(const QString& file, const QString& target_name, const QString& document);
    void note_collision(const QString& path, const QString& target_name);
    bool write_archive();
    // Flushes what the batch wrote; false, having said so, when that failed.
    bool flushed(const QString& folder, const QStringList& written);

    const converter_options& options_;
    console_report& report_;
    loss_report* losses_ = nullptr;
    bool packing_ = false;
    int read_as_lua_ = 0;
    // The style of an empty preset without Name and UUID; made when first needed.
    QString empty_style_body_;
    // Target name to the document (UTF-8) that waits for the archive, in entry order.
    QMap<QString, QByteArray> stylepack_documents_;
    // Target name to the preset that last produced it, to tell about collisions.
    QHash<QString, QString> source_of_target_;
    // Styles written in the format "separate", to be flushed before they count.
    QStringList written_;
};

// True for the five colour spaces the conversion knows by name.
bool is_known_colour_space(const QString& colour_space);
