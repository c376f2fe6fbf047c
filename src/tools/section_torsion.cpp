#include "tools/section_torsion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tools {

// The exact series for a solid rectangle, long side a, short side t:
//   J = a t^3 / 3 [1 - (192 / pi^5)(t / a) sum over odd n of tanh(n pi a / 2t) / n^5].
// The terms fall as 1/n^5, so a few are enough for every aspect ratio.
double calc_rect_J(double a, double b) {
  const double longSide = std::max(a, b), t = std::min(a, b);
  if (!(t > 0)) return 0;
  const double pi = std::numbers::pi;
  double sum = 0;
  for (int n = 1; n <= 19; n += 2) sum += std::tanh(n * pi * longSide / (2 * t)) / std::pow(n, 5);
  return longSide * t * t * t / 3 * (1 - 192 / std::pow(pi, 5) * (t / longSide) * sum);
}

}  // namespace tools
