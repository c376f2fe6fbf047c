#include <gtest/gtest.h>

#include <Eigen/Eigenvalues>

#include "analysis/analysis_test_models.h"
#include "analysis/assembly.h"
#include "analysis/modal.h"

using namespace analysis_test;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr MassModel kBoth[] = {MassModel::Lumped, MassModel::Consistent};

double Hz(double omega2) { return std::sqrt(omega2) / (2 * kPi); }

// The modes whose largest translation is along `dof`.
std::vector<Mode> ModesAlong(const ModalResults& r, int dof) {
  std::vector<Mode> out;
  for (const Mode& mode : r.modes) {
    Eigen::Vector3d largest = Eigen::Vector3d::Zero();
    for (Eigen::Index i = 0; i < mode.shape.size(); ++i)
      if (i % 6 < 3) largest[i % 6] = std::max(largest[i % 6], std::abs(mode.shape[i]));
    Eigen::Index along = 0;
    largest.maxCoeff(&along);
    if (along == dof) out.push_back(mode);
  }
  return out;
}

// Unit translation along a global axis at every node.
Eigen::VectorXd Translation(const Model& m, int dof) {
  Eigen::VectorXd r = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(6 * m.nodes.size()));
  for (Eigen::Index i = dof; i < r.size(); i += 6) r[i] = 1;
  return r;
}

double Quadratic(const SparseMatrix& upper, const Eigen::VectorXd& v) { return v.dot(upper.selfadjointView<Eigen::Upper>() * v); }

// A cantilever of four members along X bending in the X-Y plane (local z, I); the other
// plane, the twist and the axial motion are far stiffer. Exact: β² √(EI / (m L⁴)) / 2π with
// β = 1.8751, 4.6941. Consistent masses are an upper bound and converge fast; lumped ones
// fall below.
TEST(ConsistentMass, CantileverBendingFrequenciesFromAboveWithFourMembers) {
  const double L = 120, E = 29000, I = 100, A = 10, gamma = 0.000283;
  const double exact[2] = {1.875104 * 1.875104, 4.694091 * 4.694091};
  for (MassModel masses : kBoth) {
    Model m = FrameModel(E, 0.3, {A, 0, 0, 10 * I, I, 1000});
    m.materials[0].weightDensity = gamma;
    const auto nodes = Line(m, L, 4);
    Fix(m, nodes[0]);
    const ModalResults r = SolveModes(m, 4, masses);
    const std::vector<Mode> bending = ModesAlong(r, Uy);
    ASSERT_GE(bending.size(), 2u) << MassModelName(masses);
    const double scale = std::sqrt(E * I / (gamma * A / m.g * std::pow(L, 4))) / (2 * kPi);
    for (size_t k = 0; k < 2; ++k) {
      const double got = Hz(bending[k].omega2), want = exact[k] * scale;
      if (masses == MassModel::Consistent) {
        EXPECT_GT(got, want) << "mode " << k + 1;
        EXPECT_LT(Relative(got, want), 0.005) << "mode " << k + 1;
      } else {
        EXPECT_LT(got, want) << "mode " << k + 1;
      }
      EXPECT_LT(bending[k].error, 1e-8);
    }
  }
}

// A bar of ten members along X, held at x = 0 and free to move only along X elsewhere:
// its first frequency is (π/2) √(E/ρ) / L with ρ the weight density over g, approached
// from above by consistent masses and from below by lumped ones.
TEST(ConsistentMass, FixedFreeBarFirstAxialFrequency) {
  const double L = 200, E = 10000, gamma = 0.0001;
  for (MassModel masses : kBoth) {
    Model m = FrameModel(E, 0.3, {4, 0, 0, 2, 3, 5});
    m.materials[0].weightDensity = gamma;
    const auto nodes = Line(m, L, 10);
    Fix(m, nodes[0]);
    for (size_t i = 1; i < nodes.size(); ++i) Hold(m, nodes[i], {false, true, true, true, true, true});
    const ModalResults r = SolveModes(m, 1, masses);
    ASSERT_EQ(r.modes.size(), 1u);
    const double want = 0.5 * kPi * std::sqrt(E / (gamma / m.g)) / L / (2 * kPi);
    const double got = Hz(r.modes[0].omega2);
    EXPECT_LT(Relative(got, want), 0.005) << MassModelName(masses);
    EXPECT_EQ(got > want, masses == MassModel::Consistent) << MassModelName(masses);
  }
}

// A simply supported square plate (a/t = 100) on 8 × 8 shells with consistent masses:
// ω = 2π²/a² √(D / ρt), D = Et³ / 12(1 − ν²).
TEST(ConsistentMass, SimplySupportedSquarePlateFirstFrequency) {
  const double a = 100, t = 1, E = 29000, nu = 0.3, gamma = 0.000283;
  Plate p = SquarePlate(8, a, t, {E, nu, gamma, 0}, false);
  const ModalResults r = SolveModes(p.model, 1, MassModel::Consistent);
  ASSERT_EQ(r.modes.size(), 1u);
  const double D = E * t * t * t / (12 * (1 - nu * nu));
  const double omega = 2 * kPi * kPi / (a * a) * std::sqrt(D / (gamma / p.model.g * t));
  EXPECT_LT(Relative(std::sqrt(r.modes[0].omega2), omega), 0.03) << std::sqrt(r.modes[0].omega2) << " against " << omega;
  EXPECT_LT(r.modes[0].error, 1e-8);
}

// Three small models held by springs only, so that every mass can move: a frame in space
// (a turned member, one with its far end pinned, a rigid link if asked, an added mass), two
// shells in a tilted plane and two bricks, one of them sheared.
struct Spread {
  const char* name;
  Model model;
  std::array<double, 3> total;  // mass along X, Y, Z
};

Model WithSprings(Model m, std::initializer_list<size_t> nodes, bool rotations) {
  for (size_t n : nodes) {
    NodalSpring s;
    s.node = n;
    for (int d = 0; d < (rotations ? 6 : 3); ++d) s.k[static_cast<size_t>(d)] = d < 3 ? 2000 + 100 * d : 1e6;
    m.nodalSprings.push_back(s);
  }
  return m;
}

Spread SpaceFrame(bool rigidLink) {
  const double gamma = 0.000283, A = 10;
  Model m = FrameModel(29000, 0.3, {A, 0, 0, 200, 300, 50});
  m.materials[0].weightDensity = gamma;
  const size_t n0 = AddNode(m, 0, 0, 0), n1 = AddNode(m, 100, 80, 30), n2 = AddNode(m, 160, 80, -40),
               n3 = AddNode(m, 160, 140, -40);
  AddMember(m, n0, n1, 0, 30);
  const size_t pinned = AddMember(m, n1, n2);
  m.members[pinned].releases[1] = {false, false, false, false, true, true};
  m.members[AddMember(m, n2, n3)].rigid = rigidLink;
  AddMember(m, n1, n3);
  m.masses.push_back({n3, Uz, 0.02});
  double weight = 0;
  for (const Member& mb : m.members)
    if (!mb.rigid) weight += gamma * A * MemberLength(m, mb);
  const double mass = weight / m.g;
  return {"frame", WithSprings(m, {n0}, true), {mass, mass, mass + 0.02}};
}

Spread TiltedShells() {
  const double gamma = 0.0001, t = 0.5;
  Model m;
  m.materials.push_back({10000, 0.25, gamma, 0});
  // A trapezoid and a parallelogram in the plane through the origin spanned by u and v.
  const Eigen::Vector3d u(0.8, 0.0, 0.6), v(0.0, 1.0, 0.0);
  std::vector<size_t> at;
  for (const auto& [s, w] : {std::pair{0.0, 0.0}, {40.0, 0.0}, {30.0, 20.0}, {5.0, 20.0}, {70.0, 0.0}, {60.0, 20.0}}) {
    const Eigen::Vector3d p = s * u + w * v;
    at.push_back(AddNode(m, p.x(), p.y(), p.z()));
  }
  m.shells.push_back({1, {at[0], at[1], at[2], at[3]}, 0, t});
  m.shells.push_back({2, {at[1], at[4], at[5], at[2]}, 0, t});
  const double area = 0.5 * (40 + 25) * 20 + 30 * 20;
  const double mass = gamma * t * area / m.g;
  return {"shells", WithSprings(m, {at[0], at[3], at[4]}, true), {mass, mass, mass}};
}

Spread Bricks() {
  const double gamma = 0.00008;
  Model m;
  m.materials.push_back({5000, 0.2, gamma, 0});
  // A 10 × 8 × 6 box from x = 0 to 10 and a parallelepiped from x = 10 to 20 whose far face
  // is pushed 3 along Z.
  std::vector<size_t> at;
  for (double x : {0.0, 10.0, 20.0})
    for (const auto& [y, z] : {std::pair{0.0, 0.0}, {8.0, 0.0}, {8.0, 6.0}, {0.0, 6.0}})
      at.push_back(AddNode(m, x, y, z + (x > 10 ? 3 : 0)));
  m.bricks.push_back({1, {at[0], at[1], at[2], at[3], at[4], at[5], at[6], at[7]}, 0});
  m.bricks.push_back({2, {at[4], at[5], at[6], at[7], at[8], at[9], at[10], at[11]}, 0});
  const double mass = gamma * 2 * 10 * 8 * 6 / m.g;
  return {"bricks", WithSprings(m, {at[0], at[1], at[2], at[3]}, false), {mass, mass, mass}};
}

// rᵀ M r is the whole mass along each direction for both models; and the effective masses
// (φᵀ M r)² / φᵀ M φ of all the modes add up to it, since nothing is held.
TEST(ConsistentMass, TotalAndEffectiveMassesOfFrameShellsAndBricks) {
  // A rigid link stands on a stiffness a million times the members': its own modes are
  // beyond what this check can resolve, so the frame here has none (see below).
  for (const Spread& s : {SpaceFrame(false), TiltedShells(), Bricks()})
    for (MassModel masses : kBoth) {
      const std::string what = std::string(s.name) + ", " + MassModelName(masses);
      const SparseMatrix mass = MassMatrix(s.model, masses);
      const ModalResults r = SolveModes(s.model, 1000, masses);
      ASSERT_FALSE(r.modes.empty()) << what;
      for (int d = 0; d < 3; ++d) {
        const Eigen::VectorXd unit = Translation(s.model, d);
        EXPECT_LT(Relative(Quadratic(mass, unit), s.total[static_cast<size_t>(d)]), 1e-12) << what << ", direction " << d;
        double effective = 0;
        for (const Mode& mode : r.modes) {
          const double l = mode.shape.dot(r.MassTimes(unit));
          effective += l * l / mode.shape.dot(r.MassTimes(mode.shape));
        }
        EXPECT_LT(Relative(effective, s.total[static_cast<size_t>(d)]), 1e-8) << what << ", direction " << d;
      }
      for (const Mode& mode : r.modes) EXPECT_LT(mode.error, 1e-7) << what;
    }
}

// A rigid link carries no mass in either model. The consistent matrix of the members turns
// with them: a rigid rotation θ about a global axis through the origin has the kinetic
// quadratic form of the bars as rods, Σ ρA ∫ |e × x|² ds + ρ(Iy + Iz) L (e · t)², whatever
// the member's angle or its pinned end.
TEST(ConsistentMass, MembersTurnedRigidlyHaveTheRodsMomentOfInertia) {
  const Spread s = SpaceFrame(true);
  const Model& m = s.model;
  for (MassModel masses : kBoth)
    for (int d = 0; d < 3; ++d)
      EXPECT_LT(Relative(Quadratic(MassMatrix(m, masses), Translation(m, d)), s.total[static_cast<size_t>(d)]), 1e-12)
          << MassModelName(masses) << ", direction " << d;
  const SparseMatrix mass = MassMatrix(m, MassModel::Consistent);
  const double rho = m.materials[0].weightDensity / m.g;
  const Section& sec = m.sections[0];
  for (int axis = 0; axis < 3; ++axis) {
    const Eigen::Vector3d e = Eigen::Vector3d::Unit(axis);
    Eigen::VectorXd u = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(6 * m.nodes.size()));
    for (size_t n = 0; n < m.nodes.size(); ++n) {
      const Eigen::Vector3d x(m.nodes[n].x, m.nodes[n].y, m.nodes[n].z);
      u.segment<3>(static_cast<Eigen::Index>(6 * n)) = e.cross(x);
      u.segment<3>(static_cast<Eigen::Index>(6 * n + 3)) = e;
    }
    double want = 0;
    for (const Member& mb : m.members) {
      if (mb.rigid) continue;
      const Node &a = m.nodes[mb.nodes[0]], &b = m.nodes[mb.nodes[1]];
      const Eigen::Vector3d p(a.x, a.y, a.z), q(b.x, b.y, b.z);
      const double L = (q - p).norm();
      const Eigen::Vector3d t = (q - p) / L, ea = e.cross(p), et = e.cross(t);
      want += rho * sec.A * (L * ea.squaredNorm() + L * L * ea.dot(et) + L * L * L / 3 * et.squaredNorm());
      want += rho * (sec.Iy + sec.Iz) * L * e.dot(t) * e.dot(t);
    }
    // The added mass at node 3 moves with the rotation too.
    const Eigen::Vector3d x3(m.nodes[3].x, m.nodes[3].y, m.nodes[3].z);
    want += 0.02 * std::pow(e.cross(x3).z(), 2);
    EXPECT_LT(Relative(Quadratic(mass, u), want), 1e-12) << "about axis " << axis;
  }
}

// A single member standing up from a clamp, with consistent masses, excited along X: its two
// X modes are those of the textbook beam element over (v₂, θ₂), K = EI/L³ [12 −6L; −6L 4L²],
// M = mL/420 [156 −22L; −22L 4L²]. The ground moves the base too, so the load of the
// excitation is (M r) over the free end, (mL/2, −mL²/12), not M₂₂ r₂. Each mode's base shear
// is Sa (φᵀ M r)² / φᵀ M φ, all of it through the clamp.
TEST(ConsistentMass, ResponseSpectrumBaseShearEqualsTheInertialForces) {
  const double L = 144, E = 29000, I = 300, A = 12, gamma = 0.000283, sa = 0.4;
  Model m = FrameModel(E, 0.3, {A, 0, 0, 3 * I, I, 900});
  m.materials[0].weightDensity = gamma;
  const size_t base = AddNode(m, 0, 0, 0), top = AddNode(m, 0, L, 0);
  AddMember(m, base, top);
  Fix(m, base);
  const ModalResults r = SolveModes(m, 6, MassModel::Consistent);

  const double mu = gamma * A / m.g;
  Eigen::Matrix2d k, mass;
  k << 12, -6 * L, -6 * L, 4 * L * L;
  k *= E * I / (L * L * L);
  mass << 156, -22 * L, -22 * L, 4 * L * L;
  mass *= mu * L / 420;
  const Eigen::Vector2d load(mu * L / 2, -mu * L * L / 12);
  Eigen::GeneralizedSelfAdjointEigenSolver<Eigen::Matrix2d> exact(k, mass);

  SpectrumSettings settings;
  settings.curves[0].points = {{0.001, sa}, {100, sa}};
  settings.factor = {1, 0, 0};
  const SpectrumResults s = SolveResponseSpectrum(m, r, settings);
  int matched = 0;
  for (size_t j = 0; j < s.modes.size(); ++j)
    for (int e = 0; e < 2; ++e) {
      if (Relative(s.modes[j].omega2, exact.eigenvalues()[e]) > 1e-9) continue;
      ++matched;
      const Eigen::Vector2d phi = exact.eigenvectors().col(e);
      const double participation = phi.dot(load) / phi.dot(mass * phi);
      const double shear = sa * m.g * phi.dot(load) * phi.dot(load) / phi.dot(mass * phi);
      EXPECT_LT(Relative(std::abs(s.modes[j].participation[0]), std::abs(participation)), 1e-9) << "mode " << j + 1;
      EXPECT_LT(Relative(-s.modes[j].reaction[0][static_cast<Eigen::Index>(6 * base + Ux)], shear), 1e-8) << "mode " << j + 1;
      EXPECT_LT(Relative(s.modes[j].inertialForce[0].dot(Translation(m, Ux)), shear), 1e-8) << "mode " << j + 1;
    }
  EXPECT_EQ(matched, 2);
}

}  // namespace
