#include "analysis/document_analysis.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_map>

#include "analysis/area_loads.h"
#include "analysis/element_results.h"
#include "analysis/linear_static.h"
#include "analysis/modal.h"
#include "model/response_spectrum_settings.h"
#include "tools/format.h"
#include "tools/labels.h"

namespace analysis {
namespace {

using Q = fmUnit::Quantity;

// Sizes of the document's units in lb, in, rad and °F (each unit group's first unit).
struct Scale {
  const fmUnit& u;
  double operator()(Q q) const { return u.Factor(q); }
  // A force (direction 0-2) or moment (3-5) of a degree of freedom.
  double Action(int dof) const { return dof < 3 ? u.Factor(fmUnit::Force) : u.Factor(fmUnit::Moment); }
  double Motion(int dof) const { return dof < 3 ? u.Factor(fmUnit::Displacement) : u.Factor(fmUnit::Rotation); }
  double Spring(int dof) const { return dof < 3 ? u.Factor(fmUnit::NodeSpring) : u.Factor(fmUnit::NodeRotationalSpring); }
};

double s_Force(const fmUnit& u) { return u.Factor(fmUnit::Force); }

std::string Id(int64_t id) { return std::to_string(id); }

class NodeIndex {
 public:
  explicit NodeIndex(const std::vector<fmNd>& nodes) {
    index_.reserve(nodes.size() * 2);
    for (size_t i = 0; i < nodes.size(); ++i) index_.emplace(nodes[i].id, i);
  }
  size_t At(int64_t id, const std::string& owner) const {
    const auto it = index_.find(id);
    if (it == index_.end()) throw AnalysisError(owner + " names node " + Id(id) + ", which the model does not have.");
    return it->second;
  }
  bool Has(int64_t id) const { return index_.count(id) != 0; }

 private:
  std::unordered_map<int64_t, size_t> index_;
};

// A 1-based reference into a table.
size_t Reference(int32_t ref, size_t count, const std::string& owner, const char* what) {
  if (ref < 1 || static_cast<size_t>(ref) > count) throw AnalysisError(owner + " has no " + what + ".");
  return static_cast<size_t>(ref - 1);
}

// Combination masses: the case's gravity loads (global, along -Y) times the factor become
// masses at the nodes that carry them, in all three directions. Member loads go to the two
// ends by the lever rule, a shell's pressure in quarters to its corners.
void AddCombinationMasses(Model& m, const LoadCase& c, double factor) {
  std::map<size_t, double> weight;  // node to the weight it carries
  const auto length = [&](const Member& mb) {
    const Node& a = m.nodes[mb.nodes[0]];
    const Node& b = m.nodes[mb.nodes[1]];
    return std::hypot(b.x - a.x, b.y - a.y, b.z - a.z);
  };
  const auto split = [&](const Member& mb, double w, double at) {
    const double l = length(mb), t = l > 0 ? std::clamp(at / l, 0.0, 1.0) : 0.5;
    weight[mb.nodes[0]] += w * (1 - t);
    weight[mb.nodes[1]] += w * t;
  };
  for (const NodalLoad& l : c.nodal)
    if (l.dof == 1 && l.value < 0) weight[l.node] -= l.value;
  for (const MemberPointLoad& l : c.memberPoint)
    if (!l.local && l.direction == 1 && l.value < 0) split(m.members[l.member], -l.value, l.distance);
  for (const MemberLineLoad& l : c.memberLine) {
    if (l.local || l.direction != 1 || l.value[0] > 0 || l.value[1] > 0) continue;
    const double run = l.distance[1] - l.distance[0], sum = l.value[0] + l.value[1];
    if (run <= 0 || sum == 0) continue;
    // A trapezoid's weight and centroid.
    split(m.members[l.member], -sum / 2 * run, l.distance[0] + run * (l.value[0] + 2 * l.value[1]) / (3 * sum));
  }
  for (const SurfaceLoad& l : c.surface) {
    if (l.local || l.direction != 1 || l.value >= 0) continue;
    const Shell& sh = m.shells[l.shell];
    const Node &a = m.nodes[sh.nodes[0]], &b = m.nodes[sh.nodes[1]], &cc = m.nodes[sh.nodes[2]], &d = m.nodes[sh.nodes[3]];
    const double p[3] = {cc.x - a.x, cc.y - a.y, cc.z - a.z}, q[3] = {d.x - b.x, d.y - b.y, d.z - b.z};
    const double area = std::hypot(p[1] * q[2] - p[2] * q[1], p[2] * q[0] - p[0] * q[2], p[0] * q[1] - p[1] * q[0]) / 2;
    for (size_t node : sh.nodes) weight[node] += -l.value * area / 4;
  }
  for (const auto& [node, w] : weight)
    for (int dof = 0; dof < 3; ++dof) m.masses.push_back({node, dof, w * factor / m.g});
}

// An area load becomes line loads on the members along its polygon's edges; an edge that no
// member joins passes its share to its two nodes by the lever rule.
template <class MemberBetween>
void AddAreaLoad(const Model& m, const fmAreaLoad& l, const std::string& what, const NodeIndex& nodes, double pressureScale,
                 const MemberBetween& memberBetween, LoadCase& c) {
  if (l.direction < 0 || l.direction > 2) throw AnalysisError(what + " has no direction.");
  std::vector<size_t> at;
  std::vector<Eigen::Vector3d> corners;
  for (uint32_t id : l.nodes) {
    at.push_back(nodes.At(id, what));
    const Node& n = m.nodes[at.back()];
    corners.emplace_back(n.x, n.y, n.z);
  }
  const double pressure = l.magnitude * pressureScale;
  for (const EdgeLoad& el : DistributeAreaLoad(corners, pressure, l.distribution == fmAreaLoad::OneWay, what)) {
    const size_t a = at[el.edge], b = at[(el.edge + 1) % at.size()];
    const double length = (corners[(el.edge + 1) % at.size()] - corners[el.edge]).norm();
    if (el.beforeStart != 0) c.nodal.push_back({a, l.direction, el.beforeStart});
    if (el.afterEnd != 0) c.nodal.push_back({b, l.direction, el.afterEnd});
    const size_t* member = memberBetween(a, b);
    const bool reversed = member && m.members[*member].nodes[0] == b;
    for (size_t k = 0; k + 1 < el.profile.size(); ++k) {
      const auto [s0, q0] = el.profile[k];
      const auto [s1, q1] = el.profile[k + 1];
      if (q0 == 0 && q1 == 0) continue;
      if (member) {
        MemberLineLoad line{*member, l.direction, false, {q0, q1}, {s0, s1}};
        if (reversed) line = {*member, l.direction, false, {q1, q0}, {length - s1, length - s0}};
        c.memberLine.push_back(line);
      } else {
        const double force = (q0 + q1) / 2 * (s1 - s0);
        const double centroid = s0 + (s1 - s0) * (q0 + 2 * q1) / (3 * (q0 + q1));
        c.nodal.push_back({a, l.direction, force * (1 - centroid / length)});
        c.nodal.push_back({b, l.direction, force * centroid / length});
      }
    }
  }
}

// The loads of every load case, from the document's case loads (its one source of loads),
// in the analysis' units. Loads on inactive elements have nothing to act on and are left out.
void AddCaseLoads(const model::ModelDocument& doc, const NodeIndex& nodes, DocumentModel& out) {
  Model& m = out.model;
  const Scale s{doc.units};
  const auto indexOf = [](const auto& elements) {
    std::unordered_map<uint32_t, size_t> at;
    for (size_t i = 0; i < elements.size(); ++i) at.emplace(static_cast<uint32_t>(elements[i].id), i);
    return at;
  };
  const auto memberAt = indexOf(m.members), shellAt = indexOf(m.shells), brickAt = indexOf(m.bricks);
  const auto find = [](const std::unordered_map<uint32_t, size_t>& at, uint32_t id) -> const size_t* {
    const auto it = at.find(id);
    return it == at.end() ? nullptr : &it->second;
  };
  const auto memberLength = [&](size_t k) {
    const Node& a = m.nodes[m.members[k].nodes[0]];
    const Node& b = m.nodes[m.members[k].nodes[1]];
    return std::hypot(b.x - a.x, b.y - a.y, b.z - a.z);
  };
  // Members by the two nodes they join, for the edges of area loads.
  std::unordered_map<uint64_t, size_t> memberBetween;
  const auto pairKey = [](size_t a, size_t b) { return (static_cast<uint64_t>(std::min(a, b)) << 32) | std::max(a, b); };
  for (const fmCaseLoad& cl : doc.caseLoads)
    if (!cl.area.empty() && memberBetween.empty())
      for (size_t k = 0; k < m.members.size(); ++k) memberBetween.emplace(pairKey(m.members[k].nodes[0], m.members[k].nodes[1]), k);
  size_t skipped = 0, sideways = 0;
  bool selfWeightMass = false;
  for (size_t i = 0; i < doc.loadCases.size(); ++i) {
    LoadCase c;
    c.name = doc.loadCases[i].name;
    if (i >= doc.caseLoads.size()) {
      m.cases.push_back(std::move(c));
      continue;
    }
    const fmCaseLoad& cl = doc.caseLoads[i];
    if (cl.selfWeight.factor != 0) {
      // The analysis applies self weight along -Y: a factor along Y of -1 is the weight itself.
      if (cl.selfWeight.direction == 1)
        c.selfWeight = -cl.selfWeight.factor;
      else
        ++sideways;
    }
    for (const fmNodalLoad& l : cl.nodal)
      c.nodal.push_back({nodes.At(l.node, "A nodal load"), l.direction, l.magnitude * s.Action(l.direction)});
    for (const fmPtLoad& l : cl.point) {
      const size_t* k = find(memberAt, l.member);
      if (!k) {
        ++skipped;
        continue;
      }
      c.memberPoint.push_back({*k, l.direction, l.local, l.magnitude * s.Action(l.direction), l.ratio * memberLength(*k)});
    }
    for (const fmLineLoad& l : cl.line) {
      const size_t* k = find(memberAt, l.member);
      if (!k) {
        ++skipped;
        continue;
      }
      const double f = l.direction < 3 ? s(fmUnit::LinearForce) : s(fmUnit::LinearMoment);
      const double length = memberLength(*k);
      c.memberLine.push_back({*k, l.direction, l.local, {l.magnitude[0] * f, l.magnitude[1] * f},
                              {l.ratio[0] * length, l.ratio[1] * length}});
    }
    for (const fmSurfaceLoad& l : cl.surface) {
      const size_t* k = find(shellAt, l.shell);
      if (!k) {
        ++skipped;
        continue;
      }
      c.surface.push_back({*k, l.direction, l.local, l.magnitude * s(fmUnit::SurfaceForce)});
    }
    const auto thermal = [&](const std::vector<fmThermalLoad>& list, const std::unordered_map<uint32_t, size_t>& at,
                             ThermalLoad::Kind kind) {
      for (const fmThermalLoad& l : list) {
        if (const size_t* k = find(at, l.element))
          c.thermal.push_back({kind, *k, l.temperature * s(fmUnit::Temperature)});
        else
          ++skipped;
      }
    };
    thermal(cl.memberThermal, memberAt, ThermalLoad::Kind::Member);
    thermal(cl.shellThermal, shellAt, ThermalLoad::Kind::Shell);
    thermal(cl.brickThermal, brickAt, ThermalLoad::Kind::Brick);
    for (size_t k = 0; k < cl.area.size(); ++k)
      AddAreaLoad(m, cl.area[k], "Area load " + Id(static_cast<int64_t>(k + 1)) + " of \"" + c.name + "\"", nodes,
                  s(fmUnit::SurfaceForce), [&](size_t a, size_t b) -> const size_t* {
                    const auto it = memberBetween.find(pairKey(a, b));
                    return it == memberBetween.end() ? nullptr : &it->second;
                  }, c);
    if (cl.massFactor != 0) {
      AddCombinationMasses(m, c, cl.massFactor);
      selfWeightMass = selfWeightMass || c.selfWeight != 0;
    }
    for (const fmNodalMass& nm : cl.nodalMasses) {
      const double weight = nm.weight * s(fmUnit::Force) * (nm.direction < 3 ? 1 : s(fmUnit::Length) * s(fmUnit::Length));
      m.masses.push_back({nodes.At(nm.node, "A nodal mass"), nm.direction, weight / m.g});
    }
    m.cases.push_back(std::move(c));
  }
  if (skipped > 0) out.notes.push_back(Id(static_cast<int64_t>(skipped)) + " loads on inactive elements left out");
  if (sideways > 0) out.notes.push_back(Id(static_cast<int64_t>(sideways)) + " self weights along X or Z not analysed");
  if (selfWeightMass)
    out.notes.push_back("self weight left out of the combination masses: the elements carry their own mass");
}

}  // namespace

DocumentModel ModelFromDocument(const model::ModelDocument& doc) {
  DocumentModel out;
  Model& m = out.model;
  const Scale s{doc.units};
  const double fl = s(fmUnit::Length);

  for (const fmNd& n : doc.nodes) {
    m.nodes.push_back({n.id, n.x * fl, n.y * fl, n.z * fl});
    out.nodeOfDocument.push_back(m.nodes.size() - 1);
  }
  const NodeIndex nodes(doc.nodes);
  for (const fmMat& mat : doc.materials)
    m.materials.push_back({mat.E * s(fmUnit::Modulus), mat.nu, mat.density * s(fmUnit::WeightDensity),
                           mat.Tc / s(fmUnit::Temperature)});
  for (const fmSect& sec : doc.sections)
    m.sections.push_back({sec.A * fl * fl, sec.Ay * fl * fl, sec.Az * fl * fl, sec.Iy * std::pow(fl, 4),
                          sec.Iz * std::pow(fl, 4), sec.J * std::pow(fl, 4)});

  size_t inactive = 0;
  for (const fmBm& b : doc.members) {
    if (b.IsInactive()) {
      ++inactive;
      continue;
    }
    const std::string owner = "Member " + Id(b.id);
    Member mb;
    mb.id = b.id;
    mb.nodes = {nodes.At(b.nodes[0], owner), nodes.At(b.nodes[1], owner)};
    mb.section = Reference(b.sect, doc.sections.size(), owner, "section");
    mb.rigid = doc.sections[mb.section].IsRigidLink();
    if (!mb.rigid) mb.material = Reference(b.mat, doc.materials.size(), owner, "material");
    mb.angleDeg = b.angle;
    mb.axial = b.nonlinear == fmNonlinear::TensionOnly       ? AxialBehaviour::TensionOnly
               : b.nonlinear == fmNonlinear::CompressionOnly ? AxialBehaviour::CompressionOnly
                                                             : AxialBehaviour::Linear;
    m.members.push_back(mb);
  }
  for (const fmShell4& e : doc.shells) {
    if (e.IsInactive()) {
      ++inactive;
      continue;
    }
    const std::string owner = "Shell " + Id(e.id);
    Shell sh;
    sh.id = e.id;
    for (size_t a = 0; a < 4; ++a) sh.nodes[a] = nodes.At(e.nodes[a], owner);
    sh.material = Reference(e.mat, doc.materials.size(), owner, "material");
    sh.thickness = doc.thicknesses[Reference(e.thick, doc.thicknesses.size(), owner, "thickness")].thickness * fl;
    m.shells.push_back(sh);
  }
  for (const fmBrick& e : doc.bricks) {
    if (e.IsInactive()) {
      ++inactive;
      continue;
    }
    const std::string owner = "Brick " + Id(e.id);
    Brick br;
    br.id = e.id;
    for (size_t a = 0; a < 8; ++a) br.nodes[a] = nodes.At(e.nodes[a], owner);
    br.material = Reference(e.mat, doc.materials.size(), owner, "material");
    m.bricks.push_back(br);
  }
  if (inactive > 0) out.notes.push_back(Id(static_cast<int64_t>(inactive)) + " inactive elements left out");

  for (const fmSupport& sp : doc.supports) {
    Support support{nodes.At(sp.node, "A support"), sp.restrained, {}};
    for (int d = 0; d < 6; ++d) support.value[static_cast<size_t>(d)] = sp.displacement[static_cast<size_t>(d)] * s.Motion(d);
    m.supports.push_back(support);
  }
  for (const fmNodalSpring& sp : doc.nodalSprings) {
    NodalSpring ns;
    ns.node = nodes.At(sp.node, "A nodal spring");
    for (int d = 0; d < 6; ++d) ns.k[static_cast<size_t>(d)] = sp.k[static_cast<size_t>(d)] * s.Spring(d);
    m.nodalSprings.push_back(ns);
  }
  for (const fmCoupledSpring& sp : doc.coupledSprings) {
    CoupledSpring cs;
    cs.node = nodes.At(sp.node, "A coupled spring");
    for (int t = 0; t < fmCoupledSpring::kTermCount; ++t) {
      const int kind = fmCoupledSpring::TermKind(t);
      cs.k[static_cast<size_t>(t)] = sp.k[static_cast<size_t>(t)] * s(kind == 0   ? fmUnit::NodeSpring
                                                                       : kind == 1 ? fmUnit::NodeRotationalSpring
                                                                                   : fmUnit::Force);
    }
    m.coupledSprings.push_back(cs);
  }
  // Springs and releases of inactive elements go with them.
  std::unordered_map<uint32_t, size_t> memberAt, shellAt;
  for (size_t i = 0; i < m.members.size(); ++i) memberAt.emplace(m.members[i].id, i);
  for (size_t i = 0; i < m.shells.size(); ++i) shellAt.emplace(m.shells[i].id, i);
  for (const fmLineSpring& sp : doc.lineSprings)
    if (const auto at = memberAt.find(sp.member); at != memberAt.end())
      m.lineSprings.push_back({at->second, {sp.k[0] * s(fmUnit::LineSpring), sp.k[1] * s(fmUnit::LineSpring),
                                            sp.k[2] * s(fmUnit::LineSpring)}});
  for (const fmSurfaceSpring& sp : doc.surfaceSprings)
    if (const auto at = shellAt.find(sp.shell); at != shellAt.end())
      m.surfaceSprings.push_back({at->second, {sp.k[0] * s(fmUnit::AreaSpring), sp.k[1] * s(fmUnit::AreaSpring),
                                               sp.k[2] * s(fmUnit::AreaSpring)}});
  for (const fmMemberRelease& r : doc.releases)
    if (const auto at = memberAt.find(r.member); at != memberAt.end()) m.members[at->second].releases = r.released;
  for (const fmConstraint& c : doc.constraints) {
    const std::string owner = "Constraint " + Id(c.id);
    m.constraints.push_back({c.id, {nodes.At(c.node[0], owner), nodes.At(c.node[1], owner)}, {c.dof[0], c.dof[1]}});
  }
  for (const fmDiaphragm& d : doc.diaphragms) {
    const std::string owner = "Diaphragm " + Id(d.id);
    Diaphragm diaphragm;
    for (uint32_t id : DiaphragmNodes(d, doc.nodes)) diaphragm.nodes.push_back(nodes.At(id, owner));
    if (diaphragm.nodes.size() > 1) m.diaphragms.push_back(std::move(diaphragm));
  }

  AddCaseLoads(doc, nodes, out);
  for (const fmLoadComb& comb : doc.loadCombs) {
    Combination c;
    c.name = comb.name;
    for (const fmLoadCombItem& item : comb.items) {
      const int k = FindCaseIndex(doc.loadCases, item.caseName);
      if (k < 0)
        throw AnalysisError("Combination \"" + comb.name + "\" names load case \"" + item.caseName +
                            "\", which the model does not have.");
      c.terms.push_back({static_cast<size_t>(k), item.factor});
    }
    m.combinations.push_back(std::move(c));
  }
  return out;
}

namespace {

fmResult6Val Record(int32_t number, const Eigen::VectorXd& v, size_t node, const Scale& s, bool forces) {
  fmResult6Val r;
  r.number = number;
  for (int d = 0; d < 6; ++d)
    r.v[static_cast<size_t>(d)] = v[static_cast<Eigen::Index>(GlobalDof(node, d))] / (forces ? s.Action(d) : s.Motion(d));
  return r;
}

fmResult6Val Record(int32_t number, const std::array<double, 6>& v, const Scale& s) {
  fmResult6Val r;
  r.number = number;
  for (int d = 0; d < 6; ++d) r.v[static_cast<size_t>(d)] = v[static_cast<size_t>(d)] / s.Action(d);
  return r;
}

std::vector<fmResult6Val> NodeRecords(const Model& m, const Eigen::VectorXd& v, const Scale& s, bool forces) {
  std::vector<fmResult6Val> out;
  out.reserve(m.nodes.size());
  for (size_t n = 0; n < m.nodes.size(); ++n) out.push_back(Record(static_cast<int32_t>(m.nodes[n].id), v, n, s, forces));
  return out;
}

std::vector<fmResult6Val> SupportRecords(const Model& m, const Eigen::VectorXd& reaction, const Scale& s) {
  std::vector<fmResult6Val> out;
  for (const Support& sp : m.supports) out.push_back(Record(static_cast<int32_t>(m.nodes[sp.node].id), reaction, sp.node, s, true));
  return out;
}

// The records a run keeps as its input, carried into the document's units.
void ConvertInputRecords(fmSolution& r, const fmUnit& to) {
  const Scale from{r.units}, dest{to};
  for (auto& l : r.nodalLoads) l.magnitude *= from.Action(l.direction) / dest.Action(l.direction);
  for (auto& nm : r.nodalMasses) {
    const double f = nm.direction < 3 ? 1 : from(fmUnit::Length) * from(fmUnit::Length) / (dest(fmUnit::Length) * dest(fmUnit::Length));
    nm.magnitude *= f * from(fmUnit::Force) / dest(fmUnit::Force);
  }
  r.units = to;
}

const fmResponseSpectrum* FindSpectrum(const std::vector<fmResponseSpectrum>& spectra, const std::string& name) {
  for (const auto& s : spectra)
    if (tools::LabelsEqual(s.name, name)) return &s;
  return nullptr;
}

}  // namespace

AnalysisSummary AnalyseDocument(model::ModelDocument& doc, const AnalysisRequest& request, const Progress& progress) {
  AnalysisSummary summary;
  const DocumentModel dm = ModelFromDocument(doc);
  const Model& m = dm.model;
  for (const std::string& note : dm.notes) summary.lines.push_back("Note: " + note);

  const bool spectrum = request.modes > 0 && doc.spectrumAnalysis.enabled;
  SpectrumSettings settings;
  if (spectrum) {
    const model::SpectrumSettingsCheck check = model::CheckSpectrumSettings(doc.spectrumAnalysis, request.spectra);
    if (!check.ok()) throw AnalysisError(check.message);
    for (size_t d = 0; d < 3; ++d) {
      settings.factor[d] = doc.spectrumAnalysis.factor[d];
      const std::string& name = doc.spectrumAnalysis.spectrum[d];
      if (name.empty()) continue;
      if (const fmResponseSpectrum* curve = FindSpectrum(request.spectra, name))
        for (const fmSpectrumPoint& p : curve->points) settings.curves[d].points.push_back({p.period, p.acceleration});
    }
    settings.absoluteSum = doc.spectrumAnalysis.combination == "ABSSUM";
  }

  const StaticResults st = SolveLinearStatic(m, progress);
  summary.lines.push_back(tools::Format("Static: %d load cases, %d combinations, %d equations, %d held automatically",
                                        static_cast<int>(m.cases.size()), static_cast<int>(m.combinations.size()),
                                        static_cast<int>(st.equations), static_cast<int>(st.autoHeld.size())));
  // Per result, the applied forces against what the supports and springs give back.
  const double fu = s_Force(doc.units);
  for (const StaticResult& r : st.results) {
    double load[3] = {0, 0, 0}, back[3] = {0, 0, 0};
    for (Eigen::Index i = 0; i < r.load.size(); ++i)
      if (i % 6 < 3) {
        load[i % 6] += r.load[i];
        back[i % 6] += r.reaction[i];
      }
    for (const auto* springs : {&r.nodalSprings, &r.coupledSprings, &r.lineSprings, &r.surfaceSprings})
      for (const auto& f : *springs)
        for (int d = 0; d < 3; ++d) back[d] += f[static_cast<size_t>(d)];
    summary.lines.push_back(tools::Format("%s: loads X %.6g Y %.6g Z %.6g; reactions X %.6g Y %.6g Z %.6g (%s)", r.name.c_str(),
                                          load[0] / fu, load[1] / fu, load[2] / fu, back[0] / fu, back[1] / fu,
                                          back[2] / fu, doc.units.Label(fmUnit::Force).c_str()));
  }
  ModalResults modal;
  SpectrumResults sr;
  if (request.modes > 0) {
    modal = SolveModes(m, request.modes, request.masses, progress);
    summary.lines.push_back(tools::Format("Modal: %d modes, %s masses", static_cast<int>(modal.modes.size()),
                                          MassModelName(request.masses)));
    for (size_t i = 0; i < modal.modes.size(); ++i)
      summary.lines.push_back(tools::Format("Mode %d: period %.4g s, error %.2e", static_cast<int>(i + 1),
                                            PeriodOf(modal.modes[i].omega2), modal.modes[i].error));
    if (spectrum) sr = SolveResponseSpectrum(m, modal, settings);
  }

  // Everything is computed: now the document changes.
  fmSolution out;
  const fmSolution& old = doc.results;
  out.units = doc.units;
  const Scale s{doc.units};
  fmSolution kept = old;
  ConvertInputRecords(kept, doc.units);
  out.nodalLoads = kept.nodalLoads;
  out.nodalMasses = kept.nodalMasses;
  // Element results of a combination are formed from its cases when asked, unless members
  // that switch off make the combination a problem of its own.
  const bool superposes = std::none_of(m.members.begin(), m.members.end(),
                                       [](const Member& b) { return b.axial != AxialBehaviour::Linear; });
  const int stations = std::max(request.memberStations, 2);

  for (size_t i = 0; i < st.results.size(); ++i) {
    const StaticResult& r = st.results[i];
    const bool isCase = i < doc.loadCases.size();
    out.cases.emplace_back(static_cast<int32_t>(i + 1), r.name, isCase ? doc.loadCases[i].type : std::string());
    fmCaseResults cr;
    cr.displacements = NodeRecords(m, r.displacement, s, false);
    cr.reactions = SupportRecords(m, r.reaction, s);
    for (size_t k = 0; k < m.nodalSprings.size(); ++k)
      cr.nodalSpringReactions.push_back(Record(static_cast<int32_t>(m.nodes[m.nodalSprings[k].node].id), r.nodalSprings[k], s));
    for (size_t k = 0; k < m.coupledSprings.size(); ++k)
      cr.coupledSpringReactions.push_back(Record(static_cast<int32_t>(m.nodes[m.coupledSprings[k].node].id), r.coupledSprings[k], s));
    for (size_t k = 0; k < m.lineSprings.size() && k < r.lineSprings.size(); ++k)
      cr.lineSpringReactions.push_back(Record(static_cast<int32_t>(m.members[m.lineSprings[k].member].id), r.lineSprings[k], s));
    for (size_t k = 0; k < m.surfaceSprings.size() && k < r.surfaceSprings.size(); ++k)
      cr.surfaceSpringReactions.push_back(Record(static_cast<int32_t>(m.shells[m.surfaceSprings[k].shell].id), r.surfaceSprings[k], s));
    for (size_t k = 0; k < m.constraints.size() && k < r.constraints.size(); ++k) {
      const Constraint& c = m.constraints[k];
      fmConstraintForce f;
      f.id = static_cast<int32_t>(c.id);
      for (size_t end = 0; end < 2; ++end) {
        f.node[end] = static_cast<int32_t>(m.nodes[c.nodes[end]].id);
        f.dof[end] = c.dofs[end];
        f.value[end] = r.constraints[k][end] / s.Action(c.dofs[end]);
      }
      cr.constraintForces.push_back(f);
    }
    if (isCase || !superposes) WriteElementResults(m, r.displacement, r.terms, r.activeMembers, doc.units, stations, cr);
    out.results.push_back(std::move(cr));
  }
  for (const Mode& mode : modal.modes) {
    fmEigenMode em;
    em.omega2 = mode.omega2;
    em.error = mode.error;
    em.shape = NodeRecords(m, mode.shape, s, false);
    double largest = 0;
    for (const auto& rec : em.shape)
      for (int d = 0; d < 3; ++d) largest = std::max(largest, std::abs(rec.v[static_cast<size_t>(d)]));
    if (largest > 0)
      for (auto& rec : em.shape)
        for (double& v : rec.v) v /= largest;
    out.eigenModes.push_back(std::move(em));
  }
  if (spectrum) {
    for (const SpectrumMode& sm : sr.modes) {
      fmSpectrumMode rec;
      rec.omega2 = sm.omega2;
      rec.participation = sm.participation;
      for (size_t d = 0; d < 3; ++d) {
        rec.displacements[d] = NodeRecords(m, sm.displacement[d], s, false);
        rec.inertialForces[d] = NodeRecords(m, sm.inertialForce[d], s, true);
      }
      out.spectrumModes.push_back(std::move(rec));
    }
    out.spectrum.displacements = NodeRecords(m, sr.displacement, s, false);
    out.spectrum.reactions = SupportRecords(m, sr.reaction, s);
    std::vector<std::array<Eigen::VectorXd, 3>> modalDisplacements;
    for (const SpectrumMode& sm : sr.modes) modalDisplacements.push_back(sm.displacement);
    WriteSpectrumElementResults(m, modalDisplacements, settings.factor, settings.absoluteSum, doc.units, stations,
                                out.spectrum);
  }
  doc.results = std::move(out);
  return summary;
}

}  // namespace analysis
