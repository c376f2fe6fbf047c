#include "model/fm_struct.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "model/id_index.h"
#include "tools/fm_exception.h"
#include "tools/format.h"

const std::array<const char*, 6>& DofNames() {
  static const std::array<const char*, 6> names = {"X", "Y", "Z", "OX", "OY", "OZ"};
  return names;
}

// An index remembers the table it was built from, so a table that grew, shrank or moved
// is indexed again on the next look-up.
struct CfmStruct::Indexes {
  struct Entry {
    model::IdIndex index;
    const void* data = nullptr;
    size_t size = 0;
    bool built = false;
  };
  Entry nodes, members, shells, bricks;
};

namespace {

template <class Record, class IdOf>
const Record* FindIn(const std::vector<Record>& table, int64_t id, IdOf idOf,
                     model::IdIndex& index, const void*& data, size_t& size, bool& built) {
  if (!built || data != static_cast<const void*>(table.data()) || size != table.size()) {
    index.Build(table, idOf);
    data = table.data();
    size = table.size();
    built = true;
  }
  const int64_t at = index.Find(id);
  return at < 0 ? nullptr : &table[static_cast<size_t>(at)];
}

}  // namespace

CfmStruct::CfmStruct() : indexes_(std::make_unique<Indexes>()) {
  for (int q = 0; q < fmUnit::QuantityCount; ++q) m_DisplayFormat[q] = m_Units.precision[q];
}
CfmStruct::~CfmStruct() = default;
CfmStruct::CfmStruct(CfmStruct&&) noexcept = default;
CfmStruct& CfmStruct::operator=(CfmStruct&&) noexcept = default;

CfmStruct::CfmStruct(const CfmStruct& other)
    : m_Units(other.m_Units),
      m_DisplayFormat(other.m_DisplayFormat),
      m_nShowSelected(other.m_nShowSelected),
      m_Nodes(other.m_Nodes),
      m_Materials(other.m_Materials),
      m_Sections(other.m_Sections),
      m_Thicknesses(other.m_Thicknesses),
      m_Members(other.m_Members),
      m_Shells(other.m_Shells),
      m_Bricks(other.m_Bricks),
      m_LineSprings(other.m_LineSprings),
      m_SurfaceSprings(other.m_SurfaceSprings),
      m_PointLoads(other.m_PointLoads),
      m_LineLoads(other.m_LineLoads),
      m_SurfaceLoads(other.m_SurfaceLoads),
      m_MemberThermalLoads(other.m_MemberThermalLoads),
      m_ShellThermalLoads(other.m_ShellThermalLoads),
      m_BrickThermalLoads(other.m_BrickThermalLoads),
      m_Solution(other.m_Solution),
      indexes_(std::make_unique<Indexes>()) {}

CfmStruct& CfmStruct::operator=(const CfmStruct& other) {
  if (this != &other) *this = CfmStruct(other);
  return *this;
}

const std::string& CfmStruct::GetCaseName(int index) const {
  static const std::string kNone;
  return index >= 0 && index < GetNumLoadCases() ? m_Solution.cases[static_cast<size_t>(index)].name : kNone;
}

const fmCaseResults* CfmStruct::GetCaseResults(int index) const {
  if (index == -1) return &m_Solution.spectrum;
  if (index < 0 || index >= GetNumLoadCases() || static_cast<size_t>(index) >= m_Solution.results.size())
    return nullptr;
  return &m_Solution.results[static_cast<size_t>(index)];
}

const fmCaseResults& CfmStruct::GetResults(int index) const {
  if (const fmCaseResults* results = GetCaseResults(index)) return *results;
  if (index >= 0 && index < GetNumLoadCases())
    throw fmException(tools::Format("The results of load case %d [%s] are not available.", index + 1,
                                    GetCaseName(index).c_str()));
  throw fmException(tools::Format("There is no load case %d.", index + 1));
}

CfmStruct::Indexes& CfmStruct::Idx() const {
  if (!indexes_) indexes_ = std::make_unique<Indexes>();
  return *indexes_;
}

void CfmStruct::TablesChanged() const { Idx() = Indexes(); }

const fmNd* CfmStruct::FindNode(int64_t id) const {
  auto& e = Idx().nodes;
  return FindIn(m_Nodes, id, [](const fmNd& n) { return static_cast<int64_t>(n.id); }, e.index, e.data,
                e.size, e.built);
}

const CfmStruct::Member* CfmStruct::FindMember(int64_t id) const {
  auto& e = Idx().members;
  return FindIn(m_Members, id, [](const Member& m) { return static_cast<int64_t>(m.id); }, e.index,
                e.data, e.size, e.built);
}

const CfmStruct::Shell4* CfmStruct::FindShell(int64_t id) const {
  auto& e = Idx().shells;
  return FindIn(m_Shells, id, [](const Shell4& s) { return static_cast<int64_t>(s.id); }, e.index, e.data,
                e.size, e.built);
}

const CfmStruct::Brick* CfmStruct::FindBrick(int64_t id) const {
  auto& e = Idx().bricks;
  return FindIn(m_Bricks, id, [](const Brick& b) { return static_cast<int64_t>(b.id); }, e.index, e.data,
                e.size, e.built);
}

bool CfmStruct::IsNodeSelected(int64_t id) const {
  const fmNd* node = FindNode(id);
  return node && node->IsSelected();
}

bool CfmStruct::IsMemberSelected(int64_t id) const {
  const Member* m = FindMember(id);
  return m && (m->flags & kSelected);
}

bool CfmStruct::IsShellSelected(int64_t id) const {
  const Shell4* s = FindShell(id);
  return s && (s->flags & kSelected);
}

double CfmStruct::ResultFactor(fmUnit::Quantity q) const {
  double factors[fmUnit::QuantityCount];
  GetConversionFactors(factors, m_Solution.units, m_Units);
  return factors[q];
}

int CfmStruct::DisplayFormat(fmUnit::Quantity q) const { return std::clamp(m_DisplayFormat[q], 0, 11); }

double CfmStruct::BaseLevel() const {
  if (m_Nodes.empty()) return 0;
  double base = m_Nodes.front().y;
  for (const fmNd& n : m_Nodes) base = std::min(base, n.y);
  return base;
}

namespace {

// A value that is not a number never wins against one that is.
inline void Take(fmEnvelopeValue6& e, const fmResult6Val& r, int32_t caseIndex) {
  for (int k = 0; k < 6; ++k) {
    const double v = r.v[k];
    if (e.maxCase[k] < 0 || v > e.max[k] || (std::isnan(e.max[k]) && !std::isnan(v))) {
      e.max[k] = v;
      e.maxCase[k] = caseIndex;
    }
    if (e.minCase[k] < 0 || v < e.min[k] || (std::isnan(e.min[k]) && !std::isnan(v))) {
      e.min[k] = v;
      e.minCase[k] = caseIndex;
    }
  }
}

inline fmEnvelopeValue6 NewEnvelope(int32_t number) {
  fmEnvelopeValue6 e;
  e.number = number;
  e.maxCase.fill(-1);
  e.minCase.fill(-1);
  return e;
}

bool StrictlyIncreasing(const std::vector<fmResult6Val>& records) {
  for (size_t i = 1; i < records.size(); ++i)
    if (records[i].number <= records[i - 1].number) return false;
  return true;
}

void Envelope(const CfmStruct& s, const std::vector<bool>& marked, std::vector<fmEnvelopeValue6>& out,
              std::vector<fmResult6Val> fmCaseResults::*vector) {
  out.clear();
  std::unordered_map<int32_t, size_t> slots;  // built only when records do not line up
  bool slotsBuilt = false;
  auto slowTake = [&](const fmResult6Val& r, int32_t c) {
    if (!slotsBuilt) {
      slots.reserve(out.size() * 2);
      for (size_t i = 0; i < out.size(); ++i) slots.emplace(out[i].number, i);
      slotsBuilt = true;
    }
    auto [it, added] = slots.emplace(r.number, out.size());
    if (added) out.push_back(NewEnvelope(r.number));
    Take(out[it->second], r, c);
  };

  const int cases = std::min(s.GetNumLoadCases(), static_cast<int>(marked.size()));
  for (int c = 0; c < cases; ++c) {
    if (!marked[static_cast<size_t>(c)]) continue;
    const fmCaseResults* results = s.GetCaseResults(c);
    if (!results) continue;
    const std::vector<fmResult6Val>& records = results->*vector;
    if (out.empty() && StrictlyIncreasing(records)) {
      // The first vector sets the order; with no number repeated it needs no look-up.
      out.reserve(records.size());
      for (const fmResult6Val& r : records) {
        out.push_back(NewEnvelope(r.number));
        Take(out.back(), r, c);
      }
      continue;
    }
    // Vectors of the same solver run list the nodes in the same order: take them by
    // position while they line up and look the rest up.
    const size_t n = records.size();
    for (size_t i = 0; i < n; ++i) {
      const fmResult6Val& r = records[i];
      if (i < out.size() && out[i].number == r.number)
        Take(out[i], r, c);
      else
        slowTake(r, c);
    }
  }
}

}  // namespace

void CfmStruct::CalcNodalDisplacementEnvelope(std::vector<fmEnvelopeValue6>& out,
                                              const std::vector<bool>& cases) const {
  Envelope(*this, cases, out, &fmCaseResults::displacements);
}

void CfmStruct::CalcSupportReactionEnvelope(std::vector<fmEnvelopeValue6>& out, const std::vector<bool>& cases) const {
  Envelope(*this, cases, out, &fmCaseResults::reactions);
}
