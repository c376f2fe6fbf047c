#include "model/fm_struct.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif
#include <limits>
#include <mutex>
#include <unordered_map>

#include "model/id_index.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/parallel.h"

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
      m_Supports(other.m_Supports),
      m_NodalSprings(other.m_NodalSprings),
      m_CoupledSprings(other.m_CoupledSprings),
      m_LineSprings(other.m_LineSprings),
      m_SurfaceSprings(other.m_SurfaceSprings),
      m_DriftNodes(other.m_DriftNodes),
      m_EnvelopeCombinations(other.m_EnvelopeCombinations),
      m_LoadCases(other.m_LoadCases),
      m_LoadCombs(other.m_LoadCombs),
      m_CaseLoads(other.m_CaseLoads),
      m_Counts(other.m_Counts),
      m_nShellResultLocation(other.m_nShellResultLocation),
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
  // Supports stand on the base; a footing below them is part of the foundation, not a storey.
  bool found = false;
  double base = 0;
  for (const fmSupport& support : m_Supports)
    if (const fmNd* n = FindNode(support.node)) {
      base = found ? std::min(base, n->y) : n->y;
      found = true;
    }
  if (found) return base;
  if (m_Nodes.empty()) return 0;
  base = m_Nodes.front().y;
  for (const fmNd& n : m_Nodes) base = std::min(base, n.y);
  return base;
}

namespace {

// No case has given a value yet; stands above every case index so a first value of -inf
// still takes the place.
constexpr int32_t kNoCase = INT32_MAX;

// Takes a record into its envelope. Of equal values the lower case index wins, whatever
// order the cases come in; a value that is not a number never wins. This runs a hundred
// million times for a large model.
inline void Take(fmEnvelopeValue6& e, const fmResult6Val& r, int32_t c) {
  // After the first few cases most records change nothing: find that out first, two values
  // at a time.
#if defined(__SSE2__)
  __m128d reaches = _mm_setzero_pd();
  for (int k = 0; k < 6; k += 2) {
    const __m128d v = _mm_loadu_pd(&r.v[k]);
    reaches = _mm_or_pd(reaches, _mm_or_pd(_mm_cmpge_pd(v, _mm_loadu_pd(&e.max[k])),
                                           _mm_cmple_pd(v, _mm_loadu_pd(&e.min[k]))));
  }
  if (_mm_movemask_pd(reaches) == 0) return;
#else
  bool reaches = false;
  for (int k = 0; k < 6; ++k) reaches |= (int(r.v[k] >= e.max[k]) | int(r.v[k] <= e.min[k])) != 0;
  if (!reaches) return;
#endif
  for (int k = 0; k < 6; ++k) {
    const double v = r.v[k];
    // Bitwise on purpose: no branches in the loop over every result record.
    const bool above = (int(v > e.max[k]) | (int(v == e.max[k]) & int(c < e.maxCase[k]))) != 0;
    const bool below = (int(v < e.min[k]) | (int(v == e.min[k]) & int(c < e.minCase[k]))) != 0;
    e.max[k] = above ? v : e.max[k];
    e.maxCase[k] = above ? c : e.maxCase[k];
    e.min[k] = below ? v : e.min[k];
    e.minCase[k] = below ? c : e.minCase[k];
  }
}

inline fmEnvelopeValue6 NewEnvelope(int32_t number) {
  fmEnvelopeValue6 e;
  e.number = number;
  e.max.fill(-std::numeric_limits<double>::infinity());
  e.min.fill(std::numeric_limits<double>::infinity());
  e.maxCase.fill(kNoCase);
  e.minCase.fill(kNoCase);
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
  std::vector<std::pair<int32_t, const std::vector<fmResult6Val>*>> cases;
  const int count = std::min(s.GetNumLoadCases(), static_cast<int>(marked.size()));
  for (int c = 0; c < count; ++c)
    if (marked[static_cast<size_t>(c)])
      if (const fmCaseResults* r = s.GetCaseResults(c)) cases.emplace_back(c, &(r->*vector));
  if (cases.empty()) return;

  std::unordered_map<int32_t, size_t> slots;  // built only when records do not line up
  bool slotsBuilt = false;
  auto lookUpAndTake = [&](const fmResult6Val& r, int32_t c) {
    if (!slotsBuilt) {
      slots.reserve(out.size() * 2);
      for (size_t i = 0; i < out.size(); ++i) slots.emplace(out[i].number, i);
      slotsBuilt = true;
    }
    auto [it, added] = slots.emplace(r.number, out.size());
    if (added) out.push_back(NewEnvelope(r.number));
    Take(out[it->second], r, c);
  };

  // The first case sets the order. Vectors of one solver run list the nodes in the same
  // order, so the others are taken by position while they line up, and looked up where not.
  size_t first = 0;
  const std::vector<fmResult6Val>& reference = *cases[0].second;
  if (StrictlyIncreasing(reference)) {
    out.reserve(reference.size());
    for (const fmResult6Val& r : reference) out.push_back(NewEnvelope(r.number));
  } else {
    for (const fmResult6Val& r : reference) lookUpAndTake(r, cases[0].first);
    first = 1;
  }
  // The nodes are shared among the cores; each takes a block of its nodes at a time through
  // all cases, so the block's envelope stays in the cache while the case vectors stream past.
  // Where a case stops lining up, the rest of it within the range is left to the look-up
  // below, which may add envelopes and so runs alone.
  struct LeftOver {
    size_t k, begin, end;
  };
  std::vector<LeftOver> leftOver;
  std::mutex leftOverLock;
  const size_t lined = out.size();
  tools::ParallelRanges(lined, 65536, [&](size_t rangeBegin, size_t rangeEnd) {
    constexpr size_t kBlock = 16384;
    std::vector<size_t> stop(cases.size(), rangeEnd);  // where each case stopped lining up
    for (size_t begin = rangeBegin; begin < rangeEnd; begin += kBlock) {
      const size_t end = std::min(begin + kBlock, rangeEnd);
      for (size_t k = first; k < cases.size(); ++k) {
        const auto& [c, records] = cases[k];
        const size_t last = std::min({end, records->size(), stop[k]});
        const fmResult6Val* data = records->data();
        for (size_t i = begin; i < last; ++i) {
          if (i + 16 < last) __builtin_prefetch(data + i + 16);
          const fmResult6Val& r = data[i];
          if (out[i].number != r.number) {
            stop[k] = i;
            break;
          }
          Take(out[i], r, c);
        }
      }
    }
    const std::lock_guard<std::mutex> hold(leftOverLock);
    for (size_t k = first; k < cases.size(); ++k) {
      const size_t end = std::min(rangeEnd, cases[k].second->size());
      if (stop[k] < end) leftOver.push_back({k, stop[k], end});
    }
  });
  for (const LeftOver& part : leftOver) {
    const auto& [c, records] = cases[part.k];
    for (size_t i = part.begin; i < part.end; ++i) lookUpAndTake((*records)[i], c);
  }
  for (size_t k = first; k < cases.size(); ++k) {
    const auto& [c, records] = cases[k];
    for (size_t i = lined; i < records->size(); ++i) lookUpAndTake((*records)[i], c);
  }
  // A value no case gave (every one was not a number) shows as such, with no case.
  for (fmEnvelopeValue6& e : out)
    for (int k = 0; k < 6; ++k) {
      if (e.maxCase[k] == kNoCase) {
        e.max[k] = std::numeric_limits<double>::quiet_NaN();
        e.maxCase[k] = -1;
      }
      if (e.minCase[k] == kNoCase) {
        e.min[k] = std::numeric_limits<double>::quiet_NaN();
        e.minCase[k] = -1;
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
