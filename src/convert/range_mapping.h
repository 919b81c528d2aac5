#pragma once

#include <QString>

struct conversion_state;

// The range mappings that several stages share. Each reads one source key of the
// preset; a key that is absent or whose text does not parse stores nothing.

// Cuts the value to in_min..in_max and scales the two halves of that range
// separately onto out_min..out_max, so that 0 stays 0 and a range need not be
// symmetric: contrast +100 becomes 40 while -100 becomes -50. Stored as
// six-decimal text.
void copy_scaled(conversion_state& state, const QString& source_key, const QString& target_key,
                 float in_min, float in_max, float out_min, float out_max);

// Maps -bound..bound onto -negative..positive with a slope of its own on each side
// of 0; values beyond the bound take the limit.
float two_sided_scale(float value, float bound, float negative, float positive);

// Stores the source number unscaled and uncut as six-decimal text.
void copy_as_fixed(conversion_state& state, const QString& source_key, const QString& target_key);
