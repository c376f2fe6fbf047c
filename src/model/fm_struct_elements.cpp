#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>
#include <unordered_map>

#include "model/fm_struct.h"
#include "model/id_index.h"
#include "model/wood_armer.h"
#include "tools/fm_exception.h"
#include "tools/format.h"
#include "tools/labels.h"
#include "tools/parallel.h"

// The element results of the solved structure: combinations formed from their cases, the
// member force envelope, the concrete-design envelope and the Wood-Armer moments.

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// The values of a record as one run of doubles (its array of points or nodes), so one
// routine sums every kind.
template <auto Member>
struct ValuesOf;
template <class R, class Array, Array R::* Member>
struct ValuesOf<Member> {
  static_assert(std::is_same_v<typename Array::value_type::value_type, double>);
  static double* Of(R& r) { return (r.*Member)[0].data(); }
  static const double* Of(const R& r) { return (r.*Member)[0].data(); }
  static constexpr size_t kCount = sizeof(Array) / sizeof(double);
};
template <class R>
struct Values;
template <>
struct Values<fmShellForce> : ValuesOf<&fmShellForce::point> {};
template <>
struct Values<fmShellNodalResultant> : ValuesOf<&fmShellNodalResultant::node> {};
template <>
struct Values<fmShellStress> : ValuesOf<&fmShellStress::point> {};
template <>
struct Values<fmBrickStress> : ValuesOf<&fmBrickStress::point> {};

// Adds factor × one case's records into the sum, matching records by number: by position
// while the lists line up (one run lists elements in one order), looked up where not.
// Elements the first term lists set the order; others are added at the end.
template <class R, class AddInto>
void AddTerm(std::vector<R>& sum, const std::vector<R>& records, double factor, bool first, AddInto addInto) {
  if (first) {
    sum.reserve(records.size());
    for (const R& r : records) {
      R scaled = r;
      addInto(scaled, r, factor, true);
      sum.push_back(std::move(scaled));
    }
    return;
  }
  std::unordered_map<int32_t, size_t> slots;
  bool indexed = false;
  for (size_t i = 0; i < records.size(); ++i) {
    const R& r = records[i];
    size_t at = i;
    if (at >= sum.size() || sum[at].number != r.number) {
      if (!indexed) {
        for (size_t k = 0; k < sum.size(); ++k) slots.emplace(sum[k].number, k);
        indexed = true;
      }
      const auto [it, added] = slots.emplace(r.number, sum.size());
      if (added) {
        R zero = r;
        addInto(zero, r, 0.0, true);
        sum.push_back(std::move(zero));
      }
      at = it->second;
    }
    addInto(sum[at], r, factor, false);
  }
}

template <class R>
void AddValues(R& into, const R& from, double factor, bool set) {
  double* to = Values<R>::Of(into);
  const double* v = Values<R>::Of(from);
  for (size_t k = 0; k < Values<R>::kCount; ++k) to[k] = set ? factor * v[k] : to[k] + factor * v[k];
}

// Stations keep their distances; a member listed with another count of stations in a later
// case adds what lines up.
void AddStations(fmBmVMD& into, const fmBmVMD& from, double factor, bool set) {
  const size_t n = std::min(into.m_VMD.size(), from.m_VMD.size());
  for (size_t s = 0; s < n; ++s) {
    fmBmStation& a = into.m_VMD[s];
    const fmBmStation& b = from.m_VMD[s];
    for (size_t k = 0; k < 6; ++k) a.force[k] = set ? factor * b.force[k] : a.force[k] + factor * b.force[k];
    a.Dy = set ? factor * b.Dy : a.Dy + factor * b.Dy;
    a.Dz = set ? factor * b.Dz : a.Dz + factor * b.Dz;
  }
}

// The entries a combination sums: (result index, factor). Terms whose label names no load
// case of the results throw; so does a case without results.
std::vector<std::pair<int, double>> TermsOf(const CfmStruct& s, const fmLoadComb& comb) {
  std::vector<std::pair<int, double>> terms;
  for (const fmLoadCombItem& item : comb.items) {
    const int c = FindCaseIndex(s.m_Solution.cases, item.caseName);
    if (c < 0 || s.GetLoadCombination(c))
      throw fmException(tools::Format("The load combination [%s] names the load case [%s], which has no results.",
                                      comb.name.c_str(), item.caseName.c_str()));
    terms.emplace_back(c, item.factor);
  }
  return terms;
}

// An envelope value no entry has given yet.
constexpr int32_t kNoCase = INT32_MAX;

inline void TakeValue(double v, int32_t c, double& max, int32_t& maxCase, double& min, int32_t& minCase) {
  if (v > max || (v == max && c < maxCase)) {
    max = v;
    maxCase = c;
  }
  if (v < min || (v == min && c < minCase)) {
    min = v;
    minCase = c;
  }
}

}  // namespace

bool CfmStruct::IsBrickSelected(int64_t id) const {
  const Brick* b = FindBrick(id);
  return b && (b->flags & kSelected);
}

const fmLoadComb* CfmStruct::GetLoadCombination(int index) const {
  if (index < 0 || index >= GetNumLoadCases()) return nullptr;
  const fmLoadCase& entry = m_Solution.cases[static_cast<size_t>(index)];
  if (!entry.type.empty()) return nullptr;
  for (const fmLoadComb& comb : m_LoadCombs)
    if (tools::LabelsEqual(comb.name, entry.name)) return &comb;
  return nullptr;
}

bool CfmStruct::IsResponseSpectrumLoadCombination(int index) const {
  if (index == -1) return true;
  const fmLoadComb* comb = GetLoadCombination(index);
  if (!comb || comb->spectrumFactor == 0) return false;
  // Without a response-spectrum analysis there is nothing spectral to add to a combination.
  return !m_Solution.spectrumModes.empty() || m_Solution.spectrum != fmCaseResults();
}

const fmCaseResults& CfmStruct::GetElementResults(int index, fmCaseResults& scratch) const {
  const fmCaseResults& stored = GetResults(index);
  const fmLoadComb* comb = index >= 0 ? GetLoadCombination(index) : nullptr;
  if (stored.HasElementResults() || !comb || comb->items.empty()) return stored;
  const auto terms = TermsOf(*this, *comb);
  scratch = fmCaseResults();
  bool first = true;
  for (const auto& [c, factor] : terms) {
    const fmCaseResults& r = GetResults(c);
    AddTerm(scratch.memberStations, r.memberStations, factor, first, AddStations);
    AddTerm(scratch.shellForces, r.shellForces, factor, first, AddValues<fmShellForce>);
    AddTerm(scratch.shellResultants, r.shellResultants, factor, first, AddValues<fmShellNodalResultant>);
    for (size_t face = 0; face < 2; ++face)
      AddTerm(scratch.shellStresses[face], r.shellStresses[face], factor, first, AddValues<fmShellStress>);
    AddTerm(scratch.brickStresses, r.brickStresses, factor, first, AddValues<fmBrickStress>);
    first = false;
  }
  return scratch;
}

void CfmStruct::CalcBeamEnvelopVMD(std::vector<fmEnvelopeBmVMD>& out, const std::vector<bool>& marked) const {
  out.clear();
  // Each marked entry as the sum it is: stored stations stand for themselves, a combination
  // without them for its factored cases.
  struct Source {
    int32_t entry;
    std::vector<std::pair<const std::vector<fmBmVMD>*, double>> terms;
  };
  std::vector<Source> sources;
  const int count = std::min(GetNumLoadCases(), static_cast<int>(marked.size()));
  for (int c = 0; c < count; ++c) {
    if (!marked[static_cast<size_t>(c)]) continue;
    const fmCaseResults* r = GetCaseResults(c);
    if (!r) continue;
    Source source{c, {}};
    const fmLoadComb* comb = GetLoadCombination(c);
    if (!r->memberStations.empty() || !comb) {
      if (!r->memberStations.empty()) source.terms.emplace_back(&r->memberStations, 1.0);
    } else {
      for (const fmLoadCombItem& item : comb->items) {
        const int k = FindCaseIndex(m_Solution.cases, item.caseName);
        const fmCaseResults* term = k >= 0 && !GetLoadCombination(k) ? GetCaseResults(k) : nullptr;
        if (!term) {  // a term without results: the combination cannot be formed
          source.terms.clear();
          break;
        }
        if (!term->memberStations.empty()) source.terms.emplace_back(&term->memberStations, item.factor);
      }
    }
    if (!source.terms.empty()) sources.push_back(std::move(source));
  }
  if (sources.empty()) return;

  // The distinct member lists the sources read, and the members in the order of the first
  // list that names them; per list, the position of each member in it (-1: not there).
  std::vector<const std::vector<fmBmVMD>*> lists;
  for (const Source& s : sources)
    for (const auto& [list, factor] : s.terms)
      if (std::find(lists.begin(), lists.end(), list) == lists.end()) lists.push_back(list);
  std::vector<const fmBmVMD*> members;
  {
    std::unordered_map<int32_t, size_t> seen;
    bool indexed = false;
    for (const std::vector<fmBmVMD>* list : lists) {
      // Lists of one run name the same members in the same order: nothing to look up.
      bool lined = list->size() == members.size();
      for (size_t i = 0; lined && i < members.size(); ++i) lined = (*list)[i].number == members[i]->number;
      if (lined) continue;
      if (!indexed) {
        for (size_t i = 0; i < members.size(); ++i) seen.emplace(members[i]->number, i);
        indexed = true;
      }
      for (const fmBmVMD& m : *list)
        if (seen.emplace(m.number, members.size()).second) members.push_back(&m);
    }
  }
  std::vector<std::vector<int32_t>> position(lists.size());
  for (size_t l = 0; l < lists.size(); ++l) {
    const std::vector<fmBmVMD>& list = *lists[l];
    std::vector<int32_t>& pos = position[l];
    pos.assign(members.size(), -1);
    bool lined = list.size() >= members.size();
    for (size_t i = 0; lined && i < members.size(); ++i) lined = list[i].number == members[i]->number;
    if (lined) {
      for (size_t i = 0; i < members.size(); ++i) pos[i] = static_cast<int32_t>(i);
      continue;
    }
    std::unordered_map<int32_t, int32_t> at;
    at.reserve(list.size() * 2);
    for (size_t i = 0; i < list.size(); ++i) at.emplace(list[i].number, static_cast<int32_t>(i));
    for (size_t i = 0; i < members.size(); ++i)
      if (const auto it = at.find(members[i]->number); it != at.end()) pos[i] = it->second;
  }
  // Per source, its terms as (list, factor).
  std::vector<std::vector<std::pair<size_t, double>>> sourceTerms(sources.size());
  for (size_t s = 0; s < sources.size(); ++s)
    for (const auto& [list, factor] : sources[s].terms)
      sourceTerms[s].emplace_back(static_cast<size_t>(std::find(lists.begin(), lists.end(), list) - lists.begin()),
                                  factor);

  out.resize(members.size());
  // A block of members at a time: their forces in every list are copied into one dense
  // buffer, then every source forms its values from it while it stays in the cache.
  tools::ParallelRanges(members.size(), 2048, [&](size_t rangeBegin, size_t rangeEnd) {
    constexpr size_t kBlock = 16;
    std::vector<size_t> offset;
    std::vector<double> buffer, value;
    std::vector<char> present;
    for (size_t begin = rangeBegin; begin < rangeEnd; begin += kBlock) {
      const size_t end = std::min(begin + kBlock, rangeEnd);
      const size_t count = end - begin;
      offset.assign(count + 1, 0);
      for (size_t i = begin; i < end; ++i) {
        fmEnvelopeBmVMD& e = out[i];
        e.number = members[i]->number;
        const size_t stations = members[i]->m_VMD.size();
        offset[i - begin + 1] = offset[i - begin] + 6 * stations;
        e.distance.resize(stations);
        e.station.resize(stations);
        for (size_t k = 0; k < stations; ++k) {
          e.distance[k] = members[i]->m_VMD[k].distance;
          fmEnvelopeValue6& v = e.station[k];
          v.number = static_cast<int32_t>(k);
          v.max.fill(-std::numeric_limits<double>::infinity());
          v.min.fill(std::numeric_limits<double>::infinity());
          v.maxCase.fill(kNoCase);
          v.minCase.fill(kNoCase);
        }
      }
      const size_t width = offset[count];
      buffer.assign(lists.size() * width, 0.0);
      present.assign(lists.size() * count, 0);
      for (size_t l = 0; l < lists.size(); ++l)
        for (size_t i = 0; i < count; ++i) {
          const int32_t p = position[l][begin + i];
          if (p < 0) continue;
          present[l * count + i] = 1;
          const std::vector<fmBmStation>& st = (*lists[l])[static_cast<size_t>(p)].m_VMD;
          double* to = buffer.data() + l * width + offset[i];
          const size_t n = std::min(st.size(), (offset[i + 1] - offset[i]) / 6);
          for (size_t k = 0; k < n; ++k)
            for (size_t f = 0; f < 6; ++f) to[6 * k + f] = st[k].force[f];
        }
      value.resize(width);
      for (size_t s = 0; s < sources.size(); ++s) {
        const int32_t c = sources[s].entry;
        const auto& terms = sourceTerms[s];
        std::fill(value.begin(), value.end(), 0.0);
        for (const auto& [l, factor] : terms) {
          const double* from = buffer.data() + l * width;
          double* to = value.data();
          for (size_t j = 0; j < width; ++j) to[j] += factor * from[j];
        }
        for (size_t i = 0; i < count; ++i) {
          bool any = false;
          for (const auto& [l, factor] : terms) any = any || present[l * count + i];
          if (!any) continue;
          fmEnvelopeBmVMD& e = out[begin + i];
          const double* v0 = value.data() + offset[i];
          for (size_t k = 0; k < e.station.size(); ++k) {
            const double* val = v0 + 6 * k;
            fmEnvelopeValue6& v = e.station[k];
            // Most stations change nothing once a few entries are in: find that out first.
            int reaches = 0;
            for (size_t f = 0; f < 6; ++f) reaches |= int(val[f] >= v.max[f]) | int(val[f] <= v.min[f]);
            if (!reaches) continue;
            for (size_t f = 0; f < 6; ++f) TakeValue(val[f], c, v.max[f], v.maxCase[f], v.min[f], v.minCase[f]);
          }
        }
      }
    }
  });
  for (fmEnvelopeBmVMD& e : out)
    for (fmEnvelopeValue6& v : e.station)
      for (size_t f = 0; f < 6; ++f) {
        if (v.maxCase[f] == kNoCase) {
          v.max[f] = kNaN;
          v.maxCase[f] = -1;
        }
        if (v.minCase[f] == kNoCase) {
          v.min[f] = kNaN;
          v.minCase[f] = -1;
        }
      }
}

std::vector<bool> CfmStruct::ConcreteDesignCombinations() const {
  std::vector<bool> marked(static_cast<size_t>(GetNumLoadCases()), false);
  for (int c = 0; c < GetNumLoadCases(); ++c)
    if (const fmLoadComb* comb = GetLoadCombination(c)) marked[static_cast<size_t>(c)] = comb->concreteDesign != 0;
  return marked;
}

namespace {

// Calls each(c, results) for every concrete-design combination c that has results, with its
// element results.
template <class Each>
void ForEachDesignCombination(const CfmStruct& s, Each each) {
  const std::vector<bool> marked = s.ConcreteDesignCombinations();
  fmCaseResults scratch;
  for (int c = 0; c < s.GetNumLoadCases(); ++c)
    if (marked[static_cast<size_t>(c)] && s.GetCaseResults(c)) each(c, s.GetElementResults(c, scratch));
}

}  // namespace

void CfmStruct::CalcBeamDesignEnvelope(std::vector<fmBmDesignEnvelope>& out) const {
  out.clear();
  std::unordered_map<int32_t, size_t> slot;
  ForEachDesignCombination(*this, [&](int c, const fmCaseResults& r) {
    for (const fmBmVMD& m : r.memberStations) {
      const Member* member = FindMember(m.number);
      if (!member || member->rcCriteria.empty() || member->rcExcluded) continue;
      auto [it, added] = slot.emplace(m.number, out.size());
      if (added) {
        fmBmDesignEnvelope e;
        e.number = m.number;
        for (const fmBmStation& st : m.m_VMD) {
          fmBmDesignEnvelope::Station s;
          s.distance = st.distance;
          s.maxMz = -std::numeric_limits<double>::infinity();
          s.minMz = std::numeric_limits<double>::infinity();
          s.absFy = -1;
          e.station.push_back(s);
        }
        out.push_back(std::move(e));
      }
      fmBmDesignEnvelope& e = out[it->second];
      const size_t n = std::min(e.station.size(), m.m_VMD.size());
      for (size_t k = 0; k < n; ++k) {
        fmBmDesignEnvelope::Station& s = e.station[k];
        const double mz = m.m_VMD[k].force[5], fy = std::fabs(m.m_VMD[k].force[1]);
        // In list order, so the first combination keeps a tie.
        if (mz > s.maxMz) {
          s.maxMz = mz;
          s.maxMzComb = c;
        }
        if (mz < s.minMz) {
          s.minMz = mz;
          s.minMzComb = c;
        }
        if (fy > s.absFy) {
          s.absFy = fy;
          s.absFyComb = c;
        }
      }
    }
  });
  for (fmBmDesignEnvelope& e : out)
    for (fmBmDesignEnvelope::Station& s : e.station) {
      if (s.maxMzComb < 0) s.maxMz = kNaN;
      if (s.minMzComb < 0) s.minMz = kNaN;
      if (s.absFyComb < 0) s.absFy = kNaN;
    }
}

void CfmStruct::CalcWoodArmerMoments(std::vector<fmWoodArmerMoment>& out) const {
  out.clear();
  std::unordered_map<int32_t, size_t> slot;
  ForEachDesignCombination(*this, [&](int c, const fmCaseResults& r) {
    for (const fmShellForce& f : r.shellForces) {
      const Shell4* shell = FindShell(f.number);
      if (!shell || shell->rcExcluded) continue;
      auto [it, added] = slot.emplace(f.number, out.size());
      if (added) {
        fmWoodArmerMoment w;
        w.number = f.number;
        for (auto& comb : w.comb) comb.fill(-1);
        out.push_back(w);
      }
      fmWoodArmerMoment& w = out[it->second];
      for (size_t p = 0; p < kShellPoints; ++p) {
        const auto& v = f.point[p];
        const model::WoodArmerMoments m = model::WoodArmer(v[3], v[4], v[5]);
        const double value[4] = {m.botMux, m.botMuy, m.topMux, m.topMuy};
        for (size_t k = 0; k < 4; ++k) {
          // Bottom moments: the largest; top moments: the most negative.
          const bool wins = w.comb[p][k] < 0 || (k < 2 ? value[k] > w.moment[p][k] : value[k] < w.moment[p][k]);
          if (wins) {
            w.moment[p][k] = value[k];
            w.comb[p][k] = c;
          }
        }
      }
    }
  });
}
