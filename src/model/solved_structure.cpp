#include "model/solved_structure.h"

#include <algorithm>
#include <unordered_set>

#include "tools/format.h"

namespace model {

namespace {

// A member whose axis is nearer the vertical (Y) than the horizontal is a column.
bool IsColumn(const fmBm& b, const CfmStruct& s) {
  const fmNd* a = s.FindNode(b.nodes[0]);
  const fmNd* e = s.FindNode(b.nodes[1]);
  if (!a || !e) return false;
  const double dx = e->x - a->x, dy = e->y - a->y, dz = e->z - a->z;
  return dy * dy > dx * dx + dz * dz;
}

}  // namespace

CfmStruct SolvedStructure(const ModelDocument& doc) {
  CfmStruct s;
  s.m_Units = doc.units;
  s.m_DisplayFormat = doc.display.format;
  s.m_nShowSelected = doc.display.showSelectedOnly ? 1 : 0;
  s.m_Nodes = doc.nodes;
  s.m_Materials = doc.materials;
  s.m_Sections = doc.sections;
  s.m_Thicknesses = doc.thicknesses;
  s.m_Members.reserve(doc.members.size());
  for (const fmBm& b : doc.members) {
    CfmStruct::Member m;
    m.id = b.id;
    m.flags = b.flags;
    m.node = b.nodes;
    m.material = b.mat;
    m.section = b.sect;
    m.angle = b.angle;
    m.nonlinearity = static_cast<int32_t>(b.nonlinear);
    m.column = IsColumn(b, s);
    s.m_Members.push_back(std::move(m));
  }
  for (const fmShell4& e : doc.shells) {
    CfmStruct::Shell4 shell;
    shell.id = e.id;
    shell.flags = e.flags;
    shell.node = e.nodes;
    shell.material = e.mat;
    shell.thickness = e.thick;
    shell.angle = e.angle;
    s.m_Shells.push_back(std::move(shell));
  }
  for (const fmBrick& e : doc.bricks) {
    CfmStruct::Brick brick;
    brick.id = e.id;
    brick.flags = e.flags;
    brick.node = e.nodes;
    brick.material = e.mat;
    s.m_Bricks.push_back(brick);
  }
  s.m_Supports = doc.supports;
  s.m_NodalSprings = doc.nodalSprings;
  s.m_CoupledSprings = doc.coupledSprings;
  s.m_LineSprings = doc.lineSprings;
  s.m_SurfaceSprings = doc.surfaceSprings;
  s.m_DriftNodes = doc.driftNodes;
  s.m_EnvelopeCombinations = doc.envelopeCombinations;
  s.m_Solution = doc.results;
  s.m_LoadCases = doc.loadCases;
  s.m_LoadCombs = doc.loadCombs;
  s.m_CaseLoads = doc.caseLoads;
  s.m_nShellResultLocation = doc.display.shellResultLocation;
  s.m_Counts.beamReleases = static_cast<int>(doc.releases.size());
  if (s.m_Solution.cases.empty()) {
    // Never solved: the cases and combinations are listed and their results are missing.
    s.m_Solution.cases = doc.loadCases;
    for (const fmLoadComb& comb : doc.loadCombs)
      s.m_Solution.cases.emplace_back(static_cast<int32_t>(s.m_Solution.cases.size() + 1), comb.name);
  }
  return s;
}

std::vector<std::string> CheckSolution(const ModelDocument& doc, size_t limit) {
  const auto idsOf = [](const auto& records) {
    std::unordered_set<int64_t> ids;
    ids.reserve(records.size() * 2);
    for (const auto& r : records) ids.insert(r.id);
    return ids;
  };
  const std::unordered_set<int64_t> nodes = idsOf(doc.nodes), members = idsOf(doc.members),
                                    shells = idsOf(doc.shells), bricks = idsOf(doc.bricks);

  std::vector<std::string> lines;
  size_t more = 0;
  auto add = [&](std::string line) {
    if (lines.size() < limit)
      lines.push_back(std::move(line));
    else
      ++more;
  };
  auto check = [&](const std::string& where, const char* what, const std::vector<fmResult6Val>& records,
                   const std::unordered_set<int64_t>& ids, const char* word) {
    for (const fmResult6Val& r : records)
      if (!ids.count(r.number)) {
        add(tools::Format("%s: %s name %s %d, which the model does not have", where.c_str(), what, word, r.number));
        return;  // one line per vector is enough to find it
      }
  };
  auto checkNodes = [&](const std::string& where, const char* what, const std::vector<fmResult6Val>& records) {
    check(where, what, records, nodes, "node");
  };
  auto checkConstraints = [&](const std::string& where, const std::vector<fmConstraintForce>& forces) {
    for (const fmConstraintForce& f : forces)
      for (int32_t node : f.node)
        if (!nodes.count(node)) {
          add(tools::Format("%s: constraint forces name node %d, which the model does not have", where.c_str(), node));
          return;
        }
  };
  auto checkCase = [&](const std::string& where, const fmCaseResults& r) {
    checkNodes(where, "displacements", r.displacements);
    checkNodes(where, "support reactions", r.reactions);
    checkNodes(where, "nodal spring reactions", r.nodalSpringReactions);
    checkNodes(where, "coupled spring reactions", r.coupledSpringReactions);
    check(where, "line spring reactions", r.lineSpringReactions, members, "member");
    check(where, "surface spring reactions", r.surfaceSpringReactions, shells, "shell");
    checkConstraints(where, r.constraintForces);
    // Element results name their element as `number`.
    auto checkElements = [&](const char* what, const auto& records, const std::unordered_set<int64_t>& ids,
                             const char* word) {
      for (const auto& e : records)
        if (!ids.count(e.number)) {
          add(tools::Format("%s: %s name %s %d, which the model does not have", where.c_str(), what, word, e.number));
          return;
        }
    };
    checkElements("member stations", r.memberStations, members, "member");
    checkElements("shell forces", r.shellForces, shells, "shell");
    checkElements("shell nodal resultants", r.shellResultants, shells, "shell");
    checkElements("shell top stresses", r.shellStresses[0], shells, "shell");
    checkElements("shell bottom stresses", r.shellStresses[1], shells, "shell");
    checkElements("brick stresses", r.brickStresses, bricks, "brick");
  };

  const fmSolution& s = doc.results;
  for (size_t i = 0; i < s.cases.size() && i < s.results.size(); ++i) {
    const std::string where = "results of \"" + s.cases[i].name + "\"";
    const fmCaseResults& r = s.results[i];
    checkCase(where, r);
    if (!r.displacements.empty() && r.displacements.size() < doc.nodes.size())
      add(tools::Format("%s: displacements of %zu of the model's %zu nodes", where.c_str(), r.displacements.size(),
                        doc.nodes.size()));
  }
  for (size_t m = 0; m < s.eigenModes.size(); ++m)
    checkNodes(tools::Format("mode %zu", m + 1), "the mode shape's records", s.eigenModes[m].shape);
  checkCase("response spectrum combination", s.spectrum);
  if (more > 0) lines.push_back(tools::Format("... and %zu more", more));
  return lines;
}

}  // namespace model
