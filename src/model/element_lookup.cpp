#include "model/element_lookup.h"

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
  // At most half full, so that probe runs stay short.
  size_t size = 2;
  shift_ = 63;
  while (size < 2 * nodes.size()) {
    size *= 2;
    --shift_;
  }
  slots_.resize(size);
  const size_t mask = size - 1;
  for (size_t i = 0; i < nodes.size(); ++i) {
    for (size_t s = SlotOf(nodes[i].id);; s = (s + 1) & mask) {
      Slot& slot = slots_[s];
      if (slot.positionPlus1 == 0) {
        slot = {nodes[i].id, static_cast<uint32_t>(i + 1)};
        break;
      }
      if (slot.id == nodes[i].id) break;  // a repeated id: the first one stays
    }
  }
}

std::optional<size_t> NodeIndex::Find(uint32_t id) const {
  if (dense_) {
    if (id < first_ || id - first_ >= count_) return std::nullopt;
    return id - first_;
  }
  if (slots_.empty()) return std::nullopt;
  const size_t mask = slots_.size() - 1;
  for (size_t s = SlotOf(id);; s = (s + 1) & mask) {
    const Slot& slot = slots_[s];
    if (slot.positionPlus1 == 0) return std::nullopt;
    if (slot.id == id) return slot.positionPlus1 - 1;
  }
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
