#include <gtest/gtest.h>

#include "analysis/analysis_test_models.h"
#include "analysis/linear_static.h"
#include "analysis/modal.h"

using namespace analysis_test;

namespace {

// Four cantilever columns h high at the corners of a 20 × 10 floor, their tops tied by a
// rigid diaphragm whose master is a node of its own at the floor's centre (nothing but the
// diaphragm joins it). Square sections without shear deformation: each top resists a sway
// with k = 3EI/h³ whatever its direction.
struct Floor {
  Model m;
  size_t master = 0;
  std::vector<size_t> tops;
  static constexpr double h = 120, E = 29000, I = 300, J = 40, nu = 0.3;
  static constexpr double k = 3 * E * I / (h * h * h);
};

Floor FourColumns() {
  Floor f;
  f.m = FrameModel(Floor::E, Floor::nu, {10, 0, 0, Floor::I, Floor::I, Floor::J});
  for (auto [x, z] : {std::pair{0.0, 0.0}, {20.0, 0.0}, {20.0, 10.0}, {0.0, 10.0}}) {
    const size_t base = AddNode(f.m, x, 0, z);
    f.tops.push_back(AddNode(f.m, x, Floor::h, z));
    AddMember(f.m, base, f.tops.back());
    Fix(f.m, base);
  }
  f.master = AddNode(f.m, 10, Floor::h, 5);
  Diaphragm d;
  d.nodes = {f.master};
  d.nodes.insert(d.nodes.end(), f.tops.begin(), f.tops.end());
  f.m.diaphragms.push_back(d);
  return f;
}

// A push P along X at one corner: the floor slides P/4k and turns by the couple P·5 over
// the floor's turning stiffness Σ k r² + 4 GJ/h; every top moves as the rigid floor says,
// and the bases give back the push.
TEST(Ties, ADiaphragmMovesItsNodesAsOneRigidFloor) {
  Floor f = FourColumns();
  const double P = 12, G = Floor::E / (2 * (1 + Floor::nu));
  AddCase(f.m, "Push").nodal.push_back({f.tops[0], Ux, P});
  const StaticResults r = SolveLinearStatic(f.m);
  const Eigen::VectorXd& u = r.results[0].displacement;
  const double turning = 4 * Floor::k * (10 * 10 + 5 * 5) + 4 * G * Floor::J / Floor::h;
  // The push acts at (−10, −5) from the centre in x and z: its moment about Y there is
  // z·Fx − x·Fz = −5P.
  const double theta = -5 * P / turning;
  EXPECT_LT(Relative(U(u, f.master, Ux), P / (4 * Floor::k)), 1e-9);
  EXPECT_LT(Relative(U(u, f.master, Ry), theta), 1e-9);
  EXPECT_NEAR(U(u, f.master, Uz), 0, 1e-12);
  for (size_t top : f.tops) {
    const double dx = f.m.nodes[top].x - 10, dz = f.m.nodes[top].z - 5;
    EXPECT_NEAR(U(u, top, Ux), U(u, f.master, Ux) + theta * dz, 1e-12);
    EXPECT_NEAR(U(u, top, Uz), U(u, f.master, Uz) - theta * dx, 1e-12);
    EXPECT_NEAR(U(u, top, Ry), theta, 1e-15);
  }
  double sumX = 0;
  for (Eigen::Index i = 0; i < r.results[0].reaction.size(); i += 6) sumX += r.results[0].reaction[i];
  EXPECT_LT(Relative(-sumX, P), 1e-12);
  // The master's own Uy, Rx and Rz are stiffened by nothing: held, not a mechanism.
  EXPECT_EQ(r.autoHeld.size(), 3u);
}

// Constraints in a chain (top 1 with top 2, top 2 with top 3, vertically) share a load on top 1
// equally among three equal columns; a constraint that repeats the chain changes nothing.
TEST(Ties, ChainedConstraintsShareALoadAndARepeatedOneChangesNothing) {
  for (bool repeated : {false, true}) {
    Floor f = FourColumns();
    f.m.diaphragms.clear();
    f.m.nodes.pop_back();
    const double P = 30;
    f.m.constraints.push_back({1, {f.tops[0], f.tops[1]}, {Uy, Uy}});
    f.m.constraints.push_back({2, {f.tops[1], f.tops[2]}, {Uy, Uy}});
    if (repeated) f.m.constraints.push_back({3, {f.tops[2], f.tops[0]}, {Uy, Uy}});
    AddCase(f.m, "Down").nodal.push_back({f.tops[0], Uy, -P});
    const StaticResult r = SolveLinearStatic(f.m).results[0];
    for (int c = 0; c < 3; ++c)
      EXPECT_LT(Relative(r.reaction[static_cast<Eigen::Index>(6 * (2 * c) + Uy)], P / 3), 1e-9) << c << repeated;
    EXPECT_NEAR(r.reaction[static_cast<Eigen::Index>(6 * 6 + Uy)], 0, 1e-12);
    EXPECT_LT(Relative(U(r.displacement, f.tops[2], Uy), -P / 3 * Floor::h / (10 * Floor::E)), 1e-9);
    if (!repeated) {
      // The tie from top 2 to top 3 carries the third that column 3 takes.
      EXPECT_LT(Relative(std::abs(r.constraints[1][1]), P / 3), 1e-9);
      EXPECT_NEAR(r.constraints[1][0] + r.constraints[1][1], 0, 1e-12);
    }
  }
}

// Masses on the tops go with the diaphragm: the floor sways with
// ω² = 4k / 4m in X and in Z, and turns with (Σ k r² + 4GJ/h) / Σ m r².
TEST(Ties, ADiaphragmCarriesTheMassesOfItsNodes) {
  Floor f = FourColumns();
  const double mass = 0.05, G = Floor::E / (2 * (1 + Floor::nu));
  for (size_t top : f.tops)
    for (int d : {Ux, Uy, Uz}) f.m.masses.push_back({top, d, mass});
  const ModalResults r = SolveModes(f.m, 3);
  ASSERT_EQ(r.modes.size(), 3u);
  EXPECT_LT(Relative(r.modes[0].omega2, Floor::k / mass), 1e-9);
  EXPECT_LT(Relative(r.modes[1].omega2, Floor::k / mass), 1e-9);
  const double r2 = 10 * 10 + 5 * 5;
  EXPECT_LT(Relative(r.modes[2].omega2, (4 * Floor::k * r2 + 4 * G * Floor::J / Floor::h) / (4 * mass * r2)), 1e-9);
  for (const Mode& mode : r.modes) EXPECT_LT(mode.error, 1e-8);
}

}  // namespace
