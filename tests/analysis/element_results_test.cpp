#include <gtest/gtest.h>

#include "analysis/analysis_test_models.h"
#include "analysis/element_results.h"
#include "analysis/linear_static.h"

using namespace analysis_test;

// Member forces and deflections at stations against closed forms (no shear deformation):
// a cantilever with a tip load P (M(0) = -PL, v(L) = -PL³/3EI, v(L/2) = -5PL³/48EI) and a
// simply supported beam under a uniform load w (M(L/2) = wL²/8, v(L/2) = -5wL⁴/384EI).
TEST(MemberStations, MatchBeamTheory) {
  const double L = 120, P = 2, w = 0.05, E = 29000, I = 400;
  {
    Model m = FrameModel();
    const auto nodes = Line(m, L, 1);
    Fix(m, nodes[0]);
    AddCase(m, "P").nodal.push_back({nodes[1], Uy, -P});
    const StaticResult r = SolveLinearStatic(m).results[0];
    const auto st = MemberStations(m, r.displacement, r.terms, r.activeMembers, 0, 5);
    ASSERT_EQ(st.size(), 5u);
    EXPECT_DOUBLE_EQ(st[2].s, L / 2);
    EXPECT_LT(Relative(st[0].force[5], -P * L), 1e-9);
    EXPECT_LT(Relative(st[2].force[5], -P * L / 2), 1e-9);
    EXPECT_NEAR(st[4].force[5], 0, 1e-9);
    EXPECT_LT(Relative(st[3].force[1], -P), 1e-9);
    EXPECT_LT(Relative(st[4].dy, -P * L * L * L / (3 * E * I)), 1e-9);
    EXPECT_LT(Relative(st[2].dy, -5 * P * L * L * L / (48 * E * I)), 1e-9);
    EXPECT_NEAR(st[0].dy, 0, 1e-12);
  }
  {
    Model m = FrameModel();
    const auto nodes = Line(m, L, 1);
    Hold(m, nodes[0], {true, true, true, true, false, false});
    Hold(m, nodes[1], {false, true, true, false, false, false});
    LoadCase& c = AddCase(m, "w");
    MemberLineLoad line;
    line.member = 0;
    line.direction = Uy;
    line.value = {-w, -w};
    line.distance = {0, L};
    c.memberLine.push_back(line);
    const StaticResult r = SolveLinearStatic(m).results[0];
    const auto st = MemberStations(m, r.displacement, r.terms, r.activeMembers, 0, 11);
    EXPECT_LT(Relative(st[5].force[5], w * L * L / 8), 1e-9);  // sagging is positive
    EXPECT_LT(Relative(st[0].force[1], -w * L / 2), 1e-9);
    EXPECT_LT(Relative(st[5].dy, -5 * w * L * L * L * L / (384 * E * I)), 1e-9);
    EXPECT_NEAR(st[10].dy, 0, 1e-12);
  }
}

// A simply supported square plate (a/t = 100, 16 × 16) under uniform pressure: the moment at
// the centre is 0.0479 q a² each way (Timoshenko, ν = 0.3), sagging, so the bottom face is in
// tension; and the nodal resultants of one shell carry its share of the load.
TEST(ShellResults, SquarePlateMomentsAndFaceStresses) {
  const int n = 16;
  const double a = 10, t = 0.1, q = 1, nu = 0.3, E = 12 * (1 - nu * nu) / (t * t * t);
  Plate p = SquarePlate(n, a, t, Material{E, nu, 0, 0}, false);
  Model& m = p.model;
  LoadCase& c = AddCase(m, "q");
  for (size_t s = 0; s < m.shells.size(); ++s) c.surface.push_back({s, Uy, false, -q});
  // The shell whose third node is the plate's centre.
  const size_t centreShell = static_cast<size_t>((n / 2 - 1) * n + (n / 2 - 1));
  ASSERT_EQ(m.shells[centreShell].nodes[2], p.Centre());
  const StaticResult r = SolveLinearStatic(m).results[0];
  const ShellPointForces f = ShellForces(m, r.displacement, r.terms, centreShell);
  // Point 3 is the shell's third node, the plate's centre.
  EXPECT_LT(Relative(f[3][3], 0.0479 * q * a * a), 0.03) << f[3][3];
  EXPECT_LT(Relative(f[3][4], 0.0479 * q * a * a), 0.03) << f[3][4];
  EXPECT_NEAR(f[3][0], 0, 1e-9);  // no membrane force
  const auto top = ShellFaceStresses(m, f, centreShell, 0);
  const auto bottom = ShellFaceStresses(m, f, centreShell, 1);
  EXPECT_DOUBLE_EQ(bottom[3][0], 6 * f[3][3] / (t * t));
  EXPECT_DOUBLE_EQ(top[3][0], -bottom[3][0]);

  // The nodes' forces on the shells cancel between shells and add up to the supports' push.
  double total = 0;
  for (size_t k = 0; k < m.shells.size(); ++k)
    for (const auto& node : ShellNodalResultants(m, r.displacement, r.terms, k)) total += node[2];
  EXPECT_LT(Relative(total, q * a * a), 1e-6);
}

// A bar of two bricks pulled along X: the stress is F / A at every point, nothing else.
TEST(BrickResults, UniformTensionIsRecoveredAtEveryPoint) {
  Model m;
  m.materials.push_back({1000, 0.25, 0, 0});
  const double F = 8, h = 2;
  std::vector<size_t> id;
  for (int i = 0; i <= 2; ++i)
    for (int j = 0; j <= 1; ++j)
      for (int k = 0; k <= 1; ++k) id.push_back(AddNode(m, 3.0 * i, h * j, h * k));
  auto at = [&](int i, int j, int k) { return id[static_cast<size_t>(i * 4 + j * 2 + k)]; };
  for (int i = 0; i < 2; ++i) {
    Brick b;
    b.id = static_cast<uint32_t>(i + 1);
    b.nodes = {at(i, 0, 0), at(i + 1, 0, 0), at(i + 1, 1, 0), at(i, 1, 0),
               at(i, 0, 1), at(i + 1, 0, 1), at(i + 1, 1, 1), at(i, 1, 1)};
    m.bricks.push_back(b);
  }
  LoadCase& c = AddCase(m, "F");
  for (int j = 0; j <= 1; ++j)
    for (int k = 0; k <= 1; ++k) {
      // Held along X at x = 0, and just enough across to stop rigid motion.
      Hold(m, at(0, j, k), {true, j == 0 && k == 0, j == 0 && k == 0 ? true : k == 0 && j == 1, false, false, false});
      c.nodal.push_back({at(2, j, k), Ux, F / 4});
    }
  const StaticResult r = SolveLinearStatic(m).results[0];
  for (size_t b = 0; b < 2; ++b) {
    const BrickPointStresses s = BrickStresses(m, r.displacement, r.terms, b);
    for (const auto& point : s) {
      EXPECT_NEAR(point[0], F / (h * h), 1e-9);
      for (size_t k = 1; k < 6; ++k) EXPECT_NEAR(point[k], 0, 1e-9);
    }
  }
}
