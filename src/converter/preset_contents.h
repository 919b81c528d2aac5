#pragma once

// What a preset holds that no style takes. About one develop preset in twenty of a
// large public collection holds only settings that the conversion doesn't map (a
// lens vignette, the white-balance mode, lens or local corrections); its style
// would hold nothing but the defaults that every style gets. The conversion itself
// is the judge: a preset maps nothing when its style differs from that of an empty
// preset only in the two entries every style has of its own.

#include <QString>

struct preset_settings;

// The document without its Name and UUID entries.
QString style_body(const QString& document);

// What the preset holds, for the message of a preset that maps nothing: families
// of settings by name, other settings by key, "a lens vignette and CameraProfile".
// The entries that describe the preset itself (title, type, UUID, ...) don't count;
// empty when nothing else is there. Local corrections are lists of tables or
// elements that no reader keeps, so they are looked for in the file's `bytes`.
QString unmapped_settings(const preset_settings& preset, const QByteArray& bytes);
