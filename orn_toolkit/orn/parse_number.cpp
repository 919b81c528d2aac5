#include "orn/parse_number.h"

#include <cmath>

namespace orn {

namespace {

// Exponents beyond this only make infinities or zeros; the cut keeps the
// conversion to an integer defined for any text.
constexpr double exponent_limit = 9999.0;

int to_exponent(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(std::fmax(-exponent_limit, std::fmin(exponent_limit, value)));
}

} // namespace

// The scan runs from the last character to the first, so the decimal separator is
// known before the digits to its left arrive, and the exponent before its mantissa.
double parse_number(std::string_view text, double default_value)
{
    double part = 0.0;
    double part_power = 1.0;
    double all_digits = 0.0;
    double all_digits_power = 1.0;
    bool negative = false;
    bool any_digit = false;
    bool has_exponent = false;
    int exponent = 0;
    char decimal_separator = 0;
    bool grouped = false;

    for (auto it = text.rbegin(); it != text.rend(); ++it) {
        const char c = *it;
        if (c >= '0' && c <= '9') {
            const int digit = c - '0';
            part += digit * part_power;
            part_power *= 10.0;
            all_digits += digit * all_digits_power;
            all_digits_power *= 10.0;
            any_digit = true;
        } else if (c == '.' || c == ',') {
            if (decimal_separator == 0) {
                decimal_separator = c;
                part /= part_power;
                part_power = 1.0;
            } else if (c == decimal_separator) {
                grouped = true;
            }
        } else if (c == '-') {
            negative = true;
        } else if (c == 'e' || c == 'E') {
            exponent = to_exponent(negative ? -part : part);
            has_exponent = true;
            part = 0.0;
            part_power = 1.0;
            all_digits = 0.0;
            all_digits_power = 1.0;
            negative = false;
        }
    }

    double result = grouped ? all_digits : part;
    if (negative) {
        result = -result;
    }
    if (!has_exponent) {
        return any_digit ? result : default_value;
    }
    if (exponent != 0) {
        result *= std::pow(10.0, exponent);
    }
    return result;
}

} // namespace orn
