#include "analysis/assembly.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

#include "analysis/continuum.h"

namespace analysis {
namespace {

constexpr double kRigidFactor = 1e6;    // a rigid link against the stiffest member

void CheckNode(const Model& model, size_t node, const char* what) {
  if (node >= model.nodes.size()) throw AnalysisError(std::string(what) + " names a node the model does not have.");
}

// Nodes that share a matrix entry with each node (itself included), sorted.
std::vector<std::vector<size_t>> NodeNeighbours(const Model& model, const MemberActivity& active) {
  std::vector<std::vector<size_t>> adj(model.nodes.size());
  for (size_t n = 0; n < adj.size(); ++n) adj[n].push_back(n);
  auto link = [&](const size_t* nodes, size_t count) {
    for (size_t a = 0; a < count; ++a)
      for (size_t b = 0; b < count; ++b)
        if (nodes[a] != nodes[b]) adj[nodes[a]].push_back(nodes[b]);
  };
  for (size_t m = 0; m < model.members.size(); ++m)
    if (active.empty() || active[m]) link(model.members[m].nodes.data(), 2);
  for (const Shell& s : model.shells) link(s.nodes.data(), 4);
  for (const Brick& b : model.bricks) link(b.nodes.data(), 8);
  for (auto& list : adj) {
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
  }
  return adj;
}

// The upper-triangle pattern of the full matrix, values zero.
SparseMatrix PatternOf(const std::vector<std::vector<size_t>>& adj) {
  const size_t n = 6 * adj.size();
  std::vector<int> outer(n + 1, 0);
  std::vector<int> inner;
  for (size_t node = 0; node < adj.size(); ++node) {
    for (int d = 0; d < 6; ++d) {
      const size_t col = 6 * node + static_cast<size_t>(d);
      for (size_t other : adj[node]) {
        if (other > node) break;
        const int last = other == node ? d : 5;
        for (int e = 0; e <= last; ++e) inner.push_back(static_cast<int>(6 * other + static_cast<size_t>(e)));
      }
      outer[col + 1] = static_cast<int>(inner.size());
    }
  }
  SparseMatrix k(static_cast<Eigen::Index>(n), static_cast<Eigen::Index>(n));
  k.resizeNonZeros(static_cast<Eigen::Index>(inner.size()));
  std::copy(outer.begin(), outer.end(), k.outerIndexPtr());
  std::copy(inner.begin(), inner.end(), k.innerIndexPtr());
  std::fill(k.valuePtr(), k.valuePtr() + inner.size(), 0.0);
  return k;
}

// Adds a symmetric element matrix over the given global degrees of freedom.
template <class Mat>
void AddSymmetric(SparseMatrix& k, const size_t* dofs, int count, const Mat& m) {
  for (int j = 0; j < count; ++j) {
    const auto col = static_cast<Eigen::Index>(dofs[j]);
    double* values = k.valuePtr();
    const int* rows = k.innerIndexPtr();
    const int begin = k.outerIndexPtr()[col], end = k.outerIndexPtr()[col + 1];
    for (int i = 0; i < count; ++i) {
      const auto row = static_cast<int>(dofs[i]);
      if (row > col) continue;
      const double v = m(i, j);
      if (v == 0) continue;
      const int* at = std::lower_bound(rows + begin, rows + end, row);
      values[at - rows] += v;
    }
  }
}

using Terms = std::vector<std::pair<size_t, double>>;

// Ties relations Σ c u = 0 one at a time. Each relation is first written in the degrees of
// freedom that are not yet slaves; one of those that no support holds becomes its slave,
// and the slaves that followed it now follow what it follows. A relation that comes down to
// nothing (already implied, or between held degrees of freedom only) ties nothing.
class Ties {
 public:
  Ties(size_t dofs, const std::vector<char>& held) : held_(held), expr_(dofs), slave_(dofs, 0), usedBy_(dofs) {}

  void Add(const Terms& relation) {
    const Terms terms = Substitute(relation);
    double largest = 0;
    for (const auto& [dof, c] : terms) largest = std::max(largest, std::abs(c));
    // The relation's first degree of freedom is its slave unless that cannot be; otherwise
    // the one with the largest coefficient that the fewest slaves follow.
    long pick = -1;
    for (size_t i = 0; i < terms.size(); ++i) {
      const auto& [dof, c] = terms[i];
      if (held_[dof] || std::abs(c) < 1e-3 * largest) continue;
      if (dof == relation.front().first) {
        pick = static_cast<long>(i);
        break;
      }
      if (pick < 0 || std::abs(c) > std::abs(terms[static_cast<size_t>(pick)].second) ||
          (std::abs(c) == std::abs(terms[static_cast<size_t>(pick)].second) &&
           usedBy_[dof].size() < usedBy_[terms[static_cast<size_t>(pick)].first].size()))
        pick = static_cast<long>(i);
    }
    if (pick < 0) return;
    // Not a structured binding: clang 14 does not let the lambda below capture one.
    const auto s = terms[static_cast<size_t>(pick)].first;
    const auto cs = terms[static_cast<size_t>(pick)].second;
    Terms e;
    for (const auto& [dof, c] : terms)
      if (dof != s) e.push_back({dof, -c / cs});
    // Slaves that followed s follow its expression instead.
    for (size_t t : usedBy_[s]) {
      Terms& et = expr_[t];
      const auto at = std::find_if(et.begin(), et.end(), [&](const auto& p) { return p.first == s; });
      if (at == et.end()) continue;
      const double factor = at->second;
      et.erase(at);
      for (const auto& [dof, c] : e) AddTerm(et, dof, factor * c);
      for (const auto& [dof, c] : e) usedBy_[dof].push_back(t);
    }
    usedBy_[s].clear();
    for (const auto& [dof, c] : e) usedBy_[dof].push_back(s);
    expr_[s] = std::move(e);
    slave_[s] = 1;
  }

  bool IsSlave(size_t dof) const { return slave_[dof] != 0; }

  SparseMatrix Matrix() const {
    std::vector<Eigen::Triplet<double, int>> entries;
    for (size_t d = 0; d < slave_.size(); ++d) {
      if (!slave_[d]) entries.emplace_back(static_cast<int>(d), static_cast<int>(d), 1.0);
      for (const auto& [dof, c] : expr_[d])
        if (c != 0) entries.emplace_back(static_cast<int>(d), static_cast<int>(dof), c);
    }
    const auto n = static_cast<Eigen::Index>(slave_.size());
    SparseMatrix t(n, n);
    t.setFromTriplets(entries.begin(), entries.end());
    return t;
  }

 private:
  static void AddTerm(Terms& terms, size_t dof, double c) {
    for (auto& p : terms)
      if (p.first == dof) {
        p.second += c;
        return;
      }
    terms.push_back({dof, c});
  }

  Terms Substitute(const Terms& relation) const {
    Terms out;
    for (const auto& [dof, c] : relation) {
      if (c == 0) continue;
      if (slave_[dof])
        for (const auto& [e, ce] : expr_[dof]) AddTerm(out, e, c * ce);
      else
        AddTerm(out, dof, c);
    }
    double largest = 0;
    for (const auto& p : out) largest = std::max(largest, std::abs(p.second));
    std::erase_if(out, [&](const auto& p) { return std::abs(p.second) <= 1e-12 * largest; });
    return out;
  }

  const std::vector<char>& held_;
  std::vector<Terms> expr_;  // per slave: what it follows
  std::vector<char> slave_;
  std::vector<std::vector<size_t>> usedBy_;  // per degree of freedom: slaves that may follow it
};

std::array<size_t, 12> MemberDofs(const Member& m) {
  std::array<size_t, 12> dofs{};
  for (int e = 0; e < 2; ++e)
    for (int d = 0; d < 6; ++d) dofs[static_cast<size_t>(6 * e + d)] = GlobalDof(m.nodes[static_cast<size_t>(e)], d);
  return dofs;
}

template <size_t N>
std::array<size_t, 6 * N> ElementDofs(const std::array<size_t, N>& nodes, int perNode) {
  std::array<size_t, 6 * N> dofs{};
  for (size_t a = 0; a < N; ++a)
    for (int d = 0; d < perNode; ++d) dofs[a * static_cast<size_t>(perNode) + static_cast<size_t>(d)] = GlobalDof(nodes[a], d);
  return dofs;
}

Vector3 AxisVector(int direction) {
  Vector3 v = Vector3::Zero();
  v[direction % 3] = 1;
  return v;
}

void AddToLoads(LocalMemberLoads& out, const Model& model, size_t member, size_t caseIndex, double factor) {
  const LoadCase& lc = model.cases[caseIndex];
  const Member& m = model.members[member];
  const Matrix3 axes = MemberAxes(model, m);
  const double length = MemberLength(model, m);
  auto local = [&](int direction, bool isLocal) -> Vector3 {
    const Vector3 v = AxisVector(direction);
    return isLocal ? v : axes * v;
  };
  for (const MemberPointLoad& p : lc.memberPoint) {
    if (p.member != member) continue;
    LocalMemberLoads::Point pt;
    pt.s = std::clamp(p.distance, 0.0, length);
    (p.direction < 3 ? pt.force : pt.moment) = factor * p.value * local(p.direction, p.local);
    out.points.push_back(pt);
  }
  for (const MemberLineLoad& l : lc.memberLine) {
    if (l.member != member) continue;
    LocalMemberLoads::Line ln;
    ln.s0 = std::clamp(l.distance[0], 0.0, length);
    ln.s1 = std::clamp(l.distance[1], 0.0, length);
    const Vector3 axis = local(l.direction, l.local);
    double v0 = l.value[0], v1 = l.value[1];
    if (ln.s1 < ln.s0) {
      std::swap(ln.s0, ln.s1);
      std::swap(v0, v1);
    }
    (l.direction < 3 ? ln.force0 : ln.moment0) = factor * v0 * axis;
    (l.direction < 3 ? ln.force1 : ln.moment1) = factor * v1 * axis;
    out.lines.push_back(ln);
  }
  if (lc.selfWeight != 0 && !m.rigid) {
    const double w = model.materials[m.material].weightDensity * model.sections[m.section].A;
    if (w != 0) {
      LocalMemberLoads::Line ln;
      ln.s1 = length;
      ln.force0 = ln.force1 = -factor * lc.selfWeight * w * (axes * Vector3(0, 1, 0));
      out.lines.push_back(ln);
    }
  }
  for (const ThermalLoad& t : lc.thermal)
    if (t.kind == ThermalLoad::Kind::Member && t.element == member && !m.rigid)
      out.axialStrain += factor * model.materials[m.material].alpha * t.change;
}

}  // namespace

std::string DofLabel(const Model& model, size_t globalDof) {
  const size_t node = globalDof / 6;
  return "Node " + std::to_string(node < model.nodes.size() ? model.nodes[node].id : 0) + ", " +
         DofName(static_cast<int>(globalDof % 6));
}

Rigidities RigidLinkRigidities(const Model& model) {
  double axial = 0, bending = 0;
  for (const Member& m : model.members) {
    if (m.rigid) continue;
    const Rigidities r = MemberRigidities(model, m);
    axial = std::max({axial, r[0], r[1], r[2]});
    bending = std::max({bending, r[3], r[4], r[5]});
  }
  if (axial == 0) {
    // Only rigid links among the members: stand on the stiffest material over the model's size.
    double e = 1, size = 1;
    for (const Material& mat : model.materials) e = std::max(e, mat.E);
    for (const Member& m : model.members) size = std::max(size, MemberLength(model, m));
    axial = e * size * size;
    bending = axial * size * size;
  }
  axial *= kRigidFactor;
  bending *= kRigidFactor;
  return {axial, 0, 0, bending, bending, bending};
}

LocalMember MemberMatrices(const Model& model, size_t member, const LocalMemberLoads& loads,
                           const Rigidities& rigidLink) {
  const Member& m = model.members[member];
  const Rigidities r = m.rigid ? rigidLink : MemberRigidities(model, m);
  return LocalMemberMatrices(r, MemberLength(model, m), m.releases, loads, m.id);
}

LocalMemberLoads MemberLoadsOfCase(const Model& model, size_t member, size_t caseIndex) {
  LocalMemberLoads out;
  AddToLoads(out, model, member, caseIndex, 1.0);
  return out;
}

LocalMemberLoads MemberLoadsOfTerms(const Model& model, size_t member,
                                    const std::vector<std::pair<size_t, double>>& terms) {
  LocalMemberLoads out;
  for (const auto& [c, factor] : terms) AddToLoads(out, model, member, c, factor);
  return out;
}

GlobalStiffness AssembleStiffness(const Model& model, const MemberActivity& active) {
  for (const Member& m : model.members) {
    CheckNode(model, m.nodes[0], "A member");
    CheckNode(model, m.nodes[1], "A member");
    if (!m.rigid && (m.material >= model.materials.size() || m.section >= model.sections.size()))
      throw AnalysisError("Member " + std::to_string(m.id) + " has no section or material.");
  }
  for (const Shell& s : model.shells)
    for (size_t n : s.nodes) CheckNode(model, n, "A shell");
  for (const Brick& b : model.bricks)
    for (size_t n : b.nodes) CheckNode(model, n, "A brick");

  GlobalStiffness out;
  out.full = PatternOf(NodeNeighbours(model, active));
  SparseMatrix& k = out.full;

  const Rigidities rigid = RigidLinkRigidities(model);
  const LocalMemberLoads none;
  for (size_t i = 0; i < model.members.size(); ++i) {
    if (!active.empty() && !active[i]) continue;
    const Member& m = model.members[i];
    const LocalMember lm = MemberMatrices(model, i, none, rigid);
    const Matrix12 t = MemberRotation(MemberAxes(model, m));
    const Matrix12 kg = t.transpose() * lm.k * t;
    AddSymmetric(k, MemberDofs(m).data(), 12, kg);
  }
  for (const Shell& s : model.shells) {
    const auto dofs = ElementDofs(s.nodes, 6);
    AddSymmetric(k, dofs.data(), 24, ShellStiffness(model, s));
  }
  for (const Brick& b : model.bricks) {
    const auto dofs = ElementDofs(b.nodes, 3);
    AddSymmetric(k, dofs.data(), 24, BrickStiffness(model, b));
  }
  for (const NodalSpring& s : model.nodalSprings) {
    CheckNode(model, s.node, "A spring");
    for (int d = 0; d < 6; ++d) k.coeffRef(static_cast<Eigen::Index>(GlobalDof(s.node, d)), static_cast<Eigen::Index>(GlobalDof(s.node, d))) += s.k[static_cast<size_t>(d)];
  }
  for (const CoupledSpring& s : model.coupledSprings) {
    CheckNode(model, s.node, "A spring");
    Eigen::Matrix<double, 6, 6> m;
    size_t at = 0;
    for (int i = 0; i < 6; ++i)
      for (int j = i; j < 6; ++j) m(i, j) = m(j, i) = s.k[at++];
    const auto dofs = ElementDofs(std::array<size_t, 1>{s.node}, 6);
    AddSymmetric(k, dofs.data(), 6, m);
  }
  for (const LineSpring& s : model.lineSprings) {
    const Member& m = model.members.at(s.member);
    const double half = 0.5 * MemberLength(model, m);
    for (size_t node : m.nodes)
      for (int d = 0; d < 3; ++d) k.coeffRef(static_cast<Eigen::Index>(GlobalDof(node, d)), static_cast<Eigen::Index>(GlobalDof(node, d))) += half * s.k[static_cast<size_t>(d)];
  }
  for (const SurfaceSpring& s : model.surfaceSprings) {
    const Shell& sh = model.shells.at(s.shell);
    const auto share = ShellNodalAreas(model, sh);
    for (size_t a = 0; a < 4; ++a)
      for (int d = 0; d < 3; ++d)
        k.coeffRef(static_cast<Eigen::Index>(GlobalDof(sh.nodes[a], d)), static_cast<Eigen::Index>(GlobalDof(sh.nodes[a], d))) += share[a] * s.k[static_cast<size_t>(d)];
  }

  // Held: supports, and what nothing stiffens.
  const size_t n = 6 * model.nodes.size();
  std::vector<char> held(n, 0);
  for (const Support& s : model.supports) {
    CheckNode(model, s.node, "A support");
    for (int d = 0; d < 6; ++d)
      if (s.held[static_cast<size_t>(d)]) held[GlobalDof(s.node, d)] = 1;
  }

  // Constraints and diaphragms: rigid-body relations between degrees of freedom, so they pass
  // forces without taking any from outside.
  std::vector<Terms> relations;
  for (const Constraint& c : model.constraints) {
    CheckNode(model, c.nodes[0], "A constraint");
    CheckNode(model, c.nodes[1], "A constraint");
    for (int dof : c.dofs)
      if (dof < 0 || dof > 5) throw AnalysisError("Constraint " + std::to_string(c.id) + " has no direction.");
    relations.push_back({{GlobalDof(c.nodes[1], c.dofs[1]), 1.0}, {GlobalDof(c.nodes[0], c.dofs[0]), -1.0}});
  }
  for (const Diaphragm& d : model.diaphragms) {
    if (d.nodes.empty()) continue;
    const size_t master = d.nodes[0];
    CheckNode(model, master, "A diaphragm");
    const Node& mn = model.nodes[master];
    for (size_t i = 1; i < d.nodes.size(); ++i) {
      const size_t s = d.nodes[i];
      CheckNode(model, s, "A diaphragm");
      if (s == master) continue;
      const double dx = model.nodes[s].x - mn.x, dz = model.nodes[s].z - mn.z;
      // A rigid turn θy about the master moves a point by (θy dz, 0, -θy dx).
      relations.push_back({{GlobalDof(s, Ux), 1.0}, {GlobalDof(master, Ux), -1.0}, {GlobalDof(master, Ry), -dz}});
      relations.push_back({{GlobalDof(s, Uz), 1.0}, {GlobalDof(master, Uz), -1.0}, {GlobalDof(master, Ry), dx}});
      relations.push_back({{GlobalDof(s, Ry), 1.0}, {GlobalDof(master, Ry), -1.0}});
    }
  }
  std::optional<Ties> ties;
  SparseMatrix condensed;
  if (!relations.empty()) {
    ties.emplace(n, held);
    for (const Terms& r : relations) ties->Add(r);
    out.ties = ties->Matrix();
    condensed = Condense(k, out.ties);
    // A constraint's force is what acts on one of its ends that nothing else holds or ties.
    std::vector<int> touches(n, 0);
    for (const Terms& r : relations)
      for (const auto& [dof, c] : r) ++touches[dof];
    for (const Constraint& c : model.constraints) {
      GlobalStiffness::ForceAt at;
      for (int end = 1; end >= 0 && at.dof < 0; --end) {
        const size_t dof = GlobalDof(c.nodes[static_cast<size_t>(end)], c.dofs[static_cast<size_t>(end)]);
        if (!held[dof] && touches[dof] == 1) at = {static_cast<long>(dof), end};
      }
      // Otherwise what all the ties at a free end bring there.
      for (int end = 1; end >= 0 && at.dof < 0; --end) {
        const size_t dof = GlobalDof(c.nodes[static_cast<size_t>(end)], c.dofs[static_cast<size_t>(end)]);
        if (!held[dof]) at = {static_cast<long>(dof), end};
      }
      out.constraintForceAt.push_back(at);
    }
  }
  const SparseMatrix& reduced = ties ? condensed : k;

  DofNumbering& num = out.numbering;
  num.equation.assign(n, -1);
  for (size_t dof = 0; dof < n; ++dof) {
    if (held[dof] || (ties && ties->IsSlave(dof))) continue;
    if (!(reduced.coeff(static_cast<Eigen::Index>(dof), static_cast<Eigen::Index>(dof)) > 0)) {
      num.autoHeld.push_back(dof);
      continue;
    }
    num.equation[dof] = static_cast<int>(num.freeDofs.size());
    num.freeDofs.push_back(dof);
  }
  out.free = FreeBlock(reduced, num);
  return out;
}

SparseMatrix Condense(const SparseMatrix& upper, const SparseMatrix& ties) {
  if (ties.size() == 0) return upper;
  const SparseMatrix symmetric = upper.selfadjointView<Eigen::Upper>();
  const SparseMatrix kt = symmetric * ties;
  const SparseMatrix tkt = SparseMatrix(ties.transpose()) * kt;
  return tkt.triangularView<Eigen::Upper>();
}

SparseMatrix FreeBlock(const SparseMatrix& k, const DofNumbering& num) {
  // The free block keeps the full matrix's column order, so it stays upper triangular.
  const auto nf = static_cast<Eigen::Index>(num.freeDofs.size());
  SparseMatrix f(nf, nf);
  std::vector<int> outer(static_cast<size_t>(nf) + 1, 0);
  std::vector<int> inner;
  std::vector<double> values;
  inner.reserve(static_cast<size_t>(k.nonZeros()));
  values.reserve(static_cast<size_t>(k.nonZeros()));
  for (Eigen::Index c = 0; c < nf; ++c) {
    const auto col = static_cast<Eigen::Index>(num.freeDofs[static_cast<size_t>(c)]);
    for (SparseMatrix::InnerIterator it(k, col); it; ++it) {
      const int eq = num.equation[static_cast<size_t>(it.row())];
      if (eq < 0 || it.value() == 0) continue;
      inner.push_back(eq);
      values.push_back(it.value());
    }
    outer[static_cast<size_t>(c) + 1] = static_cast<int>(inner.size());
  }
  f.resizeNonZeros(static_cast<Eigen::Index>(inner.size()));
  std::copy(outer.begin(), outer.end(), f.outerIndexPtr());
  std::copy(inner.begin(), inner.end(), f.innerIndexPtr());
  std::copy(values.begin(), values.end(), f.valuePtr());
  return f;
}

Eigen::MatrixXd GlobalStiffness::Expand(const Eigen::MatrixXd& q) const {
  if (ties.size() == 0) return q;
  return ties * q;
}

Eigen::MatrixXd GlobalStiffness::Gather(const Eigen::MatrixXd& v) const {
  if (ties.size() == 0) return v;
  return ties.transpose() * v;
}

Eigen::VectorXd CaseLoadVector(const Model& model, size_t caseIndex) {
  const LoadCase& lc = model.cases.at(caseIndex);
  Eigen::VectorXd f = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(6 * model.nodes.size()));
  for (const NodalLoad& l : lc.nodal) {
    CheckNode(model, l.node, "A nodal load");
    if (l.dof < 0 || l.dof > 5) throw AnalysisError("A nodal load has no direction.");
    f[static_cast<Eigen::Index>(GlobalDof(l.node, l.dof))] += l.value;
  }
  // Members that carry loads of this case.
  std::vector<char> loaded(model.members.size(), lc.selfWeight != 0 ? 1 : 0);
  for (const auto& p : lc.memberPoint) loaded.at(p.member) = 1;
  for (const auto& l : lc.memberLine) loaded.at(l.member) = 1;
  for (const auto& t : lc.thermal)
    if (t.kind == ThermalLoad::Kind::Member) loaded.at(t.element) = 1;
  const Rigidities rigid = RigidLinkRigidities(model);
  for (size_t i = 0; i < model.members.size(); ++i) {
    if (!loaded[i]) continue;
    const LocalMemberLoads loads = MemberLoadsOfCase(model, i, caseIndex);
    if (loads.empty()) continue;
    const Member& m = model.members[i];
    const LocalMember lm = MemberMatrices(model, i, loads, rigid);
    const Vector12 eq = -MemberRotation(MemberAxes(model, m)).transpose() * lm.fixedEnd;
    const auto dofs = MemberDofs(m);
    for (int k = 0; k < 12; ++k) f[static_cast<Eigen::Index>(dofs[static_cast<size_t>(k)])] += eq[k];
  }
  auto addShellForces = [&](const Shell& s, const Eigen::Matrix<double, 24, 1>& forces) {
    const auto dofs = ElementDofs(s.nodes, 6);
    for (int k = 0; k < 24; ++k) f[static_cast<Eigen::Index>(dofs[static_cast<size_t>(k)])] += forces[k];
  };
  auto addBrickForces = [&](const Brick& b, const Eigen::Matrix<double, 24, 1>& forces) {
    const auto dofs = ElementDofs(b.nodes, 3);
    for (int k = 0; k < 24; ++k) f[static_cast<Eigen::Index>(dofs[static_cast<size_t>(k)])] += forces[k];
  };
  for (const SurfaceLoad& l : lc.surface) {
    const Shell& s = model.shells.at(l.shell);
    Vector3 p = AxisVector(l.direction) * l.value;
    if (l.local) p = ShellAxes(model, s).transpose() * p;
    addShellForces(s, ShellPressureLoads(model, s, p));
  }
  for (const ThermalLoad& t : lc.thermal) {
    if (t.kind == ThermalLoad::Kind::Shell) {
      const Shell& s = model.shells.at(t.element);
      addShellForces(s, ShellThermalLoads(model, s, model.materials.at(s.material).alpha * t.change));
    } else if (t.kind == ThermalLoad::Kind::Brick) {
      const Brick& b = model.bricks.at(t.element);
      addBrickForces(b, BrickThermalLoads(model, b, model.materials.at(b.material).alpha * t.change));
    }
  }
  if (lc.selfWeight != 0) {
    for (const Shell& s : model.shells) {
      const double w = model.materials.at(s.material).weightDensity * s.thickness;
      const auto share = ShellNodalAreas(model, s);
      for (size_t a = 0; a < 4; ++a) f[static_cast<Eigen::Index>(GlobalDof(s.nodes[a], Uy))] -= lc.selfWeight * w * share[a];
    }
    for (const Brick& b : model.bricks) {
      const double w = model.materials.at(b.material).weightDensity;
      const auto share = BrickNodalVolumes(model, b);
      for (size_t a = 0; a < 8; ++a) f[static_cast<Eigen::Index>(GlobalDof(b.nodes[a], Uy))] -= lc.selfWeight * w * share[a];
    }
  }
  return f;
}

const char* MassModelName(MassModel masses) { return masses == MassModel::Consistent ? "consistent" : "lumped"; }

SparseMatrix MassMatrix(const Model& model, MassModel masses) {
  const auto n = static_cast<Eigen::Index>(6 * model.nodes.size());
  if (masses == MassModel::Lumped) {
    const Eigen::VectorXd diagonal = LumpedMasses(model);
    SparseMatrix m(n, n);
    m.reserve(Eigen::VectorXi::Ones(n));
    for (Eigen::Index i = 0; i < n; ++i) m.insert(i, i) = diagonal[i];
    m.makeCompressed();
    return m;
  }
  SparseMatrix m = PatternOf(NodeNeighbours(model, {}));
  for (const Member& mb : model.members) {
    if (mb.rigid) continue;
    const Material& mat = model.materials.at(mb.material);
    const Section& sec = model.sections.at(mb.section);
    const double rho = mat.weightDensity / model.g;
    if (rho == 0) continue;
    const Matrix12 local = LocalMemberMass(MemberRigidities(model, mb), MemberLength(model, mb), mb.releases, rho * sec.A,
                                           rho * (sec.Iy + sec.Iz), mb.id);
    const Matrix12 t = MemberRotation(MemberAxes(model, mb));
    AddSymmetric(m, MemberDofs(mb).data(), 12, Matrix12(t.transpose() * local * t));
  }
  // Shells and bricks: the same product of shape functions along each global translation.
  auto addTranslations = [&m](const auto& nodes, const auto& products) {
    for (size_t a = 0; a < nodes.size(); ++a)
      for (size_t b = 0; b < nodes.size(); ++b)
        for (int d = 0; d < 3; ++d) {
          const auto row = static_cast<Eigen::Index>(GlobalDof(nodes[a], d)), col = static_cast<Eigen::Index>(GlobalDof(nodes[b], d));
          if (row <= col) m.coeffRef(row, col) += products(static_cast<Eigen::Index>(a), static_cast<Eigen::Index>(b));
        }
  };
  for (const Shell& s : model.shells) {
    const double perArea = model.materials.at(s.material).weightDensity * s.thickness / model.g;
    if (perArea != 0) addTranslations(s.nodes, Eigen::Matrix4d(perArea * ShellAreaProducts(model, s)));
  }
  for (const Brick& b : model.bricks) {
    const double rho = model.materials.at(b.material).weightDensity / model.g;
    if (rho != 0) addTranslations(b.nodes, Eigen::Matrix<double, 8, 8>(rho * BrickVolumeProducts(model, b)));
  }
  for (const NodalMass& nm : model.masses) {
    CheckNode(model, nm.node, "A mass");
    const auto dof = static_cast<Eigen::Index>(GlobalDof(nm.node, nm.dof));
    m.coeffRef(dof, dof) += nm.mass;
  }
  return m;
}

Eigen::VectorXd LumpedMasses(const Model& model) {
  Eigen::VectorXd m = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(6 * model.nodes.size()));
  auto addTranslational = [&](size_t node, double mass) {
    for (int d = 0; d < 3; ++d) m[static_cast<Eigen::Index>(GlobalDof(node, d))] += mass;
  };
  for (const Member& mb : model.members) {
    if (mb.rigid) continue;
    const double w = model.materials[mb.material].weightDensity * model.sections[mb.section].A * MemberLength(model, mb);
    for (size_t node : mb.nodes) addTranslational(node, 0.5 * w / model.g);
  }
  for (const Shell& s : model.shells) {
    const double w = model.materials.at(s.material).weightDensity * s.thickness;
    const auto share = ShellNodalAreas(model, s);
    for (size_t a = 0; a < 4; ++a) addTranslational(s.nodes[a], w * share[a] / model.g);
  }
  for (const Brick& b : model.bricks) {
    const double w = model.materials.at(b.material).weightDensity;
    const auto share = BrickNodalVolumes(model, b);
    for (size_t a = 0; a < 8; ++a) addTranslational(b.nodes[a], w * share[a] / model.g);
  }
  for (const NodalMass& nm : model.masses) {
    CheckNode(model, nm.node, "A mass");
    m[static_cast<Eigen::Index>(GlobalDof(nm.node, nm.dof))] += nm.mass;
  }
  return m;
}

}  // namespace analysis
