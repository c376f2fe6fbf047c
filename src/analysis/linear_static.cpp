#include "analysis/linear_static.h"

#include <cmath>
#include <deque>
#include <memory>

#include "analysis/continuum.h"
#include "analysis/sparse_factor.h"

namespace analysis {
namespace {

void Report(const Progress& progress, const std::string& stage, double fraction) {
  if (progress) progress(stage, fraction);
}

Eigen::VectorXd Prescribed(const Model& model) {
  Eigen::VectorXd u = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(6 * model.nodes.size()));
  for (const Support& s : model.supports)
    for (int d = 0; d < 6; ++d)
      if (s.held[static_cast<size_t>(d)]) u[static_cast<Eigen::Index>(GlobalDof(s.node, d))] = s.value[static_cast<size_t>(d)];
  return u;
}

// A load on a degree of freedom that nothing stiffens cannot be carried.
void CheckAutoHeldUnloaded(const Model& model, const GlobalStiffness& k, const Eigen::VectorXd& load, const std::string& name) {
  if (k.numbering.autoHeld.empty()) return;
  const Eigen::VectorXd f = k.Gather(load);
  for (size_t dof : k.numbering.autoHeld)
    if (f[static_cast<Eigen::Index>(dof)] != 0)
      throw AnalysisError(DofLabel(model, dof) + " is loaded in \"" + name +
                          "\" but nothing is connected to carry it: the model is unstable there.");
}

struct Solver {
  const Model& model;
  GlobalStiffness k;
  StiffnessFactor factor;

  Solver(const Model& m, const MemberActivity& active) : model(m), k(AssembleStiffness(m, active)) {
    factor.Factor(
        k.free, k.numbering.freeDofs, [&](Eigen::Index eq) { return DofLabel(model, k.numbering.freeDofs[static_cast<size_t>(eq)]); });
  }

  // Displacements of several load vectors (columns) at once. `prescribed` holds the supports'
  // values; the slaves of ties follow what they are tied to.
  Eigen::MatrixXd Displacements(const Eigen::MatrixXd& loads, const Eigen::VectorXd& prescribed) const {
    const Eigen::VectorXd u0 = k.Expand(prescribed);
    const Eigen::VectorXd kp = k.full.selfadjointView<Eigen::Upper>() * u0;
    const Eigen::MatrixXd f = k.Gather(loads.colwise() - kp);
    const auto nf = static_cast<Eigen::Index>(k.numbering.freeDofs.size());
    Eigen::MatrixXd rhs(nf, loads.cols());
    for (Eigen::Index eq = 0; eq < nf; ++eq) rhs.row(eq) = f.row(static_cast<Eigen::Index>(k.numbering.freeDofs[static_cast<size_t>(eq)]));
    const Eigen::MatrixXd x = nf > 0 ? factor.Solve(rhs) : rhs;
    Eigen::MatrixXd q = prescribed.replicate(1, loads.cols());
    for (Eigen::Index eq = 0; eq < nf; ++eq) q.row(static_cast<Eigen::Index>(k.numbering.freeDofs[static_cast<size_t>(eq)])) = x.row(eq);
    return k.Expand(q);
  }
};

std::array<double, 6> Six(const Eigen::VectorXd& v, size_t node) {
  std::array<double, 6> out{};
  for (int d = 0; d < 6; ++d) out[static_cast<size_t>(d)] = v[static_cast<Eigen::Index>(GlobalDof(node, d))];
  return out;
}

// Reactions and spring forces from the displacements.
void Recover(const Model& model, const GlobalStiffness& k, StaticResult& r) {
  // What the structure needs beyond its loads: from the supports, and from the ties on the
  // degrees of freedom they join; a support also takes what ties bring to its node.
  const Eigen::VectorXd needed = k.full.selfadjointView<Eigen::Upper>() * r.displacement - r.load;
  const Eigen::VectorXd gathered = k.Gather(needed);
  r.reaction = Eigen::VectorXd::Zero(r.displacement.size());
  for (const Support& s : model.supports)
    for (int d = 0; d < 6; ++d) {
      const auto dof = static_cast<Eigen::Index>(GlobalDof(s.node, d));
      if (s.held[static_cast<size_t>(d)]) r.reaction[dof] = gathered[dof];
    }
  const Eigen::VectorXd& u = r.displacement;
  r.nodalSprings.clear();
  for (const NodalSpring& s : model.nodalSprings) {
    std::array<double, 6> f{};
    for (int d = 0; d < 6; ++d) f[static_cast<size_t>(d)] = -s.k[static_cast<size_t>(d)] * u[static_cast<Eigen::Index>(GlobalDof(s.node, d))];
    r.nodalSprings.push_back(f);
  }
  r.coupledSprings.clear();
  for (const CoupledSpring& s : model.coupledSprings) {
    Eigen::Matrix<double, 6, 6> m;
    size_t at = 0;
    for (int i = 0; i < 6; ++i)
      for (int j = i; j < 6; ++j) m(i, j) = m(j, i) = s.k[at++];
    const auto six = Six(u, s.node);
    const Eigen::Matrix<double, 6, 1> f = -m * Eigen::Map<const Eigen::Matrix<double, 6, 1>>(six.data());
    std::array<double, 6> out{};
    for (int d = 0; d < 6; ++d) out[static_cast<size_t>(d)] = f[d];
    r.coupledSprings.push_back(out);
  }
  r.lineSprings.clear();
  for (const LineSpring& s : model.lineSprings) {
    const Member& m = model.members.at(s.member);
    const double half = 0.5 * MemberLength(model, m);
    std::array<double, 6> f{};
    for (size_t node : m.nodes)
      for (int d = 0; d < 3; ++d) f[static_cast<size_t>(d)] -= half * s.k[static_cast<size_t>(d)] * u[static_cast<Eigen::Index>(GlobalDof(node, d))];
    r.lineSprings.push_back(f);
  }
  // A constraint pulls its two ends equally and oppositely; where one end is tied by nothing
  // else, what the structure needs there is the constraint's force.
  r.constraints.clear();
  for (size_t i = 0; i < model.constraints.size() && i < k.constraintForceAt.size(); ++i) {
    const GlobalStiffness::ForceAt& at = k.constraintForceAt[i];
    std::array<double, 2> force{};
    if (at.dof >= 0) {
      force[static_cast<size_t>(at.end)] = needed[at.dof];
      force[static_cast<size_t>(1 - at.end)] = -needed[at.dof];
    }
    r.constraints.push_back(force);
  }
  r.surfaceSprings.clear();
  for (const SurfaceSpring& s : model.surfaceSprings) {
    const Shell& sh = model.shells.at(s.shell);
    const auto share = ShellNodalAreas(model, sh);
    std::array<double, 6> f{};
    for (size_t a = 0; a < 4; ++a)
      for (int d = 0; d < 3; ++d) f[static_cast<size_t>(d)] -= share[a] * s.k[static_cast<size_t>(d)] * u[static_cast<Eigen::Index>(GlobalDof(sh.nodes[a], d))];
    r.surfaceSprings.push_back(f);
  }
}

bool HasNonlinearMembers(const Model& model) {
  for (const Member& m : model.members)
    if (m.axial != AxialBehaviour::Linear) return true;
  return false;
}

// Factorisations by the set of active members. Every iteration starts from all members, and
// most load vectors settle on a set an earlier one settled on (the gravity cases drop the same
// braces), so two are kept: the start and the last other. A third would cost a whole factor
// of memory for what is seldom used.
class SolverCache {
 public:
  explicit SolverCache(const Model& model) : model_(model) {}
  // Valid until the next call.
  const Solver& For(const MemberActivity& active) {
    for (auto it = kept_.begin(); it != kept_.end(); ++it)
      if (it->first == active) {
        if (it != kept_.begin()) std::iter_swap(it, kept_.begin());
        return *kept_.front().second;
      }
    if (kept_.size() == kKept) kept_.pop_back();  // freed before the next is made
    kept_.emplace_front(active, std::make_unique<Solver>(model_, active));
    return *kept_.front().second;
  }

 private:
  static constexpr size_t kKept = 2;
  const Model& model_;
  std::deque<std::pair<MemberActivity, std::unique_ptr<Solver>>> kept_;
};

// One load vector solved with tension-only and compression-only members switched in and out
// until none changes.
void SolveSwitching(const Model& model, StaticResult& r, const Eigen::VectorXd& prescribed, SolverCache& solvers,
                    StaticResults& out) {
  MemberActivity active(model.members.size(), 1);
  for (int iteration = 0; iteration < model.nonlinearIterationLimit; ++iteration) {
    const Solver& solver = solvers.For(active);
    CheckAutoHeldUnloaded(model, solver.k, r.load, r.name);
    r.displacement = solver.Displacements(r.load, prescribed).col(0);
    r.activeMembers = active;
    bool changed = false;
    for (size_t i = 0; i < model.members.size(); ++i) {
      const Member& m = model.members[i];
      if (m.axial == AxialBehaviour::Linear) continue;
      const bool tensionOnly = m.axial == AxialBehaviour::TensionOnly;
      bool wanted;
      if (active[i]) {
        const double n = MemberEndForces(model, r, i)[6];  // tension positive
        wanted = tensionOnly ? n >= 0 : n <= 0;
      } else {
        const Matrix3 axes = MemberAxes(model, m);
        const Vector3 ui(r.displacement.segment<3>(static_cast<Eigen::Index>(GlobalDof(m.nodes[0], 0))));
        const Vector3 uj(r.displacement.segment<3>(static_cast<Eigen::Index>(GlobalDof(m.nodes[1], 0))));
        const double stretch = axes.row(0).dot(uj - ui);
        wanted = tensionOnly ? stretch > 0 : stretch < 0;
      }
      if (wanted != static_cast<bool>(active[i])) {
        active[i] = wanted;
        changed = true;
      }
    }
    if (!changed) {
      Recover(model, solver.k, r);
      out.autoHeld = solver.k.numbering.autoHeld;
      out.equations = solver.factor.Size();
      out.factorNonZeros = solver.factor.FactorNonZeros();
      return;
    }
  }
  throw AnalysisError("\"" + r.name + "\": the tension-only and compression-only members did not settle in " +
                      std::to_string(model.nonlinearIterationLimit) + " iterations.");
}

}  // namespace

StaticResults SolveLinearStatic(const Model& model, const Progress& progress) {
  StaticResults out;
  const auto n = static_cast<Eigen::Index>(6 * model.nodes.size());
  const Eigen::VectorXd prescribed = Prescribed(model);

  Report(progress, "Loads", 0.0);
  std::vector<StaticResult>& results = out.results;
  for (size_t c = 0; c < model.cases.size(); ++c) {
    StaticResult r;
    r.name = model.cases[c].name;
    r.terms = {{c, 1.0}};
    r.load = CaseLoadVector(model, c);
    results.push_back(std::move(r));
  }
  for (const Combination& combo : model.combinations) {
    StaticResult r;
    r.name = combo.name;
    r.terms = combo.terms;
    r.load = Eigen::VectorXd::Zero(n);
    for (const auto& [c, factor] : combo.terms) {
      if (c >= model.cases.size()) throw AnalysisError("Combination \"" + combo.name + "\" names a load case the model does not have.");
      r.load += factor * results[c].load;
    }
    results.push_back(std::move(r));
  }

  if (HasNonlinearMembers(model)) {
    SolverCache solvers(model);
    for (size_t i = 0; i < results.size(); ++i) {
      Report(progress, "Solving \"" + results[i].name + "\"", static_cast<double>(i) / static_cast<double>(results.size()));
      SolveSwitching(model, results[i], prescribed, solvers, out);
    }
    Report(progress, "Done", 1.0);
    return out;
  }

  Report(progress, "Assembling and factoring the stiffness", 0.1);
  const Solver solver(model, {});
  out.autoHeld = solver.k.numbering.autoHeld;
  out.equations = solver.factor.Size();
  out.factorNonZeros = solver.factor.FactorNonZeros();
  const size_t cases = model.cases.size();
  Eigen::MatrixXd loads(n, static_cast<Eigen::Index>(cases));
  for (size_t c = 0; c < cases; ++c) {
    CheckAutoHeldUnloaded(model, solver.k, results[c].load, results[c].name);
    loads.col(static_cast<Eigen::Index>(c)) = results[c].load;
  }
  Report(progress, "Solving the load cases", 0.6);
  const Eigen::MatrixXd u = solver.Displacements(loads, prescribed);
  for (size_t c = 0; c < cases; ++c) results[c].displacement = u.col(static_cast<Eigen::Index>(c));
  Report(progress, "Combining", 0.8);
  const Eigen::VectorXd settled = solver.k.Expand(prescribed);
  for (size_t i = cases; i < results.size(); ++i) {
    StaticResult& r = results[i];
    // Settlements belong to the structure, not to a case: a combination holds them once.
    r.displacement = settled;
    for (const auto& [c, factor] : r.terms) r.displacement += factor * (results[c].displacement - settled);
  }
  for (StaticResult& r : results) Recover(model, solver.k, r);
  Report(progress, "Done", 1.0);
  return out;
}

Vector12 MemberEndForces(const Model& model, const StaticResult& result, size_t member) {
  const Member& m = model.members.at(member);
  if (!result.activeMembers.empty() && !result.activeMembers[member]) return Vector12::Zero();
  const LocalMemberLoads loads = MemberLoadsOfTerms(model, member, result.terms);
  const LocalMember lm = MemberMatrices(model, member, loads, m.rigid ? RigidLinkRigidities(model) : Rigidities{});
  Vector12 ue;
  for (int e = 0; e < 2; ++e)
    ue.segment<6>(6 * e) = result.displacement.segment<6>(static_cast<Eigen::Index>(GlobalDof(m.nodes[static_cast<size_t>(e)], 0)));
  return lm.k * (MemberRotation(MemberAxes(model, m)) * ue) + lm.fixedEnd;
}

}  // namespace analysis
