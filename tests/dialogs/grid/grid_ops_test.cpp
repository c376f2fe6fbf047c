#include "dialogs/grid/grid_ops.h"

#include <gtest/gtest.h>

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

TEST(InitializeGrid, HeadingsWidthsAndEditCells) {
  Sheet sheet;
  grid::InitializeGrid(sheet, 0xABCDEF, 3, 2, {"Node Id", "X [ft]"}, {8, 14}, true);
  EXPECT_EQ(sheet.MaxRows(), 3);
  EXPECT_EQ(sheet.MaxCols(), 2);
  EXPECT_EQ(sheet.GetData(2, 0), "X [ft]");
  EXPECT_EQ(sheet.GetColWidth(2), 14);
  EXPECT_EQ(sheet.GetColAlign(1), grid::Align::Left);
  EXPECT_EQ(sheet.GetColAlign(2), grid::Align::Right);
  EXPECT_EQ(sheet.EvenRowColor(), 0xABCDEFu);
  EXPECT_TRUE(sheet.IsLocked(2, 3));
  EXPECT_EQ(sheet.ActiveCell(), (CellRef{-1, -1}));
  sheet.SetData(2, 1, std::string(1500, 'x'));
  EXPECT_EQ(sheet.GetData(2, 1).size(), 1024u);
}

TEST(AddRows, IdsContinueFromTheLastRowLockedAndTheNewBlockActive) {
  struct Case {
    std::vector<std::vector<std::string>> rows;
    int count;
    bool numberIds;
    int firstNewRow;
    std::vector<std::string> ids;  // column 1 after adding
  };
  const std::vector<Case> cases = {
      {{{"7"}, {"120"}}, 5, true, 3, {"7", "120", "121", "122", "123", "124", "125"}},
      {{}, 3, true, 1, {"1", "2", "3"}},
      // Never renumbered: lower free ids stay free.
      {{{"50"}, {"2"}}, 1, true, 3, {"50", "2", "3"}},
      {{{"9"}}, 2, false, 2, {"9", "", ""}},
  };
  for (const auto& c : cases) {
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

TEST(CheckEmptyCells, FirstEmptyCellStopsTheScanAndNamesItsRowsId) {
  const Sheet sheet = IdSheet({{"10", "1", "2", "3"}, {"11", "1", " ", "3"}, {"12", "", "", ""}}, 4);
  struct Case {
    int rowCount, firstCol, lastCol;
    std::optional<std::string> message;
    CellRef active;
  };
  const std::vector<Case> cases = {
      {3, 2, 4, "Invalid empty input for Node 11", {1, 2}},
      {1, 2, 4, std::nullopt, {}},
      {3, 4, 4, "Invalid empty input for Node 12", {1, 3}},
      {99, 4, 4, "Invalid empty input for Node 12", {1, 3}},  // never past the last row
      {0, 2, 4, std::nullopt, {}},
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
  const auto several = grid::CheckDeletedRows(sheet, 1, 4, "members");
  ASSERT_TRUE(several);
  EXPECT_TRUE(several->message.starts_with("Invalid input for existing members (5 - 7)."));
}

TEST(CheckDuplicateLabels, CaseIgnoredForNonAsciiLettersToo) {
  struct Case {
    std::vector<std::string> labels;
    std::optional<std::string> message;
    int row;
  };
  const std::vector<Case> cases = {
      {{"Dead", "Live", "dead"}, "Duplicate label [dead] can not be used.", 3},
      {{"Ärger", "x", "ärger "}, "Duplicate label [ärger] can not be used.", 3},
      {{"ÉTÉ", "été"}, "Duplicate label [été] can not be used.", 2},
      {{"Ä", "A", "", ""}, std::nullopt, 0},  // empty cells are no labels
      {{"Wind1", "Wind 1"}, std::nullopt, 0},
  };
  for (const auto& c : cases) {
    Sheet sheet;
    grid::InitializeGrid(sheet, 0, static_cast<int>(c.labels.size()), 1, {"Label"}, {}, false);
    for (size_t r = 0; r < c.labels.size(); ++r) sheet.SetData(1, int(r) + 1, c.labels[r]);
    const auto failure = grid::CheckDuplicateLabels(sheet, sheet.MaxRows(), 1);
    ASSERT_EQ(failure.has_value(), c.message.has_value()) << c.labels[0];
    if (failure) {
      EXPECT_EQ(failure->message, *c.message);
      EXPECT_EQ(failure->cell, (CellRef{1, c.row}));
    }
  }
}

TEST(FillSelection, CopiesOrContinuesASeriesDownTheSelection) {
  struct Case {
    const char* name;
    std::vector<std::string> column;  // column 2, rows 1..
    Block block;
    int clickedRow;
    grid::FillMode mode;
    int written;
    std::vector<std::string> expected;
  };
  const std::vector<Case> cases = {
      {"copy", {"2.5", "", "7", ""}, {2, 1, 2, 4}, 1, grid::FillMode::Copy, 3, {"2.5", "2.5", "2.5", "2.5"}},
      {"copy upwards too", {"", "", "x", ""}, {2, 1, 2, 4}, 3, grid::FillMode::Copy, 3, {"x", "x", "x", "x"}},
      {"series by the step below", {"10", "12.5", "", ""}, {2, 1, 2, 4}, 1, grid::FillMode::Series, 3,
       {"10", "12.5", "15", "17.5"}},
      {"series step 1 when below is empty", {"", "3", "", ""}, {2, 2, 2, 4}, 2, grid::FillMode::Series, 2,
       {"", "3", "4", "5"}},
      {"series through zero", {"-0.2", "-0.1", "", ""}, {2, 1, 2, 4}, 1, grid::FillMode::Series, 3,
       {"-0.2", "-0.1", "0", "0.1"}},
      {"series needs a number", {"abc", "", "", ""}, {2, 1, 2, 4}, 1, grid::FillMode::Series, 0,
       {"abc", "", "", ""}},
      {"clicked column outside the selection", {"1", "", "", ""}, {3, 1, 3, 4}, 1, grid::FillMode::Copy, 0,
       {"1", "", "", ""}},
      {"empty clicked cell", {" ", "", "", ""}, {2, 1, 2, 4}, 1, grid::FillMode::Copy, 0, {" ", "", "", ""}},
  };
  for (const auto& c : cases) {
    Sheet sheet = IdSheet({{"1"}, {"2"}, {"3"}, {"4"}}, 3);
    sheet.AddFillColumn(2);
    for (size_t r = 0; r < c.column.size(); ++r) sheet.SetData(2, int(r) + 1, c.column[r]);
    sheet.SetSelectBlock(c.block);
    EXPECT_EQ(grid::FillSelection(sheet, 2, c.clickedRow, c.mode), c.written) << c.name;
    EXPECT_EQ(Column(sheet, 2), c.expected) << c.name;
  }
}

TEST(FillSelection, SkipsLockedCellsAndIsRefusedWhereNotOffered) {
  Sheet sheet = IdSheet({{"1", "5"}, {"2", ""}, {"3", "keep"}}, 3);
  sheet.AddFillColumn(2);
  sheet.SetLock(2, 3, true);
  sheet.SetSelectBlock({1, 1, 3, 3});
  EXPECT_EQ(grid::FillSelection(sheet, 2, 1, grid::FillMode::Copy), 1);
  EXPECT_EQ(Column(sheet, 2), (std::vector<std::string>{"5", "5", "keep"}));

  EXPECT_FALSE(grid::CanFill(sheet, 3, 1)) << "not a fill column";
  EXPECT_FALSE(grid::CanFill(sheet, 2, 0)) << "heading row";
  EXPECT_FALSE(grid::CanFill(sheet, 2, 4)) << "beyond the grid";
  EXPECT_TRUE(grid::CanFill(sheet, 2, 1));
  sheet.SetLockAll(true);
  EXPECT_FALSE(grid::CanFill(sheet, 2, 1)) << "locked grid";
  EXPECT_EQ(grid::FillSelection(sheet, 2, 1, grid::FillMode::Copy), 0);
}

TEST(CopyPaste, BlockRoundTripsThroughTabSeparatedText) {
  const std::vector<std::vector<std::string>> cells = {
      {"plain", "say \"hi\"", ""},
      {"tab\tinside", "two\r\nlines", "Ärger"},
      {"", "\"", "end"},
  };
  Sheet source = IdSheet({}, 4);
  grid::AddRows(source, 3, false);
  for (int r = 0; r < 3; ++r)
    for (int c = 0; c < 3; ++c) source.SetData(c + 2, r + 1, cells[r][c]);
  const std::string text = grid::CopyBlock(source, {2, 1, 4, 3});
  EXPECT_TRUE(text.starts_with("plain\t\"say \"\"hi\"\"\"\t\r\n")) << text;
  EXPECT_EQ(grid::ParseTabSeparated(text), cells);

  Sheet target = IdSheet({{"1"}, {"2"}, {"3"}}, 4);
  target.SetLock(3, 2, true);
  target.SetData(3, 2, "locked");
  const Block written = grid::PasteText(target, 2, 2, text);
  EXPECT_EQ(std::vector<int>({written.col1, written.row1, written.col2, written.row2}),
            std::vector<int>({2, 2, 4, 3}));
  EXPECT_EQ(target.GetData(2, 2), "plain");
  EXPECT_EQ(target.GetData(3, 2), "locked") << "locked cells are skipped";
  EXPECT_EQ(target.GetData(3, 3), "two\r\nlines");
  EXPECT_EQ(target.GetData(4, 3), "Ärger");
  EXPECT_EQ(target.MaxRows(), 3) << "rows beyond the grid are dropped";
  EXPECT_EQ(target.GetData(1, 2), "2") << "nothing is written left of the paste";
}
