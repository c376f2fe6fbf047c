#pragma once
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_section.h"
#include "tools/fm_unit.h"

// The shell-thickness table as a grid: "Thickness Id", "Label", "Thickness [length]".
namespace thickgrid {

enum Column { kId = 1, kLabel, kThickness, kColumnCount = kThickness };

std::vector<std::string> Headers(const fmUnit& units);
void Fill(grid::Sheet& sheet, const std::vector<fmThick>& thicknesses, const fmUnit& units,
          grid::Color alternateRowColor, bool lockAll);

struct ReadResult {
  std::optional<grid::GridFailure> failure;
  std::vector<fmThick> thicknesses;  // ids = row numbers
};
// Completeness, duplicate labels, then per row the label rule and thickness > 0.
ReadResult Read(const grid::Sheet& sheet, std::span<const fmThick> filled);

}  // namespace thickgrid
