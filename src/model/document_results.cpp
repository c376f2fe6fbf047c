#include <algorithm>
#include <cmath>

#include "model/document_sections.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/units.h"

// The "results" section: what a solver run analysed and produced. Optional, so a model
// that was never solved (or was written before results were kept) loads without results.
namespace model {
namespace {

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json;

double Number(const JsonReader& parent, size_t index) {
  const Json& v = parent.value()[index];
  if (!v.is_number()) parent.At(index).Fail("expected a number");
  const double d = v.get<double>();
  if (!std::isfinite(d)) parent.At(index).Fail("expected a finite number");
  return d;
}

int32_t WholeNumber(const JsonReader& parent, size_t index, int64_t min, int64_t max) {
  const Json& v = parent.value()[index];
  bool ok = v.is_number_integer();
  int64_t n = 0;
  if (ok && v.is_number_unsigned())
    ok = v.get<uint64_t>() <= static_cast<uint64_t>(INT64_MAX);
  if (ok) n = v.get<int64_t>();
  if (!ok || n < min || n > max)
    parent.At(index).Fail("expected a whole number from " + std::to_string(min) + " to " + std::to_string(max));
  return static_cast<int32_t>(n);
}

// A result vector holds one record per node or element: a second would be shown and summed twice.
template <class Record, class IdOf>
void RefuseDuplicates(const JsonReader& list, const std::vector<Record>& records, const char* word, IdOf idOf) {
  std::vector<std::pair<int32_t, size_t>> ids(records.size());
  for (size_t i = 0; i < records.size(); ++i) ids[i] = {idOf(records[i]), i};
  std::sort(ids.begin(), ids.end());
  size_t second = records.size(), first = 0;
  for (size_t i = 1; i < ids.size(); ++i)
    if (ids[i].first == ids[i - 1].first && ids[i].second < second) {
      second = ids[i].second;
      size_t k = i - 1;
      while (k > 0 && ids[k - 1].first == ids[i].first) --k;
      first = ids[k].second;
    }
  if (second < records.size())
    list.At(second).Fail(tools::Format("a second record of %s %d (the first is %s)", word, idOf(records[second]),
                                       list.At(first).path().c_str()));
}

// Records as rows of numbers: [node, v1 ... v6]; `word` names what the number is.
std::vector<fmResult6Val> ReadRecords(const JsonReader& parent, const char* key, const char* word = "node") {
  std::vector<fmResult6Val> out;
  if (!parent.Has(key)) return out;
  const JsonReader list = parent.Member(key);
  const size_t n = list.ArraySize();
  out.reserve(n);
  for (size_t i = 0; i < n; ++i) {
    const Json& row = list.value()[i];
    if (!row.is_array() || row.size() != 7)
      list.At(i).Fail("expected 7 numbers: the node or element number and six values");
    const JsonReader item = list.At(i);
    fmResult6Val r;
    r.number = WholeNumber(item, 0, INT32_MIN, INT32_MAX);
    for (size_t k = 0; k < 6; ++k) r.v[k] = Number(item, k + 1);
    out.push_back(r);
  }
  RefuseDuplicates(list, out, word, [](const fmResult6Val& r) { return r.number; });
  return out;
}

OrderedJson WriteRecords(const std::vector<fmResult6Val>& records) {
  OrderedJson list = OrderedJson::array();
  for (const fmResult6Val& r : records)
    list.push_back(OrderedJson::array({r.number, r.v[0], r.v[1], r.v[2], r.v[3], r.v[4], r.v[5]}));
  return list;
}

// Constraint forces as rows [id, node-1, dof-1, value-1, node-2, dof-2, value-2].
std::vector<fmConstraintForce> ReadConstraintForces(const JsonReader& parent) {
  std::vector<fmConstraintForce> out;
  if (!parent.Has("constraintForces")) return out;
  const JsonReader list = parent.Member("constraintForces");
  const size_t n = list.ArraySize();
  for (size_t i = 0; i < n; ++i) {
    const Json& row = list.value()[i];
    if (!row.is_array() || row.size() != 7)
      list.At(i).Fail("expected 7 numbers: constraint, node-1, DOF-1, value-1, node-2, DOF-2, value-2");
    const JsonReader item = list.At(i);
    fmConstraintForce f;
    f.id = WholeNumber(item, 0, INT32_MIN, INT32_MAX);
    for (size_t end = 0; end < 2; ++end) {
      f.node[end] = WholeNumber(item, 1 + 3 * end, INT32_MIN, INT32_MAX);
      f.dof[end] = WholeNumber(item, 2 + 3 * end, 0, 5);
      f.value[end] = Number(item, 3 + 3 * end);
    }
    out.push_back(f);
  }
  RefuseDuplicates(list, out, "constraint", [](const fmConstraintForce& f) { return f.id; });
  return out;
}

struct VectorKey {
  const char* key;
  std::vector<fmResult6Val> fmCaseResults::*vector;
  const char* word;  // what a record's number names
};
constexpr VectorKey kVectorKeys[] = {
    {"displacements", &fmCaseResults::displacements, "node"},
    {"reactions", &fmCaseResults::reactions, "node"},
    {"nodalSpringReactions", &fmCaseResults::nodalSpringReactions, "node"},
    {"coupledSpringReactions", &fmCaseResults::coupledSpringReactions, "node"},
    {"lineSpringReactions", &fmCaseResults::lineSpringReactions, "member"},
    {"surfaceSpringReactions", &fmCaseResults::surfaceSpringReactions, "shell"},
};

fmCaseResults ReadCaseResults(const JsonReader& item) {
  item.RequireObject();
  fmCaseResults r;
  for (const VectorKey& k : kVectorKeys) r.*k.vector = ReadRecords(item, k.key, k.word);
  r.constraintForces = ReadConstraintForces(item);
  ReadElementResults(item, r);
  return r;
}

// Only the vectors that hold records are written.
void WriteCaseResults(const fmCaseResults& r, OrderedJson& out) {
  for (const VectorKey& k : kVectorKeys)
    if (!(r.*k.vector).empty()) out[k.key] = WriteRecords(r.*k.vector);
  WriteElementResults(r, out);
  if (r.constraintForces.empty()) return;
  OrderedJson list = OrderedJson::array();
  for (const fmConstraintForce& f : r.constraintForces)
    list.push_back(OrderedJson::array({f.id, f.node[0], f.dof[0], f.value[0], f.node[1], f.dof[1], f.value[1]}));
  out["constraintForces"] = std::move(list);
}

constexpr const char* kAxes[] = {"X", "Y", "Z"};

int32_t ReadDirection(const JsonReader& item) {
  const std::string text = item.String("direction");
  for (int d = 0; d < 6; ++d)
    if (tools::EqualsNoCase(text, DofNames()[d])) return d;
  item.Member("direction").Fail("expected one of X, Y, Z, OX, OY, OZ");
}

// A direction outside the six is written as its number, which the reader then refuses.
OrderedJson DirectionJson(int32_t d) {
  if (d >= 0 && d < 6) return DofNames()[static_cast<size_t>(d)];
  return d;
}

int32_t ReadNode(const JsonReader& item) { return static_cast<int32_t>(item.Int("node", INT32_MIN, INT32_MAX)); }

void ReadResultUnits(const JsonReader& section, fmUnit& units) {
  if (!section.Has("units")) return;
  const JsonReader u = section.Member("units");
  u.RequireObject();
  const JsonReader list = u.Member("unit");
  if (list.ArraySize() != fmUnit::QuantityCount) list.Fail("expected 18 entries, one per quantity");
  const auto& quantities = UnitQuantities();
  for (size_t q = 0; q < fmUnit::QuantityCount; ++q) {
    const int32_t unit = WholeNumber(list, q, 0, tools::kUnitLabelCount - 1);
    if (unit < quantities[q].first || unit >= quantities[q].first + quantities[q].count)
      list.At(q).Fail(std::string("unit not of the kind of \"") + quantities[q].label + "\"");
    units.unit[q] = unit;
  }
}

template <class Record, class ReadOne>
void ReadList(const JsonReader& section, const char* key, std::vector<Record>& out, ReadOne readOne) {
  out.clear();
  if (!section.Has(key)) return;
  const JsonReader list = section.Member(key);
  const size_t n = list.ArraySize();
  out.reserve(n);
  for (size_t i = 0; i < n; ++i) out.push_back(readOne(list.At(i)));
}

// A rigid-body mode may come out a little below zero; anything further below is no mode.
template <class Mode>
void RefuseNegativeEigenvalues(const JsonReader& section, const char* key, const std::vector<Mode>& modes) {
  std::vector<double> omega2;
  for (const Mode& m : modes) omega2.push_back(m.omega2);
  for (size_t i = 0; i < modes.size(); ++i)
    if (omega2[i] < 0 && !IsRigidBodyMode(omega2[i], omega2))
      section.Member(key).At(i).Member("omega2").Fail(
          tools::Format("a negative eigenvalue (%g) is no vibration mode; the analysis that wrote it failed", omega2[i]));
}

}  // namespace

void ReadResults(const JsonReader& root, ModelDocument& doc) {
  fmSolution s;
  s.units = doc.units;
  if (!root.Has("results")) {
    doc.results = std::move(s);
    return;
  }
  const JsonReader section = root.Member("results");
  section.RequireObject();
  ReadResultUnits(section, s.units);

  ReadList(section, "cases", s.cases, [&](const JsonReader& item) {
    item.RequireObject();
    s.results.push_back(ReadCaseResults(item));
    return fmLoadCase(static_cast<int32_t>(s.cases.size() + 1), item.String("label"), item.String("type", ""));
  });
  ReadList(section, "eigenModes", s.eigenModes, [](const JsonReader& item) {
    item.RequireObject();
    fmEigenMode m;
    m.omega2 = item.Double("omega2");
    m.error = item.Double("error", 0);
    if (m.error < 0 || !std::isfinite(m.error)) item.Member("error").Fail("an error measure is a finite number not below 0");
    m.shape = ReadRecords(item, "shape");
    return m;
  });
  ReadList(section, "spectrumModes", s.spectrumModes, [](const JsonReader& item) {
    item.RequireObject();
    fmSpectrumMode m;
    m.omega2 = item.Double("omega2");
    if (item.Has("participation")) {
      const JsonReader list = item.Member("participation");
      if (list.ArraySize() != 3) list.Fail("expected 3 numbers: the participation factors in X, Y and Z");
      for (size_t d = 0; d < 3; ++d) m.participation[d] = Number(list, d);
    }
    for (const char* key : {"displacements", "inertialForces"}) {
      if (!item.Has(key)) continue;
      const JsonReader byAxis = item.Member(key);
      byAxis.RequireObject();
      auto& vectors = std::string_view(key) == "displacements" ? m.displacements : m.inertialForces;
      for (int axis = 0; axis < 3; ++axis) vectors[axis] = ReadRecords(byAxis, kAxes[axis]);
    }
    return m;
  });
  RefuseNegativeEigenvalues(section, "eigenModes", s.eigenModes);
  RefuseNegativeEigenvalues(section, "spectrumModes", s.spectrumModes);
  if (section.Has("spectrum")) s.spectrum = ReadCaseResults(section.Member("spectrum"));
  ReadConcreteDesign(section, s.concreteDesign);
  ReadList(section, "nodalLoads", s.nodalLoads, [](const JsonReader& item) {
    item.RequireObject();
    fmSolution::NodalLoad r;
    r.node = ReadNode(item);
    r.caseName = tools::CutLabel(item.String("case"));
    r.direction = ReadDirection(item);
    r.magnitude = item.Double("magnitude");
    return r;
  });
  ReadList(section, "nodalMasses", s.nodalMasses, [](const JsonReader& item) {
    item.RequireObject();
    fmSolution::NodalMass r;
    r.node = ReadNode(item);
    r.direction = ReadDirection(item);
    r.magnitude = item.Double("magnitude");
    return r;
  });
  doc.results = std::move(s);
}

void WriteResults(const ModelDocument& doc, ResultsOut& out) {
  const fmSolution& s = doc.results;
  if (s.IsEmpty()) return;
  out.Member("units", {{"unit", s.units.unit}});

  out.BeginList("cases");
  for (size_t i = 0; i < s.cases.size(); ++i) {
    OrderedJson item = {{"label", s.cases[i].name}};
    if (!s.cases[i].type.empty()) item["type"] = s.cases[i].type;
    if (i < s.results.size()) WriteCaseResults(s.results[i], item);
    out.Item(item);
  }
  out.EndList();

  if (!s.eigenModes.empty()) {
    out.BeginList("eigenModes");
    for (const fmEigenMode& m : s.eigenModes)
      out.Item({{"omega2", m.omega2}, {"error", m.error}, {"shape", WriteRecords(m.shape)}});
    out.EndList();
  }
  if (!s.spectrumModes.empty()) {
    out.BeginList("spectrumModes");
    for (const fmSpectrumMode& m : s.spectrumModes) {
      OrderedJson displacements = OrderedJson::object(), forces = OrderedJson::object();
      for (int axis = 0; axis < 3; ++axis) {
        displacements[kAxes[axis]] = WriteRecords(m.displacements[axis]);
        forces[kAxes[axis]] = WriteRecords(m.inertialForces[axis]);
      }
      out.Item({{"omega2", m.omega2}, {"participation", m.participation}, {"displacements", std::move(displacements)},
                {"inertialForces", std::move(forces)}});
    }
    out.EndList();
  }
  OrderedJson rest = OrderedJson::object();
  OrderedJson spectrum = OrderedJson::object();
  WriteCaseResults(s.spectrum, spectrum);
  if (!spectrum.empty()) rest["spectrum"] = std::move(spectrum);
  WriteConcreteDesign(s.concreteDesign, rest);
  if (!s.nodalLoads.empty()) {
    OrderedJson list = OrderedJson::array();
    for (const auto& r : s.nodalLoads)
      list.push_back({{"node", r.node},
                      {"case", r.caseName},
                      {"direction", DirectionJson(r.direction)},
                      {"magnitude", r.magnitude}});
    rest["nodalLoads"] = std::move(list);
  }
  if (!s.nodalMasses.empty()) {
    OrderedJson list = OrderedJson::array();
    for (const auto& r : s.nodalMasses)
      list.push_back({{"node", r.node}, {"direction", DirectionJson(r.direction)}, {"magnitude", r.magnitude}});
    rest["nodalMasses"] = std::move(list);
  }
  for (const auto& [key, value] : rest.items()) out.Member(key.c_str(), value);
}

}  // namespace model
