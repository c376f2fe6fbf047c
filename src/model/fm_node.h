#pragma once
#include <cstdint>

// Node and element ids stay at or below this: results and queries number them as signed
// 32-bit integers.
inline constexpr uint32_t kMaxId = 2147483647;

// A node: id, flags (bit 0 selected, bit 1 frozen) and coordinates in the length unit.
struct fmNd {
  static constexpr uint32_t kSelected = 1u << 0;
  static constexpr uint32_t kFrozen = 1u << 1;

  uint32_t id = 0;
  uint32_t flags = 0;
  double x = 0, y = 0, z = 0;

  bool IsSelected() const { return flags & kSelected; }
  bool IsFrozen() const { return flags & kFrozen; }
  bool operator==(const fmNd&) const = default;
};
