#include <gtest/gtest.h>

#include "analysis/linear_static.h"
#include "analysis/analysis_test_models.h"

using namespace analysis_test;

namespace {

constexpr double E = 29000, L = 120;

// Cantilever along X fixed at x = 0, four members, a tip load; every direction against its
// closed form (bending without and with shear deformation, axial, torsion).
TEST(FrameStatic, CantileverTipMatchesBeamTheory) {
  struct Row {
    const char* name;
    Section section;
    int loadDof;
    double tip, rotation;  // expected tip displacement along loadDof and rotation, per unit load
    int rotationDof;
  };
  const Section plain{10, 0, 0, 200, 400, 50};
  const Section shear{10, 4, 6, 200, 400, 50};
  const double G = E / 2.6;
  const Row rows[] = {
      {"Dy, bending about z", plain, Uy, L * L * L / (3 * E * 400), L * L / (2 * E * 400), Rz},
      {"Dz, bending about y", plain, Uz, L * L * L / (3 * E * 200), -L * L / (2 * E * 200), Ry},
      {"Dy with shear area Ay", shear, Uy, L * L * L / (3 * E * 400) + L / (G * 4), L * L / (2 * E * 400), Rz},
      {"Dz with shear area Az", shear, Uz, L * L * L / (3 * E * 200) + L / (G * 6), -L * L / (2 * E * 200), Ry},
      {"axial", plain, Ux, L / (E * 10), 0, Rx},
      {"torsion", plain, Rx, L / (G * 50), 0, Ry},
  };
  for (const Row& row : rows) {
    Model m = FrameModel(E, 0.3, row.section);
    const auto nodes = Line(m, L, 4);
    Fix(m, nodes[0]);
    AddCase(m, "P").nodal.push_back({nodes.back(), row.loadDof, 1.0});
    const StaticResults r = SolveLinearStatic(m);
    const Eigen::VectorXd& u = r.results[0].displacement;
    EXPECT_LT(Relative(U(u, nodes.back(), row.loadDof), row.tip), 1e-9) << row.name;
    if (row.rotation != 0) {
      EXPECT_LT(Relative(U(u, nodes.back(), row.rotationDof), row.rotation), 1e-9) << row.name;
    }
    EXPECT_NEAR(r.results[0].reaction[row.loadDof], -1.0, 1e-9) << row.name;
  }
}

// A local angle of 90° turns the strong axis: a vertical column loaded along X then bends
// about its local y.
TEST(FrameStatic, LocalAngleTurnsTheSection) {
  for (double angle : {0.0, 90.0}) {
    Model m = FrameModel();
    const size_t base = AddNode(m, 0, 0, 0), top = AddNode(m, 0, L, 0);
    AddMember(m, base, top, 0, angle);
    Fix(m, base);
    AddCase(m, "H").nodal.push_back({top, Ux, 1.0});
    const double inertia = angle == 0 ? 400 : 200;
    EXPECT_LT(Relative(U(SolveLinearStatic(m).results[0].displacement, top, Ux), L * L * L / (3 * E * inertia)), 1e-9);
  }
}

// Fixed-fixed beam under a uniform line load: mid-span deflection wL⁴/384EI, end moments
// wL²/12; with the far end's moments released (propped cantilever) wL²/8 and zero there.
TEST(FrameStatic, UniformLoadOnFixedAndProppedBeams) {
  const double w = 0.5;
  Model m = FrameModel();
  const auto nodes = Line(m, L, 2);
  Fix(m, nodes[0]);
  Fix(m, nodes[2]);
  LoadCase& c = AddCase(m, "w");
  for (size_t k = 0; k < 2; ++k) c.memberLine.push_back({k, Uy, false, {-w, -w}, {0, L / 2}});
  const StaticResults r = SolveLinearStatic(m);
  EXPECT_LT(Relative(U(r.results[0].displacement, nodes[1], Uy), -w * std::pow(L, 4) / (384 * E * 400)), 1e-9);
  const Vector12 left = MemberEndForces(m, r.results[0], 0);
  EXPECT_LT(Relative(std::abs(left[5]), w * L * L / 12), 1e-9);
  EXPECT_LT(Relative(r.results[0].reaction[Uy], w * L / 2), 1e-9);

  Model propped = FrameModel();
  const auto pn = Line(propped, L, 1);
  propped.members[0].releases[1] = {false, false, false, false, true, true};
  Fix(propped, pn[0]);
  Hold(propped, pn[1], {true, true, true, false, false, false});
  AddCase(propped, "w").memberLine.push_back({0, Uy, false, {-w, -w}, {0, L}});
  const StaticResults pr = SolveLinearStatic(propped);
  const Vector12 f = MemberEndForces(propped, pr.results[0], 0);
  EXPECT_NEAR(f[11], 0, 1e-9 * w * L * L);
  EXPECT_LT(Relative(std::abs(f[5]), w * L * L / 8), 1e-9);
  EXPECT_LT(Relative(pr.results[0].reaction[static_cast<Eigen::Index>(6 * pn[1] + Uy)], 3 * w * L / 8), 1e-9);
}

// Simply supported beam, point load P at a from the left (b = L - a): reactions Pb/L and
// Pa/L, end rotations Pb(L²-b²)/6EIL and Pa(L²-a²)/6EIL, deflection under the load Pa²b²/3EIL.
TEST(FrameStatic, SimplySupportedBeamWithOffCentrePointLoad) {
  const double P = 3, a = 30, b = L - a;
  Model m = FrameModel();
  const auto nodes = Line(m, L, 1);
  Hold(m, nodes[0], {true, true, true, true, false, false});
  Hold(m, nodes[1], {false, true, true, false, false, false});
  AddCase(m, "P").memberPoint.push_back({0, Uy, false, -P, a});
  const StaticResult r = SolveLinearStatic(m).results[0];
  EXPECT_LT(Relative(r.reaction[Uy], P * b / L), 1e-9);
  EXPECT_LT(Relative(r.reaction[static_cast<Eigen::Index>(6 * nodes[1] + Uy)], P * a / L), 1e-9);
  EXPECT_LT(Relative(U(r.displacement, nodes[0], Rz), -P * b * (L * L - b * b) / (6 * E * 400 * L)), 1e-9);
  EXPECT_LT(Relative(U(r.displacement, nodes[1], Rz), P * a * (L * L - a * a) / (6 * E * 400 * L)), 1e-9);

  // The same load as a nodal load on a node at a.
  Model split = FrameModel();
  const size_t n0 = AddNode(split, 0, 0, 0), n1 = AddNode(split, a, 0, 0), n2 = AddNode(split, L, 0, 0);
  AddMember(split, n0, n1);
  AddMember(split, n1, n2);
  Hold(split, n0, {true, true, true, true, false, false});
  Hold(split, n2, {false, true, true, false, false, false});
  AddCase(split, "P").nodal.push_back({n1, Uy, -P});
  EXPECT_LT(Relative(U(SolveLinearStatic(split).results[0].displacement, n1, Uy), -P * a * a * b * b / (3 * E * 400 * L)), 1e-9);
}

// Fixed-base portal, columns h, beam span s, lateral load H at the beam: sway from the slope-
// deflection equations (axial shortening made negligible by a large area).
TEST(FrameStatic, PortalSwayMatchesSlopeDeflection) {
  const double h = 144, s = 240, H = 10, Ic = 500, Ib = 900;
  Model m = FrameModel(E, 0.3, {1e6, 0, 0, Ic, Ic, 1e4});
  m.sections.push_back({1e6, 0, 0, Ib, Ib, 1e4});
  const size_t a = AddNode(m, 0, 0, 0), b = AddNode(m, 0, h, 0), c = AddNode(m, s, h, 0), d = AddNode(m, s, 0, 0);
  AddMember(m, a, b);
  AddMember(m, b, c, 1);
  AddMember(m, d, c);
  Fix(m, a);
  Fix(m, d);
  AddCase(m, "H").nodal.push_back({b, Ux, H});
  const double ka = 2 * E * Ic / h, kb = 6 * E * Ib / s;
  const double sway = H * h * h * (2 * ka + kb) / (6 * ka * (ka + 2 * kb));
  const StaticResult r = SolveLinearStatic(m).results[0];
  EXPECT_LT(Relative(U(r.displacement, b, Ux), sway), 1e-5);
  EXPECT_LT(Relative(U(r.displacement, c, Ux), sway), 1e-5);
  // Relative 1e-9: areas of 1e6 make the members all but rigid along their axes, and the
  // beam's EA/L (1.2e8) times the rounding of a 0.1 in sway is already 1e-9 kip.
  EXPECT_LT(Relative(r.reaction[Ux] + r.reaction[static_cast<Eigen::Index>(6 * d + Ux)], -H), 1e-9);
}

// Self weight γA along -Y on a cantilever: tip wL⁴/8EI, base reaction γAL; a combination is
// the factored sum of its cases; a heated fixed-fixed bar pushes EAαΔT on its supports.
TEST(FrameStatic, SelfWeightCombinationsAndTemperature) {
  Model m = FrameModel();
  m.materials[0].weightDensity = 0.01;
  m.materials[0].alpha = 6.5e-6;
  const auto nodes = Line(m, L, 3);
  Fix(m, nodes[0]);
  AddCase(m, "Dead").selfWeight = 1;
  AddCase(m, "Live").nodal.push_back({nodes.back(), Uy, -2.0});
  m.combinations.push_back({"1.2D+1.6L", {{0, 1.2}, {1, 1.6}}});
  const StaticResults r = SolveLinearStatic(m);
  const double w = 0.01 * 10;
  EXPECT_LT(Relative(U(r.results[0].displacement, nodes.back(), Uy), -w * std::pow(L, 4) / (8 * E * 400)), 1e-9);
  EXPECT_LT(Relative(r.results[0].reaction[Uy], w * L), 1e-9);
  const double combined = 1.2 * U(r.results[0].displacement, nodes.back(), Uy) + 1.6 * U(r.results[1].displacement, nodes.back(), Uy);
  EXPECT_LT(Relative(U(r.results[2].displacement, nodes.back(), Uy), combined), 1e-12);
  EXPECT_LT(Relative(r.results[2].reaction[Uy], 1.2 * w * L + 1.6 * 2), 1e-9);

  Model bar = FrameModel();
  bar.materials[0].alpha = 6.5e-6;
  const auto bn = Line(bar, L, 2);
  Fix(bar, bn[0]);
  Fix(bar, bn[2]);
  AddCase(bar, "Heat").thermal.push_back({ThermalLoad::Kind::Member, 0, 50});
  bar.cases[0].thermal.push_back({ThermalLoad::Kind::Member, 1, 50});
  const StaticResult t = SolveLinearStatic(bar).results[0];
  EXPECT_LT(Relative(t.reaction[Ux], E * 10 * 6.5e-6 * 50), 1e-9);
  EXPECT_NEAR(U(t.displacement, bn[1], Ux), 0, 1e-12);
}

// A pin-jointed truss: the node rotations and the out-of-plane translation that nothing
// stiffens are held automatically; bar forces P/(2 sin α).
TEST(FrameStatic, TrussHoldsUnstiffenedDofsAndCarriesAxialForce) {
  const double bx = 60, h = 80, P = 12, A = 10;
  Model m = FrameModel();
  const size_t left = AddNode(m, -bx, 0, 0), right = AddNode(m, bx, 0, 0), top = AddNode(m, 0, h, 0);
  for (size_t at : {left, right}) {
    const size_t k = AddMember(m, at, top);
    m.members[k].releases = {{{false, false, false, false, true, true}, {false, false, false, true, true, true}}};
    Hold(m, at, {true, true, true, false, false, false});
  }
  AddCase(m, "P").nodal.push_back({top, Uy, -P});
  const StaticResults r = SolveLinearStatic(m);
  const double length = std::hypot(bx, h), sine = h / length;
  EXPECT_LT(Relative(U(r.results[0].displacement, top, Uy), -P * length / (2 * E * A * sine * sine)), 1e-9);
  EXPECT_LT(Relative(MemberEndForces(m, r.results[0], 0)[6], -P / (2 * sine)), 1e-9);
  // Rotations of all three nodes and Dz at the top.
  EXPECT_EQ(r.autoHeld.size(), 10u);
}

// Mechanisms are refused with the node and degree of freedom; so is a load on a node that
// nothing carries.
TEST(FrameStatic, MechanismsAreRefusedByName) {
  Model twist = FrameModel();
  const auto nodes = Line(twist, L, 2);
  Hold(twist, nodes[0], {true, true, true, false, false, false});
  Hold(twist, nodes[2], {false, true, true, false, false, false});
  AddCase(twist, "P").nodal.push_back({nodes[1], Uy, -1});
  try {
    SolveLinearStatic(twist);
    ADD_FAILURE() << "a beam free to twist was solved";
  } catch (const AnalysisError& e) {
    EXPECT_NE(std::string(e.what()).find(", Rx is free to move"), std::string::npos) << e.what();
  }

  Model loose = FrameModel();
  const auto ln = Line(loose, L, 1);
  Fix(loose, ln[0]);
  AddNode(loose, 0, L, 0);
  AddCase(loose, "P").nodal.push_back({2, Uy, -1});
  try {
    SolveLinearStatic(loose);
    ADD_FAILURE() << "a load on a loose node was solved";
  } catch (const AnalysisError& e) {
    EXPECT_EQ(std::string(e.what()), "Node 3, Dy is loaded in \"P\" but nothing is connected to carry it: the model is unstable there.");
  }

  Model released = FrameModel();
  Line(released, L, 1);
  released.members[0].releases = {{{false, false, false, true, false, false}, {false, false, false, true, false, false}}};
  Fix(released, 0);
  Fix(released, 1);
  AddCase(released, "none");
  EXPECT_THROW(SolveLinearStatic(released), AnalysisError);
}

// Tension-only diagonals: under a push to the right only the bar that stretches carries load,
// H / cos α, and the slack one gives no reaction.
TEST(FrameStatic, TensionOnlyBarDropsOutWhenSlack) {
  const double bx = 60, h = 80, H = 5;
  Model m = FrameModel();
  const size_t left = AddNode(m, -bx, 0, 0), right = AddNode(m, bx, 0, 0), mid = AddNode(m, 0, 0, 0), top = AddNode(m, 0, h, 0);
  for (size_t at : {left, right, mid}) {
    const size_t k = AddMember(m, at, top);
    m.members[k].releases = {{{false, false, false, false, true, true}, {false, false, false, true, true, true}}};
    if (at != mid) m.members[k].axial = AxialBehaviour::TensionOnly;
    Hold(m, at, {true, true, true, false, false, false});
  }
  AddCase(m, "H").nodal.push_back({top, Ux, H});
  m.combinations.push_back({"-H", {{0, -1.0}}});
  m.combinations.push_back({"H again", {{0, 1.0}}});  // settles on a set solved before, then replaced
  const StaticResults r = SolveLinearStatic(m);
  const double cosine = bx / std::hypot(bx, h);
  EXPECT_LT(Relative(MemberEndForces(m, r.results[0], 0)[6], H / cosine), 1e-9);
  EXPECT_EQ(MemberEndForces(m, r.results[0], 1)[6], 0);
  EXPECT_EQ(r.results[0].reaction[static_cast<Eigen::Index>(6 * right + Ux)], 0);
  // The reversed load is solved by its own switching: now the right bar pulls.
  EXPECT_EQ(MemberEndForces(m, r.results[1], 0)[6], 0);
  EXPECT_LT(Relative(MemberEndForces(m, r.results[1], 1)[6], H / cosine), 1e-9);
  EXPECT_EQ(r.results[2].displacement, r.results[0].displacement);
  EXPECT_EQ(r.results[2].reaction, r.results[0].reaction);
}

}  // namespace
