#include "convert/colour_editor.h"
#include "convert/conversion_state.h"
#include "convert/curve_stage.h"
#include "convert/detail_effects.h"
#include "convert/lut_set.h"
#include "convert/monochrome_mix.h"
#include "convert/source_values.h"
#include "convert/split_toning.h"
#include "convert/tone_mapping.h"
#include "convert/white_balance.h"
#include "output/style_document.h"

#include <QSettings>
#include <QUuid>
#include <QtDebug>

namespace {

bool is_grayscale(const conversion_state& state)
{
    return source_text(state, QStringLiteral("ConvertToGrayscale"), QStringLiteral("False"))
               .toLower() == QLatin1String("true");
}

// The one place where the colour-space setting turns into behaviour. The literals
// are compared exactly, case included: any other text gets the identity table, no
// log line, and the converting treatment of the channel curves.
colour_strategy choose_strategy(const QString& colour_space, const lut_set& luts)
{
    if (colour_space == QLatin1String("adobe")) {
        qDebug("Using AdobeRGB colorspace (converting)");
        return {&luts.adobe_rgb(), true, false};
    }
    if (colour_space == QLatin1String("srgb")) {
        qDebug("Using sRGB colorspace (converting)");
        return {&luts.srgb(), true, false};
    }
    if (colour_space == QLatin1String("prophoto")) {
        qDebug("Using ProPhoto colorspace (some conversion)");
        return {&luts.identity(), false, false};
    }
    if (colour_space == QLatin1String("widegamut")) {
        qDebug("Using Wide Gamut RGB colorspace (converting)");
        return {&luts.wide_gamut(), true, false};
    }
    if (colour_space == QLatin1String("raw")) {
        qDebug("Using Wide Gamut RGB colorspace (RAW, some conversion)");
        return {&luts.wide_gamut(), false, true};
    }
    return {&luts.identity(), true, false};
}

void identify_preset(conversion_state& state)
{
    const preset_settings& preset = state.preset;
    state.values[QStringLiteral("Name")] =
        preset.name.isEmpty() ? source_text(state, QStringLiteral("about"), QString())
                              : preset.name;
    state.values[QStringLiteral("UUID")] = QUuid::createUuid().toString().mid(1, 36).toUpper();
}

// Any key of the old process version turns on the old tone stage. The list says
// "FillLights" although that stage reads "FillLight": a preset whose only old key
// is FillLight therefore counts as new. Presets converted before rely on that.
void decide_process(conversion_state& state)
{
    static const char* const old_keys[] = {"Brightness", "Clarity",    "Contrast",
                                           "Exposure",   "FillLights", "HighlightRecovery",
                                           "Shadows"};
    for (const char* key : old_keys) {
        if (has_source_key(state, QLatin1String(key))) {
            state.old_process = true;
            return;
        }
    }
}

} // namespace

bool lut_set::convert_preset(const preset_settings& preset, QString* out) const
{
    const QString colour_space =
        QSettings().value(QStringLiteral("colorspace"), QStringLiteral("raw")).toString();
    return convert_preset(preset, out, colour_space);
}

bool lut_set::convert_preset(const preset_settings& preset, QString* out,
                             const QString& colour_space, QSet<QString>* read_keys) const
{
    conversion_state state{preset, *this, colour_space, {}, false, false, {}, read_keys};
    state.strategy = choose_strategy(colour_space, *this);
    state.grayscale = is_grayscale(state);

    // The stages, in their fixed order. A later stage's store to a key replaces an
    // earlier one's, so this order decides, for instance, that the 2012 tone keys
    // win over the old ones.
    identify_preset(state);   // 1
    decide_process(state);    // 2
    map_white_balance(state); // 3
    if (state.old_process) {
        map_old_tone(state); // 4
    }
    map_tone_2012(state);  // 5
    map_clarity(state);    // 6
    map_saturation(state); // 7
    map_curves(state);     // 8
    if (state.grayscale) {
        mix_monochrome(state); // 9
    }
    map_split_toning(state); // 10

    map_colour_editor(state); // 11
    map_detail(state);        // 12
    map_vignette(state);      // 13
    map_grain(state);         // 14
    map_dehaze(state);        // 15

    write_style_document(state.values, out); // 16
    return true;
}
