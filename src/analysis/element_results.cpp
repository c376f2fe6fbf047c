#include "analysis/element_results.h"

#include <algorithm>
#include <cmath>

namespace analysis {
namespace {

Vector24 ShellDisplacements(const Model& model, const Eigen::VectorXd& u, const Shell& s) {
  Vector24 out;
  for (size_t a = 0; a < 4; ++a)
    out.segment<6>(static_cast<Eigen::Index>(6 * a)) = u.segment<6>(static_cast<Eigen::Index>(GlobalDof(s.nodes[a], 0)));
  (void)model;
  return out;
}

}  // namespace

double ThermalStrain(const Model& model, ThermalLoad::Kind kind, size_t element, const Terms& terms) {
  double strain = 0;
  for (const auto& [c, factor] : terms)
    for (const ThermalLoad& t : model.cases.at(c).thermal)
      if (t.kind == kind && t.element == element) {
        const size_t material = kind == ThermalLoad::Kind::Member  ? model.members[element].material
                                : kind == ThermalLoad::Kind::Shell ? model.shells[element].material
                                                                   : model.bricks[element].material;
        strain += factor * model.materials.at(material).alpha * t.change;
      }
  return strain;
}

std::vector<MemberStation> MemberStations(const Model& model, const Eigen::VectorXd& u, const Terms& terms,
                                          const MemberActivity& active, size_t member, int count) {
  const Member& m = model.members.at(member);
  const double length = MemberLength(model, m);
  count = std::max(count, 2);
  const bool carries = active.empty() || active[member];
  const LocalMemberLoads loads = carries ? MemberLoadsOfTerms(model, member, terms) : LocalMemberLoads();
  const Rigidities rigid = m.rigid ? RigidLinkRigidities(model) : MemberRigidities(model, m);
  Vector12 ue;
  for (size_t e = 0; e < 2; ++e) ue.segment<6>(static_cast<Eigen::Index>(6 * e)) = u.segment<6>(static_cast<Eigen::Index>(GlobalDof(m.nodes[e], 0)));
  const Vector12 local = MemberRotation(MemberAxes(model, m)) * ue;
  Vector12 endForces = Vector12::Zero();
  if (carries) {
    const LocalMember lm = MemberMatrices(model, member, loads, rigid);
    endForces = lm.k * local + lm.fixedEnd;
  }
  auto forcesAt = [&](double s) { return SectionForcesAt(loads, length, endForces, s); };

  std::vector<MemberStation> out(static_cast<size_t>(count));
  for (int k = 0; k < count; ++k) {
    out[static_cast<size_t>(k)].s = length * k / (count - 1);
    const auto f = forcesAt(out[static_cast<size_t>(k)].s);
    for (int i = 0; i < 6; ++i) out[static_cast<size_t>(k)].force[static_cast<size_t>(i)] = f[i];
  }

  // Deflections: the member bends by its curvatures κz = Mz/EIz, κy = -My/EIy and shears by
  // Vy/GAy, Vz/GAz; from the first node I(s) = ∫₀ˢ (s - t) κ + γ dt, and the chord rotation
  // that brings the axis onto the second node, so end releases need no care.
  const double cz = rigid[5] > 0 ? 1 / rigid[5] : 0, cy = rigid[4] > 0 ? 1 / rigid[4] : 0;
  const double sy = rigid[1] > 0 ? 1 / rigid[1] : 0, sz = rigid[2] > 0 ? 1 / rigid[2] : 0;
  std::vector<double> at;
  for (const MemberStation& st : out) at.push_back(st.s);
  for (const auto& p : loads.points) at.push_back(std::clamp(p.s, 0.0, length));
  for (const auto& l : loads.lines) {
    at.push_back(std::clamp(l.s0, 0.0, length));
    at.push_back(std::clamp(l.s1, 0.0, length));
  }
  std::sort(at.begin(), at.end());
  at.erase(std::unique(at.begin(), at.end()), at.end());
  static const double gx[3] = {-std::sqrt(0.6), 0, std::sqrt(0.6)};
  static const double gw[3] = {5.0 / 9, 8.0 / 9, 5.0 / 9};
  // Running ∫κ, ∫tκ and ∫γ for y and z.
  double a[2] = {0, 0}, b[2] = {0, 0}, c[2] = {0, 0};
  std::vector<std::array<double, 2>> integral(out.size());
  size_t next = 0;
  auto record = [&](double s) {
    while (next < out.size() && out[next].s <= s) {
      for (int d = 0; d < 2; ++d) integral[next][static_cast<size_t>(d)] = out[next].s * a[d] - b[d] + c[d];
      ++next;
    }
  };
  record(0);
  for (size_t seg = 0; seg + 1 < at.size(); ++seg) {
    const double lo = at[seg], hi = at[seg + 1], half = 0.5 * (hi - lo);
    for (int q = 0; q < 3; ++q) {
      const double t = 0.5 * (lo + hi) + half * gx[q];
      const auto f = forcesAt(t);
      const double w = half * gw[q];
      const double kappa[2] = {f[5] * cz, -f[4] * cy}, gamma[2] = {f[1] * sy, f[2] * sz};
      for (int d = 0; d < 2; ++d) {
        a[d] += w * kappa[d];
        b[d] += w * t * kappa[d];
        c[d] += w * gamma[d];
      }
    }
    record(hi);
  }
  record(length);
  const double end[2] = {length * a[0] - b[0] + c[0], length * a[1] - b[1] + c[1]};
  // Local translations of the nodes: y at 1 and 7, z at 2 and 8.
  for (size_t k = 0; k < out.size(); ++k) {
    const double s = out[k].s;
    const double r = length > 0 ? s / length : 0;
    out[k].dy = local[1] + r * (local[7] - local[1] - end[0]) + integral[k][0];
    out[k].dz = local[2] + r * (local[8] - local[2] - end[1]) + integral[k][1];
  }
  return out;
}

ShellPointForces ShellForces(const Model& model, const Eigen::VectorXd& u, const Terms& terms, size_t shell) {
  const Shell& s = model.shells.at(shell);
  return ShellForcesAt(model, s, ShellDisplacements(model, u, s), ThermalStrain(model, ThermalLoad::Kind::Shell, shell, terms));
}

std::array<std::array<double, 5>, 4> ShellNodalResultants(const Model& model, const Eigen::VectorXd& u,
                                                          const Terms& terms, size_t shell) {
  const Shell& s = model.shells.at(shell);
  Vector24 f = ShellStiffness(model, s) * ShellDisplacements(model, u, s);
  // Less what the shell's own loads bring to its nodes.
  const Eigen::Matrix3d axes = ShellAxes(model, s);
  for (const auto& [c, factor] : terms) {
    const LoadCase& lc = model.cases.at(c);
    for (const SurfaceLoad& l : lc.surface) {
      if (l.shell != shell) continue;
      Eigen::Vector3d p = Eigen::Vector3d::Zero();
      p[l.direction] = l.value;
      if (l.local) p = axes.transpose() * p;
      f -= factor * ShellPressureLoads(model, s, p);
    }
    for (const ThermalLoad& t : lc.thermal)
      if (t.kind == ThermalLoad::Kind::Shell && t.element == shell)
        f -= factor * ShellThermalLoads(model, s, model.materials.at(s.material).alpha * t.change);
    if (lc.selfWeight != 0) {
      const double w = model.materials.at(s.material).weightDensity * s.thickness;
      const auto share = ShellNodalAreas(model, s);
      for (size_t a = 0; a < 4; ++a) f[static_cast<Eigen::Index>(6 * a + 1)] += factor * lc.selfWeight * w * share[a];
    }
  }
  std::array<std::array<double, 5>, 4> out{};
  for (size_t a = 0; a < 4; ++a) {
    const Eigen::Vector3d force = axes * f.segment<3>(static_cast<Eigen::Index>(6 * a));
    const Eigen::Vector3d moment = axes * f.segment<3>(static_cast<Eigen::Index>(6 * a + 3));
    out[a] = {force[0], force[1], force[2], moment[0], moment[1]};
  }
  return out;
}

std::array<std::array<double, 6>, 5> ShellFaceStresses(const Model& model, const ShellPointForces& forces, size_t shell,
                                                       int face) {
  const double t = model.shells.at(shell).thickness;
  // A positive moment puts the bottom in tension: σ = N/t ∓ 6M/t² on the top and bottom.
  const double sign = face == 0 ? -1.0 : 1.0;
  std::array<std::array<double, 6>, 5> out{};
  for (size_t p = 0; p < 5; ++p) {
    const auto& f = forces[p];
    out[p] = {f[0] / t + sign * 6 * f[3] / (t * t), f[1] / t + sign * 6 * f[4] / (t * t), 0,
              f[2] / t + sign * 6 * f[5] / (t * t), f[6] / t, f[7] / t};
  }
  return out;
}

BrickPointStresses BrickStresses(const Model& model, const Eigen::VectorXd& u, const Terms& terms, size_t brick) {
  const Brick& b = model.bricks.at(brick);
  Vector24 ue;
  for (size_t a = 0; a < 8; ++a) ue.segment<3>(static_cast<Eigen::Index>(3 * a)) = u.segment<3>(static_cast<Eigen::Index>(GlobalDof(b.nodes[a], 0)));
  return BrickStressesAt(model, b, ue, ThermalStrain(model, ThermalLoad::Kind::Brick, brick, terms));
}

}  // namespace analysis

namespace analysis {

void WriteElementResults(const Model& model, const Eigen::VectorXd& u, const Terms& terms, const MemberActivity& active,
                         const fmUnit& units, int stations, fmCaseResults& out) {
  const double length = units.Factor(fmUnit::Length), force = units.Factor(fmUnit::Force),
               moment = units.Factor(fmUnit::Moment), motion = units.Factor(fmUnit::Displacement),
               perLength = units.Factor(fmUnit::LinearForce), momentPerLength = units.Factor(fmUnit::LinearMoment),
               stress = units.Factor(fmUnit::Stress);
  out.memberStations.clear();
  out.memberStations.reserve(model.members.size());
  for (size_t k = 0; k < model.members.size(); ++k) {
    fmBmVMD b;
    b.number = static_cast<int32_t>(model.members[k].id);
    for (const MemberStation& st : MemberStations(model, u, terms, active, k, stations)) {
      fmBmStation r;
      r.distance = st.s / length;
      for (size_t i = 0; i < 6; ++i) r.force[i] = st.force[i] / (i < 3 ? force : moment);
      r.Dy = st.dy / motion;
      r.Dz = st.dz / motion;
      b.m_VMD.push_back(r);
    }
    out.memberStations.push_back(std::move(b));
  }
  out.shellForces.clear();
  out.shellResultants.clear();
  out.shellStresses[0].clear();
  out.shellStresses[1].clear();
  for (size_t k = 0; k < model.shells.size(); ++k) {
    const int32_t id = static_cast<int32_t>(model.shells[k].id);
    const ShellPointForces f = ShellForces(model, u, terms, k);
    fmShellForce rf;
    rf.number = id;
    for (size_t p = 0; p < 5; ++p)
      for (size_t i = 0; i < 8; ++i) rf.point[p][i] = f[p][i] / (i >= 3 && i < 6 ? momentPerLength : perLength);
    out.shellForces.push_back(rf);
    fmShellNodalResultant rn;
    rn.number = id;
    const auto nodal = ShellNodalResultants(model, u, terms, k);
    for (size_t a = 0; a < 4; ++a)
      for (size_t i = 0; i < 5; ++i) rn.node[a][i] = nodal[a][i] / (i < 3 ? force : moment);
    out.shellResultants.push_back(rn);
    for (int face = 0; face < 2; ++face) {
      fmShellStress rs;
      rs.number = id;
      const auto st = ShellFaceStresses(model, f, k, face);
      for (size_t p = 0; p < 5; ++p)
        for (size_t i = 0; i < 6; ++i) rs.point[p][i] = st[p][i] / stress;
      out.shellStresses[static_cast<size_t>(face)].push_back(rs);
    }
  }
  out.brickStresses.clear();
  for (size_t k = 0; k < model.bricks.size(); ++k) {
    fmBrickStress rb;
    rb.number = static_cast<int32_t>(model.bricks[k].id);
    const BrickPointStresses st = BrickStresses(model, u, terms, k);
    for (size_t p = 0; p < 9; ++p)
      for (size_t i = 0; i < 6; ++i) rb.point[p][i] = st[p][i] / stress;
    out.brickStresses.push_back(rb);
  }
}

namespace {

// Visits every value of the element records in a fixed order, so that records of one model
// can be combined value by value.
template <class Visit>
void EachValue(fmCaseResults& r, Visit visit) {
  for (fmBmVMD& b : r.memberStations)
    for (fmBmStation& s : b.m_VMD) {
      for (double& v : s.force) visit(v);
      visit(s.Dy);
      visit(s.Dz);
    }
  for (fmShellForce& f : r.shellForces)
    for (auto& p : f.point)
      for (double& v : p) visit(v);
  for (fmShellNodalResultant& f : r.shellResultants)
    for (auto& p : f.node)
      for (double& v : p) visit(v);
  for (auto& face : r.shellStresses)
    for (fmShellStress& f : face)
      for (auto& p : f.point)
        for (double& v : p) visit(v);
  for (fmBrickStress& f : r.brickStresses)
    for (auto& p : f.point)
      for (double& v : p) visit(v);
}

}  // namespace

void WriteSpectrumElementResults(const Model& model, const std::vector<std::array<Eigen::VectorXd, 3>>& modal,
                                 const std::array<double, 3>& factor, bool absoluteSum, const fmUnit& units,
                                 int stations, fmCaseResults& out) {
  out.memberStations.clear();
  if (modal.empty()) return;
  // The layout (numbers and distances) from the first mode; the values summed into flat lists.
  std::array<std::vector<double>, 3> sums;
  fmCaseResults layout;
  for (size_t d = 0; d < 3; ++d) {
    if (factor[d] == 0) continue;
    for (const auto& mode : modal) {
      fmCaseResults r;
      WriteElementResults(model, mode[d], {}, {}, units, stations, r);
      std::vector<double>& sum = sums[d];
      size_t i = 0;
      EachValue(r, [&](double& v) {
        if (i >= sum.size()) sum.push_back(0);
        sum[i++] += absoluteSum ? std::fabs(v) : v * v;
      });
      if (layout.memberStations.empty() && layout.shellForces.empty() && layout.brickStresses.empty()) layout = r;
    }
  }
  size_t i = 0;
  EachValue(layout, [&](double& v) {
    double total = 0;
    for (size_t d = 0; d < 3; ++d)
      if (i < sums[d].size()) total += factor[d] * (absoluteSum ? sums[d][i] : std::sqrt(sums[d][i]));
    v = total;
    ++i;
  });
  out.memberStations = std::move(layout.memberStations);
  out.shellForces = std::move(layout.shellForces);
  out.shellResultants = std::move(layout.shellResultants);
  out.shellStresses = std::move(layout.shellStresses);
  out.brickStresses = std::move(layout.brickStresses);
}

}  // namespace analysis
