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

TEST(NodeGrid, FillShowsRoundedValuesAndReadKeepsUntouchedCellsExact) {
  const auto nodes = SampleNodes();
  Sheet sheet = Filled(nodes);
  const std::vector<std::vector<std::string>> rows = {{"Node Id", "X [ft]", "Y [ft]", "Z [ft]", "Status"},
      {"1", "0.3", "0.333333", "-2.5", "Normal"}, {"2", "20", "0", "1e-09", "Selected"},
      {"7", "40", "12.125", "25", "Frozen"}};
  ASSERT_EQ(sheet.MaxRows(), 3);
  for (int r = 0; r <= 3; ++r)
    for (int c = 1; c <= 5; ++c) EXPECT_EQ(sheet.GetData(c, r), rows[r][c - 1]) << c << "," << r;

  sheet.SetData(nodegrid::kZ, 2, " 3.75 ");
  sheet.SetData(nodegrid::kStatus, 1, "frozen");
  sheet.SetData(nodegrid::kStatus, 3, "");
  const auto result = nodegrid::Read(sheet, nodes);
  ASSERT_FALSE(result.failure) << result.failure->message;
  EXPECT_EQ(result.nodes, (std::vector<fmNd>{{1, fmNd::kFrozen, 0.1 + 0.2, 1.0 / 3.0, -2.5},
                                             {2, fmNd::kSelected, 20, 0, 3.75}, {7, 0, 40, 12.125, 25}}));
}

TEST(NodeGrid, RefusalsNameTheNodeAndMakeTheCellActive) {
  struct Case { int col, row; std::string text, message; CellRef cell; };
  const std::vector<Case> cases = {
      {nodegrid::kY, 2, "abc", "Invalid input for node 2.\nY must be a number, not \"abc\".", {3, 2}},
      {nodegrid::kX, 1, "1e400", "Invalid input for node 1.\nX must be a number, not \"1e400\".", {2, 1}},
      {nodegrid::kZ, 3, " 1,5", "Invalid input for node 7.\nZ must be a number, not \"1,5\".", {4, 3}},
      {nodegrid::kY, 2, "", "Invalid empty input for Node 2", {1, 2}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    const auto nodes = SampleNodes();
    Sheet sheet = Filled(nodes);
    sheet.SetData(c.col, c.row, c.text);
    const auto result = nodegrid::Read(sheet, nodes);
    ASSERT_TRUE(result.failure);
    EXPECT_EQ(result.failure->message, c.message);
    EXPECT_EQ(result.failure->cell, c.cell);
    EXPECT_TRUE(result.nodes.empty());
  }
}

TEST(NodeGrid, RoundOffRoundsToTheDecimalsOfEpsilon) {
  struct Case { double epsilon; std::string in, out; };
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
