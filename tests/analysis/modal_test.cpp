#include <gtest/gtest.h>

#include <Eigen/Eigenvalues>

#include "analysis/analysis_test_models.h"
#include "analysis/modal.h"

using namespace analysis_test;

namespace {

constexpr double kPi = 3.14159265358979323846;

// First frequency of a cantilever with its self weight lumped at 10 and 20 members:
// 1.875² √(EI / (m L⁴)) / 2π within 1 %; every mode satisfies K φ = ω² M φ.
TEST(Modal, CantileverFirstFrequencyMatchesBeamTheory) {
  const double L = 120, E = 29000, I = 400, A = 10, gamma = 0.000283;
  for (int n : {10, 20}) {
    Model m = FrameModel(E, 0.3, {A, 0, 0, I, I, 50});
    m.materials[0].weightDensity = gamma;
    const auto nodes = Line(m, L, n);
    Fix(m, nodes[0]);
    const ModalResults r = SolveModes(m, 4);
    ASSERT_EQ(r.modes.size(), 4u);
    const double massPerLength = gamma * A / m.g;
    const double f1 = 1.875104 * 1.875104 * std::sqrt(E * I / (massPerLength * std::pow(L, 4))) / (2 * kPi);
    EXPECT_LT(Relative(std::sqrt(r.modes[0].omega2) / (2 * kPi), f1), 0.01) << n << " members";
    for (const Mode& mode : r.modes) EXPECT_LT(mode.error, 1e-8);
    // Equal inertia about both axes: the first two modes are the same bending mode in Y and Z.
    EXPECT_LT(Relative(r.modes[1].omega2, r.modes[0].omega2), 1e-8);
  }
}

// A column with two added masses at h and 2h: the modes of the two-degree-of-freedom system
// built from the cantilever's flexibility x_i²(3x_j − x_i)/6EI; participation factors and the
// response spectrum's base shear (SRSS and ABSSUM of Γ² Sa per mode) follow from them.
TEST(Modal, TwoMassColumnModesParticipationAndSpectrum) {
  const double h = 144, E = 29000, I = 500, m1 = 0.2, m2 = 0.1, sa = 0.25;
  Model m = FrameModel(E, 0.3, {20, 0, 0, 2 * I, I, 100});
  const size_t base = AddNode(m, 0, 0, 0), mid = AddNode(m, 0, h, 0), top = AddNode(m, 0, 2 * h, 0);
  AddMember(m, base, mid);
  AddMember(m, mid, top);
  Fix(m, base);
  for (int d : {Ux, Uy, Uz}) {
    m.masses.push_back({mid, d, m1});
    m.masses.push_back({top, d, m2});
  }
  // Along X the column bends about its local z (I); along Z about y (2I).
  const double x[2] = {h, 2 * h};
  Eigen::Matrix2d flex;
  for (int i = 0; i < 2; ++i)
    for (int j = 0; j < 2; ++j) {
      const double a = std::min(x[i], x[j]), b = std::max(x[i], x[j]);
      flex(i, j) = a * a * (3 * b - a) / (6 * E * I);
    }
  const Eigen::Matrix2d mass = Eigen::Vector2d(m1, m2).asDiagonal();
  Eigen::GeneralizedSelfAdjointEigenSolver<Eigen::Matrix2d> exact(flex.inverse(), mass);

  const ModalResults r = SolveModes(m, 4);
  ASSERT_EQ(r.modes.size(), 4u);
  // X modes (I) come before their Z partners (2I): ω² of X then Z for each shape.
  EXPECT_LT(Relative(r.modes[0].omega2, exact.eigenvalues()[0]), 1e-9);
  EXPECT_LT(Relative(r.modes[1].omega2, 2 * exact.eigenvalues()[0]), 1e-9);
  EXPECT_LT(Relative(r.modes[2].omega2, exact.eigenvalues()[1]), 1e-9);
  EXPECT_LT(Relative(r.modes[3].omega2, 2 * exact.eigenvalues()[1]), 1e-9);

  SpectrumSettings settings;
  settings.curves[0].points = {{0.01, sa}, {10, sa}};
  settings.factor = {1, 0, 0};
  std::array<double, 2> shear{};
  double effective = 0;
  for (int k = 0; k < 2; ++k) {
    const Eigen::Vector2d phi = exact.eigenvectors().col(k);
    const double g = phi.dot(mass * Eigen::Vector2d(1, 1)) / phi.dot(mass * phi);
    shear[static_cast<size_t>(k)] = g * g * phi.dot(mass * phi) * sa * m.g;
    effective += g * g * phi.dot(mass * phi);
  }
  EXPECT_LT(Relative(effective, m1 + m2), 1e-12);  // the closed form itself is complete

  for (const bool abs : {false, true}) {
    settings.absoluteSum = abs;
    const SpectrumResults s = SolveResponseSpectrum(m, r, settings);
    EXPECT_LT(Relative(std::abs(s.modes[0].participation[0]) * std::abs(s.modes[0].participation[0]) +
                           std::abs(s.modes[2].participation[0]) * std::abs(s.modes[2].participation[0]),
                       m1 + m2),
              1e-9);
    EXPECT_NEAR(s.modes[1].participation[0], 0, 1e-9);  // the Z modes do not move along X
    const double want = abs ? shear[0] + shear[1] : std::hypot(shear[0], shear[1]);
    EXPECT_LT(Relative(s.reaction[Ux], want), 1e-8) << (abs ? "ABSSUM" : "SRSS");
    // Per mode the base takes what the inertial forces put on the column.
    EXPECT_LT(Relative(-s.modes[0].reaction[0][Ux], s.modes[0].inertialForce[0].sum()), 1e-8);
  }
}

TEST(Modal, ModelWithoutMassIsRefused) {
  Model m = FrameModel();
  const auto nodes = Line(m, 100, 2);
  Fix(m, nodes[0]);
  EXPECT_THROW(SolveModes(m, 3), AnalysisError);
}

}  // namespace
