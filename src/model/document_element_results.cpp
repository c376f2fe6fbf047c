#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "model/document_sections.h"
#include "tools/format.h"

// Element results of a case in the "results" section, and the concrete design records.
namespace model {
namespace {

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json;

double FiniteAt(const JsonReader& row, size_t k) {
  const Json& v = row.value()[k];
  if (!v.is_number()) row.At(k).Fail("expected a number");
  const double d = v.get<double>();
  if (!std::isfinite(d)) row.At(k).Fail("expected a finite number");
  return d;
}

int32_t ElementNumber(const JsonReader& row, size_t k) {
  const Json& v = row.value()[k];
  if (!v.is_number_integer() || (v.is_number_unsigned() && v.get<uint64_t>() > INT32_MAX) ||
      v.get<int64_t>() < INT32_MIN || v.get<int64_t>() > INT32_MAX)
    row.At(k).Fail("expected a whole number from " + std::to_string(INT32_MIN) + " to " + std::to_string(INT32_MAX));
  return static_cast<int32_t>(v.get<int64_t>());
}

// One record a list: a second record of the same element would be shown twice.
template <class R>
void RefuseSecond(const JsonReader& list, const std::vector<R>& records, const char* word) {
  std::unordered_map<int32_t, size_t> first;
  first.reserve(records.size() * 2);
  for (size_t i = 0; i < records.size(); ++i) {
    const auto [it, added] = first.emplace(records[i].number, i);
    if (!added)
      list.At(i).Fail(tools::Format("a second record of %s %d (the first is %s)", word, records[i].number,
                                    list.At(it->second).path().c_str()));
  }
}

// Rows [element, n values]; `values` gives a record's values as one run of doubles.
template <class R, class ValuesOf>
void ReadRows(const JsonReader& parent, const char* key, size_t n, const char* word, std::vector<R>& out,
              ValuesOf valuesOf) {
  out.clear();
  if (!parent.Has(key)) return;
  const JsonReader list = parent.Member(key);
  const size_t count = list.ArraySize();
  out.reserve(count);
  for (size_t i = 0; i < count; ++i) {
    const JsonReader row = list.At(i);
    if (!row.value().is_array() || row.value().size() != n + 1)
      row.Fail(tools::Format("expected %zu numbers: the %s number and %zu values", n + 1, word, n));
    R r;
    r.number = ElementNumber(row, 0);
    double* v = valuesOf(r);
    for (size_t k = 0; k < n; ++k) v[k] = FiniteAt(row, k + 1);
    out.push_back(r);
  }
  RefuseSecond(list, out, word);
}

template <class R, class ValuesOf>
void WriteRows(OrderedJson& out, const char* key, size_t n, const std::vector<R>& records, ValuesOf valuesOf) {
  if (records.empty()) return;
  OrderedJson list = OrderedJson::array();
  for (const R& r : records) {
    OrderedJson row = OrderedJson::array();
    row.push_back(r.number);
    R copy = r;
    const double* v = valuesOf(copy);
    for (size_t k = 0; k < n; ++k) row.push_back(v[k]);
    list.push_back(std::move(row));
  }
  out[key] = std::move(list);
}

double* ShellForceValues(fmShellForce& r) { return r.point[0].data(); }
double* ResultantValues(fmShellNodalResultant& r) { return r.node[0].data(); }
double* ShellStressValues(fmShellStress& r) { return r.point[0].data(); }
double* BrickStressValues(fmBrickStress& r) { return r.point[0].data(); }

constexpr const char* kStressKeys[2] = {"shellStressTop", "shellStressBottom"};

}  // namespace

void ReadElementResults(const JsonReader& item, fmCaseResults& r) {
  r.memberStations.clear();
  if (item.Has("memberStations")) {
    const JsonReader list = item.Member("memberStations");
    const size_t count = list.ArraySize();
    r.memberStations.reserve(count);
    for (size_t i = 0; i < count; ++i) {
      const JsonReader entry = list.At(i);
      entry.RequireObject();
      fmBmVMD m;
      m.number = static_cast<int32_t>(entry.Int("member", INT32_MIN, INT32_MAX));
      const JsonReader stations = entry.Member("stations");
      const size_t n = stations.ArraySize();
      for (size_t s = 0; s < n; ++s) {
        const JsonReader row = stations.At(s);
        if (!row.value().is_array() || row.value().size() != 9)
          row.Fail("expected 9 numbers: distance, Fx, Fy, Fz, Mx, My, Mz, Dy, Dz");
        fmBmStation st;
        st.distance = FiniteAt(row, 0);
        for (size_t k = 0; k < 6; ++k) st.force[k] = FiniteAt(row, k + 1);
        st.Dy = FiniteAt(row, 7);
        st.Dz = FiniteAt(row, 8);
        if (!m.m_VMD.empty() && st.distance < m.m_VMD.back().distance)
          row.At(0).Fail("stations go from the start node to the end node: this one is before the one above it");
        m.m_VMD.push_back(st);
      }
      r.memberStations.push_back(std::move(m));
    }
    RefuseSecond(list, r.memberStations, "member");
  }
  ReadRows(item, "shellForces", 8 * kShellPoints, "shell", r.shellForces, ShellForceValues);
  ReadRows(item, "shellResultants", 5 * 4, "shell", r.shellResultants, ResultantValues);
  for (size_t face = 0; face < 2; ++face)
    ReadRows(item, kStressKeys[face], 6 * kShellPoints, "shell", r.shellStresses[face], ShellStressValues);
  ReadRows(item, "brickStresses", 6 * kBrickPoints, "brick", r.brickStresses, BrickStressValues);
}

void WriteElementResults(const fmCaseResults& r, OrderedJson& out) {
  if (!r.memberStations.empty()) {
    OrderedJson list = OrderedJson::array();
    for (const fmBmVMD& m : r.memberStations) {
      OrderedJson stations = OrderedJson::array();
      for (const fmBmStation& s : m.m_VMD)
        stations.push_back(OrderedJson::array(
            {s.distance, s.force[0], s.force[1], s.force[2], s.force[3], s.force[4], s.force[5], s.Dy, s.Dz}));
      list.push_back({{"member", m.number}, {"stations", std::move(stations)}});
    }
    out["memberStations"] = std::move(list);
  }
  WriteRows(out, "shellForces", 8 * kShellPoints, r.shellForces, ShellForceValues);
  WriteRows(out, "shellResultants", 5 * 4, r.shellResultants, ResultantValues);
  for (size_t face = 0; face < 2; ++face)
    WriteRows(out, kStressKeys[face], 6 * kShellPoints, r.shellStresses[face], ShellStressValues);
  WriteRows(out, "brickStresses", 6 * kBrickPoints, r.brickStresses, BrickStressValues);
}

void ReadConcreteDesign(const JsonReader& section, fmConcreteDesign& d) {
  d = fmConcreteDesign();
  if (!section.Has("concreteDesign")) return;
  const JsonReader c = section.Member("concreteDesign");
  c.RequireObject();
  auto each = [&](const char* key, auto read) {
    if (!c.Has(key)) return;
    const JsonReader list = c.Member(key);
    const size_t n = list.ArraySize();
    for (size_t i = 0; i < n; ++i) {
      const JsonReader item = list.At(i);
      item.RequireObject();
      read(item);
    }
  };
  auto id = [](const JsonReader& item, const char* key) {
    return static_cast<int32_t>(item.Int(key, INT32_MIN, INT32_MAX));
  };
  auto comb = [](const JsonReader& item, const char* key) {
    return static_cast<int32_t>(item.Int(key, -1, INT32_MAX));
  };
  each("beams", [&](const JsonReader& item) {
    fmConcreteDesign::Beam b;
    b.member = id(item, "member");
    b.distance = item.Double("distance");
    b.botMu = item.Double("botMu");
    b.botAs = item.Double("botAs");
    b.botComb = comb(item, "botComb");
    b.topMu = item.Double("topMu");
    b.topAs = item.Double("topAs");
    b.topComb = comb(item, "topComb");
    d.beams.push_back(b);
  });
  each("columns", [&](const JsonReader& item) {
    fmConcreteDesign::Column k;
    k.member = id(item, "member");
    k.section = item.String("section", "");
    k.unityCheck = item.Double("unityCheck");
    k.comb = comb(item, "comb");
    k.distance = item.Double("distance");
    k.Pu = item.Double("Pu");
    k.Muz = item.Double("Muz");
    k.Muy = item.Double("Muy");
    k.MzFactor = item.Double("MzFactor", 1);
    k.MyFactor = item.Double("MyFactor", 1);
    k.betaD = item.Double("betaD", 0);
    k.As = item.Double("As");
    k.rho = item.Double("rho");
    d.columns.push_back(k);
  });
  each("shear", [&](const JsonReader& item) {
    fmConcreteDesign::Shear s;
    s.member = id(item, "member");
    s.distance = item.Double("distance");
    s.size = item.String("size", "");
    s.legs = static_cast<int32_t>(item.Int("legs", 0, 100));
    s.shear = item.Double("shear");
    s.axial = item.Double("axial");
    s.spacing = item.Double("spacing");
    s.phiVc = item.Double("phiVc");
    s.comb = comb(item, "comb");
    d.shear.push_back(s);
  });
  each("plates", [&](const JsonReader& item) {
    fmConcreteDesign::Plate p;
    p.shell = id(item, "shell");
    p.failed = item.Bool("failed", false);
    if (!p.failed) {
      const JsonReader points = item.Member("points");
      if (points.ArraySize() != kShellPoints) points.Fail("expected 5 points: the centre and the four nodes");
      for (size_t k = 0; k < kShellPoints; ++k) {
        const JsonReader row = points.At(k);
        if (!row.value().is_array() || row.value().size() != 9)
          row.Fail("expected 9 numbers: H, Bot-Mux, Bot-Muy, Top-Mux, Top-Muy, Bot-Asx, Bot-Asy, Top-Asx, Top-Asy");
        for (size_t v = 0; v < 9; ++v) p.point[k][v] = FiniteAt(row, v);
      }
    }
    d.plates.push_back(p);
  });
}

void WriteConcreteDesign(const fmConcreteDesign& d, OrderedJson& out) {
  if (d.empty()) return;
  OrderedJson c = OrderedJson::object();
  if (!d.beams.empty()) {
    OrderedJson list = OrderedJson::array();
    for (const auto& b : d.beams)
      list.push_back({{"member", b.member}, {"distance", b.distance}, {"botMu", b.botMu}, {"botAs", b.botAs},
                      {"botComb", b.botComb}, {"topMu", b.topMu}, {"topAs", b.topAs}, {"topComb", b.topComb}});
    c["beams"] = std::move(list);
  }
  if (!d.columns.empty()) {
    OrderedJson list = OrderedJson::array();
    for (const auto& k : d.columns)
      list.push_back({{"member", k.member}, {"section", k.section}, {"unityCheck", k.unityCheck}, {"comb", k.comb},
                      {"distance", k.distance}, {"Pu", k.Pu}, {"Muz", k.Muz}, {"Muy", k.Muy},
                      {"MzFactor", k.MzFactor}, {"MyFactor", k.MyFactor}, {"betaD", k.betaD}, {"As", k.As},
                      {"rho", k.rho}});
    c["columns"] = std::move(list);
  }
  if (!d.shear.empty()) {
    OrderedJson list = OrderedJson::array();
    for (const auto& s : d.shear)
      list.push_back({{"member", s.member}, {"distance", s.distance}, {"size", s.size}, {"legs", s.legs},
                      {"shear", s.shear}, {"axial", s.axial}, {"spacing", s.spacing}, {"phiVc", s.phiVc},
                      {"comb", s.comb}});
    c["shear"] = std::move(list);
  }
  if (!d.plates.empty()) {
    OrderedJson list = OrderedJson::array();
    for (const auto& p : d.plates) {
      OrderedJson item = {{"shell", p.shell}};
      if (p.failed)
        item["failed"] = true;
      else
        item["points"] = p.point;
      list.push_back(std::move(item));
    }
    c["plates"] = std::move(list);
  }
  out["concreteDesign"] = std::move(c);
}

}  // namespace model
