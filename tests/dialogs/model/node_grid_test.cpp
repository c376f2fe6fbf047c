#include "dialogs/model/node_grid.h"

#include <gtest/gtest.h>

#include "dialogs/grid/grid_ops.h"

namespace {

using grid::CellRef;
using grid::Sheet;

std::vector<fmNd> SampleNodes() {
  return {
      {1, 0, 0.1 + 0.2, 1.0 / 3.0, -2.5},  // values "%g" cannot hold exactly
      {2, fmNd::kSelected, 20, 0, 1e-9},
      {7, fmNd::kFrozen | fmNd::kSelected, 40, 12.125, 25},
  };
}

Sheet Filled(const std::vector<fmNd>& nodes) {
  Sheet sheet;
  nodegrid::Fill(sheet, nodes, fmUnit(), false, 0xF0F5FF, false);
  return sheet;
}

}  // namespace

TEST(NodeGridFill, HeadingsWithUnitsIdsLockedAndStatusFromFlags) {
  const auto nodes = SampleNodes();
  Sheet sheet;
  EXPECT_EQ(nodegrid::Fill(sheet, nodes, fmUnit(), false, 0xF0F5FF, false), 3);
  const std::vector<std::string> headings = {"Node Id", "X [ft]", "Y [ft]", "Z [ft]", "Status"};
  for (int c = 1; c <= 5; ++c) EXPECT_EQ(sheet.GetData(c, 0), headings[c - 1]);
  const std::vector<std::vector<std::string>> rows = {
      {"1", "0.3", "0.333333", "-2.5", "Normal"},
      {"2", "20", "0", "1e-09", "Selected"},
      {"7", "40", "12.125", "25", "Frozen"},
  };
  for (int r = 1; r <= 3; ++r)
    for (int c = 1; c <= 5; ++c) EXPECT_EQ(sheet.GetData(c, r), rows[r - 1][c - 1]) << c << "," << r;
  EXPECT_TRUE(sheet.IsLocked(1, 2));
  EXPECT_FALSE(sheet.IsLocked(2, 2));
  EXPECT_EQ(sheet.GetCellType(5, 1).kind, grid::CellType::Combo);

  Sheet selected;
  EXPECT_EQ(nodegrid::Fill(selected, nodes, fmUnit(), true, 0xF0F5FF, true), 2);
  EXPECT_EQ(selected.GetData(1, 1), "2");
  EXPECT_EQ(selected.GetData(1, 2), "7");
  EXPECT_TRUE(selected.IsLocked(3, 1));
}

TEST(NodeGridRead, UntouchedCellsKeepFullPrecisionAndEditsAreParsed) {
  const auto nodes = SampleNodes();
  Sheet sheet = Filled(nodes);
  sheet.SetData(nodegrid::kZ, 2, " 3.75 ");
  sheet.SetData(nodegrid::kStatus, 1, "frozen");
  sheet.SetData(nodegrid::kStatus, 3, "");
  const auto result = nodegrid::Read(sheet, nodes);
  ASSERT_FALSE(result.failure) << result.failure->message;
  const std::vector<fmNd> expected = {
      {1, fmNd::kFrozen, 0.1 + 0.2, 1.0 / 3.0, -2.5},
      {2, fmNd::kSelected, 20, 0, 3.75},
      {7, 0, 40, 12.125, 25},
  };
  EXPECT_EQ(result.nodes, expected);
}

TEST(NodeGridRead, NewRowsAreAddedAndTrailingEmptyOnesDropped) {
  const auto nodes = SampleNodes();
  Sheet sheet = Filled(nodes);
  EXPECT_EQ(grid::AddRows(sheet, 4, true), 4);
  for (int c = nodegrid::kX; c <= nodegrid::kZ; ++c) sheet.SetData(c, 4, "1.5");
  const auto result = nodegrid::Read(sheet, nodes);
  ASSERT_FALSE(result.failure) << result.failure->message;
  ASSERT_EQ(result.nodes.size(), 4u);
  EXPECT_EQ(result.nodes[3], (fmNd{8, 0, 1.5, 1.5, 1.5}));
}

TEST(NodeGridRead, RefusalsNameTheNodeAndMakeTheCellActive) {
  struct Case {
    const char* name;
    int col, row;
    std::string text;
    std::string message;
    CellRef cell;
  };
  const std::vector<Case> cases = {
      {"letters", nodegrid::kY, 2, "abc", "Invalid input for node 2.\nY must be a number, not \"abc\".", {3, 2}},
      {"overflow", nodegrid::kX, 1, "1e400", "Invalid input for node 1.\nX must be a number, not \"1e400\".",
       {2, 1}},
      {"comma decimal", nodegrid::kZ, 3, " 1,5", "Invalid input for node 7.\nZ must be a number, not \"1,5\".",
       {4, 3}},
      {"empty cell", nodegrid::kY, 2, "", "Invalid empty input for Node 2", {1, 2}},
      {"emptied last node", 0, 3, "",
       "Invalid input for existing nodes (7 - 7).\nIf you intend to delete these nodes, cancel this dialog box."
       "\nThen select these nodes and go to menu Edit | Delete...",
       {1, 3}},
  };
  for (const auto& c : cases) {
    const auto nodes = SampleNodes();
    Sheet sheet = Filled(nodes);
    if (c.col > 0) {
      sheet.SetData(c.col, c.row, c.text);
    } else {
      for (int col = nodegrid::kX; col <= nodegrid::kZ; ++col) sheet.ClearData(col, c.row);
    }
    const auto result = nodegrid::Read(sheet, nodes);
    ASSERT_TRUE(result.failure) << c.name;
    EXPECT_EQ(result.failure->message, c.message) << c.name;
    EXPECT_EQ(result.failure->cell, c.cell) << c.name;
    EXPECT_TRUE(result.nodes.empty()) << c.name;
  }
}

TEST(NodeGridRoundOff, RoundsToTheDecimalsOfEpsilon) {
  struct Case {
    double epsilon;
    std::string in, out;
  };
  const std::vector<Case> cases = {
      {1e-3, "1.23456", "1.235"}, {1e-3, "-0.0004", "0"},  {0.01, "2.999", "3"},
      {1, "7.5", "8"},            {1e-3, "abc", "abc"},    {0, "1.23456", "1.23456"},
  };
  for (const auto& c : cases) {
    Sheet sheet = Filled({{1, 0, 0, 0, 0}});
    sheet.SetData(nodegrid::kX, 1, c.in);
    nodegrid::RoundOffCoordinates(sheet, c.epsilon);
    EXPECT_EQ(sheet.GetData(nodegrid::kX, 1), c.out) << c.epsilon << " " << c.in;
  }
}
