#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/grid/sheet.h"
#include "model/fm_element.h"

// The member path of the moving and pattern load generators as a grid: one column
// "Member Id", the members in the order the load travels or the spans follow each other.
namespace pathgrid {

// The members a generator opens with: the selected members of the model, in model order.
std::vector<uint32_t> SelectedMembers(const std::vector<fmBm>& members);

void Fill(grid::Sheet& sheet, const std::vector<uint32_t>& ids, grid::Color alternateRowColor, bool lockAll);

struct PathRead {
  std::optional<grid::GridFailure> failure;
  std::vector<int64_t> ids;  // in row order, when there is no failure
};
// The rows up to the last one with text: an empty row among them is refused with "Invalid
// empty input for %s %d" (entity, row), a text that is no whole number with "Invalid member id
// \"%s\" in row %d.".
PathRead Read(const grid::Sheet& sheet, const std::string& entity);

// Removes rows row1..row2 (within the grid).
void DeleteRows(grid::Sheet& sheet, int row1, int row2);

}  // namespace pathgrid
