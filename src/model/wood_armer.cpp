#include "model/wood_armer.h"

#include <cmath>

namespace model {
namespace {

// One face: `sign` +1 for the bottom (moments kept at or above zero), -1 for the top.
void Face(double mxx, double myy, double mxy, double sign, double& mux, double& muy) {
  // Worked in the bottom's sense: the top is the bottom of the negated field.
  const double mx = sign * mxx, my = sign * myy, t = std::fabs(mxy);
  double ux = mx + t, uy = my + t;
  if (ux < 0 && uy < 0) {
    ux = uy = 0;
  } else if (ux < 0) {
    ux = 0;
    uy = my + mxy * mxy / std::fabs(mx);  // |mx| > t > 0 here
  } else if (uy < 0) {
    uy = 0;
    ux = mx + mxy * mxy / std::fabs(my);
  }
  mux = sign * std::fmax(ux, 0.0);
  muy = sign * std::fmax(uy, 0.0);
}

}  // namespace

WoodArmerMoments WoodArmer(double mxx, double myy, double mxy) {
  WoodArmerMoments m;
  Face(mxx, myy, mxy, 1.0, m.botMux, m.botMuy);
  Face(mxx, myy, mxy, -1.0, m.topMux, m.topMuy);
  // -0.0 reads as "-0" in a report.
  m.topMux += 0.0;
  m.topMuy += 0.0;
  return m;
}

}  // namespace model
