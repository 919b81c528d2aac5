#include "converter/batch_conversion.h"

#include "converter/console_report.h"
#include "converter/converter_log.h"
#include "converter/disk_flush.h"
#include "converter/loss_report.h"
#include "converter/preset_contents.h"
#include "converter/preset_intake.h"
#include "converter/preset_pack.h"
#include "converter/replacing_write.h"
#include "convert/lost_settings.h"
#include "convert/lut_set.h"
#include "output/stylepack.h"

#include <QDir>
#include <QFileInfo>
#include <QIODevice>
#include <QtDebug>

#include <memory>

bool is_known_colour_space(const QString& colour_space)
{
    static const QStringList known{QStringLiteral("raw"), QStringLiteral("adobe"),
                                   QStringLiteral("srgb"), QStringLiteral("prophoto"),
                                   QStringLiteral("widegamut")};
    return known.contains(colour_space);
}

batch_conversion::batch_conversion(const converter_options& options, console_report& report)
    : options_(options), report_(report), packing_(options.format != QLatin1String("separate"))
{}

batch_summary batch_conversion::run(const QStringList& files)
{
    batch_summary summary;
    for (int i = 0; i < files.size(); ++i) {
        if (QFileInfo(files[i]).suffix().toLower() == QLatin1String("zip")) {
            convert_pack(files[i], summary);
        } else {
            convert_recorded(preset_source::file(files[i]), summary);
        }
        report_.progress(i + 1, files.size());
    }
    report_.finish_progress();
    summary.read_as_lua = read_as_lua_;

    bool on_disk = true;
    QString lost_reason;
    if (packing_ && !stylepack_documents_.isEmpty()) {
        on_disk = write_archive();
        if (!on_disk) {
            lost_reason = QStringLiteral("the archive could not be written");
        }
        on_disk = on_disk && flushed(QFileInfo(options_.pack_path).path(), {options_.pack_path});
    } else if (!written_.isEmpty()) {
        on_disk = flushed(options_.output_dir, written_);
    }
    if (!on_disk) {
        // None of the converted presets is known to be on the disk.
        summary.failed += summary.converted;
        summary.converted = 0;
        if (losses_ != nullptr) {
            losses_->unwrite_all(lost_reason.isEmpty()
                                     ? QStringLiteral("the styles could not be flushed to the disk")
                                     : lost_reason);
        }
    }
    return summary;
}

void batch_conversion::convert_recorded(const preset_source& source, batch_summary& summary)
{
    if (losses_ != nullptr) {
        losses_->open(source.name);
    }
    const outcome result = convert_one(source);
    count(result, summary);
    if (losses_ != nullptr) {
        static const char* const words[] = {"converted", "skipped", "failed"};
        losses_->set_outcome(source.name, QLatin1String(words[static_cast<int>(result)]));
    }
}

void batch_conversion::fail(const QString& name, const QString& reason, batch_summary& summary)
{
    if (losses_ != nullptr) {
        losses_->open(name);
    }
    report_.error(name, reason);
    ++summary.failed;
    if (losses_ != nullptr) {
        losses_->set_outcome(name, QStringLiteral("failed"));
    }
}

void batch_conversion::count(outcome result, batch_summary& summary)
{
    switch (result) {
    case outcome::converted:
        ++summary.converted;
        break;
    case outcome::skipped:
        ++summary.skipped;
        break;
    case outcome::failed:
        ++summary.failed;
        break;
    }
}

void batch_conversion::convert_pack(const QString& path, batch_summary& summary)
{
    int entries = 0;
    const QString failure = read_preset_pack(path, [&](const pack_entry& entry) {
        ++entries;
        const preset_source source = preset_source::entry(path, entry.name, entry.bytes);
        switch (entry.state) {
        case pack_entry::status::read:
            convert_recorded(source, summary);
            break;
        case pack_entry::status::refused:
            fail(source.name, entry.error, summary);
            break;
        case pack_entry::status::nested_archive:
            report_.warning(source.name,
                            QStringLiteral("an archive inside an archive is not "
                                           "opened; unpack it to convert its presets"));
            break;
        }
    });
    if (!failure.isEmpty()) {
        fail(path, failure, summary);
    } else if (entries == 0) {
        report_.warning(path, QStringLiteral("holds no .xmp or .lrtemplate presets"));
    }
}

batch_conversion::outcome batch_conversion::convert_one(const preset_source& source)
{
    const QString& path = source.name;
    const log_file_scope log_scope(path);
    preset_settings preset;
    const preset_intake intake = take_in_preset(source, options_.strict, preset);
    switch (intake.status) {
    case intake_status::read:
        break;
    case intake_status::read_as_lua:
        ++read_as_lua_;
        report_.warning(path,
                        QStringLiteral("read as Lua, which the window would ") + intake.reason);
        break;
    case intake_status::unreadable:
        report_.error(path, QStringLiteral("can't be read: ") + intake.reason);
        return outcome::failed;
    case intake_status::unsupported_format:
        report_.error(path, QStringLiteral("unsupported preset format (only .lrtemplate and .xmp "
                                           "presets can be converted)"));
        return outcome::failed;
    case intake_status::failed:
        report_.error(path, QStringLiteral("can't be read as a preset: ") + intake.reason);
        return outcome::failed;
    case intake_status::not_a_preset:
        report_.error(path, QStringLiteral("not a develop preset: ") + intake.reason);
        return outcome::failed;
    }
    qDebug() << preset.settings;

    const lut_set luts;
    QString document;
    // The keys read are gathered only when someone will be told what is lost.
    const bool telling_losses =
        losses_ != nullptr || options_.level == converter_options::verbosity::verbose;
    QSet<QString> read_keys;
    if (!luts.convert_preset(preset, &document, options_.colour_space,
                             telling_losses ? &read_keys : nullptr)) {
        report_.error(path, QStringLiteral("the preset could not be converted"));
        return outcome::failed;
    }
    if (telling_losses) {
        tell_losses(path, preset, read_keys);
    }
    if (skipped_as_empty(source, preset, document, intake.has_develop_attributes, luts) ||
        skipped_for_warnings(path, preset, luts)) {
        return outcome::skipped;
    }
    return deliver(source, document) ? outcome::converted : outcome::failed;
}

void batch_conversion::tell_losses(const QString& path, const preset_settings& preset,
                                   const QSet<QString>& read_keys)
{
    const QVector<lost_group> lost = lost_settings(preset, read_keys);
    if (losses_ != nullptr) {
        losses_->set_lost(path, lost);
    }
    if (lost.isEmpty()) {
        qInfo("Every setting is carried into the style");
    } else {
        qInfo("Not carried into the style: %s", qUtf8Printable(lost_line(lost)));
    }
}

// Where the style of `target_name` goes: a file in the output folder, or an
// entry of the archive, named "archive:entry" as write_stylepack names it.
QString batch_conversion::style_location(const QString& target_name) const
{
    if (!packing_) {
        return QDir(options_.output_dir).filePath(target_name);
    }
    const QString entry =
        options_.format == QLatin1String("stylepack_category")
            ? QFileInfo(options_.pack_path).completeBaseName() + QLatin1Char('/') + target_name
            : target_name;
    return options_.pack_path + QLatin1Char(':') + entry;
}

bool batch_conversion::skipped_as_empty(const preset_source& source, const preset_settings& preset,
                                        const QString& document, bool has_develop_attributes,
                                        const lut_set& luts)
{
    if (empty_style_body_.isNull()) {
        QString empty_style;
        luts.convert_preset(preset_settings(), &empty_style, options_.colour_space);
        empty_style_body_ = style_body(empty_style);
    }
    if (style_body(document) != empty_style_body_) {
        return false;
    }
    const std::unique_ptr<QIODevice> bytes = source.open();
    const QString held =
        unmapped_settings(preset, bytes->isOpen() ? bytes->readAll() : QByteArray());
    QString reason;
    if (!has_develop_attributes) {
        reason = QStringLiteral("a photo's metadata without develop settings");
    } else if (held.isEmpty()) {
        reason = QStringLiteral("it holds no develop settings");
    } else {
        reason = QStringLiteral("nothing in it maps to a style (it holds only %1)").arg(held);
    }
    report_.warning(source.name, QStringLiteral("skipped: ") + reason);
    return true;
}

// The window asks about these three kinds before converting; here the --skip
// options answer. A preset that falls under any requested skip is skipped before
// anything about it is reported, as the window's Skip All does.
bool batch_conversion::skipped_for_warnings(const QString& file, const preset_settings& preset,
                                            const lut_set& luts)
{
    bool has_white_balance = false;
    bool has_rgb_table = false;
    bool has_calibration = false;
    luts.inspect_preset(preset, has_white_balance, has_rgb_table, has_calibration);

    struct kind
    {
        bool present;
        bool skip;
        const char* text;
    };
    const kind kinds[] = {
        {has_white_balance, options_.skip_white_balance, "white balance modified by preset"},
        {has_rgb_table, options_.skip_unsupported,
         "unsupported parameters in preset (LUT), which will be ignored"},
        {has_calibration, options_.skip_calibration, "camera calibration modified by preset"},
    };
    for (const kind& k : kinds) {
        if (k.present && k.skip) {
            report_.warning(file, QStringLiteral("skipped: ") + QLatin1String(k.text));
            return true;
        }
    }
    for (const kind& k : kinds) {
        if (k.present) {
            report_.warning(file, QLatin1String(k.text));
        }
    }
    return false;
}

bool batch_conversion::deliver(const preset_source& source, const QString& document)
{
    const QString target_name =
        QFileInfo(source.file_name).completeBaseName() + QStringLiteral(".costyle");
    note_collision(source.name, target_name);
    bool delivered = true;
    if (packing_) {
        stylepack_documents_.insert(target_name, document.toUtf8());
    } else {
        delivered = save_separate(source.name, target_name, document);
    }
    if (delivered && losses_ != nullptr) {
        losses_->set_style(source.name, style_location(target_name));
    }
    return delivered;
}

void batch_conversion::note_collision(const QString& path, const QString& target_name)
{
    const auto earlier = source_of_target_.constFind(target_name);
    if (earlier != source_of_target_.constEnd()) {
        report_.warning(path, QStringLiteral("replaces the style converted from '%1' (both become "
                                             "'%2')")
                                  .arg(earlier.value(), target_name));
    }
    source_of_target_.insert(target_name, path);
}

// The style replaces the target only when it is complete, so a failure never
// leaves half a style or destroys an existing one; the batch flushes it later.
bool batch_conversion::save_separate(const QString& file, const QString& target_name,
                                     const QString& document)
{
    const QString target_path = QDir(options_.output_dir).filePath(target_name);
    QString reason;
    if (!write_replacing(target_path, document.toUtf8(), &reason)) {
        report_.error(file, QStringLiteral("can't write '%1': %2").arg(target_path, reason));
        return false;
    }
    written_ << target_path;
    qInfo("Wrote '%s'", qUtf8Printable(target_path));
    return true;
}

bool batch_conversion::write_archive()
{
    const log_file_scope log_scope(options_.pack_path);
    QString reason;
    if (!write_stylepack_utf8(options_.pack_path, options_.format, stylepack_documents_, &reason)) {
        report_.error(options_.pack_path,
                      QStringLiteral("the archive could not be written: ") + reason);
        return false;
    }
    qInfo("Wrote '%s'", qUtf8Printable(options_.pack_path));
    return true;
}

bool batch_conversion::flushed(const QString& folder, const QStringList& written)
{
    QString reason;
    if (!flush_to_disk(folder, written, &reason)) {
        report_.error(folder, QStringLiteral("what was written here could not be flushed to the "
                                             "disk, so none of it counts as converted: ") +
                                  reason);
        return false;
    }
    return true;
}
