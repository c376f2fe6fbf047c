#pragma once
#include <cmath>

namespace tools {

// Tolerance under which two reals of model data count as the same value, e.g. a total
// angle of 360.0000001 degrees that the user meant as a full turn.
inline constexpr double kEqualTolerance = 5e-7;

// True when a and b differ by no more than the tolerance (an absolute difference, since
// the values compared are angles and coordinates of a known scale). NaN equals nothing.
inline bool is_equal(double a, double b, double tolerance = kEqualTolerance) {
  return std::fabs(a - b) <= tolerance;
}

}  // namespace tools
