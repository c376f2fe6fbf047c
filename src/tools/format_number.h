#pragma once
#include <string>

namespace tools {

// A value to `digits` significant digits (1 to 17; others are taken as the nearest), the way
// the modal tables print them: printf's "%.*g" in the "C" conventions. After rounding to the
// digits, a value whose decimal exponent e lies in -4 ≤ e < digits prints in fixed notation,
// any other in exponential notation with a sign and at least two exponent digits; trailing
// zeros of the fraction, and a point left without a fraction, are dropped. With 4 digits:
// 1 → "1", 0.24554 → "0.2455", 39.4784 → "39.48", 12345 → "1.234e+04" (round half to even
// of the binary value), 0.00001234 → "1.234e-05", 0 → "0"; "nan", "inf" and "-inf" as printf
// writes them.
std::string format_number(double value, int digits);

}  // namespace tools
