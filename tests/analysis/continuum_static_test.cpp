#include <gtest/gtest.h>

#include "analysis/analysis_test_models.h"
#include "analysis/linear_static.h"

using namespace analysis_test;

namespace {

// A square plate under pressure q downwards; its flexural rigidity D is 1.
Plate SquarePlate(int n, double a, double t, double q, bool clamped) {
  const double nu = 0.3, E = 12 * (1 - nu * nu) / (t * t * t);
  Plate p = analysis_test::SquarePlate(n, a, t, Material{E, nu, 0, 0}, clamped);
  LoadCase& c = AddCase(p.model, "q");
  for (size_t s = 0; s < p.model.shells.size(); ++s) c.surface.push_back({s, Uy, false, -q});
  return p;
}

// Timoshenko's plate coefficients (w = α q a⁴ / D at the centre), a/t = 100, 16 × 16 shells.
TEST(ShellStatic, SquarePlatesMatchClassicalCoefficients) {
  const double a = 10, t = 0.1, q = 1;
  for (const auto& [clamped, alpha] : {std::pair{false, 0.00406}, std::pair{true, 0.00126}}) {
    Plate p = SquarePlate(16, a, t, q, clamped);
    const StaticResult r = SolveLinearStatic(p.model).results[0];
    const double w = -U(r.displacement, p.Centre(), Uy);
    EXPECT_LT(Relative(w, alpha * q * std::pow(a, 4)), 0.02) << (clamped ? "clamped" : "simply supported") << " w=" << w;
    double reactions = 0;
    for (Eigen::Index k = Uy; k < r.reaction.size(); k += 6) reactions += r.reaction[k];
    EXPECT_LT(Relative(reactions, q * a * a), 1e-9);
  }
}

// A thin cantilever strip (L/t = 1000) bent out of its plane and a deep one bent in its
// plane: beam theory, so neither the plate nor the membrane locks.
TEST(ShellStatic, CantileverStripsDoNotLock) {
  const double L = 10, b = 1, E = 1e6, P = 1;
  for (const bool inPlane : {false, true}) {
    const double t = inPlane ? 0.1 : 0.01;
    Model m;
    m.materials.push_back({E, 0.0, 0, 0});
    const int nx = 10, ny = 2;
    std::vector<std::vector<size_t>> grid(nx + 1, std::vector<size_t>(ny + 1));
    // Out of plane: the strip lies flat (X-Z) and bends along Y; in plane: it stands in X-Y.
    for (int i = 0; i <= nx; ++i)
      for (int j = 0; j <= ny; ++j)
        grid[static_cast<size_t>(i)][static_cast<size_t>(j)] =
            inPlane ? AddNode(m, L * i / nx, b * j / ny, 0) : AddNode(m, L * i / nx, 0, b * j / ny);
    for (int i = 0; i < nx; ++i)
      for (int j = 0; j < ny; ++j) {
        Shell s;
        s.id = static_cast<uint32_t>(m.shells.size() + 1);
        const auto I = static_cast<size_t>(i), J = static_cast<size_t>(j);
        s.nodes = {grid[I][J], grid[I + 1][J], grid[I + 1][J + 1], grid[I][J + 1]};
        s.thickness = t;
        m.shells.push_back(s);
      }
    LoadCase& c = AddCase(m, "P");
    for (int j = 0; j <= ny; ++j) {
      Fix(m, grid[0][static_cast<size_t>(j)]);
      c.nodal.push_back({grid[nx][static_cast<size_t>(j)], Uy, (j == 0 || j == ny ? 0.5 : 1.0) * -P / ny});
    }
    const double depth = inPlane ? b : t, width = inPlane ? t : b;
    const double I = width * depth * depth * depth / 12;
    double tip = P * L * L * L / (3 * E * I);
    if (inPlane) tip += P * L / (5.0 / 6 * E / 2 * width * depth);
    const StaticResult r = SolveLinearStatic(m).results[0];
    EXPECT_LT(Relative(-U(r.displacement, grid[nx][1], Uy), tip), 0.02) << (inPlane ? "in plane" : "out of plane");
  }
}

// A cantilever of bricks, L/h = 10, 20 × 2 × 2: Timoshenko beam theory within 3 %. The brick
// nodes' rotations are held automatically.
TEST(BrickStatic, CantileverMatchesBeamTheory) {
  const double L = 10, h = 1, E = 1e6, P = 1;
  const int nx = 20, n = 2;
  Model m;
  m.materials.push_back({E, 0.0, 0, 0});
  auto id = [&](int i, int j, int k) { return static_cast<size_t>((i * (n + 1) + j) * (n + 1) + k); };
  for (int i = 0; i <= nx; ++i)
    for (int j = 0; j <= n; ++j)
      for (int k = 0; k <= n; ++k) AddNode(m, L * i / nx, h * j / n, h * k / n);
  for (int i = 0; i < nx; ++i)
    for (int j = 0; j < n; ++j)
      for (int k = 0; k < n; ++k) {
        Brick b;
        b.id = static_cast<uint32_t>(m.bricks.size() + 1);
        b.nodes = {id(i, j, k), id(i + 1, j, k), id(i + 1, j + 1, k), id(i, j + 1, k),
                   id(i, j, k + 1), id(i + 1, j, k + 1), id(i + 1, j + 1, k + 1), id(i, j + 1, k + 1)};
        m.bricks.push_back(b);
      }
  LoadCase& c = AddCase(m, "P");
  for (int j = 0; j <= n; ++j)
    for (int k = 0; k <= n; ++k) {
      Hold(m, id(0, j, k), {true, true, true, false, false, false});
      const double wj = (j == 0 || j == n) ? 0.5 : 1.0, wk = (k == 0 || k == n) ? 0.5 : 1.0;
      c.nodal.push_back({id(nx, j, k), Uy, -P * wj * wk / (n * n)});
    }
  const StaticResults r = SolveLinearStatic(m);
  const double I = h * h * h * h / 12;
  const double tip = P * L * L * L / (3 * E * I) + P * L / (5.0 / 6 * E / 2 * h * h);
  EXPECT_LT(Relative(-U(r.results[0].displacement, id(nx, 1, 1), Uy), tip), 0.03);
  EXPECT_EQ(r.autoHeld.size(), 3 * m.nodes.size());
}

// Patch tests on the distorted meshes of MacNeal and Harder: the outer nodes are moved as a
// linear field (constant strain, or constant curvature for the plate) says, and the inner
// nodes of elements that are not parallelograms must follow the field exactly.
Support Prescribed(size_t node, std::array<bool, 6> held, std::array<double, 6> value) { return {node, held, value}; }

TEST(PatchTests, DistortedShellsAndBricksReproduceConstantStrainExactly) {
  const std::array<std::array<double, 2>, 8> plane = {{{0, 0}, {0.24, 0}, {0.24, 0.12}, {0, 0.12},
                                                        {0.04, 0.02}, {0.18, 0.03}, {0.16, 0.08}, {0.08, 0.08}}};
  const std::array<std::array<size_t, 4>, 5> quads = {{{0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}, {4, 5, 6, 7}}};
  // Membrane: u = 10⁻³(x + y/2), v = 10⁻³(y + x/2); plate: w = 10⁻³(x² + xy + y²)/2 with its
  // rotations θx = ∂w/∂y and θy = −∂w/∂x.
  const auto membrane = [](double x, double y) {
    return std::array<double, 6>{1e-3 * (x + y / 2), 1e-3 * (y + x / 2), 0, 0, 0, 0};
  };
  const auto plate = [](double x, double y) {
    return std::array<double, 6>{0, 0, 1e-3 * (x * x + x * y + y * y) / 2, 1e-3 * (x / 2 + y), -1e-3 * (x + y / 2), 0};
  };
  for (const bool bending : {false, true}) {
    Model m;
    m.materials.push_back({1e6, 0.25, 0, 0});
    for (const auto& [x, y] : plane) AddNode(m, x, y, 0);
    for (const auto& q : quads) {
      Shell s;
      s.id = static_cast<uint32_t>(m.shells.size() + 1);
      s.nodes = q;
      s.thickness = 0.001;
      m.shells.push_back(s);
    }
    AddCase(m, "patch");
    const auto field = [&](size_t node) { return bending ? plate(plane[node][0], plane[node][1]) : membrane(plane[node][0], plane[node][1]); };
    for (size_t node = 0; node < 4; ++node) m.supports.push_back(Prescribed(node, {true, true, true, true, true, true}, field(node)));
    const StaticResult r = SolveLinearStatic(m).results[0];
    for (size_t node = 4; node < 8; ++node)
      for (int d = 0; d < 6; ++d)
        EXPECT_NEAR(U(r.displacement, node, d), field(node)[static_cast<size_t>(d)], 1e-12)
            << (bending ? "plate" : "membrane") << " node " << node + 1 << " dof " << d;
  }

  // The brick patch: a unit cube around seven distorted bricks; u = 10⁻³(2x + y + z)/2,
  // v = 10⁻³(x + 2y + z)/2, w = 10⁻³(x + y + 2z)/2.
  const std::array<std::array<double, 3>, 16> solid = {{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0},
                                                         {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1},
                                                         {0.249, 0.342, 0.192}, {0.826, 0.288, 0.288},
                                                         {0.850, 0.649, 0.263}, {0.273, 0.750, 0.230},
                                                         {0.320, 0.186, 0.643}, {0.677, 0.305, 0.683},
                                                         {0.788, 0.693, 0.644}, {0.165, 0.745, 0.702}}};
  const std::array<std::array<size_t, 8>, 7> hexes = {{{8, 9, 10, 11, 12, 13, 14, 15},
                                                       {0, 1, 2, 3, 8, 9, 10, 11},
                                                       {12, 13, 14, 15, 4, 5, 6, 7},
                                                       {0, 4, 5, 1, 8, 12, 13, 9},
                                                       {3, 2, 6, 7, 11, 10, 14, 15},
                                                       {0, 3, 7, 4, 8, 11, 15, 12},
                                                       {1, 5, 6, 2, 9, 13, 14, 10}}};
  const auto strain = [&](size_t node) {
    const auto& [x, y, z] = solid[node];
    return std::array<double, 6>{1e-3 * (2 * x + y + z) / 2, 1e-3 * (x + 2 * y + z) / 2, 1e-3 * (x + y + 2 * z) / 2, 0, 0, 0};
  };
  Model m;
  m.materials.push_back({1e6, 0.25, 0, 0});
  for (const auto& [x, y, z] : solid) AddNode(m, x, y, z);
  for (const auto& h : hexes) {
    Brick b;
    b.id = static_cast<uint32_t>(m.bricks.size() + 1);
    b.nodes = h;
    m.bricks.push_back(b);
  }
  AddCase(m, "patch");
  for (size_t node = 0; node < 8; ++node) m.supports.push_back(Prescribed(node, {true, true, true, false, false, false}, strain(node)));
  const StaticResult r = SolveLinearStatic(m).results[0];
  for (size_t node = 8; node < 16; ++node)
    for (int d = 0; d < 3; ++d)
      EXPECT_NEAR(U(r.displacement, node, d), strain(node)[static_cast<size_t>(d)], 1e-12) << "brick node " << node + 1 << " dof " << d;
}

// Scordelis and Lo's barrel vault, a published shell benchmark: R = 25, L = 50, 80° of arc,
// t = 0.25, E = 4.32 × 10⁸, ν = 0, 90 per unit area of self weight, the curved ends on rigid
// diaphragms; the midpoint of a free edge sinks 0.3024. Flat elements on a curved surface
// mix membrane and bending in every element, and each lies at its own angle.
TEST(ShellBenchmarks, ScordelisLoRoofMatchesThePublishedDeflection) {
  const double R = 25, L = 50, half = 40 * 3.14159265358979323846 / 180;
  const int n = 32;  // across the arc and along the vault
  Model m;
  m.materials.push_back({4.32e8, 0.0, 0, 0});
  std::vector<std::vector<size_t>> grid(n + 1, std::vector<size_t>(n + 1));
  for (int i = 0; i <= n; ++i)
    for (int j = 0; j <= n; ++j) {
      const double phi = -half + 2 * half * i / n;
      grid[static_cast<size_t>(i)][static_cast<size_t>(j)] = AddNode(m, R * std::sin(phi), R * std::cos(phi), L * j / n);
    }
  LoadCase& c = AddCase(m, "self weight");
  for (size_t i = 0; i < n; ++i)
    for (size_t j = 0; j < n; ++j) {
      Shell s;
      s.id = static_cast<uint32_t>(m.shells.size() + 1);
      s.nodes = {grid[i][j], grid[i + 1][j], grid[i + 1][j + 1], grid[i][j + 1]};
      s.thickness = 0.25;
      m.shells.push_back(s);
      c.surface.push_back({m.shells.size() - 1, Uy, false, -90});
    }
  for (size_t i = 0; i <= n; ++i) {
    Hold(m, grid[i][0], {true, true, false, false, false, false});
    Hold(m, grid[i][n], {true, true, false, false, false, false});
    Hold(m, grid[i][n / 2], {false, false, true, false, false, false});  // symmetry about mid-length
  }
  const StaticResult r = SolveLinearStatic(m).results[0];
  EXPECT_LT(Relative(-U(r.displacement, grid[0][n / 2], Uy), 0.3024), 0.02) << U(r.displacement, grid[0][n / 2], Uy);
  EXPECT_NEAR(U(r.displacement, grid[0][n / 2], Uy), U(r.displacement, grid[n][n / 2], Uy), 1e-9) << "symmetric";
}

}  // namespace
