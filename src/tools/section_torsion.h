#pragma once

namespace tools {

// Saint-Venant torsion constant of a solid rectangle with sides a and b (either order).
// Zero when a side is not positive.
double calc_rect_J(double a, double b);

}  // namespace tools
