// The questions the run asks before converting a preset: does it hold white
// balance, a colour table or camera calibration, none of which a style reproduces
// faithfully. Each answer raises its own warning, so all three lists are always
// scanned; each scan stops at its first hit.
#include "convert/lut_set.h"

void lut_set::inspect_preset(const preset_settings& preset, bool& has_white_balance,
                             bool& has_rgb_table, bool& has_calibration) const
{
    // Any white balance key warns, whatever its value: even a temperature of 0
    // or an empty one means the preset sets the white balance.
    static const char* const white_balance_keys[] = {"Tint", "IncrementalTint", "Temperature",
                                                     "IncrementalTemperature"};
    for (const char* key : white_balance_keys) {
        if (preset.settings.contains(QLatin1String(key))) {
            has_white_balance = true;
            break;
        }
    }

    if (preset.settings.contains(QStringLiteral("RGBTable"))) {
        has_rgb_table = true;
    }

    // Calibration is saved with every preset, mostly as zeros, so only a value
    // other than 0 warns. An unreadable text reads as 0; a NaN is not 0.
    static const char* const calibration_keys[] = {
        "ShadowTint",      "RedHue",  "RedSaturation", "GreenHue",
        "GreenSaturation", "BlueHue", "BlueSaturation"};
    for (const char* key : calibration_keys) {
        bool ok = false;
        const float value =
            value_or(preset.settings, QLatin1String(key), QStringLiteral("0")).toFloat(&ok);
        if (ok && !(value == 0.0f)) {
            has_calibration = true;
            break;
        }
    }
}
