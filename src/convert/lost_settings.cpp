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

const char* const heading_texts[] = {
    "", "local adjustments", "lens and geometry", "profile and look", "detail", "colour", "other"};

// One row for each kind of key; the first whose pattern matches decides. A
// pattern matches the start of a key, or the whole key when it ends in '$'.
//  - neutral: a value that sets nothing, besides the 0, false and empty text of
//    every key (compared as a number where it is one);
//  - governors: keys of which at least one must set something for this key to
//    act at all (the hues of a defringe, the mixer of a colour image);
//  - same_as: keys that hold the same setting, one of which the stages read.
// Local corrections arrive as the names of the lists the readers dropped, a look
// as an XMP element or as a template's flattened table (Amount). Calibration
// stands with the profile, where photographers find it; grain counts as detail,
// the post-crop vignette as an effect among "other".
struct key_rule
{
    const char* pattern;
    heading group;
    const char* neutral = nullptr;
    const char* governors = nullptr; // separated by ','
    const char* same_as = nullptr;   // separated by ','
};

const char* const parametric_sliders =
    "ParametricShadows,ParametricDarks,ParametricLights,ParametricHighlights";
const char* const colour_grade_amounts =
    "ColorGradeShadowSat,ColorGradeMidtoneSat,ColorGradeHighlightSat,ColorGradeGlobalSat,"
    "ColorGradeShadowLum,ColorGradeMidtoneLum,ColorGradeHighlightLum,ColorGradeGlobalLum";

const key_rule rules[] = {
    // What describes the preset or the photo rather than a look.
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
    {"Group$", heading::bookkeeping},
    {"Cluster$", heading::bookkeeping},
    {"PresetType$", heading::bookkeeping},
    {"UUID$", heading::bookkeeping},
    {"Version$", heading::bookkeeping},
    {"CompatibleVersion$", heading::bookkeeping},
    {"ProcessVersion$", heading::bookkeeping},
    {"UprightVersion$", heading::bookkeeping},
    {"Copyright$", heading::bookkeeping},
    {"ContactInfo$", heading::bookkeeping},
    {"HasSettings$", heading::bookkeeping},
    {"AlreadyApplied$", heading::bookkeeping},
    {"CameraModelRestriction$", heading::bookkeeping},
    {"RequiresRGBTables$", heading::bookkeeping},
    {"RequiresRenditionBehavior$", heading::bookkeeping},
    {"CameraProfileDigest$", heading::bookkeeping},
    {"LensProfileDigest$", heading::bookkeeping},
    {"AsShotTemperature$", heading::bookkeeping},
    {"AsShotTint$", heading::bookkeeping},
    {"RawFileName$", heading::bookkeeping},
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

    {"LensProfileDistortionScale$", heading::lens_and_geometry, "100", "LensProfileEnable"},
    {"LensProfileVignettingScale$", heading::lens_and_geometry, "100", "LensProfileEnable"},
    {"LensProfileChromaticAberrationScale$", heading::lens_and_geometry, "100",
     "LensProfileEnable"},
    {"LensProfileEnable$", heading::lens_and_geometry},
    {"LensProfile", heading::lens_and_geometry, nullptr, "LensProfileEnable"},
    {"Lens", heading::lens_and_geometry},
    {"PerspectiveScale$", heading::lens_and_geometry, "100"},
    {"PerspectiveUpright$", heading::lens_and_geometry},
    {"Perspective", heading::lens_and_geometry},
    {"Upright", heading::lens_and_geometry, nullptr, "PerspectiveUpright"},
    {"DefringePurpleHueLo$", heading::lens_and_geometry, "30", "DefringePurpleAmount"},
    {"DefringePurpleHueHi$", heading::lens_and_geometry, "70", "DefringePurpleAmount"},
    {"DefringeGreenHueLo$", heading::lens_and_geometry, "40", "DefringeGreenAmount"},
    {"DefringeGreenHueHi$", heading::lens_and_geometry, "60", "DefringeGreenAmount"},
    {"Defringe", heading::lens_and_geometry},
    {"ChromaticAberration", heading::lens_and_geometry},
    {"AutoLateralCA", heading::lens_and_geometry},
    {"VignetteAmount$", heading::lens_and_geometry},
    {"VignetteMidpoint$", heading::lens_and_geometry, "50", "VignetteAmount"},
    {"HasCrop$", heading::lens_and_geometry},
    {"Crop", heading::lens_and_geometry, nullptr, "HasCrop"},
    // A template's rotation of the photo; "AB" is upright.
    {"orientation$", heading::lens_and_geometry, "AB"},

    {"CameraProfile", heading::profile_and_look, "Adobe Standard"},
    {"Look", heading::profile_and_look},
    {"OverrideLookVignette$", heading::profile_and_look},
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

    {"SharpenDetail$", heading::detail, "25"},
    {"Sharpen", heading::detail},
    {"Sharpness", heading::detail},
    {"LuminanceNoise", heading::detail},
    {"LuminanceSmoothing", heading::detail},
    {"ColorNoiseReductionDetail$", heading::detail, "50"},
    {"ColorNoiseReductionSmoothness$", heading::detail, "50"},
    {"ColorNoise", heading::detail},
    {"Texture", heading::detail},
    {"GrainAmount$", heading::detail},
    {"GrainFrequency$", heading::detail, "50", "GrainAmount"},
    {"Grain", heading::detail, nullptr, "GrainAmount"},

    // The mode of a white balance that Temperature or its relative key carries.
    {"WhiteBalance", heading::colour, "As Shot", nullptr, "Temperature,IncrementalTemperature"},
    {"GrayMixer", heading::colour, nullptr, "ConvertToGrayscale"},
    {"Treatment$", heading::colour, "Color", nullptr, "ConvertToGrayscale"},
    {"ColorGradeShadowHue$", heading::colour, nullptr, nullptr, "SplitToningShadowHue"},
    {"ColorGradeShadowSat$", heading::colour, nullptr, nullptr, "SplitToningShadowSaturation"},
    {"ColorGradeHighlightHue$", heading::colour, nullptr, nullptr, "SplitToningHighlightHue"},
    {"ColorGradeHighlightSat$", heading::colour, nullptr, nullptr,
     "SplitToningHighlightSaturation"},
    {"ColorGradeBalance$", heading::colour, nullptr, nullptr, "SplitToningBalance"},
    {"ColorGradeBlending$", heading::colour, "50", colour_grade_amounts},
    {"ColorGrade", heading::colour},
    {"SplitToning", heading::colour},
    {"Temperature", heading::colour},
    {"Tint", heading::colour},
    {"AutoGrayscaleMix", heading::colour},
    {"PointColors", heading::colour},

    {"PostCropVignetteAmount$", heading::other},
    {"PostCropVignetteMidpoint$", heading::other, "50", "PostCropVignetteAmount"},
    {"PostCropVignetteFeather$", heading::other, "50", "PostCropVignetteAmount"},
    {"PostCropVignetteStyle$", heading::other, "1", "PostCropVignetteAmount"},
    {"PostCropVignette", heading::other, nullptr, "PostCropVignetteAmount"},
    {"ParametricShadowSplit$", heading::other, "25", parametric_sliders},
    {"ParametricMidtoneSplit$", heading::other, "50", parametric_sliders},
    {"ParametricHighlightSplit$", heading::other, "75", parametric_sliders},
    // The name of a curve travels with its points; it alone stands for the curve
    // only where the points are missing (see is_lost).
    {"ToneCurveName", heading::other, "Linear"},
};

// Keys no row names are "other".
const key_rule unnamed{"", heading::other};

bool matches(const QString& key, const char* pattern)
{
    const std::size_t length = std::strlen(pattern);
    if (length > 0 && pattern[length - 1] == '$') {
        return key == QLatin1String(pattern, static_cast<int>(length - 1));
    }
    return key.startsWith(QLatin1String(pattern));
}

const key_rule& rule_of(const QString& key)
{
    for (const key_rule& rule : rules) {
        if (matches(key, rule.pattern)) {
            return rule;
        }
    }
    return unnamed;
}

bool sets_nothing(const QString& text, const char* neutral)
{
    bool ok = false;
    const float number = text.toFloat(&ok);
    if (text.isEmpty() || (ok && number == 0.0f) ||
        text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0) {
        return true;
    }
    if (neutral == nullptr) {
        return false;
    }
    bool neutral_is_number = false;
    const float neutral_number = QString::fromLatin1(neutral).toFloat(&neutral_is_number);
    return neutral_is_number ? ok && number == neutral_number : text == QLatin1String(neutral);
}

QStringList key_list(const char* keys)
{
    return keys == nullptr ? QStringList() : QString::fromLatin1(keys).split(QLatin1Char(','));
}

bool is_lost(const preset_settings& preset, const QSet<QString>& read_keys, const QString& key)
{
    // Most keys of a preset are read: they need no look at the rules.
    if (read_keys.contains(key) || preset.foreign_keys.contains(key)) {
        return false;
    }
    const key_rule& rule = rule_of(key);
    if (rule.group == heading::bookkeeping || key_sets_nothing(preset, key)) {
        return false;
    }
    if (key.startsWith(QLatin1String("ToneCurveName")) && !preset.tone_curve.isEmpty()) {
        return false;
    }
    const QStringList same_as = key_list(rule.same_as);
    for (const QString& other : same_as) {
        if (read_keys.contains(other)) {
            return false;
        }
    }
    if (rule.governors == nullptr) {
        return true;
    }
    const QStringList governors = key_list(rule.governors);
    for (const QString& governor : governors) {
        if (!key_sets_nothing(preset, governor)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool key_sets_nothing(const preset_settings& preset, const QString& key)
{
    const auto it = preset.settings.constFind(key);
    return it == preset.settings.constEnd() || sets_nothing(it.value(), rule_of(key).neutral);
}

QVector<lost_group> lost_settings(const preset_settings& preset, const QSet<QString>& read_keys)
{
    QMap<heading, QStringList> by_heading;
    for (auto it = preset.settings.constBegin(); it != preset.settings.constEnd(); ++it) {
        if (is_lost(preset, read_keys, it.key())) {
            by_heading[rule_of(it.key()).group].append(it.key());
        }
    }
    // Settings map keys are sorted and unique; a dropped list may be named twice.
    for (const QString& list : preset.passed_over) {
        const key_rule& rule = rule_of(list);
        QStringList& keys = by_heading[rule.group];
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
