#pragma once

#include <string_view>

namespace orn {

// A tolerant text-to-number conversion for numbers written by hand or by other
// programs: either '.' or ',' may be the decimal separator, a repeated separator
// means digit grouping ("1,234,567"), and anything that is not a digit, a
// separator, a sign or an exponent mark is ignored. A text with no digit at all
// yields `default_value`.
double parse_number(std::string_view text, double default_value);

} // namespace orn
