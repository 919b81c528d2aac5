#pragma once

struct conversion_state;

// The basic tone sliders. The old-process stage runs first, so that the 2012
// stage, which runs for every preset, wins wherever both store the same key.

// Brightness, Contrast, Exposure, FillLight, HighlightRecovery and Shadows of the
// old process version. The driver calls it only for presets of that version.
void map_old_tone(conversion_state& state);

// Exposure2012 to Whites2012: range mappings, the four inner points of the luma
// curve GradationCurveY, and the level pairs at both ends of the tonal range.
void map_tone_2012(conversion_state& state);

// Clarity2012 or Clarity into Clarity, ClarityMethod and ClarityStructure.
void map_clarity(conversion_state& state);
