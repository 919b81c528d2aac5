#pragma once

#include "convert/conversion_state.h"

// The curve stage: the preset's master and channel curves become GradationCurve,
// GradationCurveRed, GradationCurveGreen and GradationCurveBlue. Writes nothing for
// a preset without curves.
void map_curves(conversion_state& state);
