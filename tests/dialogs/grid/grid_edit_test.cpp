#include "dialogs/grid/grid_edit.h"

#include <gtest/gtest.h>

#include "dialogs/grid/grid_ops.h"

namespace {

using grid::Block;
using grid::Sheet;

// Ids in column 1 with their own cell locks (as "New Rows" leaves them), X in column 2,
// a status drop-down in column 3.
Sheet StatusSheet(int rows) {
  Sheet sheet;
  grid::InitializeGrid(sheet, 0xF0F5FF, rows, 3, {"Id", "X", "Status"}, {}, false);
  grid::CellType combo;
  combo.kind = grid::CellType::Combo;
  combo.items = {"Normal", "Selected", "Frozen"};
  sheet.SetColumnType(3, combo);
  for (int row = 1; row <= rows; ++row) {
    sheet.SetData(1, row, std::to_string(row));
    sheet.SetLock(1, row, true);
    sheet.SetData(2, row, std::to_string(row * 10));
    sheet.SetData(3, row, "Normal");
  }
  return sheet;
}

TEST(GridEdit, PasteIsPlannedFromTheSelectionsTopLeftAndRaggedRowsFillWithEmptyCells) {
  const Sheet sheet = StatusSheet(4);
  grid::PastePlan plan = grid::PlanPaste(sheet, {2, 2, 3, 4}, {3, 4}, "1\tfrozen\n2\n");
  ASSERT_FALSE(plan.refusal);
  EXPECT_EQ(plan.writes.block, (Block{2, 2, 3, 3}));
  EXPECT_EQ(plan.writes.texts, (std::vector<std::string>{"1", "frozen", "2", ""}));
  ASSERT_FALSE(grid::CheckWrites(sheet, plan.writes));
  EXPECT_EQ(plan.writes.At(3, 2), "Frozen");

  plan = grid::PlanPaste(sheet, {}, {2, 3}, "7");  // nothing selected: at the active cell
  EXPECT_EQ(plan.writes.block, (Block{2, 3, 2, 3}));
  plan = grid::PlanPaste(sheet, {1, 1, 3, 4}, {1, 1}, "");
  EXPECT_TRUE(plan.writes.block.IsEmpty());
}

TEST(GridEdit, DropDownTextsAreCheckedAtTheFirstCellThatRefuses) {
  Sheet sheet = StatusSheet(3);
  grid::CellWrites writes{{2, 1, 3, 2}, {"5", "Tension", "6", "Bogus"}};
  const auto refusal = grid::CheckWrites(sheet, writes);
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->message, "\"Tension\" is not one of Normal, Selected, Frozen.");
  EXPECT_EQ(refusal->cell, (grid::CellRef{3, 1}));
  EXPECT_FALSE(grid::ComboRefusal(sheet, 3, 1, "  "));  // emptying a drop-down is allowed
  sheet.SetColumnLock(3, true);
  EXPECT_FALSE(grid::CheckWrites(sheet, writes)) << "locked cells are skipped, not refused";
  EXPECT_EQ(grid::ApplyWrites(sheet, writes), 2);
  EXPECT_EQ(sheet.GetData(3, 1), "Normal");
}

TEST(GridEdit, SavedRowsBringBackTheRowCountTextsAndIdLocks) {
  Sheet sheet = StatusSheet(3);
  const grid::SavedBlock before = grid::SaveRows(sheet, 2);
  grid::AddRows(sheet, 2, true);
  sheet.SetData(2, 2, "changed");
  const grid::SavedBlock after = grid::SaveRows(sheet, 2);

  grid::RestoreBlock(sheet, before);
  EXPECT_EQ(sheet.MaxRows(), 3);
  EXPECT_EQ(sheet.GetData(2, 2), "20");
  grid::RestoreBlock(sheet, after);
  EXPECT_EQ(sheet.MaxRows(), 5);
  EXPECT_EQ(sheet.GetData(1, 5), "5");
  EXPECT_TRUE(sheet.IsLocked(1, 5));
  EXPECT_EQ(sheet.GetData(2, 2), "changed");
}

}  // namespace
