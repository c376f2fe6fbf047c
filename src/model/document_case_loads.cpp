#include <cmath>
#include <unordered_set>

#include "model/document_sections.h"
#include "model/id_index.h"
#include "tools/format.h"
#include "tools/fm_unit.h"

// The "caseLoads" section: one entry per load case, in case order, each naming its case so a
// hand-edited file cannot shift loads onto the wrong case unnoticed. Optional: documents
// written before loads were stored load with every case empty.
namespace model {
namespace {

IdSet Ids(const auto& records) { return IdSet(records); }

struct Known {
  IdSet nodes, members, shells, bricks;
};

uint32_t Reference(const JsonReader& item, const char* key, const IdSet& ids,
                   const char* table) {
  const uint32_t id = item.Id(key, key);
  if (!ids.count(id)) item.Member(key).Fail(tools::Format("%s %u is not in \"%s\"", key, id, table));
  return id;
}

int32_t Direction(const JsonReader& item, int count) {
  const std::string text = item.String("direction");
  const int d = LoadDirectionIndex(text);
  if (d < 0 || d >= count)
    item.Member("direction")
        .Fail(count == 3 ? "expected \"X\", \"Y\" or \"Z\", not \"" + text + "\""
                         : "expected \"X\", \"Y\", \"Z\", \"OX\", \"OY\" or \"OZ\", not \"" + text + "\"");
  return d;
}

bool Local(const JsonReader& item, bool fallback) {
  const std::string text = item.String("system", fallback ? "local" : "global");
  if (text != "global" && text != "local") item.Member("system").Fail("expected \"global\" or \"local\", not \"" + text + "\"");
  return text == "local";
}

double Ratio(const JsonReader& item, const char* key, double fallback) {
  const double r = item.Double(key, fallback);
  if (r < 0.0 || r > 1.0) item.Member(key).Fail(tools::Format("a ratio must be from 0 to 1, not %g", r));
  return r;
}

template <class T, class ReadOne>
void ReadList(const JsonReader& entry, const char* key, std::vector<T>& out, ReadOne readOne) {
  if (!entry.Has(key)) return;
  const JsonReader list = entry.Member(key);
  const size_t n = list.ArraySize();
  out.reserve(n);
  for (size_t i = 0; i < n; ++i) {
    const JsonReader item = list.At(i);
    item.RequireObject();
    out.push_back(readOne(item));
  }
}

void ReadThermal(const JsonReader& entry, const char* key, std::vector<fmThermalLoad>& out,
                 const IdSet& ids, const char* idKey, const char* table) {
  ReadList(entry, key, out, [&](const JsonReader& item) {
    return fmThermalLoad{Reference(item, idKey, ids, table), item.Double("temperature")};
  });
}

fmCaseLoad ReadCaseLoad(const JsonReader& entry, const Known& known) {
  fmCaseLoad cl;
  if (entry.Has("selfWeight")) {
    const JsonReader sw = entry.Member("selfWeight");
    sw.RequireObject();
    cl.selfWeight.direction = Direction(sw, 3);
    cl.selfWeight.factor = sw.Double("factor");
  }
  ReadList(entry, "nodal", cl.nodal, [&](const JsonReader& item) {
    return fmNodalLoad{Reference(item, "node", known.nodes, "nodes"), Direction(item, 6), item.Double("magnitude")};
  });
  ReadList(entry, "point", cl.point, [&](const JsonReader& item) {
    fmPtLoad l;
    l.member = Reference(item, "member", known.members, "members");
    l.ratio = Ratio(item, "ratio", 0.0);
    l.direction = Direction(item, 6);
    l.local = Local(item, false);
    l.magnitude = item.Double("magnitude");
    return l;
  });
  ReadList(entry, "line", cl.line, [&](const JsonReader& item) {
    fmLineLoad l;
    l.member = Reference(item, "member", known.members, "members");
    l.ratio = {Ratio(item, "startRatio", 0.0), Ratio(item, "endRatio", 1.0)};
    if (l.ratio[0] > l.ratio[1])
      item.Member("endRatio").Fail(tools::Format("the end ratio %g is before the start ratio %g", l.ratio[1], l.ratio[0]));
    l.magnitude = {item.Double("start"), item.Double("end")};
    l.direction = Direction(item, 6);
    l.local = Local(item, false);
    return l;
  });
  ReadList(entry, "surface", cl.surface, [&](const JsonReader& item) {
    fmSurfaceLoad l;
    l.shell = Reference(item, "shell", known.shells, "shells");
    l.direction = Direction(item, 3);
    l.local = Local(item, true);
    l.magnitude = item.Double("magnitude");
    return l;
  });
  ReadList(entry, "area", cl.area, [&](const JsonReader& item) {
    fmAreaLoad l;
    const JsonReader nodes = item.Member("nodes");
    const size_t n = nodes.ArraySize();
    if (n < 3) nodes.Fail(tools::Format("an area load needs at least 3 nodes, not %zu", n));
    for (size_t k = 0; k < n; ++k) {
      const JsonReader at = nodes.At(k);
      if (!at.value().is_number_unsigned() || at.value().get<uint64_t>() > UINT32_MAX) at.Fail("expected a node id");
      const uint32_t id = at.value().get<uint32_t>();
      if (!known.nodes.count(id)) at.Fail(tools::Format("node %u is not in \"nodes\"", id));
      l.nodes.push_back(id);
    }
    l.direction = Direction(item, 3);
    l.magnitude = item.Double("magnitude");
    const std::string rule = item.String("distribution", "two-way");
    if (rule != "two-way" && rule != "one-way")
      item.Member("distribution").Fail("expected \"two-way\" or \"one-way\", not \"" + rule + "\"");
    l.distribution = rule == "one-way" ? fmAreaLoad::OneWay : fmAreaLoad::TwoWay;
    return l;
  });
  ReadThermal(entry, "memberThermal", cl.memberThermal, known.members, "member", "members");
  ReadThermal(entry, "shellThermal", cl.shellThermal, known.shells, "shell", "shells");
  ReadThermal(entry, "brickThermal", cl.brickThermal, known.bricks, "brick", "bricks");
  ReadList(entry, "nodalMasses", cl.nodalMasses, [&](const JsonReader& item) {
    return fmNodalMass{Reference(item, "node", known.nodes, "nodes"), Direction(item, 6), item.Double("weight")};
  });
  cl.massFactor = entry.Double("massFactor", 0.0);
  SortPointLoads(cl.point);
  SortLineLoads(cl.line);
  return cl;
}

nlohmann::ordered_json System(bool local) { return local ? "local" : "global"; }
const char* Dir(int32_t d) { return LoadDirectionNames()[static_cast<size_t>(std::clamp(d, 0, 5))]; }

template <class T, class WriteOne>
void WriteList(nlohmann::ordered_json& entry, const char* key, const std::vector<T>& list, WriteOne writeOne) {
  if (list.empty()) return;
  nlohmann::ordered_json out = nlohmann::ordered_json::array();
  for (const T& l : list) out.push_back(writeOne(l));
  entry[key] = std::move(out);
}

// Documents written before loads had their own section carried nodal loads and masses only
// as copies in the results, in the results' units. Those at a node of the model and (for
// loads) of a case of the model become its loads, in the document's units; masses, which
// named no case, go to the first case.
void TakeOverResultCopies(ModelDocument& doc) {
  const IdSet nodes = Ids(doc.nodes);
  const auto known = [&](int32_t node) { return node > 0 && nodes.count(static_cast<uint32_t>(node)); };
  double f[fmUnit::QuantityCount];
  GetConversionFactors(f, doc.results.units, doc.units);
  for (const auto& l : doc.results.nodalLoads) {
    const int c = FindCaseIndex(doc.loadCases, l.caseName);
    if (c >= 0 && known(l.node) && l.direction >= 0 && l.direction < 6)
      doc.caseLoads[static_cast<size_t>(c)].nodal.push_back(
          {static_cast<uint32_t>(l.node), l.direction, l.magnitude * f[l.direction < 3 ? fmUnit::Force : fmUnit::Moment]});
  }
  if (doc.caseLoads.empty()) return;
  for (const auto& m : doc.results.nodalMasses)
    if (known(m.node) && m.direction >= 0 && m.direction < 6)
      doc.caseLoads[0].nodalMasses.push_back(
          {static_cast<uint32_t>(m.node), m.direction,
           m.magnitude * f[fmUnit::Force] * (m.direction < 3 ? 1.0 : f[fmUnit::Length] * f[fmUnit::Length])});
}

}  // namespace

void ReadCaseLoads(const JsonReader& root, ModelDocument& doc) {
  doc.caseLoads.assign(doc.loadCases.size(), fmCaseLoad{});
  // The case loads are the one source of loads: copies in the results are taken over by a
  // document that has no case loads yet, and are dropped either way, so they are never
  // written again.
  const bool hasSection = root.Has("caseLoads");
  if (!hasSection) TakeOverResultCopies(doc);
  doc.results.nodalLoads.clear();
  doc.results.nodalMasses.clear();
  if (!hasSection) return;
  const JsonReader list = root.Member("caseLoads");
  const size_t n = list.ArraySize();
  if (n != doc.loadCases.size())
    list.Fail(tools::Format("expected one entry per load case (%zu), not %zu", doc.loadCases.size(), n));
  const Known known{Ids(doc.nodes), Ids(doc.members), Ids(doc.shells), Ids(doc.bricks)};
  for (size_t i = 0; i < n; ++i) {
    const JsonReader entry = list.At(i);
    entry.RequireObject();
    const std::string label = entry.String("case");
    if (label != doc.loadCases[i].name)
      entry.Member("case").Fail(tools::Format("expected the label of load case %zu, \"%s\", not \"%s\"", i + 1,
                                              doc.loadCases[i].name.c_str(), label.c_str()));
    doc.caseLoads[i] = ReadCaseLoad(entry, known);
  }
}

void WriteCaseLoads(const ModelDocument& doc, nlohmann::ordered_json& root) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (size_t i = 0; i < doc.loadCases.size(); ++i) {
    static const fmCaseLoad none;
    const fmCaseLoad& cl = i < doc.caseLoads.size() ? doc.caseLoads[i] : none;
    nlohmann::ordered_json e = {{"case", doc.loadCases[i].name}};
    if (cl.selfWeight.factor != 0)
      e["selfWeight"] = {{"direction", Dir(cl.selfWeight.direction)}, {"factor", cl.selfWeight.factor}};
    WriteList(e, "nodal", cl.nodal, [](const fmNodalLoad& l) {
      return nlohmann::ordered_json{{"node", l.node}, {"direction", Dir(l.direction)}, {"magnitude", l.magnitude}};
    });
    WriteList(e, "point", cl.point, [](const fmPtLoad& l) {
      return nlohmann::ordered_json{{"member", l.member},       {"ratio", l.ratio},
                                    {"direction", Dir(l.direction)}, {"system", System(l.local)},
                                    {"magnitude", l.magnitude}};
    });
    WriteList(e, "line", cl.line, [](const fmLineLoad& l) {
      return nlohmann::ordered_json{{"member", l.member},        {"startRatio", l.ratio[0]}, {"endRatio", l.ratio[1]},
                                    {"start", l.magnitude[0]},   {"end", l.magnitude[1]},
                                    {"direction", Dir(l.direction)}, {"system", System(l.local)}};
    });
    WriteList(e, "surface", cl.surface, [](const fmSurfaceLoad& l) {
      return nlohmann::ordered_json{
          {"shell", l.shell}, {"direction", Dir(l.direction)}, {"system", System(l.local)}, {"magnitude", l.magnitude}};
    });
    WriteList(e, "area", cl.area, [](const fmAreaLoad& l) {
      return nlohmann::ordered_json{{"nodes", l.nodes},
                                    {"direction", Dir(l.direction)},
                                    {"magnitude", l.magnitude},
                                    {"distribution", l.distribution == fmAreaLoad::OneWay ? "one-way" : "two-way"}};
    });
    const auto thermal = [](const char* key) {
      return [key](const fmThermalLoad& l) {
        return nlohmann::ordered_json{{key, l.element}, {"temperature", l.temperature}};
      };
    };
    WriteList(e, "memberThermal", cl.memberThermal, thermal("member"));
    WriteList(e, "shellThermal", cl.shellThermal, thermal("shell"));
    WriteList(e, "brickThermal", cl.brickThermal, thermal("brick"));
    WriteList(e, "nodalMasses", cl.nodalMasses, [](const fmNodalMass& m) {
      return nlohmann::ordered_json{{"node", m.node}, {"direction", Dir(m.direction)}, {"weight", m.weight}};
    });
    if (cl.massFactor != 0) e["massFactor"] = cl.massFactor;
    list.push_back(std::move(e));
  }
  root["caseLoads"] = std::move(list);
}

void ConvertCaseLoadUnits(std::vector<fmCaseLoad>& caseLoads, const double* f) {
  const auto byDir = [&](int32_t d, fmUnit::Quantity force, fmUnit::Quantity moment) {
    return d < 3 ? f[force] : f[moment];
  };
  for (fmCaseLoad& cl : caseLoads) {
    for (auto& l : cl.nodal) l.magnitude *= byDir(l.direction, fmUnit::Force, fmUnit::Moment);
    for (auto& l : cl.point) l.magnitude *= byDir(l.direction, fmUnit::Force, fmUnit::Moment);
    for (auto& l : cl.line) {
      const double k = byDir(l.direction, fmUnit::LinearForce, fmUnit::LinearMoment);
      l.magnitude[0] *= k;
      l.magnitude[1] *= k;
    }
    for (auto& l : cl.surface) l.magnitude *= f[fmUnit::SurfaceForce];
    for (auto& l : cl.area) l.magnitude *= f[fmUnit::SurfaceForce];
    for (auto* list : {&cl.memberThermal, &cl.shellThermal, &cl.brickThermal})
      for (auto& l : *list) l.temperature *= f[fmUnit::Temperature];
    for (auto& m : cl.nodalMasses) m.weight *= m.direction < 3 ? f[fmUnit::Force] : f[fmUnit::Moment] * f[fmUnit::Length];
  }
}

bool CaseLoadsFinite(const std::vector<fmCaseLoad>& caseLoads) {
  const auto ok = [](double v) { return std::isfinite(v); };
  for (const fmCaseLoad& cl : caseLoads) {
    if (!ok(cl.selfWeight.factor) || !ok(cl.massFactor)) return false;
    for (const auto& l : cl.nodal) if (!ok(l.magnitude)) return false;
    for (const auto& l : cl.point) if (!ok(l.magnitude) || !ok(l.ratio)) return false;
    for (const auto& l : cl.line)
      if (!ok(l.magnitude[0]) || !ok(l.magnitude[1]) || !ok(l.ratio[0]) || !ok(l.ratio[1])) return false;
    for (const auto& l : cl.surface) if (!ok(l.magnitude)) return false;
    for (const auto& l : cl.area) if (!ok(l.magnitude)) return false;
    for (const auto* list : {&cl.memberThermal, &cl.shellThermal, &cl.brickThermal})
      for (const auto& l : *list) if (!ok(l.temperature)) return false;
    for (const auto& m : cl.nodalMasses) if (!ok(m.weight)) return false;
  }
  return true;
}

}  // namespace model
