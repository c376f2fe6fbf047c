#include "model/pattern_load.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "tools/format.h"

namespace model {

void PatternLoadGenerator::PreselectCase() {
  if (m_nCase != -1 || !m_pLoadCases || m_pLoadCases->empty()) return;
  m_nCase = 0;
  for (size_t i = 0; i < m_pLoadCases->size(); ++i)
    if (MatchesLoadType((*m_pLoadCases)[i].type, 1)) {
      m_nCase = static_cast<int>(i);
      return;
    }
}

bool PatternLoadGenerator::Run(const std::vector<int64_t>& ids, const std::function<bool(const std::string&)>& ask) {
  ClearRefusals();
  if (std::string bad = CheckPath(ids); !bad.empty()) return Refuse(std::move(bad));
  const std::vector<uint32_t> path(ids.begin(), ids.end());
  if (!IsConnected(path) && !ask(kConnectionQuestion)) return false;
  return Process(path);
}

std::vector<std::pair<std::string, std::vector<int>>> PatternLoadGenerator::Patterns(int n) {
  std::vector<std::pair<std::string, std::vector<int>>> out;
  std::vector<int> odd, even;
  for (int s = 1; s <= n; ++s) (s % 2 ? odd : even).push_back(s);
  out.emplace_back("Odd", std::move(odd));
  out.emplace_back("Even", std::move(even));
  for (int k = 1; k < n; ++k) {
    // Spans k and k + 1, then every second span outward, skipping the neighbours.
    std::vector<int> spans{k, k + 1};
    for (int s = k + 3; s <= n; s += 2) spans.push_back(s);
    for (int s = k - 2; s >= 1; s -= 2) spans.push_back(s);
    std::sort(spans.begin(), spans.end());
    out.emplace_back(tools::Format("S%d", k), std::move(spans));
  }
  return out;
}

bool PatternLoadGenerator::Process(const std::vector<uint32_t>& path) {
  refusal_.clear();
  if (m_nCase < 0 || static_cast<size_t>(m_nCase) >= m_pLoadCases->size()) return Refuse("Invalid load case");
  if (path.size() < 2) return Refuse("Number of members must be greater than or equal to 2");
  EnsureCaseLoads();
  const std::string casePrefix = "Pattern_" + (*m_pLoadCases)[static_cast<size_t>(m_nCase)].name + "_";
  if (!CheckCasePrefix(casePrefix, "Pattern")) return false;
  std::vector<CombUse> uses;
  if (!CollectCombinations(
          [](int n, const std::string& label) { return tools::Format("Pattern%d_%s_", n, label.c_str()); },
          "Pattern", uses))
    return false;

  const fmCaseLoad& caseLoad = (*m_pCaseLoads)[static_cast<size_t>(m_nCase)];
  std::vector<fmCaseLoad> loads;
  std::vector<std::string> suffixes;
  for (auto& [suffix, spans] : Patterns(static_cast<int>(path.size()))) {
    std::vector<uint32_t> members;
    members.reserve(spans.size());
    for (int s : spans) members.push_back(path[static_cast<size_t>(s - 1)]);
    fmCaseLoad out;
    ProcessPattern(out, caseLoad, path, m_dRatio, members);
    loads.push_back(std::move(out));
    suffixes.push_back(suffix);
  }
  Commit(casePrefix, suffixes, loads, uses);
  return true;
}

void PatternLoadGenerator::ProcessPattern(fmCaseLoad& outCaseLoad, const fmCaseLoad& caseLoad,
                                          const std::vector<uint32_t>& path, double ratio,
                                          const std::vector<uint32_t>& loadedMembers) {
  const std::unordered_set<uint32_t> onPath(path.begin(), path.end());
  outCaseLoad = caseLoad;
  outCaseLoad.point.clear();
  outCaseLoad.line.clear();
  std::unordered_map<uint32_t, std::vector<const fmPtLoad*>> points;
  std::unordered_map<uint32_t, std::vector<const fmLineLoad*>> lines;
  for (const fmPtLoad& l : caseLoad.point) {
    if (onPath.count(l.member))
      points[l.member].push_back(&l);
    else
      outCaseLoad.point.push_back(l);
  }
  for (const fmLineLoad& l : caseLoad.line) {
    if (onPath.count(l.member))
      lines[l.member].push_back(&l);
    else
      outCaseLoad.line.push_back(l);
  }
  for (uint32_t member : loadedMembers) {
    if (const auto it = points.find(member); it != points.end())
      for (const fmPtLoad* l : it->second) {
        outCaseLoad.point.push_back(*l);
        outCaseLoad.point.back().magnitude *= ratio;
      }
    if (const auto it = lines.find(member); it != lines.end())
      for (const fmLineLoad* l : it->second) {
        fmLineLoad scaled = *l;
        scaled.magnitude[0] *= ratio;
        scaled.magnitude[1] *= ratio;
        outCaseLoad.line.push_back(scaled);
      }
  }
  SortPointLoads(outCaseLoad.point);
  SortLineLoads(outCaseLoad.line);
}

}  // namespace model
