#include "model/load_generator.h"

#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include "tools/format.h"
#include "tools/labels.h"

namespace model {

std::string LoadGenerator::CheckPath(const std::vector<int64_t>& ids, size_t* at) const {
  std::unordered_set<int64_t> seen;
  seen.reserve(ids.size());
  for (size_t k = 0; k < ids.size(); ++k) {
    const int64_t id = ids[k];
    if (at) *at = k;
    if (!seen.insert(id).second) return tools::Format("Duplicate member id %lld found", static_cast<long long>(id));
    if (id < 0 || id > UINT32_MAX || !FindMember(static_cast<uint32_t>(id)))
      return tools::Format("Member id %lld not found", static_cast<long long>(id));
  }
  return {};
}

const fmBm* LoadGenerator::FindMember(uint32_t id) const {
  if (!m_pMembers) return nullptr;
  for (const fmBm& m : *m_pMembers)
    if (m.id == id) return &m;
  return nullptr;
}

double LoadGenerator::MemberLength(const fmBm& member) const {
  const fmNd* ends[2] = {nullptr, nullptr};
  if (m_pNodes)
    for (const fmNd& nd : *m_pNodes)
      for (int e = 0; e < 2; ++e)
        if (!ends[e] && nd.id == member.nodes[static_cast<size_t>(e)]) ends[e] = &nd;
  if (!ends[0] || !ends[1]) return 0.0;
  return std::hypot(ends[1]->x - ends[0]->x, ends[1]->y - ends[0]->y, ends[1]->z - ends[0]->z);
}

bool LoadGenerator::IsConnected(const std::vector<uint32_t>& path) const {
  for (size_t k = 0; k + 1 < path.size(); ++k) {
    const fmBm* a = FindMember(path[k]);
    const fmBm* b = FindMember(path[k + 1]);
    if (!a || !b) return false;
    const bool shared = a->nodes[0] == b->nodes[0] || a->nodes[0] == b->nodes[1] || a->nodes[1] == b->nodes[0] ||
                        a->nodes[1] == b->nodes[1];
    if (!shared) return false;
  }
  return true;
}

bool LoadGenerator::Refuse(std::string text) {
  refusal_ = text;
  refusals_.push_back(std::move(text));
  return false;
}

bool LoadGenerator::CheckCasePrefix(const std::string& prefix, const char* word) {
  if (tools::CountChars(prefix) >= 119)
    return Refuse(tools::Format("%s load case prefix (%s) too long", word, prefix.c_str()));
  for (const fmLoadCase& lc : *m_pLoadCases)
    if (tools::LabelStartsWith(lc.name, prefix))
      return Refuse(tools::Format("%s load case prefix (%s) already exists", word, prefix.c_str()));
  return true;
}

bool LoadGenerator::CollectCombinations(const std::function<std::string(int, const std::string&)>& makePrefix,
                                        const char* word, std::vector<CombUse>& uses) {
  const std::string& caseLabel = (*m_pLoadCases)[static_cast<size_t>(m_nCase)].name;
  const std::vector<fmLoadComb>& combs = *m_pLoadCombs;
  for (size_t c = 0; c < combs.size(); ++c) {
    std::string prefix = makePrefix(static_cast<int>(c + 1), combs[c].name);
    if (tools::CountChars(prefix) > 118)
      return Refuse(tools::Format("%s load combination prefix (%s) too long", word, prefix.c_str()));
    for (const fmLoadComb& other : combs)
      if (tools::LabelStartsWith(other.name, prefix))
        return Refuse(tools::Format("%s load combination prefix (%s) already exists", word, prefix.c_str()));
    const auto& items = combs[c].items;
    for (size_t i = 0; i < items.size(); ++i)
      if (items[i].factor != 0 && tools::LabelsEqual(items[i].caseName, caseLabel)) {
        uses.push_back({c, i, std::move(prefix)});
        break;
      }
  }
  return true;
}

void LoadGenerator::EnsureCaseLoads() {
  if (m_pCaseLoads->size() < m_pLoadCases->size()) m_pCaseLoads->resize(m_pLoadCases->size());
}

void LoadGenerator::Commit(const std::string& casePrefix, const std::vector<std::string>& suffixes,
                           std::vector<fmCaseLoad>& loads, const std::vector<CombUse>& uses) {
  const fmLoadCase source = (*m_pLoadCases)[static_cast<size_t>(m_nCase)];
  m_pLoadCases->reserve(m_pLoadCases->size() + suffixes.size());
  std::vector<std::string> labels;
  for (const std::string& suffix : suffixes) {
    fmLoadCase lc = source;
    lc.SetName(casePrefix + suffix);
    lc.number = static_cast<int32_t>(m_pLoadCases->size() + 1);
    labels.push_back(lc.name);
    m_pLoadCases->push_back(std::move(lc));
  }
  m_pCaseLoads->resize(m_pLoadCases->size() - suffixes.size());
  for (fmCaseLoad& cl : loads) m_pCaseLoads->push_back(std::move(cl));
  std::vector<fmLoadComb> copies;
  for (const CombUse& use : uses)
    for (size_t s = 0; s < suffixes.size(); ++s) {
      fmLoadComb copy = (*m_pLoadCombs)[use.comb];
      copy.SetName(use.prefix + suffixes[s]);
      copy.items[use.item].caseName = labels[s];
      copies.push_back(std::move(copy));
    }
  for (fmLoadComb& c : copies) m_pLoadCombs->push_back(std::move(c));
}

std::vector<std::string> CaseChoices(const std::vector<fmLoadCase>& cases) {
  std::vector<std::string> out;
  out.reserve(cases.size());
  for (size_t i = 0; i < cases.size(); ++i) out.push_back(tools::Format("%zu: %s", i + 1, cases[i].name.c_str()));
  return out;
}

}  // namespace model
