#include "model/moving_load.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "tools/format.h"

namespace model {

bool MovingLoadGenerator::Run(const std::vector<int64_t>& ids, double step, bool biDirectional,
                              const std::function<bool(const std::string&)>& ask) {
  ClearRefusals();
  if (step == 0 || !std::isfinite(step)) return Refuse("Moving step may be positive or negative, but not zero");
  if (std::string bad = CheckPath(ids); !bad.empty()) return Refuse(std::move(bad));
  std::vector<uint32_t> path(ids.begin(), ids.end());
  if (!IsConnected(path) && !ask(kConnectionQuestion)) return false;
  std::vector<uint32_t> reversed(path.rbegin(), path.rend());
  if (!biDirectional) return step > 0 ? Process(path, step, "Dir1") : Process(reversed, -step, "Dir2");
  // Each direction stands on its own: a refusal of one keeps what the other added.
  const bool first = Process(path, std::fabs(step), "Dir1");
  const bool second = Process(reversed, std::fabs(step), "Dir2");
  return first || second;
}

std::vector<bool> MovingLoadGenerator::ForwardFlags(const std::vector<uint32_t>& path,
                                                    const std::string& direction) const {
  std::vector<bool> forward(path.size(), false);
  if (path.size() == 1) {
    forward[0] = direction == "Dir1";
    return forward;
  }
  // A member is travelled from its first node to its second when its second node is the one
  // it shares with the next member; the last member when it is entered through its first.
  for (size_t k = 0; k + 1 < path.size(); ++k) {
    const fmBm* m = FindMember(path[k]);
    const fmBm* next = FindMember(path[k + 1]);
    forward[k] = m && next && (m->nodes[1] == next->nodes[0] || m->nodes[1] == next->nodes[1]);
  }
  const fmBm* last = FindMember(path.back());
  const fmBm* before = FindMember(path[path.size() - 2]);
  forward.back() = last && before && (last->nodes[0] == before->nodes[0] || last->nodes[0] == before->nodes[1]);
  return forward;
}

bool MovingLoadGenerator::Process(const std::vector<uint32_t>& path, double step, const std::string& direction) {
  refusal_.clear();
  if (m_nCase < 0 || static_cast<size_t>(m_nCase) >= m_pLoadCases->size())
    return Refuse("Invalid moving load case");
  if (path.empty()) return Refuse("Number of members must be greater than 0");
  EnsureCaseLoads();

  std::vector<double> lengths;
  double total = 0;
  for (uint32_t id : path) {
    const fmBm* m = FindMember(id);
    lengths.push_back(m ? MemberLength(*m) : 0.0);
    total += lengths.back();
  }
  const double count = std::floor(total / step) + 1;
  // A step tiny against the path would ask for more cases than anyone can use.
  if (!(count <= 1e7)) return Refuse(tools::Format("Moving step %g is too small for a path of length %g", step, total));

  const std::string caseLabel = (*m_pLoadCases)[static_cast<size_t>(m_nCase)].name;
  const std::string casePrefix = "Moving_" + direction + "_" + caseLabel + "_";
  if (!CheckCasePrefix(casePrefix, "Moving")) return false;
  std::vector<CombUse> uses;
  if (!CollectCombinations(
          [&](int n, const std::string& label) {
            return tools::Format("Moving%d_%s_%s_", n, label.c_str(), direction.c_str());
          },
          "Moving", uses))
    return false;

  const std::vector<bool> forward = ForwardFlags(path, direction);
  const Prepared prepared = Prepare((*m_pCaseLoads)[static_cast<size_t>(m_nCase)], path, lengths);
  std::vector<fmCaseLoad> loads;
  std::vector<std::string> suffixes;
  for (int i = 1; i <= static_cast<int>(count); ++i) {
    fmCaseLoad out;
    if (!ProcessMoving(out, prepared, path, forward, lengths, i * step)) break;
    loads.push_back(std::move(out));
    suffixes.push_back(tools::Format("Step%d", i));
  }
  if (suffixes.empty()) return false;
  Commit(casePrefix, suffixes, loads, uses);
  return true;
}

MovingLoadGenerator::Prepared MovingLoadGenerator::Prepare(const fmCaseLoad& caseLoad,
                                                           const std::vector<uint32_t>& path,
                                                           const std::vector<double>& lengths) {
  std::unordered_map<uint32_t, size_t> at;  // member to its first place in the path
  at.reserve(path.size());
  for (size_t k = 0; k < path.size(); ++k) at.emplace(path[k], k);

  Prepared p;
  p.offPath = caseLoad;
  p.offPath.point.clear();
  for (const fmPtLoad& l : caseLoad.point) {
    const auto it = at.find(l.member);
    if (it == at.end())
      p.offPath.point.push_back(l);
    else
      p.onPath.emplace_back(it->second, l);
  }
  // In path order, as the loads of each path member are taken in turn.
  std::stable_sort(p.onPath.begin(), p.onPath.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  p.start.resize(path.size() + 1);
  for (size_t k = 0; k < path.size(); ++k) p.start[k + 1] = p.start[k] + lengths[k];
  return p;
}

bool MovingLoadGenerator::ProcessMoving(fmCaseLoad& outCaseLoad, const fmCaseLoad& caseLoad,
                                        const std::vector<uint32_t>& path, const std::vector<bool>& forward,
                                        const std::vector<double>& lengths, double distance) const {
  return ProcessMoving(outCaseLoad, Prepare(caseLoad, path, lengths), path, forward, lengths, distance);
}

bool MovingLoadGenerator::ProcessMoving(fmCaseLoad& outCaseLoad, const Prepared& prepared,
                                        const std::vector<uint32_t>& path, const std::vector<bool>& forward,
                                        const std::vector<double>& lengths, double distance) {
  outCaseLoad = prepared.offPath;
  outCaseLoad.point.reserve(outCaseLoad.point.size() + prepared.onPath.size());
  bool any = false;
  for (const auto& [k, load] : prepared.onPath) {
    fmPtLoad moved = load;
    if (MoveLoadFrom(moved, k, path, forward, lengths, distance, &prepared.start)) {
      outCaseLoad.point.push_back(moved);
      any = true;
    }
  }
  SortPointLoads(outCaseLoad.point);
  return any;
}

bool MovingLoadGenerator::MoveLoad(fmPtLoad& ptLoad, const std::vector<uint32_t>& path,
                                   const std::vector<bool>& forward, const std::vector<double>& lengths,
                                   double distance) {
  const auto it = std::find(path.begin(), path.end(), ptLoad.member);
  const size_t k = it == path.end() ? 0 : static_cast<size_t>(it - path.begin());
  return MoveLoadFrom(ptLoad, k, path, forward, lengths, distance);
}

bool MovingLoadGenerator::MoveLoadFrom(fmPtLoad& ptLoad, size_t k, const std::vector<uint32_t>& path,
                                       const std::vector<bool>& forward, const std::vector<double>& lengths,
                                       double distance, const std::vector<double>* start) {
  if (path.empty()) return false;
  double r = ptLoad.ratio;
  double d = distance;
  for (int walked = 0;; ++walked) {
    const double length = lengths[k];
    const double ahead = forward[k] ? (1 - r) * length : r * length;
    if (ahead >= d) {
      if (length > 0) r = forward[k] ? r + d / length : r - d / length;
      ptLoad.member = path[k];
      ptLoad.ratio = std::clamp(r, 0.0, 1.0);  // rounding must not leave the member
      return true;
    }
    if (k + 1 == path.size()) return false;
    d -= ahead;
    ++k;
    r = forward[k] ? 0.0 : 1.0;
    // A load travelling far passes whole members: the first member whose end lies at least d
    // beyond the start of member k is found by halving.
    if (start && walked >= 4) {
      const double target = (*start)[k] + d;
      if (target > start->back()) return false;
      const auto end = std::lower_bound(start->begin() + static_cast<std::ptrdiff_t>(k) + 1, start->end(), target);
      const size_t j = static_cast<size_t>(end - start->begin()) - 1;
      d = target - (*start)[j];
      k = j;
      r = forward[k] ? 0.0 : 1.0;
    }
  }
}

}  // namespace model
