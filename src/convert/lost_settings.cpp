#include "convert/lost_settings.h"

#include "preset/preset_settings.h"

#include <QMap>

#include <cstring>

namespace {

enum class heading
{
    bookkeeping, // never reported
    local_adjustments,
    lens_and_geometry,
    profile_and_look,
    detail,
    colour,
    other,
};

const char* const heading_texts[] = {"",       "local adjustments", "lens and geometry",
                                     "profile and look", "detail", "colour", "other"};

// Keys by the start of their name, first match wins; a name that ends in '$' must
// match whole. Local corrections arrive as the names of the lists their reader
// dropped (both formats), a look as an XMP element or as a template's flattened
// table (Amount, LookTable). Calibration stands with the profile, beside which
// photographers have always found it. Grain counts as detail, the post-crop
// vignette as an effect among "other".
struct key_rule
{
    const char* pattern;
    heading group;
};

const key_rule rules[] = {
    // Describing the preset rather than setting anything.
    {"title$", heading::bookkeeping},
    {"type$", heading::bookkeeping},
    {"id$", heading::bookkeeping},
    {"internalName$", heading::bookkeeping},
    {"version$", heading::bookkeeping},
    {"uuid$", heading::bookkeeping},
    {"about$", heading::bookkeeping},
    {"Name$", heading::bookkeeping},
    {"ShortName$", heading::bookkeeping},
    {"SortName$", heading::bookkeeping},
    {"Description$", heading::bookkeeping},
    {"PresetType$", heading::bookkeeping},
    {"Cluster$", heading::bookkeeping},
    {"UUID$", heading::bookkeeping},
    {"Version$", heading::bookkeeping},
    {"Group$", heading::bookkeeping},
    {"Copyright$", heading::bookkeeping},
    {"ContactInfo$", heading::bookkeeping},
    {"ProcessVersion$", heading::bookkeeping},
    {"HasSettings$", heading::bookkeeping},
    {"AlreadyApplied$", heading::bookkeeping},
    {"CameraModelRestriction$", heading::bookkeeping},
    {"RequiresRGBTables$", heading::bookkeeping},
    {"Supports", heading::bookkeeping},
    {"supports", heading::bookkeeping},
    // A panel's switch: what the panel holds is told by its own keys.
    {"Enable", heading::bookkeeping},

    {"GradientBasedCorrections$", heading::local_adjustments},
    {"CircularGradientBasedCorrections$", heading::local_adjustments},
    {"PaintBasedCorrections$", heading::local_adjustments},
    {"MaskGroupBasedCorrections$", heading::local_adjustments},
    {"RetouchAreas$", heading::local_adjustments},
    {"RetouchInfo$", heading::local_adjustments},
    {"RedEyeInfo$", heading::local_adjustments},
    {"Local", heading::local_adjustments},

    {"Lens", heading::lens_and_geometry},
    {"Perspective", heading::lens_and_geometry},
    {"Upright", heading::lens_and_geometry},
    {"Defringe", heading::lens_and_geometry},
    {"ChromaticAberration", heading::lens_and_geometry},
    {"AutoLateralCA", heading::lens_and_geometry},
    {"VignetteAmount", heading::lens_and_geometry},
    {"VignetteMidpoint", heading::lens_and_geometry},
    {"Crop", heading::lens_and_geometry},
    {"HasCrop", heading::lens_and_geometry},
    {"orientation$", heading::lens_and_geometry},

    {"CameraProfile", heading::profile_and_look},
    {"Look", heading::profile_and_look},
    {"Amount$", heading::profile_and_look},
    {"RGBTable", heading::profile_and_look},
    {"Table_", heading::profile_and_look},
    {"ShadowTint$", heading::profile_and_look},
    {"RedHue$", heading::profile_and_look},
    {"RedSaturation$", heading::profile_and_look},
    {"GreenHue$", heading::profile_and_look},
    {"GreenSaturation$", heading::profile_and_look},
    {"BlueHue$", heading::profile_and_look},
    {"BlueSaturation$", heading::profile_and_look},

    {"Sharpen", heading::detail},
    {"Sharpness", heading::detail},
    {"LuminanceNoise", heading::detail},
    {"LuminanceSmoothing", heading::detail},
    {"ColorNoise", heading::detail},
    {"Texture", heading::detail},
    {"Grain", heading::detail},

    {"WhiteBalance", heading::colour},
    {"Temperature", heading::colour},
    {"Tint", heading::colour},
    {"IncrementalT", heading::colour},
    {"GrayMixer", heading::colour},
    {"AutoGrayscaleMix", heading::colour},
    {"ConvertToGrayscale", heading::colour},
    {"SplitToning", heading::colour},
    {"ColorGrade", heading::colour},
    {"HueAdjustment", heading::colour},
    {"SaturationAdjustment", heading::colour},
    {"LuminanceAdjustment", heading::colour},
    {"Vibrance", heading::colour},
    {"Saturation$", heading::colour},
    {"PointColors", heading::colour},
};

// Values that only act through another: a key starting with `prefix` sets nothing
// while none of its governing keys does ("" ends the list), as the hues of a
// defringe without amount or the mixer of a colour image.
struct dependent_rule
{
    const char* prefix;
    const char* governors[5];
};

const dependent_rule dependents[] = {
    {"DefringePurpleHue", {"DefringePurpleAmount", ""}},
    {"DefringeGreenHue", {"DefringeGreenAmount", ""}},
    {"VignetteMidpoint", {"VignetteAmount", ""}},
    {"PostCropVignette", {"PostCropVignetteAmount", ""}},
    {"Grain", {"GrainAmount", ""}},
    {"GrayMixer", {"ConvertToGrayscale", ""}},
    {"LensProfile", {"LensProfileEnable", ""}},
    {"Upright", {"PerspectiveUpright", ""}},
    {"Crop", {"HasCrop", ""}},
    {"Parametric",
     {"ParametricShadows", "ParametricDarks", "ParametricLights", "ParametricHighlights", ""}},
};

bool matches(const QString& key, const char* pattern)
{
    const std::size_t length = std::strlen(pattern);
    if (length > 0 && pattern[length - 1] == '$') {
        return key == QLatin1String(pattern, static_cast<int>(length - 1));
    }
    return key.startsWith(QLatin1String(pattern));
}

heading heading_of(const QString& key)
{
    for (const key_rule& rule : rules) {
        if (matches(key, rule.pattern)) {
            return rule.group;
        }
    }
    return heading::other;
}

// A text that sets nothing: empty, false, a number equal to 0, or a white balance
// left as shot.
bool sets_nothing(const QString& text)
{
    bool ok = false;
    const float number = text.toFloat(&ok);
    return text.isEmpty() || (ok && number == 0.0f) ||
           text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0 ||
           text == QLatin1String("As Shot");
}

bool key_sets_nothing(const preset_settings& preset, const QString& key)
{
    return sets_nothing(value_or(preset.settings, key, QString()));
}

bool governed_to_nothing(const preset_settings& preset, const QString& key)
{
    for (const dependent_rule& rule : dependents) {
        if (!key.startsWith(QLatin1String(rule.prefix))) {
            continue;
        }
        bool governs_itself = false;
        bool governor_sets_something = false;
        for (const char* governor : rule.governors) {
            if (*governor == '\0') {
                break;
            }
            governs_itself = governs_itself || key == QLatin1String(governor);
            governor_sets_something = governor_sets_something ||
                                      !key_sets_nothing(preset, QLatin1String(governor));
        }
        return !governs_itself && !governor_sets_something;
    }
    return false;
}

} // namespace

QVector<lost_group> lost_settings(const preset_settings& preset, const QSet<QString>& read_keys)
{
    QMap<heading, QStringList> by_heading;
    for (auto it = preset.settings.constBegin(); it != preset.settings.constEnd(); ++it) {
        const QString& key = it.key();
        if (read_keys.contains(key) || sets_nothing(it.value()) ||
            governed_to_nothing(preset, key)) {
            continue;
        }
        by_heading[heading_of(key)].append(key);
    }
    for (const QString& list : preset.passed_over) {
        QStringList& keys = by_heading[heading_of(list)];
        if (!keys.contains(list)) {
            keys.append(list);
        }
    }
    by_heading.remove(heading::bookkeeping);

    QVector<lost_group> groups;
    for (auto it = by_heading.begin(); it != by_heading.end(); ++it) {
        it.value().sort();
        groups.append({QLatin1String(heading_texts[static_cast<int>(it.key())]), it.value()});
    }
    return groups;
}
