#include "model/fm_case_load.h"

#include <algorithm>
#include <cmath>

#include "tools/labels.h"

namespace {

template <class T>
void Add(std::vector<T>& to, const std::vector<T>& from) {
  to.insert(to.end(), from.begin(), from.end());
}

}  // namespace

void fmCaseLoad::Scale(double factor) {
  selfWeight.factor *= factor;
  for (auto& l : nodal) l.magnitude *= factor;
  for (auto& l : point) l.magnitude *= factor;
  for (auto& l : line) {
    l.magnitude[0] *= factor;
    l.magnitude[1] *= factor;
  }
  for (auto& l : surface) l.magnitude *= factor;
  for (auto& l : area) l.magnitude *= factor;
  for (auto* list : {&memberThermal, &shellThermal, &brickThermal})
    for (auto& l : *list) l.temperature *= factor;
  for (auto& m : nodalMasses) m.weight *= factor;
}

void fmCaseLoad::Append(const fmCaseLoad& other) {
  if (selfWeight.factor == 0)
    selfWeight = other.selfWeight;
  else if (other.selfWeight.direction == selfWeight.direction)
    selfWeight.factor += other.selfWeight.factor;
  Add(nodal, other.nodal);
  Add(point, other.point);
  Add(line, other.line);
  Add(surface, other.surface);
  Add(area, other.area);
  Add(memberThermal, other.memberThermal);
  Add(shellThermal, other.shellThermal);
  Add(brickThermal, other.brickThermal);
  Add(nodalMasses, other.nodalMasses);
  SortPointLoads(point);
  SortLineLoads(line);
}

// Generated loads mostly come in order already: a check is cheaper than a sort.
void SortPointLoads(std::vector<fmPtLoad>& loads) {
  const auto before = [](const fmPtLoad& a, const fmPtLoad& b) {
    return a.member != b.member ? a.member < b.member : a.ratio < b.ratio;
  };
  if (!std::is_sorted(loads.begin(), loads.end(), before)) std::stable_sort(loads.begin(), loads.end(), before);
}

void SortLineLoads(std::vector<fmLineLoad>& loads) {
  const auto before = [](const fmLineLoad& a, const fmLineLoad& b) {
    return a.member != b.member ? a.member < b.member : a.ratio[0] < b.ratio[0];
  };
  if (!std::is_sorted(loads.begin(), loads.end(), before)) std::stable_sort(loads.begin(), loads.end(), before);
}

const std::array<const char*, 6>& LoadDirectionNames() {
  static const std::array<const char*, 6> names{"X", "Y", "Z", "OX", "OY", "OZ"};
  return names;
}

int LoadDirectionIndex(const std::string& name) {
  const auto& names = LoadDirectionNames();
  for (int i = 0; i < 6; ++i)
    if (tools::FoldCase(name) == tools::FoldCase(names[i])) return i;
  return -1;
}

void ReorderCaseLoads(std::vector<fmCaseLoad>& caseLoads, const std::vector<int>& origin) {
  std::vector<fmCaseLoad> out(origin.size());
  for (size_t i = 0; i < origin.size(); ++i)
    if (origin[i] >= 0 && static_cast<size_t>(origin[i]) < caseLoads.size())
      out[i] = caseLoads[static_cast<size_t>(origin[i])];
  caseLoads = std::move(out);
}

bool CopyCaseLoads(std::vector<fmCaseLoad>& caseLoads, size_t from, size_t to, double factor, bool deleteExisting) {
  if (from >= caseLoads.size() || to >= caseLoads.size() || from == to || factor == 0 || !std::isfinite(factor))
    return false;
  fmCaseLoad copy = caseLoads[from];
  copy.Scale(factor);
  copy.massFactor = 0;
  fmCaseLoad& target = caseLoads[to];
  if (deleteExisting) {
    const double massFactor = target.massFactor;
    target = fmCaseLoad{};
    target.massFactor = massFactor;
  }
  target.Append(copy);
  return true;
}
