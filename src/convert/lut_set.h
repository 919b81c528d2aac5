#pragma once

#include "convert/lut_3d.h"
#include "preset/preset_settings.h"

#include <QSet>
#include <QString>

#include <memory>

// The colour tables of one conversion, and the object the conversion and the
// inspection are called on. The three tables from the resources are parsed once
// per process and shared by every lut_set after that.
class lut_set
{
public:
    lut_set();

    const lut_3d& adobe_rgb() const { return *adobe_rgb_; }
    const lut_3d& srgb() const { return *srgb_; }
    const lut_3d& wide_gamut() const { return *wide_gamut_; }
    const lut_3d& identity() const { return *identity_; }

    // Converts one preset into the text of a style document, for the colour space
    // of the persisted "colorspace" setting (default "raw"), read anew on each call.
    // Returns true for every input.
    bool convert_preset(const preset_settings& preset, QString* out) const;

    // The same, for a colour space given by the caller; the settings are not read.
    // With `read_keys`, adds to it every key of the preset's settings that a stage
    // asked for the value of: the keys not in it reach no part of the style.
    bool convert_preset(const preset_settings& preset, QString* out, const QString& colour_space,
                        QSet<QString>* read_keys = nullptr) const;

    // Tells whether the preset holds settings that a style can't carry faithfully;
    // sets a flag to true and never back, so the caller clears them first. White
    // balance and the colour table count when a key is present at all, calibration
    // only when one of its values reads as other than 0.
    void inspect_preset(const preset_settings& preset, bool& has_white_balance, bool& has_rgb_table,
                        bool& has_calibration) const;

private:
    std::shared_ptr<const lut_3d> adobe_rgb_;
    std::shared_ptr<const lut_3d> srgb_;
    std::shared_ptr<const lut_3d> wide_gamut_;
    std::shared_ptr<const lut_3d> identity_;
};
