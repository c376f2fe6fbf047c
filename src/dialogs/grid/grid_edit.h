#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/grid/sheet.h"

// Editing a grid the way a spreadsheet does, without any widget: what a paste writes and
// where, the check of drop-down texts, and the saved blocks that undo and redo restore.
namespace grid {

// A drop-down cell takes only one of its items (case ignored) or an empty text. The refusal
// names the text and the items: "\"Bogus\" is not one of Linear, Tension only, Compression Only."
std::optional<std::string> ComboRefusal(const Sheet& sheet, int col, int row, std::string_view text);
// The text a cell keeps: a drop-down's own spelling of the item, anything else as given.
std::string CellTextFor(const Sheet& sheet, int col, int row, std::string_view text);

// Cells to write: a block of texts in row order, one text per cell of the block.
struct CellWrites {
  Block block;
  std::vector<std::string> texts;
  const std::string& At(int col, int row) const {
    return texts[static_cast<size_t>(row - block.row1) * static_cast<size_t>(block.col2 - block.col1 + 1) +
                 static_cast<size_t>(col - block.col1)];
  }
};

// Where a paste goes. A single value fills every cell of a selection of more than one
// cell; a block starts at the top-left cell of the selection (the active cell when nothing
// is selected). A block that would run past the last row or column is refused, not cut:
// the refusal says how many rows or columns it needs.
struct PastePlan {
  CellWrites writes;
  std::optional<GridFailure> refusal;
};
PastePlan PlanPaste(const Sheet& sheet, const Block& selection, CellRef active, const std::string& clipboard);

// Checks a planned write and gives the texts the cells will keep (drop-down items in their
// own spelling). Locked cells are left out, not refused. The first text a drop-down cell
// does not take refuses the whole write, at that cell.
std::optional<GridFailure> CheckWrites(const Sheet& sheet, CellWrites& writes);
// Writes the texts into the unlocked cells of the block; returns how many were written.
int ApplyWrites(Sheet& sheet, const CellWrites& writes);

// The texts of a block of cells, kept so that a change can be undone or redone. With
// wholeRows the block runs over every column from its first row to the last row of the
// grid, and the row count and cell locks are kept too, for changes that add or remove rows.
struct SavedBlock {
  Block block;
  bool wholeRows = false;
  int maxRows = 0;
  std::vector<std::string> texts;
  std::vector<uint8_t> locks;
};
SavedBlock SaveBlock(const Sheet& sheet, const Block& block);
SavedBlock SaveRows(const Sheet& sheet, int firstRow);
void RestoreBlock(Sheet& sheet, const SavedBlock& saved);

}  // namespace grid
