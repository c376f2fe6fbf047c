#include "dialogs/grid/grid_ops.h"

#include <limits>
#include <gtest/gtest.h>

#include "dialogs/grid/grid_edit.h"
#include "tools/format.h"

namespace {

using grid::Block;
using grid::CellRef;
using grid::Sheet;

// Ids in column 1 (locked, as the dialogs fill them), then the value columns.
Sheet IdSheet(const std::vector<std::vector<std::string>>& rows, int cols) {
  Sheet sheet;
  std::vector<std::string> headers = {"Id"};
  for (int c = 2; c <= cols; ++c) headers.push_back(tools::Format("V%d", c));
  grid::InitializeGrid(sheet, 0xF0F5FF, static_cast<int>(rows.size()), cols, headers, {}, false);
  sheet.SetColumnLock(1, true);
  for (size_t r = 0; r < rows.size(); ++r)
    for (size_t c = 0; c < rows[r].size(); ++c) sheet.SetData(int(c) + 1, int(r) + 1, rows[r][c]);
  return sheet;
}

std::vector<std::string> Column(const Sheet& sheet, int col) {
  std::vector<std::string> texts;
  for (int r = 1; r <= sheet.MaxRows(); ++r) texts.push_back(sheet.GetData(col, r));
  return texts;
}

}  // namespace

TEST(AddRows, IdsContinueFromTheLastRowLockedAndTheNewBlockActive) {
  const struct { std::vector<std::vector<std::string>> rows; int count; bool numberIds; int firstNewRow;
                 std::vector<std::string> ids; } cases[] = {
      {{{"7"}, {"120"}}, 5, true, 3, {"7", "120", "121", "122", "123", "124", "125"}},
      {{}, 3, true, 1, {"1", "2", "3"}},
      {{{"50"}, {"2"}}, 1, true, 3, {"50", "2", "3"}},  // ids before are never renumbered
      {{{"9"}}, 2, false, 2, {"9", "", ""}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.ids.back());
    Sheet sheet = IdSheet(c.rows, 3);
    sheet.SetColumnLock(1, false);
    EXPECT_EQ(grid::AddRows(sheet, c.count, c.numberIds), c.firstNewRow);
    EXPECT_EQ(Column(sheet, 1), c.ids);
    EXPECT_EQ(sheet.ActiveCell(), (CellRef{1, c.firstNewRow}));
    for (int r = c.firstNewRow; r <= sheet.MaxRows(); ++r) {
      EXPECT_EQ(sheet.IsLocked(1, r), c.numberIds) << "row " << r;
      EXPECT_FALSE(sheet.IsLocked(2, r));
    }
  }
}

TEST(DeleteRows, TheSelectedRowsOrTheActiveRowAreRemovedWithTheirNumbersAndLocks) {
  Sheet sheet = IdSheet({{"1", "a"}, {"2", "b"}, {"3", "c"}, {"4", "d"}, {"5", "e"}}, 2);
  const struct { Block selection; CellRef active; std::optional<Block> rows; } cases[] = {
      {{2, 4, 2, 9}, {2, 4}, Block{1, 4, 1, 5}},    // a selection past the end stops at the last row
      {{1, 1, 2, 5}, {1, 1}, Block{1, 1, 1, 5}},    // the whole table
      {{}, {2, 3}, Block{1, 3, 1, 3}},              // nothing selected: the active cell's row
      {{}, {-1, -1}, std::nullopt},                 // nothing selected, no active cell
      {{}, {2, 6}, std::nullopt},                   // an active cell below the grid
  };
  for (const auto& c : cases) {
    sheet.SetSelectBlock(c.selection);
    sheet.SetActiveCell(c.active.col, c.active.row);
    EXPECT_EQ(grid::RowsToDelete(sheet), c.rows) << c.active.row;
  }

  sheet.SetNumber(2, 4, "4.5");
  sheet.SetLock(2, 5, true);
  EXPECT_EQ(grid::RemoveRows(sheet, 2, 3), 2);
  EXPECT_EQ(Column(sheet, 2), (std::vector<std::string>{"a", "4.5", "e"}));
  EXPECT_TRUE(sheet.IsNumber(2, 2)) << "a number stays one where it moves";
  EXPECT_FALSE(sheet.IsNumber(2, 3));
  EXPECT_TRUE(sheet.IsCellLocked(2, 3)) << "the lock moves with its cell";
  EXPECT_FALSE(sheet.IsCellLocked(2, 2));
  EXPECT_EQ(grid::RemoveRows(sheet, 3, 8), 1);
  EXPECT_EQ(grid::RemoveRows(sheet, 4, 6), 0);
  EXPECT_EQ(Column(sheet, 1), (std::vector<std::string>{"1", "4"}));
}

TEST(CheckEmptyCells, FirstEmptyCellStopsTheScanAndNamesItsRowsId) {
  const Sheet sheet = IdSheet({{"10", "1", "2", "3"}, {"11", "1", " ", "3"}, {"12", "", "", ""}}, 4);
  const struct { int rowCount, firstCol, lastCol; std::optional<std::string> message; CellRef active; } cases[] = {
      {3, 2, 4, "Invalid empty input for Node 11", {1, 2}},
      {1, 2, 4, std::nullopt, {}},
      {3, 4, 4, "Invalid empty input for Node 12", {1, 3}},
      {99, 4, 4, "Invalid empty input for Node 12", {1, 3}},  // never past the last row
  };
  for (const auto& c : cases) {
    const auto failure = grid::CheckEmptyCells(sheet, c.rowCount, c.firstCol, c.lastCol, "Node");
    ASSERT_EQ(failure.has_value(), c.message.has_value()) << c.rowCount << " " << c.firstCol;
    if (!failure) continue;
    EXPECT_EQ(failure->message, *c.message);
    EXPECT_EQ(failure->cell, c.active);
  }
  const auto named = grid::CheckEmptyCellsNamed(sheet, 3, 2, 4, "Factor", "Load Case");
  ASSERT_TRUE(named);
  EXPECT_EQ(named->message, "Invalid empty input for Factor on Load Case 11");
}

TEST(CheckDeletedRows, EmptiedExistingRowsAreRefusedWithTheirIds) {
  const Sheet sheet = IdSheet({{"4"}, {"5"}, {"6"}, {"7"}}, 2);
  EXPECT_FALSE(grid::CheckDeletedRows(sheet, 4, 4, "nodes"));
  EXPECT_FALSE(grid::CheckDeletedRows(sheet, 4, 2, "nodes"));  // added rows in use
  const auto last = grid::CheckDeletedRows(sheet, 3, 4, "nodes");
  ASSERT_TRUE(last);
  EXPECT_EQ(last->message,
            "Invalid input for existing nodes (7 - 7).\n"
            "If you intend to delete these nodes, cancel this dialog box.\n"
            "Then select these nodes and go to menu Edit | Delete...");
  EXPECT_EQ(last->cell, (CellRef{1, 4}));
  EXPECT_TRUE(grid::CheckDeletedRows(sheet, 1, 4, "members").value().message.starts_with(
      "Invalid input for existing members (5 - 7)."));
}

TEST(CheckDuplicateLabels, CaseIgnoredForNonAsciiLettersToo) {
  const std::vector<std::pair<std::vector<std::string>, std::optional<std::string>>> cases = {
      {{"Ärger", "x", "ärger "}, "Duplicate label [ärger] can not be used."},
      {{"Ä", "A", "", ""}, std::nullopt},  // empty cells are no labels
  };
  for (const auto& [labels, message] : cases) {
    Sheet sheet = IdSheet({}, 1);
    grid::AddRows(sheet, static_cast<int>(labels.size()), false);
    for (size_t r = 0; r < labels.size(); ++r) sheet.SetData(1, int(r) + 1, labels[r]);
    const auto failure = grid::CheckDuplicateLabels(sheet, sheet.MaxRows(), 1);
    EXPECT_EQ(failure ? std::optional(failure->message) : std::nullopt, message);
    EXPECT_EQ(failure ? failure->cell : (CellRef{1, 3}), (CellRef{1, 3}));
  }
}

TEST(FillSelection, CopiesOrContinuesASeriesDownTheSelection) {
  using enum grid::FillMode;
  const struct { const char* name; std::vector<std::string> column; Block block; int clickedRow;
                 grid::FillMode mode; int written; std::vector<std::string> expected; } cases[] = {
      {"copy upwards too", {"", "", "x", ""}, {2, 1, 2, 4}, 3, Copy, 3, {"x", "x", "x", "x"}},
      {"series by the step below", {"10", "12.5", "", ""}, {2, 1, 2, 4}, 1, Series, 3, {"10", "12.5", "15", "17.5"}},
      {"series step 1 when below is empty", {"", "3", "", ""}, {2, 2, 2, 4}, 2, Series, 2, {"", "3", "4", "5"}},
      {"series through zero", {"-0.2", "-0.1", "", ""}, {2, 1, 2, 4}, 1, Series, 3, {"-0.2", "-0.1", "0", "0.1"}},
      {"series needs a number", {"abc", "", "", ""}, {2, 1, 2, 4}, 1, Series, 0, {"abc", "", "", ""}},
      {"locked cells are skipped", {"5", "", "keep", ""}, {1, 1, 3, 4}, 1, Copy, 2, {"5", "5", "keep", "5"}},
  };
  for (const auto& c : cases) {
    Sheet sheet = IdSheet({{"1"}, {"2"}, {"3"}, {"4"}}, 3);
    sheet.AddFillColumn(2);
    for (size_t r = 0; r < c.column.size(); ++r) sheet.SetData(2, int(r) + 1, c.column[r]);
    if (std::string_view(c.name).starts_with("locked")) sheet.SetLock(2, 3, true);
    sheet.SetSelectBlock(c.block);
    EXPECT_EQ(grid::FillSelection(sheet, 2, c.clickedRow, c.mode), c.written) << c.name;
    EXPECT_EQ(Column(sheet, 2), c.expected) << c.name;
  }
}

TEST(CopyPaste, BlockRoundTripsThroughTabSeparatedText) {
  const std::vector<std::vector<std::string>> cells = {{"plain", "say \"hi\"", ""},
                                                       {"tab\tinside", "two\r\nlines", "Ärger"}};
  Sheet source = IdSheet({}, 4);
  grid::AddRows(source, 2, false);
  for (int r = 0; r < 2; ++r)
    for (int c = 0; c < 3; ++c) source.SetData(c + 2, r + 1, cells[r][c]);
  const std::string text = grid::CopyBlock(source, {2, 1, 4, 2});
  EXPECT_TRUE(text.starts_with("plain\t\"say \"\"hi\"\"\"\t\r\n")) << text;
  EXPECT_EQ(grid::ParseTabSeparated(text), cells);

  Sheet target = IdSheet({{"1"}, {"2"}, {"3"}}, 4);
  target.SetLock(3, 2, true);
  target.SetData(3, 2, "locked");
  const grid::PastePlan plan = grid::PlanPaste(target, {}, {2, 2}, text);
  EXPECT_EQ(plan.writes.block, (Block{2, 2, 4, 3}));
  EXPECT_EQ(grid::ApplyWrites(target, plan.writes), 5);
  EXPECT_EQ(Column(target, 2), (std::vector<std::string>{"", "plain", "tab\tinside"}));
  EXPECT_EQ(target.GetData(3, 2), "locked") << "locked cells are skipped";
}

TEST(ReadReal, ACellLeftAsFilledKeepsFullPrecisionAnEditedOneIsParsed) {
  const double stored = 512345.678;
  EXPECT_EQ(grid::ReadReal("512346", &stored), stored);  // the six digits the grid shows
  EXPECT_EQ(grid::ReadReal("512346.5", &stored), 512346.5);
  EXPECT_EQ(grid::ReadReal("512346", nullptr), 512346.0);  // a new row has no original
  const double third = 1.0 / 3.0, other = 2.0;
  EXPECT_EQ(grid::ReadReal("0.333333", {&other, &third}), third);
  EXPECT_FALSE(grid::ReadReal("", &stored));
  EXPECT_FALSE(grid::ReadReal("abc", &stored));
  // An infinite original left in place is no value to keep.
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(grid::ReadReal("inf", &inf));
}
