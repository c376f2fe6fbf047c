#include "analysis/frame_member.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace analysis {
namespace {

// Section forces (N, Vy, Vz, T, My, Mz) of the part of a cantilever beyond s, from the
// loads on that part: forces and moments about the section's centre.
using Vector6 = Eigen::Matrix<double, 6, 1>;
using Matrix6 = Eigen::Matrix<double, 6, 6>;

Vector3 Cross1(const Vector3& f) { return Vector3(0, -f.z(), f.y()); }  // e_x × f

Vector6 SectionForces(const LocalMemberLoads& loads, double s) {
  Vector3 force = Vector3::Zero(), moment = Vector3::Zero();
  for (const auto& p : loads.points) {
    if (p.s <= s) continue;
    force += p.force;
    moment += (p.s - s) * Cross1(p.force) + p.moment;
  }
  // Over [a, b] the load is linear, so its resultant and its moment about s are exact with
  // two Gauss points.
  static const double g = 1 / std::sqrt(3.0);
  for (const auto& l : loads.lines) {
    const double a = std::max(s, l.s0), b = l.s1;
    if (b <= a) continue;
    const double span = l.s1 - l.s0;
    for (double xi : {-g, g}) {
      const double t = 0.5 * (a + b) + 0.5 * (b - a) * xi;
      const double r = span > 0 ? (t - l.s0) / span : 0;
      const Vector3 f = (1 - r) * l.force0 + r * l.force1;
      const Vector3 m = (1 - r) * l.moment0 + r * l.moment1;
      const double w = 0.5 * (b - a);
      force += w * f;
      moment += w * ((t - s) * Cross1(f) + m);
    }
  }
  Vector6 out;
  out << force, moment;
  return out;
}

// Section forces of unit tip loads k = 0..5 at s: column k.
Matrix6 UnitTipSectionForces(double length, double s) {
  Matrix6 out = Matrix6::Zero();
  for (int k = 0; k < 3; ++k) {
    Vector3 f = Vector3::Zero();
    f[k] = 1;
    out.block<3, 1>(0, k) = f;
    out.block<3, 1>(3, k) = (length - s) * Cross1(f);
    out(3 + k, 3 + k) = 1;
  }
  return out;
}

Vector6 Compliance(const Rigidities& r) {
  Vector6 c;
  for (int i = 0; i < 6; ++i) c[i] = r[static_cast<size_t>(i)] > 0 ? 1 / r[static_cast<size_t>(i)] : 0;
  return c;
}

// Points where the section forces change their polynomial form.
std::vector<double> BreakPoints(const LocalMemberLoads& loads, double length) {
  std::vector<double> at = {0, length};
  for (const auto& p : loads.points) at.push_back(p.s);
  for (const auto& l : loads.lines) {
    at.push_back(l.s0);
    at.push_back(l.s1);
  }
  for (double& s : at) s = std::clamp(s, 0.0, length);
  std::sort(at.begin(), at.end());
  at.erase(std::unique(at.begin(), at.end()), at.end());
  return at;
}

// d = B u: the tip displacement of the cantilever from node i, relative to its clamp.
Eigen::Matrix<double, 6, 12> TipDeformation(double length) {
  Eigen::Matrix<double, 6, 12> b = Eigen::Matrix<double, 6, 12>::Zero();
  b.block<3, 3>(0, 6).setIdentity();
  b.block<3, 3>(0, 0) = -Matrix3::Identity();
  // The clamp's rotation moves the tip by θ_i × (L e_x) = L (0, θz, -θy).
  b(1, 5) = -length;
  b(2, 4) = length;
  b.block<3, 3>(3, 9).setIdentity();
  b.block<3, 3>(3, 3) = -Matrix3::Identity();
  return b;
}

}  // namespace

const char* DofName(int dof) {
  static const char* names[] = {"Dx", "Dy", "Dz", "Rx", "Ry", "Rz"};
  return dof >= 0 && dof < 6 ? names[dof] : "?";
}

double MemberLength(const Model& model, const Member& member) {
  const Node& a = model.nodes[member.nodes[0]];
  const Node& b = model.nodes[member.nodes[1]];
  return std::sqrt((b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y) + (b.z - a.z) * (b.z - a.z));
}

Matrix3 MemberAxes(const Model& model, const Member& member) {
  const Node& a = model.nodes[member.nodes[0]];
  const Node& b = model.nodes[member.nodes[1]];
  const Vector3 x = Vector3(b.x - a.x, b.y - a.y, b.z - a.z).normalized();
  Vector3 y, z;
  const Vector3 up(0, 1, 0);
  if (x.cross(up).norm() < 1e-9) {
    y = Vector3(1, 0, 0);
    z = x.cross(y);
  } else {
    z = x.cross(up).normalized();
    y = z.cross(x);
  }
  const double beta = member.angleDeg * std::numbers::pi / 180;
  const Vector3 yr = std::cos(beta) * y + std::sin(beta) * z;
  const Vector3 zr = -std::sin(beta) * y + std::cos(beta) * z;
  Matrix3 r;
  r.row(0) = x;
  r.row(1) = yr;
  r.row(2) = zr;
  return r;
}

Rigidities MemberRigidities(const Model& model, const Member& member) {
  const Material& m = model.materials[member.material];
  const Section& s = model.sections[member.section];
  const double g = m.G();
  return {m.E * s.A, g * s.Ay, g * s.Az, g * s.J, m.E * s.Iy, m.E * s.Iz};
}

LocalMember LocalMemberMatrices(const Rigidities& r, double length, const std::array<std::array<bool, 6>, 2>& releases,
                                const LocalMemberLoads& loads, uint32_t memberId) {
  if (!(length > 0)) throw AnalysisError("Member " + std::to_string(memberId) + " has no length.");
  for (size_t i : {0u, 3u, 4u, 5u})
    if (!(r[i] > 0))
      throw AnalysisError("Member " + std::to_string(memberId) + " has no stiffness: its section or material is missing or zero.");

  // Gauss-Legendre, 3 points: exact for the quartic integrands of linear loads.
  static const double gx[3] = {-std::sqrt(0.6), 0, std::sqrt(0.6)};
  static const double gw[3] = {5.0 / 9, 8.0 / 9, 5.0 / 9};
  const Vector6 c = Compliance(r);
  Matrix6 flex = Matrix6::Zero();
  Vector6 tip = Vector6::Zero();
  const std::vector<double> at = BreakPoints(loads, length);
  for (size_t seg = 0; seg + 1 < at.size(); ++seg) {
    const double a = at[seg], b = at[seg + 1], half = 0.5 * (b - a);
    for (int q = 0; q < 3; ++q) {
      const double s = 0.5 * (a + b) + half * gx[q];
      const Matrix6 unit = UnitTipSectionForces(length, s);
      const Matrix6 cu = c.asDiagonal() * unit;
      flex += half * gw[q] * unit.transpose() * cu;
      if (!loads.points.empty() || !loads.lines.empty())
        tip += half * gw[q] * cu.transpose() * SectionForces(loads, s);
    }
  }
  tip[0] += loads.axialStrain * length;

  const Matrix6 stiff = flex.inverse();
  const auto bm = TipDeformation(length);
  LocalMember out;
  out.k = bm.transpose() * stiff * bm;

  const Vector6 qj = -stiff * tip;
  const Vector6 total = SectionForces(loads, std::nextafter(0.0, -1.0));  // all of the loads, about node i
  Vector12 q;
  q.segment<3>(6) = qj.head<3>();
  q.segment<3>(9) = qj.tail<3>();
  q.segment<3>(0) = -qj.head<3>() - total.head<3>();
  q.segment<3>(3) = -qj.tail<3>() - length * Cross1(qj.head<3>()) - total.tail<3>();
  out.fixedEnd = q;

  // Released end forces: condense them out.
  std::vector<int> rel, kept;
  for (int e = 0; e < 2; ++e)
    for (int d = 0; d < 6; ++d) (releases[static_cast<size_t>(e)][static_cast<size_t>(d)] ? rel : kept).push_back(6 * e + d);
  if (rel.empty()) return out;
  const int nr = static_cast<int>(rel.size());
  Eigen::MatrixXd krr(nr, nr), kcr(12, nr);
  Eigen::VectorXd qr(nr);
  for (int i = 0; i < nr; ++i) {
    qr[i] = out.fixedEnd[rel[static_cast<size_t>(i)]];
    for (int j = 0; j < nr; ++j) krr(i, j) = out.k(rel[static_cast<size_t>(i)], rel[static_cast<size_t>(j)]);
    for (int j = 0; j < 12; ++j) kcr(j, i) = out.k(j, rel[static_cast<size_t>(i)]);
  }
  Eigen::LDLT<Eigen::MatrixXd> ldlt(krr);
  const double scale = krr.diagonal().cwiseAbs().maxCoeff();
  if (ldlt.info() != Eigen::Success || ldlt.vectorD().cwiseAbs().minCoeff() <= 1e-10 * scale)
    throw AnalysisError("Member " + std::to_string(memberId) + ": its end releases leave it free to move.");
  out.k -= kcr * ldlt.solve(kcr.transpose());
  out.fixedEnd -= kcr * ldlt.solve(qr);
  for (int i : rel) {
    out.k.row(i).setZero();
    out.k.col(i).setZero();
    out.fixedEnd[i] = 0;
  }
  // What the releases leave without stiffness must be exactly zero, so that a node joined
  // only by pinned bars has rotations nothing stiffens (held) rather than a tiny round-off.
  const double tiny = 1e-12 * out.k.cwiseAbs().maxCoeff();
  out.k = out.k.unaryExpr([tiny](double v) { return std::abs(v) < tiny ? 0.0 : v; });
  return out;
}

Eigen::Matrix<double, 6, 1> SectionForcesAt(const LocalMemberLoads& loads, double length, const Vector12& endForces,
                                            double s) {
  return SectionForces(loads, s) + UnitTipSectionForces(length, s) * endForces.segment<6>(6);
}

Matrix12 LocalMemberMass(const Rigidities& r, double length, const std::array<std::array<bool, 6>, 2>& releases,
                         double massPerLength, double polarPerLength, uint32_t memberId) {
  const double L = length;
  Matrix12 m = Matrix12::Zero();
  const auto pair = [&m](int i, int j, double self, double other) {
    m(i, i) += self;
    m(j, j) += self;
    m(i, j) += other;
    m(j, i) += other;
  };
  pair(0, 6, massPerLength * L / 3, massPerLength * L / 6);
  pair(3, 9, polarPerLength * L / 3, polarPerLength * L / 6);
  // Hermitian cubics over (v1, θz1, v2, θz2); in the x-z plane θy = -w', which turns the
  // sign of every term that pairs a rotation with a translation.
  const Eigen::Matrix4d bending = (massPerLength * L / 420) * (Eigen::Matrix4d() << 156, 22 * L, 54, -13 * L,  //
                                                               22 * L, 4 * L * L, 13 * L, -3 * L * L,           //
                                                               54, 13 * L, 156, -22 * L,                        //
                                                               -13 * L, -3 * L * L, -22 * L, 4 * L * L)
                                                                  .finished();
  const int xy[4] = {1, 5, 7, 11}, xz[4] = {2, 4, 8, 10};
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) {
      m(xy[i], xy[j]) += bending(i, j);
      m(xz[i], xz[j]) += ((i % 2) == (j % 2) ? 1 : -1) * bending(i, j);
    }

  std::vector<int> rel;
  for (int e = 0; e < 2; ++e)
    for (int d = 0; d < 6; ++d)
      if (releases[static_cast<size_t>(e)][static_cast<size_t>(d)]) rel.push_back(6 * e + d);
  if (rel.empty()) return m;
  // u = T u_kept: a released degree of freedom takes the value that leaves its end force zero.
  const Matrix12 k = LocalMemberMatrices(r, length, {}, {}, memberId).k;
  const int nr = static_cast<int>(rel.size());
  Eigen::MatrixXd krr(nr, nr), krc(nr, 12);
  for (int i = 0; i < nr; ++i) {
    for (int j = 0; j < nr; ++j) krr(i, j) = k(rel[static_cast<size_t>(i)], rel[static_cast<size_t>(j)]);
    krc.row(i) = k.row(rel[static_cast<size_t>(i)]);
  }
  for (int i : rel) krc.col(i).setZero();
  Eigen::LDLT<Eigen::MatrixXd> ldlt(krr);
  if (ldlt.info() != Eigen::Success)
    throw AnalysisError("Member " + std::to_string(memberId) + ": its end releases leave it free to move.");
  const Eigen::MatrixXd follow = -ldlt.solve(krc);
  Matrix12 t = Matrix12::Identity();
  for (int i = 0; i < nr; ++i) t.row(rel[static_cast<size_t>(i)]) = follow.row(i);
  for (int i : rel) t.col(i).setZero();
  return t.transpose() * m * t;
}

Matrix12 MemberRotation(const Matrix3& axes) {
  Matrix12 t = Matrix12::Zero();
  for (int b = 0; b < 4; ++b) t.block<3, 3>(3 * b, 3 * b) = axes;
  return t;
}

}  // namespace analysis
