#include "converter/preset_contents.h"

#include "convert/lost_settings.h"

#include "preset/preset_settings.h"

#include <QStringList>

#include <algorithm>

namespace {

// Settings that belong together, by the start of their keys.
struct key_family
{
    const char* prefix;
    const char* description;
};

const key_family families[] = {
    {"VignetteAmount", "a lens vignette"},
    {"VignetteMidpoint", "a lens vignette"},
    {"WhiteBalance", "the white-balance mode"},
    {"LensProfile", "lens corrections"},
    {"LensManual", "lens corrections"},
    {"Perspective", "lens corrections"},
    {"Upright", "lens corrections"},
    {"Defringe", "lens corrections"},
    {"ChromaticAberration", "lens corrections"},
    {"AutoLateralCA", "lens corrections"},
    {"GradientBasedCorrections", "local corrections"},
    {"CircularGradientBasedCorrections", "local corrections"},
    {"PaintBasedCorrections", "local corrections"},
    {"EnableGradientBasedCorrections", "local corrections"},
    {"EnableCircularGradientBasedCorrections", "local corrections"},
    {"EnablePaintBasedCorrections", "local corrections"},
    {"RetouchInfo", "local corrections"},
    {"RetouchAreas", "local corrections"},
    {"RedEyeInfo", "local corrections"},
    {"CameraProfile", "a camera profile"},
    {"RGBTable", "a colour table"},
    {"Table_", "a colour table"},
    {"HasCrop", "a crop"},
    {"Crop", "a crop"},
};

// Entries that describe a preset rather than set anything: a template's outer
// table and an XMP preset's own attributes.
const char* const descriptive_keys[] = {"title",
                                        "type",
                                        "id",
                                        "internalName",
                                        "version",
                                        "uuid",
                                        "about",
                                        "Name",
                                        "PresetType",
                                        "Cluster",
                                        "UUID",
                                        "Version",
                                        "Group",
                                        "SortName",
                                        "Copyright",
                                        "ContactInfo",
                                        "ProcessVersion",
                                        "HasSettings",
                                        "CameraModelRestriction",
                                        "RequiresRGBTables"};

// The lists that hold local corrections, in either format.
const char* const local_correction_lists[] = {"GradientBasedCorrections", "PaintBasedCorrections",
                                              "RetouchAreas", "RetouchInfo", "RedEyeInfo"};

// Key names are listed up to this many; the rest is counted.
constexpr int listed_keys = 4;

bool is_descriptive(const QString& key)
{
    if (key.startsWith(QLatin1String("Supports")) || key.startsWith(QLatin1String("supports"))) {
        return true;
    }
    for (const char* descriptive : descriptive_keys) {
        if (key == QLatin1String(descriptive)) {
            return true;
        }
    }
    return false;
}

const char* family_of(const QString& key)
{
    for (const key_family& family : families) {
        if (key.startsWith(QLatin1String(family.prefix))) {
            return family.description;
        }
    }
    return nullptr;
}

QString joined(const QStringList& items)
{
    if (items.size() < 2) {
        return items.join(QString());
    }
    return items.mid(0, items.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" and ") +
           items.constLast();
}

} // namespace

QString style_body(const QString& document)
{
    QStringList lines = document.split(QLatin1Char('\n'));
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QString& line) {
                                   return line.startsWith(QLatin1String("    <E K=\"Name\" ")) ||
                                          line.startsWith(QLatin1String("    <E K=\"UUID\" "));
                               }),
                lines.end());
    return lines.join(QLatin1Char('\n'));
}

namespace {

QString held_settings(const preset_settings& preset, const QByteArray& bytes, bool only_effective)
{
    QStringList items;
    QStringList keys;
    for (const char* list : local_correction_lists) {
        if (bytes.contains(list)) {
            items << QStringLiteral("local corrections");
            break;
        }
    }
    for (auto it = preset.settings.constBegin(); it != preset.settings.constEnd(); ++it) {
        if (is_descriptive(it.key()) || (only_effective && key_sets_nothing(preset, it.key()))) {
            continue;
        }
        if (const char* family = family_of(it.key())) {
            if (!items.contains(QLatin1String(family))) {
                items << QLatin1String(family);
            }
        } else {
            keys << it.key();
        }
    }
    items << keys.mid(0, listed_keys);
    if (keys.size() > listed_keys) {
        items << QStringLiteral("%1 more").arg(keys.size() - listed_keys);
    }
    return joined(items);
}

} // namespace

QString unmapped_settings(const preset_settings& preset, const QByteArray& bytes)
{
    // A switch left off ("ConvertToGrayscale = false") is no reason to name; but
    // when nothing but such values is there, they are what the preset holds.
    const QString effective = held_settings(preset, bytes, true);
    return effective.isEmpty() ? held_settings(preset, bytes, false) : effective;
}
