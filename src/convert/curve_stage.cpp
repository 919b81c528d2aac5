#include "convert/curve_stage.h"

#include "convert/curve_compensation.h"
#include "convert/curve_operations.h"
#include "convert/range_fold.h"

#include <optional>

// The master curve acts on all three channels after the channel curves. Where it
// bends, each channel curve is first compensated for it, the levels a channel then
// can't hold are handed back to the master curve, and for the colour spaces that
// convert, the channel curves are carried from the preset's colour space into the
// target's through the active table.

namespace {

bool all_empty(const channel_curves& channels)
{
    return channels[0].isEmpty() && channels[1].isEmpty() && channels[2].isEmpty();
}

bool any_custom(const channel_curves& channels)
{
    return is_custom_curve(channels[0]) || is_custom_curve(channels[1]) ||
           is_custom_curve(channels[2]);
}

// Compensates the custom channels for a custom master curve, and folds them into
// range if that pushed them out. The fold needs all three alike, so it compensates
// the identity channels too.
std::optional<range_fold> compensate_channels(channel_curves& channels, const point_list& master,
                                              const luma_inverse& inverse)
{
    std::array<bool, 3> compensated{};
    for (std::size_t c = 0; c < channels.size(); ++c) {
        if (is_custom_curve(channels[c])) {
            channels[c] = compensate_with_rgb_curve(channels[c], master, inverse);
            compensated[c] = true;
        }
    }
    if (channels_in_range(channels)) {
        return std::nullopt;
    }
    for (std::size_t c = 0; c < channels.size(); ++c) {
        if (!compensated[c]) {
            channels[c] = compensate_with_rgb_curve(channels[c], master, inverse);
        }
    }
    return fold_into_range(channels);
}

// The work on channels of which at least one is custom. Returns the offsets the
// master curve has to take over, if any.
std::optional<range_fold> adjust_channels(channel_curves& channels, const point_list& master,
                                          const luma_inverse& inverse,
                                          const colour_strategy& strategy)
{
    std::optional<range_fold> fold;
    if (!is_custom_curve(master)) {
        // Nothing to compensate. The converting spaces sample the channels at nine
        // levels so that the table pass sees the whole of each curve; the others
        // keep the channels' own points.
        if (strategy.converts_channel_curves) {
            for (point_list& channel : channels) {
                channel = raster_curve(channel);
            }
        }
    } else {
        fold = compensate_channels(channels, master, inverse);
    }
    for (point_list& channel : channels) {
        channel = ease_low_end(channel);
    }
    if (strategy.converts_channel_curves) {
        table_pass(channels, *strategy.active_table);
    }
    return fold;
}

} // namespace

void map_curves(conversion_state& state)
{
    point_list master = state.preset.tone_curve;
    channel_curves channels{state.preset.tone_curve_red, state.preset.tone_curve_green,
                            state.preset.tone_curve_blue};
    if (master.isEmpty() && all_empty(channels)) {
        return;
    }
    if (master.isEmpty()) {
        master = identity_curve();
    }
    const luma_inverse inverse = build_luma_inverse(master);
    for (point_list& channel : channels) {
        if (channel.isEmpty()) {
            channel = identity_curve();
        }
    }

    // Identity channels are written as they are, and the master curve as it came.
    const bool channels_plain = !any_custom(channels);
    std::optional<range_fold> fold;
    if (!channels_plain) {
        fold = adjust_channels(channels, master, inverse, state.strategy);
    }

    curve_to_text(state.values, QStringLiteral("GradationCurveRed"), channels[0]);
    curve_to_text(state.values, QStringLiteral("GradationCurveGreen"), channels[1]);
    curve_to_text(state.values, QStringLiteral("GradationCurveBlue"), channels[2]);

    if (fold) {
        master = resample_master(master, *fold);
    }
    // The master curve gets the channels' low-end easing, except in a monochrome
    // style and where the channels were left alone.
    if (!state.grayscale && !channels_plain) {
        master = ease_low_end(master);
    }
    curve_to_text(state.values, QStringLiteral("GradationCurve"), master);
}
