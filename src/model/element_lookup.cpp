#include "model/element_lookup.h"

#include <algorithm>
#include <string>

#include "tools/fm_exception.h"
#include "tools/format.h"

namespace model {

NodeIndex::NodeIndex(std::span<const fmNd> nodes) : count_(nodes.size()) {
  if (nodes.empty()) return;
  first_ = nodes.front().id;
  dense_ = uint64_t(first_) + nodes.size() - 1 <= UINT32_MAX;
  for (size_t i = 0; dense_ && i < nodes.size(); ++i) dense_ = nodes[i].id == first_ + i;
  if (dense_) return;
  sorted_.reserve(nodes.size());
  for (size_t i = 0; i < nodes.size(); ++i) sorted_.emplace_back(nodes[i].id, static_cast<uint32_t>(i));
  // Stable, so that of repeated ids the first in the vector is found.
  std::stable_sort(sorted_.begin(), sorted_.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
}

std::optional<size_t> NodeIndex::Find(uint32_t id) const {
  if (dense_) {
    if (id < first_ || id - first_ >= count_) return std::nullopt;
    return id - first_;
  }
  const auto it = std::lower_bound(sorted_.begin(), sorted_.end(), id,
                                   [](const auto& entry, uint32_t key) { return entry.first < key; });
  if (it == sorted_.end() || it->first != id) return std::nullopt;
  return it->second;
}

size_t NodeIndex::Require(uint32_t id) const {
  if (const auto position = Find(id)) return *position;
  throw fmException(tools::Format("Node %u does not exist.", id));
}

namespace {

// `what` names one record ("material"), `plural` the list ("materials").
template <class Record>
const Record& LookUp(std::span<const Record> list, int32_t reference, const char* what, const char* plural) {
  if (reference >= 1 && static_cast<size_t>(reference) <= list.size()) return list[static_cast<size_t>(reference) - 1];
  if (list.empty()) throw fmException(tools::Format("No %s can be chosen: the model has no %s.", what, plural));
  if (reference <= 0) throw fmException(tools::Format("No %s is chosen.", what));
  std::string name = what;
  name[0] = static_cast<char>(name[0] - 'a' + 'A');
  throw fmException(tools::Format("%s %d does not exist: the list holds %zu %s.", name.c_str(), reference,
                                  list.size(), list.size() == 1 ? what : plural));
}

}  // namespace

const fmMat& LookUpMaterial(std::span<const fmMat> materials, int32_t reference) {
  return LookUp(materials, reference, "material", "materials");
}

const fmSect& LookUpSection(std::span<const fmSect> sections, int32_t reference) {
  return LookUp(sections, reference, "section", "sections");
}

const fmThick& LookUpThickness(std::span<const fmThick> thicknesses, int32_t reference) {
  return LookUp(thicknesses, reference, "thickness", "thicknesses");
}

}  // namespace model
