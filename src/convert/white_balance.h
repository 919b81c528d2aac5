#pragma once

#include <QString>

struct conversion_state;

// The offset on the style's tint scale that a temperature in Kelvin needs in the
// given colour space. "raw" needs none; a space without a column of its own
// ("adobe" among them) warns and gets none either.
float get_tint_shift(float temperature, const QString& colour_space);

// Temperature and tint, absolute or relative, into WhiteBalanceTemperature and
// WhiteBalanceTint. Either both keys are stored or neither.
void map_white_balance(conversion_state& state);
