#pragma once
#include <array>
#include <cstdint>

#include "tools/fm_unit.h"

// How the host shows its tables: the grid's alternate row colour, the data-option flags
// every data dialog receives, and the results' display format index (0 to 11) per quantity.
struct DisplaySettings {
  uint32_t alternateRowColor = 0xF0F5FF;  // 0xRRGGBB
  bool showSelectedOnly = false;
  bool modelLocked = false;
  std::array<int32_t, fmUnit::QuantityCount> format{2, 2, 2, 2, 2, 2, 2, 3, 8, 1, 1, 2, 2, 2, 2, 2, 2, 2};
  // Points of a shell its reports list: 1 the four nodes, 2 the centre and the nodes, any
  // other value the centre only.
  int32_t shellResultLocation = 0;

  bool operator==(const DisplaySettings&) const = default;
};
