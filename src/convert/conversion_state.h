#pragma once

#include "convert/lut_3d.h"
#include "output/style_document.h"
#include "preset/preset_settings.h"

#include <QSet>
#include <QString>

class lut_set;

// All that depends on the target colour space, decided once before the first stage.
// "adobe", "srgb" and "widegamut" carry channel curves through a table; "prophoto"
// and "raw" leave them as they are; "raw" alone feeds highlight recovery from the
// 2012 highlights and pulls the white point deeper. The tint offset column is
// chosen by get_tint_shift itself.
struct colour_strategy
{
    const lut_3d* active_table = nullptr;
    bool converts_channel_curves = true;
    bool raw = false;
};

// The working data of one conversion: the preset read, the style being filled.
struct conversion_state
{
    const preset_settings& preset;
    const lut_set& luts;
    QString colour_space;
    colour_strategy strategy;
    bool grayscale = false;
    bool old_process = false;
    style_values values;
    // When the caller asked: every key the stages read, through source_values.h.
    QSet<QString>* read_keys = nullptr;
};
