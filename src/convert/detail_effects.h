#pragma once

struct conversion_state;

// The last stages before the document: sharpening and noise reduction carried
// over, then post-crop vignette, grain and dehaze translated. The same in every
// colour space.

// Sharpening and noise reduction, copied unscaled.
void map_detail(conversion_state& state);

// PostCropVignetteAmount and PostCropVignetteRoundness into Vignetting; both are
// needed.
void map_vignette(conversion_state& state);

// GrainAmount and GrainSize into the four film grain keys; both are needed.
void map_grain(conversion_state& state);

// Dehaze into DehazeAmount, and for a negative dehaze also DehazeColor.
void map_dehaze(conversion_state& state);
