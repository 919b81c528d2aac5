#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QIODevice;
struct preset_settings;

// Where a preset's bytes are: a file, or an entry of a preset pack already read
// into memory. Both take the same road from here on.
struct preset_source
{
    // How messages name the preset: its path, or "pack.zip:folder/Warm.xmp".
    QString name;
    // The preset's own file name: its suffix chooses the reader, its base names
    // the style.
    QString file_name;
    // The file; empty for an entry, whose bytes are in `bytes`.
    QString path;
    QByteArray bytes;

    static preset_source file(const QString& path);
    static preset_source entry(const QString& archive, const QString& entry_name,
                               const QByteArray& bytes);

    // A fresh device at the start of the preset; check isOpen().
    std::unique_ptr<QIODevice> open() const;
};

// How one file of a batch was read, and whether it is a develop preset at all.
//
// A template takes the window's reader first; only where that refuses it is the
// tolerant Lua reader tried (not with `strict`). Files of the preset suffixes that
// hold no develop preset are told apart here, where the window would convert them
// into a style of defaults: an empty file, an .xmp whose walk doesn't reach a
// Description (random bytes, an HTML page), and a template of another type (print,
// web and keyword-set templates share the format).
enum class intake_status
{
    read,               // a develop preset, as the window reads it
    read_as_lua,        // a template the window refuses, read by the Lua reader
    unreadable,         // the file can't be opened
    unsupported_format, // the suffix selects no reader
    failed,             // no reader could read it
    not_a_preset,       // no develop preset at all
};

struct preset_intake
{
    intake_status status = intake_status::read;
    // unreadable, failed: why; read_as_lua: whether the window's reader refused it
    // ("refuse: " and its error) or misread it ("misread: " and the keys);
    // not_a_preset: what the file is instead.
    QString reason;
    // False for an .xmp whose Description has no attribute of the develop
    // settings' namespace: a photo's metadata sidecar.
    bool has_develop_attributes = true;
};

// Fills `out` from the preset, to which the caller gives a fresh record.
preset_intake take_in_preset(const preset_source& source, bool strict, preset_settings& out);
