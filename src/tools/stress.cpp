#include "tools/stress.h"

#include <Eigen/Eigenvalues>
#include <cmath>

#include "tools/parallel.h"

namespace tools {
namespace {

constexpr double kDegreesPerRadian = 57.29577951308232;

}  // namespace

void Calc_Principal_Stress_2D(double& s1, double& s2, double& angle, double sx, double sy, double sxy) {
  const double centre = 0.5 * (sx + sy);
  const double radius = std::hypot(0.5 * (sx - sy), sxy);
  s1 = centre + radius;
  s2 = centre - radius;
  // tan 2θ = 2 sxy / (sx - sy), the root that turns x onto the larger value.
  angle = radius == 0 ? 0.0 : 0.5 * std::atan2(2 * sxy, sx - sy) * kDegreesPerRadian;
  if (angle <= -90) angle += 180;
}

void Calc_Result_Stress_2D(double& resultant, double& angle, double vx, double vy) {
  resultant = std::hypot(vx, vy);
  angle = resultant == 0 ? 0.0 : std::atan2(vy, vx) * kDegreesPerRadian;
  if (angle <= -180) angle += 360;
}

double VonMises(double s1, double s2, double s3) {
  return std::sqrt(0.5 * ((s1 - s2) * (s1 - s2) + (s2 - s3) * (s2 - s3) + (s1 - s3) * (s1 - s3)));
}

Principal3D PrincipalStresses3D(const std::array<double, 6>& s) {
  Eigen::Matrix3d t;
  t << s[0], s[3], s[5],  //
      s[3], s[1], s[4],   //
      s[5], s[4], s[2];
  // The tensor's own size keeps a zero state from dividing by zero inside the solver.
  Principal3D p;
  if (t.cwiseAbs().maxCoeff() == 0) {
    p.direction = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    return p;
  }
  const Eigen::SelfAdjointEigenSolver<Eigen::Matrix3d> solver(t);
  const Eigen::Vector3d& values = solver.eigenvalues();  // ascending
  const Eigen::Matrix3d& vectors = solver.eigenvectors();
  Eigen::Vector3d v[2];
  for (int i = 0; i < 2; ++i) {
    v[i] = vectors.col(2 - i);
    Eigen::Index largest = 0;
    v[i].cwiseAbs().maxCoeff(&largest);
    if (v[i][largest] < 0) v[i] = -v[i];
  }
  const Eigen::Vector3d v3 = v[0].cross(v[1]);
  for (int i = 0; i < 3; ++i) p.value[static_cast<size_t>(i)] = values[2 - i];
  for (int k = 0; k < 3; ++k) {
    p.direction[0][static_cast<size_t>(k)] = v[0][k];
    p.direction[1][static_cast<size_t>(k)] = v[1][k];
    p.direction[2][static_cast<size_t>(k)] = v3[k];
  }
  return p;
}

void PrincipalStresses3D(const std::array<double, 6>* stresses, Principal3D* out, size_t count) {
  ParallelRanges(count, 4096, [&](size_t begin, size_t end) {
    for (size_t i = begin; i < end; ++i) out[i] = PrincipalStresses3D(stresses[i]);
  });
}

}  // namespace tools
