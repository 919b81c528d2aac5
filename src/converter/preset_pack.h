#pragma once

// Preset packs: presets are sold and shared as ZIP archives, often with a folder
// per collection and a few files beside them (a licence, a picture, a nested
// archive of the same presets in another format). Their entries are read into
// memory one at a time, never unpacked to disk.
//
// An archive is data from a stranger, and a small one can claim or hold far more
// than it is worth: thousands of entries, sizes of gigabytes, archives within
// archives. The limits below keep the memory of a reading bounded by about one
// entry's limit, whatever the archive says of itself: a declared size is only a
// first test, and the bytes are counted as they come.

#include <QByteArray>
#include <QString>

#include <functional>

struct pack_limits
{
    // Entries of any kind; a pack of many collections holds a few thousand.
    qint64 entries = 20000;
    // The largest real presets, with many local corrections, stay below 1 MiB.
    qint64 entry_bytes = qint64(16) << 20;
    // All preset entries together; past this the rest of the archive is not read.
    qint64 total_bytes = qint64(256) << 20;
};

// One entry of a pack that may be a preset, by its suffix.
struct pack_entry
{
    enum class status
    {
        read,           // `bytes` hold the entry
        refused,        // `error` says why the entry wasn't read
        nested_archive, // a .zip inside the pack, which isn't opened
    };
    status state = status::read;
    // The entry's path inside the archive, "Collection/Warm.xmp".
    QString name;
    QByteArray bytes;
    QString error;
};

// Hands every .xmp, .lrtemplate and .zip entry of the archive at `path` to
// `visit`, in archive order; folders, other files and the resource-fork copies
// that some systems add under "__MACOSX/" are passed over. Returns what kept the
// archive from being read, or reading it to its end (not an archive, damaged
// beyond its entries, too many entries, too much data): empty when nothing did.
QString read_preset_pack(const QString& path, const std::function<void(const pack_entry&)>& visit,
                         const pack_limits& limits = pack_limits());
