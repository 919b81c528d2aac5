#pragma once

#include "orn/pixel_argb.h"

// The toolkit's dark palette and the style-sheet fragments that many widgets share.
// Every sheet of the toolkit is composed from literals; the colours here are the
// ones those literals spell, kept in one place for code that paints by hand.
namespace orn {

namespace palette {
inline constexpr pixel_argb ground{47, 47, 47};
inline constexpr pixel_argb text{198, 213, 210};
inline constexpr pixel_argb border{99, 99, 99};
inline constexpr pixel_argb disabled_border{75, 75, 75};
// Combo boxes sit on the darker of the two input grounds, line edits on the lighter.
inline constexpr pixel_argb input_ground{36, 36, 36};
inline constexpr pixel_argb edit_ground{38, 38, 38};
// The two colours an icon is painted in: at rest, and under the mouse.
inline constexpr pixel_argb icon_normal{129, 136, 133};
inline constexpr pixel_argb icon_highlight{240, 240, 240};
// The frame that orn::button flashes on release.
inline constexpr pixel_argb flash{222, 222, 222};
} // namespace palette

namespace sheet {
// Tool tips of every widget: the window's ground with a border, never the
// platform's light box.
inline constexpr char tooltip[] = "QToolTip{border:1px solid rgb(99,99,99);"
                                  "background-image:none;background-color:rgb(47,47,47);}";
// Tool tips of the flat buttons: lighter and smaller text.
inline constexpr char tooltip_flat[] =
    "QToolTip{border:1px solid rgb(99,99,99);background-image:none;background-color:rgb(47,47,47);"
    "color:rgb(228,228,228);font-size:10px;}";
} // namespace sheet

} // namespace orn
