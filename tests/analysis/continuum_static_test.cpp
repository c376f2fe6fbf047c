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

}  // namespace
