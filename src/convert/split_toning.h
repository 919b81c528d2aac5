#pragma once

struct conversion_state;

// Split toning and the parametric tone sliders. A monochrome preset gets its
// toning as the dark and light hue and saturation of the target; a colour preset
// as colour-balance factors. In both, the colour-balance keys are written only when
// the preset holds a split-toning or parametric key, and the parametric sliders
// brighten or darken them.
void map_split_toning(conversion_state& state);
