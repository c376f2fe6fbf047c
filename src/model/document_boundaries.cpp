#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "model/document_sections.h"
#include "model/id_index.h"
#include "tools/format.h"
#include "tools/labels.h"

// The boundary and connection sections: springs, releases, constraints, diaphragms, the drift
// stack and the envelope list. Each is optional. Every record names nodes, members or shells
// of the model, checked on loading, and at most one record of a kind stands at one object:
// a second spring at a node would be summed into the stiffness and shown only once.
//
// Documents written before these sections existed kept supports, nodal and coupled springs,
// drift nodes and the envelope list as copies inside "results", in the results' units. When
// the model has no section of its own for a kind, those copies become its records, converted
// to the model's units; copies that do not fit the model (a node it does not have, a second
// copy at one node, a restraint text that is not six digits) are left out. The copies are
// never written again: the next save keeps them only in the model's sections.
namespace model {
namespace {

using OrderedJson = nlohmann::ordered_json;

IdSet Ids(const auto& records) { return IdSet(records); }

struct Known {
  IdSet nodes, members, shells;
};

uint32_t Reference(const JsonReader& item, const char* key, const IdSet& ids, const char* table) {
  const uint32_t id = item.Id(key, tools::Format("%s id", key).c_str());
  if (!ids.count(id)) item.Member(key).Fail(tools::Format("%s %u is not in \"%s\"", key, id, table));
  return id;
}

template <size_t N>
void Numbers(const JsonReader& item, const char* key, std::array<double, N>& out, const char* what) {
  const JsonReader list = item.Member(key);
  if (list.ArraySize() != N) list.Fail(tools::Format("expected %zu numbers: %s", N, what));
  for (size_t k = 0; k < N; ++k) {
    const JsonReader v = list.At(k);
    if (!v.value().is_number() || !std::isfinite(v.value().get<double>())) v.Fail("expected a finite number");
    out[k] = v.value().get<double>();
  }
}

template <class Record, class ReadOne>
void ReadSection(const JsonReader& root, const char* key, std::vector<Record>& out, ReadOne readOne) {
  out.clear();
  if (!root.Has(key)) return;
  const JsonReader list = root.Member(key);
  const size_t n = list.ArraySize();
  out.reserve(n);
  for (size_t i = 0; i < n; ++i) out.push_back(readOne(list.At(i)));
}

// One record per object: "node 3 already has one (/nodalSprings/0)".
class OnePerObject {
 public:
  OnePerObject(const char* key, const char* word) : key_(key), word_(word) {}
  void Take(const JsonReader& item, const char* member, uint32_t id, size_t index) {
    const auto [at, added] = seen_.emplace(id, index);
    if (!added)
      item.Member(member).Fail(tools::Format("%s %u already has one (/%s/%zu)", word_, id, key_, at->second));
  }

 private:
  const char* key_;
  const char* word_;
  std::unordered_map<uint32_t, size_t> seen_;
};

int32_t Dof(const JsonReader& item, const char* key) {
  const std::string text = item.String(key);
  for (int d = 0; d < 6; ++d)
    if (tools::EqualsNoCase(text, DofNames()[static_cast<size_t>(d)])) return d;
  item.Member(key).Fail("expected one of X, Y, Z, OX, OY, OZ, not \"" + text + "\"");
}

std::array<bool, 6> ReleaseFlags(const JsonReader& item, const char* key) {
  const std::string text = item.String(key, "000000");
  const auto flags = fmSupport::ParseRestraintText(text);
  if (!flags) item.Member(key).Fail("expected six digits 0 or 1 for Fx, Fy, Fz, Mx, My, Mz (1 released), not \"" + text + "\"");
  return *flags;
}

std::string FlagText(const std::array<bool, 6>& flags) {
  std::string text(6, '0');
  for (size_t k = 0; k < 6; ++k)
    if (flags[k]) text[k] = '1';
  return text;
}

// A spring section: the object it stands at (one spring of the kind per object) and its
// stiffnesses `k`.
template <class Spring>
void ReadSprings(const JsonReader& root, const char* key, std::vector<Spring>& out, uint32_t Spring::*object,
                 const char* objectKey, const IdSet& ids, const char* table, const char* what) {
  OnePerObject seen(key, objectKey);
  ReadSection(root, key, out, [&](const JsonReader& item) {
    item.RequireObject();
    Spring s;
    s.*object = Reference(item, objectKey, ids, table);
    seen.Take(item, objectKey, s.*object, out.size());
    Numbers(item, "k", s.k, what);
    return s;
  });
}

void ReadCurrent(const JsonReader& root, ModelDocument& doc, const Known& known) {
  ReadSprings(root, "nodalSprings", doc.nodalSprings, &fmNodalSpring::node, "node", known.nodes, "nodes",
              "Kx, Ky, Kz, Kox, Koy, Koz");
  ReadSprings(root, "coupledSprings", doc.coupledSprings, &fmCoupledSpring::node, "node", known.nodes, "nodes",
              "the upper triangle of the 6x6 stiffness, row by row");
  ReadSprings(root, "lineSprings", doc.lineSprings, &fmLineSpring::member, "member", known.members, "members",
              "Kx, Ky, Kz");
  ReadSprings(root, "surfaceSprings", doc.surfaceSprings, &fmSurfaceSpring::shell, "shell", known.shells, "shells",
              "Kx, Ky, Kz");
  OnePerObject releasedMembers("releases", "member");
  ReadSection(root, "releases", doc.releases, [&](const JsonReader& item) {
    item.RequireObject();
    fmMemberRelease r;
    r.member = Reference(item, "member", known.members, "members");
    releasedMembers.Take(item, "member", r.member, doc.releases.size());
    r.released = {ReleaseFlags(item, "start"), ReleaseFlags(item, "end")};
    return r;
  });
  OnePerObject constraintIds("constraints", "constraint");
  ReadSection(root, "constraints", doc.constraints, [&](const JsonReader& item) {
    item.RequireObject();
    fmConstraint c;
    c.id = item.Id("id", "constraint id");
    constraintIds.Take(item, "id", c.id, doc.constraints.size());
    c.node = {Reference(item, "node1", known.nodes, "nodes"), 0};
    c.dof[0] = Dof(item, "dof1");
    c.node[1] = Reference(item, "node2", known.nodes, "nodes");
    c.dof[1] = Dof(item, "dof2");
    if (c.node[0] == c.node[1] && c.dof[0] == c.dof[1])
      item.Member("dof2").Fail("a degree of freedom cannot be constrained to itself");
    return c;
  });
  OnePerObject diaphragmIds("diaphragms", "diaphragm");
  ReadSection(root, "diaphragms", doc.diaphragms, [&](const JsonReader& item) {
    item.RequireObject();
    fmDiaphragm d;
    d.id = item.Id("id", "diaphragm id");
    diaphragmIds.Take(item, "id", d.id, doc.diaphragms.size());
    d.master = Reference(item, "master", known.nodes, "nodes");
    d.byLevel = item.Has("level");
    if (d.byLevel == item.Has("nodes")) item.Fail("a diaphragm has either a \"level\" or \"nodes\"");
    if (d.byLevel) {
      d.level = item.Double("level");
      const fmNd* master = nullptr;
      for (const fmNd& n : doc.nodes)
        if (n.id == d.master) master = &n;
      if (master && !AtLevel(master->y, d.level))
        item.Member("master").Fail(tools::Format("node %u is not at the level %g", d.master, d.level));
    } else {
      const JsonReader list = item.Member("nodes");
      const size_t n = list.ArraySize();
      if (n == 0) list.Fail("expected at least one node id");
      std::unordered_set<uint32_t> seen;
      for (size_t k = 0; k < n; ++k) {
        const JsonReader at = list.At(k);
        const uint32_t id = at.AsId("node id");
        if (!known.nodes.count(id)) at.Fail(tools::Format("node %u is not in \"nodes\"", id));
        if (!seen.insert(id).second) at.Fail(tools::Format("node %u is listed twice", id));
        d.nodes.push_back(id);
      }
    }
    return d;
  });
  doc.driftNodes.clear();
  if (root.Has("driftNodes")) {
    const JsonReader list = root.Member("driftNodes");
    const size_t n = list.ArraySize();
    std::unordered_map<uint32_t, size_t> seen;
    for (size_t i = 0; i < n; ++i) {
      const JsonReader at = list.At(i);
      const uint32_t id = at.AsId("node id");
      if (!known.nodes.count(id)) at.Fail(tools::Format("node %u is not in \"nodes\"", id));
      if (const auto [first, added] = seen.emplace(id, i); !added)
        at.Fail(tools::Format("node %u is already in the drift stack (/driftNodes/%zu)", id, first->second));
      doc.driftNodes.push_back(id);
    }
  }
  doc.envelopeCombinations.clear();
  if (root.Has("envelopeCombinations")) {
    const JsonReader list = root.Member("envelopeCombinations");
    const size_t n = list.ArraySize();
    for (size_t i = 0; i < n; ++i) {
      const JsonReader at = list.At(i);
      if (!at.value().is_string()) at.Fail("expected a load case or combination label");
      doc.envelopeCombinations.push_back(tools::CutLabel(at.value().get<std::string>()));
    }
  }
}

template <size_t N>
bool Finite(const std::array<double, N>& values) {
  return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

// The copies an older "results" section kept; see the top of this file. A copy too large for
// the model's units is left out like one that does not fit.
void TakeOverResultCopies(const JsonReader& root, ModelDocument& doc, const Known& known) {
  if (!root.Has("results")) return;
  const JsonReader results = root.Member("results");
  if (!results.value().is_object()) return;
  double f[fmUnit::QuantityCount];
  GetConversionFactors(f, doc.results.units, doc.units);
  const auto node = [&](const JsonReader& item) -> std::optional<uint32_t> {
    const nlohmann::json& v = item.value().is_object() && item.Has("node") ? item.value()["node"] : nlohmann::json();
    if (!v.is_number_integer() || v.get<int64_t>() < 0 || v.get<int64_t>() > kMaxId) return std::nullopt;
    const auto id = static_cast<uint32_t>(v.get<int64_t>());
    if (!known.nodes.count(id)) return std::nullopt;
    return id;
  };
  const auto list = [&](const char* key, auto take) {
    if (!results.Has(key)) return;
    const JsonReader items = results.Member(key);
    const size_t n = items.ArraySize();
    for (size_t i = 0; i < n; ++i) take(items.At(i));
  };
  if (!root.Has("supports")) {
    std::unordered_set<uint32_t> done;
    list("supports", [&](const JsonReader& item) {
      item.RequireObject();
      const auto at = node(item);
      const auto flags = fmSupport::ParseRestraintText(item.String("flag"));
      std::array<double, 6> values{};
      if (item.Has("values")) Numbers(item, "values", values, "Dx, Dy, Dz, Dox, Doy, Doz");
      if (!at || !flags || !done.insert(*at).second) return;
      fmSupport s;
      s.node = *at;
      s.restrained = *flags;
      if (!s.RestrainsAnything()) return;
      for (size_t k = 0; k < 6; ++k)
        if (s.restrained[k]) s.displacement[k] = values[k] * f[k < 3 ? fmUnit::Displacement : fmUnit::Rotation];
      if (Finite(s.displacement)) doc.supports.push_back(s);
    });
  }
  if (!root.Has("nodalSprings")) {
    std::unordered_set<uint32_t> done;
    list("nodalSprings", [&](const JsonReader& item) {
      item.RequireObject();
      fmNodalSpring s;
      Numbers(item, "k", s.k, "Kx, Ky, Kz, Kox, Koy, Koz");
      const auto at = node(item);
      if (!at || !done.insert(*at).second) return;
      s.node = *at;
      for (size_t k = 0; k < 6; ++k) s.k[k] *= f[k < 3 ? fmUnit::NodeSpring : fmUnit::NodeRotationalSpring];
      if (Finite(s.k)) doc.nodalSprings.push_back(s);
    });
  }
  if (!root.Has("coupledSprings")) {
    std::unordered_set<uint32_t> done;
    list("coupledSprings", [&](const JsonReader& item) {
      item.RequireObject();
      fmCoupledSpring s;
      Numbers(item, "k", s.k, "the upper triangle of the 6x6 stiffness, row by row");
      const auto at = node(item);
      if (!at || !done.insert(*at).second) return;
      s.node = *at;
      for (int t = 0; t < fmCoupledSpring::kTermCount; ++t) s.k[static_cast<size_t>(t)] *= CoupledTermFactor(t, f);
      if (Finite(s.k)) doc.coupledSprings.push_back(s);
    });
  }
  if (!root.Has("driftNodes")) {
    std::unordered_set<uint32_t> done;
    list("driftNodes", [&](const JsonReader& item) {
      const nlohmann::json& v = item.value();
      if (!v.is_number_integer()) item.Fail("expected a node id");
      const int64_t id = v.get<int64_t>();
      if (id < 0 || id > kMaxId || !known.nodes.count(static_cast<uint32_t>(id))) return;
      if (done.insert(static_cast<uint32_t>(id)).second) doc.driftNodes.push_back(static_cast<uint32_t>(id));
    });
  }
  if (!root.Has("envelopeCombinations"))
    list("envelopeCombinations", [&](const JsonReader& item) {
      if (!item.value().is_string()) item.Fail("expected a text");
      doc.envelopeCombinations.push_back(tools::CutLabel(item.value().get<std::string>()));
    });
}

template <class Record, class WriteOne>
void WriteSection(OrderedJson& root, const char* key, const std::vector<Record>& records, WriteOne writeOne) {
  if (records.empty()) return;
  OrderedJson list = OrderedJson::array();
  for (const Record& r : records) list.push_back(writeOne(r));
  root[key] = std::move(list);
}

const char* DofText(int32_t d) { return DofNames()[static_cast<size_t>(std::clamp(d, 0, 5))]; }

}  // namespace

double CoupledTermFactor(int term, const double* factor) {
  switch (fmCoupledSpring::TermKind(term)) {
    case 0: return factor[fmUnit::NodeSpring];
    case 1: return factor[fmUnit::NodeRotationalSpring];
    default: return factor[fmUnit::Force];
  }
}

void ReadBoundaries(const JsonReader& root, ModelDocument& doc) {
  const Known known{Ids(doc.nodes), Ids(doc.members), Ids(doc.shells)};
  ReadCurrent(root, doc, known);
  TakeOverResultCopies(root, doc, known);
}

void WriteBoundaries(const ModelDocument& doc, OrderedJson& root) {
  WriteSection(root, "nodalSprings", doc.nodalSprings,
               [](const fmNodalSpring& s) { return OrderedJson{{"node", s.node}, {"k", s.k}}; });
  WriteSection(root, "coupledSprings", doc.coupledSprings,
               [](const fmCoupledSpring& s) { return OrderedJson{{"node", s.node}, {"k", s.k}}; });
  WriteSection(root, "lineSprings", doc.lineSprings,
               [](const fmLineSpring& s) { return OrderedJson{{"member", s.member}, {"k", s.k}}; });
  WriteSection(root, "surfaceSprings", doc.surfaceSprings,
               [](const fmSurfaceSpring& s) { return OrderedJson{{"shell", s.shell}, {"k", s.k}}; });
  WriteSection(root, "releases", doc.releases, [](const fmMemberRelease& r) {
    return OrderedJson{{"member", r.member}, {"start", FlagText(r.released[0])}, {"end", FlagText(r.released[1])}};
  });
  WriteSection(root, "constraints", doc.constraints, [](const fmConstraint& c) {
    return OrderedJson{{"id", c.id},
                       {"node1", c.node[0]},
                       {"dof1", DofText(c.dof[0])},
                       {"node2", c.node[1]},
                       {"dof2", DofText(c.dof[1])}};
  });
  WriteSection(root, "diaphragms", doc.diaphragms, [](const fmDiaphragm& d) {
    OrderedJson item = {{"id", d.id}, {"master", d.master}};
    if (d.byLevel)
      item["level"] = d.level;
    else
      item["nodes"] = d.nodes;
    return item;
  });
  if (!doc.driftNodes.empty()) root["driftNodes"] = doc.driftNodes;
  if (!doc.envelopeCombinations.empty()) root["envelopeCombinations"] = doc.envelopeCombinations;
}

void ConvertBoundaryUnits(ModelDocument& doc, const double* f) {
  for (fmSupport& s : doc.supports)
    for (size_t k = 0; k < 6; ++k) s.displacement[k] *= f[k < 3 ? fmUnit::Displacement : fmUnit::Rotation];
  for (fmNodalSpring& s : doc.nodalSprings)
    for (size_t k = 0; k < 6; ++k) s.k[k] *= f[k < 3 ? fmUnit::NodeSpring : fmUnit::NodeRotationalSpring];
  for (fmCoupledSpring& s : doc.coupledSprings)
    for (int t = 0; t < fmCoupledSpring::kTermCount; ++t) s.k[static_cast<size_t>(t)] *= CoupledTermFactor(t, f);
  for (fmLineSpring& s : doc.lineSprings)
    for (double& k : s.k) k *= f[fmUnit::LineSpring];
  for (fmSurfaceSpring& s : doc.surfaceSprings)
    for (double& k : s.k) k *= f[fmUnit::AreaSpring];
  for (fmDiaphragm& d : doc.diaphragms)
    if (d.byLevel) d.level *= f[fmUnit::Length];
}

bool BoundariesFinite(const ModelDocument& doc) {
  const auto all = [](const auto& values) {
    for (double v : values)
      if (!std::isfinite(v)) return false;
    return true;
  };
  for (const fmSupport& s : doc.supports)
    if (!all(s.displacement)) return false;
  for (const auto& s : doc.nodalSprings)
    if (!all(s.k)) return false;
  for (const auto& s : doc.coupledSprings)
    if (!all(s.k)) return false;
  for (const auto& s : doc.lineSprings)
    if (!all(s.k)) return false;
  for (const auto& s : doc.surfaceSprings)
    if (!all(s.k)) return false;
  for (const fmDiaphragm& d : doc.diaphragms)
    if (d.byLevel && !std::isfinite(d.level)) return false;
  return true;
}

size_t RemoveBoundariesAtMissingObjects(ModelDocument& doc) {
  const IdSet nodes = Ids(doc.nodes), members = Ids(doc.members), shells = Ids(doc.shells);
  size_t removed = 0;
  const auto drop = [&](auto& records, auto missing) { removed += std::erase_if(records, missing); };
  drop(doc.nodalSprings, [&](const fmNodalSpring& s) { return !nodes.count(s.node); });
  drop(doc.coupledSprings, [&](const fmCoupledSpring& s) { return !nodes.count(s.node); });
  drop(doc.lineSprings, [&](const fmLineSpring& s) { return !members.count(s.member); });
  drop(doc.surfaceSprings, [&](const fmSurfaceSpring& s) { return !shells.count(s.shell); });
  drop(doc.releases, [&](const fmMemberRelease& r) { return !members.count(r.member); });
  drop(doc.constraints, [&](const fmConstraint& c) { return !nodes.count(c.node[0]) || !nodes.count(c.node[1]); });
  drop(doc.diaphragms, [&](const fmDiaphragm& d) { return !nodes.count(d.master); });
  for (fmDiaphragm& d : doc.diaphragms)
    if (!d.byLevel) {
      const size_t before = d.nodes.size();
      std::erase_if(d.nodes, [&](uint32_t id) { return !nodes.count(id); });
      if (d.nodes.size() != before) ++removed;
    }
  drop(doc.diaphragms, [&](const fmDiaphragm& d) { return !d.byLevel && d.nodes.empty(); });
  drop(doc.driftNodes, [&](uint32_t id) { return !nodes.count(id); });
  return removed;
}

}  // namespace model
