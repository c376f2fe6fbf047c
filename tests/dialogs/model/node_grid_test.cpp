#include "dialogs/model/node_grid.h"

#include <gtest/gtest.h>

#include "dialogs/grid/export.h"
#include "dialogs/grid/grid_ops.h"
#include "support/TempDir.h"
#include "support/files.h"

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

// The CLI writes big node tables part by part, never holding a sheet of them all; the file must
// be the one the whole grid exports, whatever the values and wherever the parts break.
TEST(NodeGridExport, PartsWriteWhatTheWholeGridExports) {
  const std::vector<fmNd> nodes = {
      {1, 0, -0.0, 1e-7, 123456789},
      {2, fmNd::kSelected, 512345.678, -512345.678, 0.1 + 0.2},
      {30, fmNd::kFrozen, 1e300, -1e-300, 1.0 / 3.0},
      {4000000, 0, 999999.5, 0.0001, -0.00001},
      {5, 0, 100000, 1e6, 12.5},
  };
  const auto fillRows = [&](const std::vector<fmNd>& all) {
    return [&all](grid::Sheet& part, int first, int count) {
      nodegrid::Fill(part, std::span<const fmNd>(all).subspan(first, count), fmUnit(), false, 0xF0F5FF, false);
    };
  };
  TempDir dir;
  for (const std::vector<fmNd>& table : {nodes, std::vector<fmNd>{}})
    for (const char* ext : {".txt", ".htm"})
      for (bool append : {false, true})
        for (int rowsPerPart : {1, 2, 3, 1000}) {
          SCOPED_TRACE(std::string(ext) + " append " + std::to_string(append) + ", " + std::to_string(rowsPerPart) +
                       " rows a part, " + std::to_string(table.size()) + " nodes");
          const std::string whole = dir / (std::string("whole") + ext), parts = dir / (std::string("parts") + ext);
          const std::string before = std::string(ext) == ".txt" ? "kept line" : "<html><body><p>kept</p></body></html>";
          if (append) {
            WriteFileText(whole, before);
            WriteFileText(parts, before);
          }
          ASSERT_EQ(grid::ExportSheet(Filled(table), whole, append, "Node Table"), std::nullopt);
          ASSERT_EQ(grid::ExportRows(static_cast<int>(table.size()), fillRows(table), parts, append, "Node Table",
                                     rowsPerPart),
                    std::nullopt);
          EXPECT_EQ(ReadFileText(parts), ReadFileText(whole));
        }
  ASSERT_EQ(grid::ExportRows(5, fillRows(nodes), dir / "nodes.txt", false, "Node Table", 2), std::nullopt);
  EXPECT_EQ(ReadFileText(dir / "nodes.txt"),
            "Node Id\tX [ft]\tY [ft]\tZ [ft]\tStatus\r\n"
            "1\t-0\t1e-07\t1.23457e+08\tNormal\r\n"
            "2\t512346\t-512346\t0.3\tSelected\r\n"
            "30\t1e+300\t-1e-300\t0.333333\tFrozen\r\n"
            "4000000\t1e+06\t0.0001\t-1e-05\tNormal\r\n"
            "5\t100000\t1e+06\t12.5\tNormal\r\n");
  EXPECT_EQ(grid::ExportRows(5, fillRows(nodes), dir / "nodes.csv", false, "Node Table", 2),
            "Invalid file format specified");
}
