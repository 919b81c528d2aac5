#pragma once

struct conversion_state;

// The grey mixer of a monochrome preset. The target's mixer has no orange and no
// purple: each goes at half strength to both of its neighbours.

// `a` cut to -100..100, plus half of `b` cut likewise; the sum cut again. At the
// lower end a value at -100 already takes the limit.
float clamped_sum_with_half(float a, float b);

// Writes BwEnabled and the six Bw mixer keys. Runs for monochrome presets only.
void mix_monochrome(conversion_state& state);
