#pragma once

#include <QMessageBox>

#include <array>
#include <cstddef>
#include <functional>

// The three kinds of preset content that a style can't carry faithfully, in the
// order in which a run tests and warns about them.
enum class preset_kind
{
    white_balance,
    unsupported_parameters,
    camera_calibration,
};

constexpr std::array<preset_kind, 3> all_preset_kinds{preset_kind::white_balance,
                                                      preset_kind::unsupported_parameters,
                                                      preset_kind::camera_calibration};

constexpr std::size_t kind_index(preset_kind kind)
{
    return static_cast<std::size_t>(kind);
}

// What the user has decided about one kind for the rest of a run. Three states:
// asking (the start), converting silently (after "Convert All") and skipping
// silently (after "Skip All"); "Convert" and "Skip" leave the state as it is.
struct check_kind
{
    bool ask_again = true;
    bool skip_all = false;
};

// One record per kind, indexed by kind_index; the kinds don't influence each other.
using check_kinds = std::array<check_kind, 3>;
// What the inspection found in one preset, indexed the same way.
using preset_findings = std::array<bool, 3>;

using ask_about_kind = std::function<QMessageBox::StandardButton(preset_kind)>;

// Decides whether a preset with these findings is converted. Every kind's silent
// skip is tested before any warning is shown; then each kind still asking warns
// through `ask`, in order, and its answer updates `checks` for the rest of the run.
bool admit_preset(check_kinds& checks, const preset_findings& found, const ask_about_kind& ask);
