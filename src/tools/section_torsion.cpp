#include "tools/section_torsion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tools {

// The exact series for a solid rectangle, long side a, short side t:
//   J = a t^3 / 3 [1 - (192 / pi^5)(t / a) S],  S = sum over odd n of tanh(n pi a / 2t) / n^5.
// S is taken as the sum of 1/n^5 over odd n, (31/32) zeta(5), less the terms' shortfall
// 1 - tanh, which falls as exp(-pi n) because a >= t: eight terms reach double precision.
double calc_rect_J(double a, double b) {
  const double longSide = std::max(a, b), t = std::min(a, b);
  if (!(t > 0)) return 0;
  constexpr double kZeta5 = 1.0369277551433699263;
  const double x = std::numbers::pi * longSide / (2 * t);
  double sum = 31.0 / 32.0 * kZeta5;
  for (int n = 1; n <= 15; n += 2) {
    const double e = std::exp(-2 * n * x);
    const double n5 = double(n) * n * n * n * n;
    sum -= 2 * e / (1 + e) / n5;  // 1 - tanh(n x), without cancellation
  }
  return longSide * t * t * t / 3 * (1 - 192 / std::pow(std::numbers::pi, 5) * (t / longSide) * sum);
}

}  // namespace tools
