#pragma once

#include <QString>

// The text forms of computed numbers in a style. Every value is computed in single
// precision and widened to double only here, for printing.

// 'f' with six decimals: 12.500000, -4.000000.
QString six_decimal(float value);

// 'g' with six significant digits: 5500, 6543.21. Only the white balance
// temperature is written this way.
QString six_significant(float value);
