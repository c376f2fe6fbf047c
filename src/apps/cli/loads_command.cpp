#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <type_traits>

#include "apps/cli/cli.h"
#include "model/document.h"
#include "model/moving_load.h"
#include "model/pattern_load.h"
#include "tools/format.h"
#include "tools/parse.h"

namespace cli {
namespace {

std::string G(double v) { return tools::FormatG(v); }
const char* Dir(int32_t d) { return LoadDirectionNames()[static_cast<size_t>(d < 0 || d > 5 ? 0 : d)]; }
const char* Sys(bool local) { return local ? "local" : "global"; }

// The loads of one case, one line each, in the document's units.
void PrintCaseLoads(const model::ModelDocument& doc, const fmCaseLoad& cl, std::ostream& out) {
  const fmUnit& u = doc.units;
  const auto length = [&](uint32_t member, double ratio) {
    for (const fmBm& m : doc.members)
      if (m.id == member) {
        model::LoadGenerator g;
        g.m_pNodes = &doc.nodes;
        return G(ratio * g.MemberLength(m));
      }
    return std::string("?");
  };
  if (cl.selfWeight.factor != 0)
    out << "  Self weight: " << G(cl.selfWeight.factor) << " x weight along " << Dir(cl.selfWeight.direction) << "\n";
  for (const auto& l : cl.nodal)
    out << tools::Format("  Nodal load: node %u  %s  %s %s\n", l.node, Dir(l.direction), G(l.magnitude).c_str(),
                         u.Label(l.direction < 3 ? fmUnit::Force : fmUnit::Moment).c_str());
  for (const auto& l : cl.point)
    out << tools::Format("  Point load: member %u  ratio %s (%s %s)  %s %s  %s %s\n", l.member, G(l.ratio).c_str(),
                         length(l.member, l.ratio).c_str(), u.Label(fmUnit::Length).c_str(), Dir(l.direction),
                         Sys(l.local), G(l.magnitude).c_str(),
                         u.Label(l.direction < 3 ? fmUnit::Force : fmUnit::Moment).c_str());
  for (const auto& l : cl.line)
    out << tools::Format("  Line load: member %u  ratio %s to %s (%s to %s %s)  %s %s  %s to %s %s\n", l.member,
                         G(l.ratio[0]).c_str(), G(l.ratio[1]).c_str(), length(l.member, l.ratio[0]).c_str(),
                         length(l.member, l.ratio[1]).c_str(), u.Label(fmUnit::Length).c_str(), Dir(l.direction),
                         Sys(l.local), G(l.magnitude[0]).c_str(), G(l.magnitude[1]).c_str(),
                         u.Label(l.direction < 3 ? fmUnit::LinearForce : fmUnit::LinearMoment).c_str());
  for (const auto& l : cl.surface)
    out << tools::Format("  Surface load: shell %u  %s %s  %s %s\n", l.shell, Dir(l.direction), Sys(l.local),
                         G(l.magnitude).c_str(), u.Label(fmUnit::SurfaceForce).c_str());
  for (const auto& l : cl.area) {
    std::string nodes;
    for (uint32_t n : l.nodes) {
      if (!nodes.empty()) nodes += ',';
      nodes += tools::FormatInt(n);
    }
    out << tools::Format("  Area load: nodes %s  %s  %s %s  %s\n", nodes.c_str(), Dir(l.direction),
                         G(l.magnitude).c_str(), u.Label(fmUnit::SurfaceForce).c_str(),
                         l.distribution == fmAreaLoad::OneWay ? "one-way" : "two-way");
  }
  const auto thermal = [&](const char* what, const std::vector<fmThermalLoad>& list) {
    for (const auto& l : list)
      out << tools::Format("  Thermal load: %s %u  %s %s\n", what, l.element, G(l.temperature).c_str(),
                           u.Label(fmUnit::Temperature).c_str());
  };
  thermal("member", cl.memberThermal);
  thermal("shell", cl.shellThermal);
  thermal("brick", cl.brickThermal);
  for (const auto& m : cl.nodalMasses)
    out << tools::Format("  Nodal mass: node %u  %s  weight %s\n", m.node, Dir(m.direction), G(m.weight).c_str());
  if (cl.massFactor != 0) out << "  Mass factor: " << G(cl.massFactor) << "\n";
  if (cl.IsEmpty()) out << "  None\n";
}

void PrintCase(const model::ModelDocument& doc, size_t i, std::ostream& out) {
  out << tools::Format("%zu: %s (%s)\n", i + 1, doc.loadCases[i].name.c_str(), doc.loadCases[i].type.c_str());
  PrintCaseLoads(doc, doc.caseLoads[i], out);
}

// A case number from 1, as the drop-downs list them.
bool CaseIndex(const model::ModelDocument& doc, const std::string& text, int& index, std::ostream& err) {
  const auto n = tools::ParseInt32(tools::Trim(text));
  if (!n || *n < 1 || static_cast<size_t>(*n) > doc.loadCases.size()) {
    err << "norvane-cli: bad load case \"" << text << "\": cases are numbered 1 to " << doc.loadCases.size()
        << " (see: norvane-cli loads list MODEL)\n";
    return false;
  }
  index = *n - 1;
  return true;
}

bool ParsePath(const std::string& text, std::vector<int64_t>& path, std::ostream& err) {
  path.clear();
  size_t start = 0;
  while (start < text.size()) {
    const size_t comma = std::min(text.find(',', start), text.size());
    const std::string item(tools::Trim(std::string_view(text).substr(start, comma - start)));
    const auto id = tools::ParseInt(item);
    if (!id) {
      err << "norvane-cli: bad member id \"" << item << "\" in --path (member ids separated by commas)\n";
      return false;
    }
    path.push_back(*id);
    start = comma + 1;
  }
  return true;
}

struct Args {
  std::string model, caseNumber, step, path, ratio = "1", out;
  bool biDirectional = false, yes = false;
  std::string selfWeight, nodes, direction, magnitude;
};

// Node ids as "3,5,8-12".
bool ParseNodeIds(const std::string& text, std::vector<uint32_t>& ids, std::ostream& err) {
  const auto bad = ForEachNumberRange(text, [&](uint32_t first, uint32_t last) {
    if (first == 0 || last - first > 1000000) return false;
    for (uint32_t id = first; id <= last; ++id) ids.push_back(id);
    return true;
  });
  if (bad) err << "norvane-cli: bad node \"" << *bad << "\" in --nodes (ids and ranges separated by commas: 3,5,8-12)\n";
  return !bad;
}

// Adds self weight and nodal loads to a case.
int Add(const Args& a, std::ostream& out, std::ostream& err) {
  model::ModelDocument doc = model::LoadModelDocument(a.model);
  int index = 0;
  if (!CaseIndex(doc, a.caseNumber, index, err)) return kUsage;
  fmCaseLoad& cl = doc.caseLoads[static_cast<size_t>(index)];
  if (a.selfWeight.empty() && a.nodes.empty()) {
    err << "norvane-cli: nothing to add: give --self-weight F, or --nodes with --direction and --magnitude\n";
    return kUsage;
  }
  if (!a.selfWeight.empty()) {
    const auto factor = tools::ParseDouble(tools::Trim(a.selfWeight));
    if (!factor) {
      err << "norvane-cli: bad --self-weight \"" << a.selfWeight << "\": a factor of the weight along Y (-1 is gravity)\n";
      return kUsage;
    }
    cl.selfWeight = {1, *factor};
  }
  if (!a.nodes.empty()) {
    std::vector<uint32_t> ids;
    if (!ParseNodeIds(a.nodes, ids, err)) return kUsage;
    int direction = -1;
    for (size_t d = 0; d < 6; ++d)
      if (tools::EqualsNoCase(tools::Trim(a.direction), LoadDirectionNames()[d])) direction = static_cast<int>(d);
    const auto magnitude = tools::ParseDouble(tools::Trim(a.magnitude));
    if (direction < 0 || !magnitude) {
      err << "norvane-cli: nodal loads need --direction X, Y, Z, OX, OY or OZ and a --magnitude in the model's "
             "force or moment unit\n";
      return kUsage;
    }
    for (uint32_t id : ids) {
      if (std::none_of(doc.nodes.begin(), doc.nodes.end(), [&](const fmNd& n) { return n.id == id; })) {
        err << "norvane-cli: node " << id << " is not in the model\n";
        return kRefused;
      }
      cl.nodal.push_back({id, direction, *magnitude});
    }
  }
  PrintCase(doc, static_cast<size_t>(index), out);
  return WriteModelIfAsked(doc, a.out, {out, err});
}

int List(const Args& a, std::ostream& out, std::ostream& err) {
  const model::ModelDocument doc = model::LoadModelDocument(a.model);
  if (!a.caseNumber.empty()) {
    int index = 0;
    if (!CaseIndex(doc, a.caseNumber, index, err)) return kUsage;
    PrintCase(doc, static_cast<size_t>(index), out);
    return kOk;
  }
  for (size_t i = 0; i < doc.loadCases.size(); ++i) PrintCase(doc, i, out);
  if (doc.loadCases.empty()) out << "No load cases.\n";
  return kOk;
}

// Prints what a generator added and writes the model when asked.
int Report(const model::ModelDocument& doc, size_t cases, size_t combs, const Args& a, std::ostream& out,
           std::ostream& err) {
  for (size_t i = cases; i < doc.loadCases.size(); ++i) PrintCase(doc, i, out);
  for (size_t i = combs; i < doc.loadCombs.size(); ++i) {
    out << "Combination " << doc.loadCombs[i].name << ":";
    for (const fmLoadCombItem& item : doc.loadCombs[i].items) out << " " << G(item.factor) << " " << item.caseName;
    out << "\n";
  }
  out << tools::Format("%zu load case%s and %zu load combination%s generated.\n", doc.loadCases.size() - cases,
                       doc.loadCases.size() - cases == 1 ? "" : "s", doc.loadCombs.size() - combs,
                       doc.loadCombs.size() - combs == 1 ? "" : "s");
  return WriteModelIfAsked(doc, a.out, {out, err});
}

template <class Generator>
int Generate(const Args& a, std::ostream& out, std::ostream& err) {
  model::ModelDocument doc = model::LoadModelDocument(a.model);
  Generator g;
  g.m_pMembers = &doc.members;
  g.m_pNodes = &doc.nodes;
  g.m_pLoadCases = &doc.loadCases;
  g.m_pCaseLoads = &doc.caseLoads;
  g.m_pLoadCombs = &doc.loadCombs;
  if (!CaseIndex(doc, a.caseNumber, g.m_nCase, err)) return kUsage;
  std::vector<int64_t> path;
  if (!ParsePath(a.path, path, err)) return kUsage;
  bool declined = false;
  const auto ask = [&](const std::string& question) {
    if (a.yes) return true;
    err << question << "\n(answered No; give --yes to continue)\n";
    declined = true;
    return false;
  };
  const size_t cases = doc.loadCases.size(), combs = doc.loadCombs.size();
  bool generated = false;
  if constexpr (std::is_same_v<Generator, model::MovingLoadGenerator>) {
    const auto step = tools::ParseDouble(tools::Trim(a.step));
    if (!step) {
      err << "norvane-cli: bad --step \"" << a.step << "\": a length in the model's length unit\n";
      return kUsage;
    }
    generated = g.Run(path, *step, a.biDirectional, ask);
  } else {
    const auto ratio = tools::ParseDouble(tools::Trim(a.ratio));
    if (!ratio) {
      err << "norvane-cli: bad --ratio \"" << a.ratio << "\": a number\n";
      return kUsage;
    }
    g.m_dRatio = *ratio;
    generated = g.Run(path, ask);
  }
  for (const std::string& refusal : g.Refusals()) err << refusal << "\n";
  if (!generated) {
    if (g.Refusals().empty() && !declined) err << "No point load of the case is on the path: nothing generated.\n";
    return kRefused;
  }
  return Report(doc, cases, combs, a, out, err);
}

}  // namespace

void AddLoadsCommand(Program& program) {
  CLI::App* loads = program.Add(program.root(), "loads", "the loads of the load cases, moving and pattern loads",
                                nullptr);
  auto a = std::make_shared<Args>();
  CLI::App* list = program.Add(*loads, "list", "print the loads of every load case (or of one)",
                               [a](Io io) { return List(*a, io.out, io.err); });
  list->add_option("MODEL", a->model, "the model document")->required();
  list->add_option("--case", a->caseNumber, "only this load case, numbered from 1")->type_name("N");

  CLI::App* add = program.Add(*loads, "add", "add self weight or nodal loads to a load case",
                              [a](Io io) { return Add(*a, io.out, io.err); });
  add->add_option("MODEL", a->model, "the model document")->required();
  add->add_option("--case", a->caseNumber, "the load case, numbered from 1")->type_name("N")->required();
  add->add_option("--self-weight", a->selfWeight, "the case carries F times the elements' weight along Y (-1: gravity)")
      ->type_name("F");
  add->add_option("--nodes", a->nodes, "nodal loads at these nodes: 3,5,8-12")->type_name("LIST");
  add->add_option("--direction", a->direction, "of the nodal loads")->type_name("X|Y|Z|OX|OY|OZ");
  add->add_option("--magnitude", a->magnitude, "of each nodal load, in the model's force or moment unit")
      ->type_name("V");
  add->add_option("-o", a->out, "write the model with the loads to OUT")->type_name("OUT");

  CLI::App* move = program.Add(*loads, "move", "move the point loads of a case along a path of members",
                               [a](Io io) { return Generate<model::MovingLoadGenerator>(*a, io.out, io.err); });
  move->add_option("MODEL", a->model, "the model document")->required();
  move->add_option("--case", a->caseNumber, "the moving load case, numbered from 1")->type_name("N")->required();
  move->add_option("--step", a->step, "the moving step, a length; negative reverses the path")
      ->type_name("S")
      ->required();
  move->add_option("--path", a->path, "member ids in the order the load travels: 3,4,5")
      ->type_name("LIST")
      ->required();
  move->add_flag("--bidirectional", a->biDirectional, "move along the path and back (the sign of the step is ignored)");
  move->add_flag("--yes", a->yes, "continue when the members are not connected in sequence");
  move->add_option("-o", a->out, "write the model with the generated cases to OUT")->type_name("OUT");

  CLI::App* pattern =
      program.Add(*loads, "pattern", "odd, even and adjacent-span patterns of a case's point and line loads",
                  [a](Io io) { return Generate<model::PatternLoadGenerator>(*a, io.out, io.err); });
  pattern->add_option("MODEL", a->model, "the model document")->required();
  pattern->add_option("--case", a->caseNumber, "the pattern load case, numbered from 1")->type_name("N")->required();
  pattern->add_option("--path", a->path, "the spans' member ids in order: 3,4,5")->type_name("LIST")->required();
  pattern->add_option("--ratio", a->ratio, "multiplies the loads of the loaded spans (1)")->type_name("R");
  pattern->add_flag("--yes", a->yes, "continue when the members are not connected in sequence");
  pattern->add_option("-o", a->out, "write the model with the generated cases to OUT")->type_name("OUT");
}

}  // namespace cli
