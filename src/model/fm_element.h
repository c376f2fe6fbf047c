#pragma once
#include <array>
#include <cstdint>

// Element records: members, four-node shells and eight-node bricks.
//
// Material, section and thickness references are positions in the model's vectors plus 1
// (reference 1 is materials[0]); 0 means none chosen. A reference names a place in the
// vector, not a record id, so it stays valid when records are relabelled or renumbered.

// What every element carries besides its nodes and properties.
struct fmElementBase {
  static constexpr uint32_t kSelected = 1u << 0;
  static constexpr uint32_t kFrozen = 1u << 1;
  static constexpr uint32_t kInactive = 1u << 2;
  static constexpr uint32_t kNoSelfWeight = 1u << 3;  // excluded from self weight

  uint32_t id = 0;
  uint32_t flags = 0;
  int32_t mat = 0;  // material reference

  bool IsSelected() const { return flags & kSelected; }
  bool IsFrozen() const { return flags & kFrozen; }
  bool IsInactive() const { return flags & kInactive; }
  bool IsExcludedFromSelfWeight() const { return flags & kNoSelfWeight; }
  bool operator==(const fmElementBase&) const = default;
};

// How a member carries axial force.
enum class fmNonlinear : int32_t { Linear = 0, TensionOnly = 1, CompressionOnly = 2 };

// A member (frame element) from nodes[0] to nodes[1].
struct fmBm : fmElementBase {
  static constexpr int kNodeCount = 2;
  std::array<uint32_t, kNodeCount> nodes{};
  int32_t sect = 0;    // section reference
  double angle = 0;    // local angle, degrees
  fmNonlinear nonlinear = fmNonlinear::Linear;
  bool operator==(const fmBm&) const = default;
};

// A four-node shell; nodes in order around its edge.
struct fmShell4 : fmElementBase {
  static constexpr int kNodeCount = 4;
  std::array<uint32_t, kNodeCount> nodes{};
  int32_t thick = 0;  // thickness reference
  double angle = 0;   // local angle, degrees
  bool operator==(const fmShell4&) const = default;
};

// An eight-node brick: nodes[0..3] around one face, nodes[4..7] around the opposite face
// in the same order.
struct fmBrick : fmElementBase {
  static constexpr int kNodeCount = 8;
  std::array<uint32_t, kNodeCount> nodes{};
  bool operator==(const fmBrick&) const = default;
};
