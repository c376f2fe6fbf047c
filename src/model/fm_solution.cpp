#include "model/fm_solution.h"

#include <algorithm>
#include <cmath>

bool IsRigidBodyMode(double omega2, const std::vector<double>& omega2OfAllModes) {
  double largest = 0;
  for (double w : omega2OfAllModes) largest = std::max(largest, std::abs(w));
  return std::abs(omega2) <= 1e-6 * largest;
}
