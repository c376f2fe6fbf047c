#include "model/fm_boundary.h"

#include <algorithm>
#include <cmath>

#include "model/fm_node.h"

int fmCoupledSpring::TermKind(int t) {
  int at = 0;
  for (int i = 0; i < 6; ++i)
    for (int j = i; j < 6; ++j, ++at)
      if (at == t) return i < 3 && j < 3 ? 0 : i >= 3 && j >= 3 ? 1 : 2;
  return 0;
}

const std::string& fmCoupledSpring::TermName(int t) {
  static const std::array<std::string, kTermCount> names = [] {
    const char* dof[] = {"Kx", "Ky", "Kz", "Kox", "Koy", "Koz"};
    std::array<std::string, kTermCount> out;
    int at = 0;
    for (int i = 0; i < 6; ++i)
      for (int j = i; j < 6; ++j) out[static_cast<size_t>(at++)] = std::string(dof[i]) + "_" + dof[j];
    return out;
  }();
  static const std::string none;
  return t >= 0 && t < kTermCount ? names[static_cast<size_t>(t)] : none;
}

std::string fmMemberRelease::Text() const {
  std::string text;
  for (const auto& end : released)
    for (bool r : end) text += r ? '1' : '0';
  return text;
}

bool fmMemberRelease::ParseText(const std::string& text, std::array<std::array<bool, 6>, 2>& out) {
  if (text.size() != 12) return false;
  for (size_t k = 0; k < 12; ++k) {
    if (text[k] != '0' && text[k] != '1') return false;
    out[k / 6][k % 6] = text[k] == '1';
  }
  return true;
}

bool AtLevel(double y, double level) { return std::fabs(y - level) <= 1e-6 * std::max(1.0, std::fabs(level)); }

std::vector<uint32_t> DiaphragmNodes(const fmDiaphragm& d, const std::vector<fmNd>& nodes) {
  std::vector<uint32_t> out = {d.master};
  if (d.byLevel) {
    for (const fmNd& n : nodes)
      if (n.id != d.master && AtLevel(n.y, d.level)) out.push_back(n.id);
  } else {
    for (uint32_t id : d.nodes)
      if (id != d.master) out.push_back(id);
  }
  return out;
}
