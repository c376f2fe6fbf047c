#pragma once
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "model/fm_material.h"
#include "model/fm_node.h"
#include "model/fm_section.h"

// Look-ups an element needs: its nodes by id, its material, section or thickness by
// reference (position + 1). A failed look-up throws fmException with a text for the user.
namespace model {

// Node ids to positions in the node vector, built once and then asked per element node,
// so that checking a million elements does not search the node vector a million times.
class NodeIndex {
 public:
  explicit NodeIndex(std::span<const fmNd> nodes);

  // Position of the node in the vector; with repeated ids, the first one's.
  std::optional<size_t> Find(uint32_t id) const;
  // The same, or fmException "Node 17 does not exist.".
  size_t Require(uint32_t id) const;

 private:
  // Ids 1, 2, 3 ... in vector order, the usual numbering, need no table at all.
  bool dense_ = false;
  uint32_t first_ = 0;
  size_t count_ = 0;
  // Otherwise an open-addressing table, probed linearly; a slot's position + 1 is 0 when
  // the slot is free.
  struct Slot {
    uint32_t id = 0;
    uint32_t positionPlus1 = 0;
  };
  std::vector<Slot> slots_;
  int shift_ = 64;
  size_t SlotOf(uint32_t id) const { return static_cast<size_t>((id * 0x9E3779B97F4A7C15ull) >> shift_); }
};

const fmMat& LookUpMaterial(std::span<const fmMat> materials, int32_t reference);
const fmSect& LookUpSection(std::span<const fmSect> sections, int32_t reference);
const fmThick& LookUpThickness(std::span<const fmThick> thicknesses, int32_t reference);

}  // namespace model
