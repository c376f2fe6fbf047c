#include "dialogs/loads/case_load_grid.h"

#include <gtest/gtest.h>

#include "dialogs/grid/grid_ops.h"

using caseloadgrid::LoadKind;
using caseloadgrid::LoadTable;

namespace {

// Two cases on a small model: nodes 1 to 6, members 1 to 3, shells 1 and 2, brick 1, with
// loads of every kind, some of them in both cases.
struct LoadModel {
  LoadModel() {
    cases = {fmLoadCase(1, "Dead", "Dead-D"), fmLoadCase(2, "Live", "Live-L")};
    for (uint32_t id = 1; id <= 6; ++id) nodes.push_back({id, 0, double(id), 0, 0});
    for (uint32_t id = 1; id <= 3; ++id) {
      fmBm m;
      m.id = id;
      m.nodes = {id, id + 1};
      members.push_back(m);
    }
    for (uint32_t id = 1; id <= 2; ++id) {
      fmShell4 s;
      s.id = id;
      s.nodes = {1, 2, 3, 4};
      shells.push_back(s);
    }
    fmBrick b;
    b.id = 1;
    b.nodes = {1, 2, 3, 4, 5, 6, 1, 2};
    bricks.push_back(b);

    fmCaseLoad dead, live;
    dead.selfWeight = {1, -1};
    dead.nodal = {{5, 1, -10.1234567}, {6, 3, 2.5}};
    dead.point = {{1, 0.25, 1, false, -3}, {3, 1.0 / 3, 2, true, 4}};
    dead.line = {{2, {0, 1}, {-1.5, -2.5}, 1, false}};
    dead.surface = {{1, 2, true, -0.05}};
    dead.area = {{{1, 2, 3, 4}, 1, -0.1, fmAreaLoad::OneWay}};
    dead.memberThermal = {{2, 30}};
    dead.shellThermal = {{2, -12.5}};
    dead.brickThermal = {{1, 7}};
    dead.nodalMasses = {{4, 0, 12}, {4, 5, 300}};
    dead.massFactor = 1;
    live.nodal = {{2, 0, 7}};
    live.point = {{2, 0.5, 1, false, -8}};
    live.massFactor = 0.25;
    caseLoads = {dead, live};
  }
  caseloadgrid::LoadLists Lists() const { return {cases, nodes, members, shells, bricks}; }

  std::vector<fmLoadCase> cases;
  std::vector<fmNd> nodes;
  std::vector<fmBm> members;
  std::vector<fmShell4> shells;
  std::vector<fmBrick> bricks;
  std::vector<fmCaseLoad> caseLoads;
};

class LoadTableTest : public ::testing::Test {
 protected:
  LoadTable& Open(LoadKind kind) {
    table = LoadTable::Create(kind);
    table->Fill(sheet, model.caseLoads, model.Lists(), units, 0xF0F5FF, false);
    return *table;
  }
  caseloadgrid::ReadResult Read() const { return table->Read(sheet, model.caseLoads, model.Lists()); }
  std::vector<std::string> Row(int row) const {
    std::vector<std::string> texts;
    for (int col = 1; col <= sheet.MaxCols(); ++col) texts.push_back(sheet.GetData(col, row));
    return texts;
  }
  // Adds a row as "New Rows" does and types the cells from column 2 on.
  void AddRow(const std::vector<std::string>& cells) {
    const int row = grid::AddRows(sheet, 1, true);
    table->PrepareNewRows(sheet, row, row);
    for (size_t i = 0; i < cells.size(); ++i)
      if (!cells[i].empty()) sheet.SetData(static_cast<int>(i) + 2, row, cells[i]);
  }

  LoadModel model;
  fmUnit units;  // English: kip, ft
  grid::Sheet sheet;
  std::unique_ptr<LoadTable> table;
};

using Texts = std::vector<std::string>;

TEST_F(LoadTableTest, EveryTableShowsItsLoadsCaseByCaseWithUnitHeadingsAndReadsThemBackExactly) {
  const struct {
    LoadKind kind;
    int rows;
    Texts headers, row1;
  } tables[] = {
      {LoadKind::Nodal, 3,
       {"Load No", "Load Case", "Node Id", "Direction", "Magnitude [kip or kip-ft]"},
       {"1", "1: Dead", "5", "Y", "-10.1235"}},
      {LoadKind::Point, 3,
       {"Load No", "Load Case", "Member Id", "Ratio (0-1)", "Direction", "System", "Magnitude [kip or kip-ft]"},
       {"1", "1: Dead", "1", "0.25", "Y", "Global", "-3"}},
      {LoadKind::Line, 1,
       {"Load No", "Load Case", "Member Id", "Start Ratio", "End Ratio", "Direction", "System",
        "Start [kip/ft or kip-ft/ft]", "End [kip/ft or kip-ft/ft]"},
       {"1", "1: Dead", "2", "0", "1", "Y", "Global", "-1.5", "-2.5"}},
      {LoadKind::Surface, 1,
       {"Load No", "Load Case", "Shell4 Id", "Direction", "System", "Magnitude [kip/ft^2]"},
       {"1", "1: Dead", "1", "Z", "Local", "-0.05"}},
      {LoadKind::Area, 1,
       {"Load No", "Load Case", "Nodes", "Direction", "Magnitude [kip/ft^2]", "Distribution"},
       {"1", "1: Dead", "1, 2, 3, 4", "Y", "-0.1", "One-way"}},
      {LoadKind::MemberThermal, 1, {"Load No", "Load Case", "Member Id", "Temperature [F]"}, {"1", "1: Dead", "2", "30"}},
      {LoadKind::Shell4Thermal, 1, {"Load No", "Load Case", "Shell4 Id", "Temperature [F]"}, {"1", "1: Dead", "2", "-12.5"}},
      {LoadKind::BrickThermal, 1, {"Load No", "Load Case", "Brick Id", "Temperature [F]"}, {"1", "1: Dead", "1", "7"}},
      {LoadKind::NodalMass, 2,
       {"Load No", "Load Case", "Node Id", "Direction", "Weight [kip or kip-ft-ft]"},
       {"1", "1: Dead", "4", "X", "12"}},
      {LoadKind::CombMass, 2, {"Load No", "Load Case", "Factor"}, {"1", "1: Dead", "1"}},
  };
  for (const auto& t : tables) {
    SCOPED_TRACE(caseloadgrid::TextsOf(t.kind).className);
    Open(t.kind);
    ASSERT_EQ(sheet.MaxRows(), t.rows);
    Texts headers;
    for (int col = 1; col <= sheet.MaxCols(); ++col) headers.push_back(sheet.GetData(col, 0));
    EXPECT_EQ(headers, t.headers);
    EXPECT_EQ(Row(1), t.row1);
    EXPECT_TRUE(sheet.IsLocked(1, 1));
    const auto result = Read();
    ASSERT_FALSE(result.failure) << result.failure->message;
    EXPECT_EQ(result.caseLoads, model.caseLoads) << "-10.1234567 and 1/3 survive the six digits shown";
  }
  Open(LoadKind::Point);
  EXPECT_EQ(Row(3), (Texts{"3", "2: Live", "2", "0.5", "Y", "Global", "-8"})) << "the second case follows the first";
}

TEST_F(LoadTableTest, OkReplacesOnlyTheTablesKindAndSortsPointLoadsByMemberThenPosition) {
  Open(LoadKind::Point);
  sheet.SetData(2, 1, "2: live");  // the drop-down's item in any case of letters
  sheet.SetData(3, 3, "1");        // the live load moves to member 1, at ratio 0.5
  AddRow({"1: Dead", "1", "0.1", "X", "Local", "5"});
  const auto result = Read();
  ASSERT_FALSE(result.failure) << result.failure->message;
  ASSERT_EQ(result.caseLoads.size(), 2u);
  const fmCaseLoad& dead = result.caseLoads[0];
  const fmCaseLoad& live = result.caseLoads[1];
  EXPECT_EQ(dead.point, (std::vector<fmPtLoad>{{1, 0.1, 0, true, 5}, {3, 1.0 / 3, 2, true, 4}}));
  EXPECT_EQ(live.point, (std::vector<fmPtLoad>{{1, 0.25, 1, false, -3}, {1, 0.5, 1, false, -8}}));
  fmCaseLoad deadOthers = dead, original = model.caseLoads[0];
  deadOthers.point.clear();
  original.point.clear();
  EXPECT_EQ(deadOthers, original) << "nodal, line, thermal loads, masses and self weight stand";
  EXPECT_EQ(live.nodal, model.caseLoads[1].nodal);
  EXPECT_EQ(live.massFactor, 0.25);
}

TEST_F(LoadTableTest, NewRowsTakeTheCaseAboveAndTheRecordsDefaultsAndAreDroppedWhenLeftUntyped) {
  Open(LoadKind::Surface);
  AddRow({});
  EXPECT_EQ(Row(2), (Texts{"2", "1: Dead", "", "Z", "Local", ""}));
  sheet.SetData(2, 2, "2: Live");
  AddRow({});
  EXPECT_EQ(sheet.GetData(2, 3), "2: Live");
  sheet.SetData(3, 3, "2");
  sheet.SetData(6, 3, "-0.04");
  AddRow({});  // left untyped
  auto result = Read();
  ASSERT_TRUE(result.failure);
  EXPECT_EQ(result.failure->message, "Invalid empty input for surface load 2");
  EXPECT_EQ(result.failure->cell, (grid::CellRef{1, 2}));
  table->DeleteRows(sheet, 2, 2);
  EXPECT_EQ(sheet.MaxRows(), 3);
  EXPECT_EQ(sheet.GetData(1, 2), "2") << "numbered again";
  result = Read();
  ASSERT_FALSE(result.failure) << result.failure->message;
  EXPECT_EQ(result.caseLoads[1].surface, (std::vector<fmSurfaceLoad>{{2, 2, true, -0.04}}));
  EXPECT_EQ(result.caseLoads[0].surface, model.caseLoads[0].surface);
}

TEST_F(LoadTableTest, DeletingRowsRemovesTheirLoadsAndTheRestKeepTheirFullPrecision) {
  Open(LoadKind::Nodal);
  table->DeleteRows(sheet, 2, 2);
  EXPECT_EQ(Row(2), (Texts{"2", "2: Live", "2", "X", "7"}));
  const auto result = Read();
  ASSERT_FALSE(result.failure) << result.failure->message;
  EXPECT_EQ(result.caseLoads[0].nodal, (std::vector<fmNodalLoad>{{5, 1, -10.1234567}}));
  EXPECT_EQ(result.caseLoads[1].nodal, model.caseLoads[1].nodal);
  table->DeleteRows(sheet, 1, 2);
  EXPECT_EQ(sheet.MaxRows(), 0);
  const auto none = Read();
  ASSERT_FALSE(none.failure);
  EXPECT_TRUE(none.caseLoads[0].nodal.empty() && none.caseLoads[1].nodal.empty());
  EXPECT_EQ(none.caseLoads[0].point, model.caseLoads[0].point);
}

TEST_F(LoadTableTest, EachBadCellIsRefusedWithTheLoadNumberAndTheCellToFix) {
  const struct {
    LoadKind kind;
    int col, row;
    std::string text, message;
  } cases[] = {
      {LoadKind::Nodal, 3, 1, "99", "Invalid input for nodal load 1.\nNode 99 does not exist."},
      {LoadKind::Nodal, 3, 2, "-5", "Invalid input for nodal load 2.\nNode Id must be a whole number from 0 to 2147483647, not \"-5\"."},
      {LoadKind::Nodal, 4, 1, "Q", "Invalid input for nodal load 1.\n\"Q\" is not one of X, Y, Z, OX, OY, OZ."},
      {LoadKind::Nodal, 5, 3, "1,5", "Invalid input for nodal load 3.\nMagnitude must be a number, not \"1,5\"."},
      {LoadKind::Nodal, 5, 1, "inf", "Invalid input for nodal load 1.\nMagnitude must be a number, not \"inf\"."},
      {LoadKind::Nodal, 2, 1, "3: Wind", "Invalid input for nodal load 1.\n\"3: Wind\" is not a load case of the model."},
      {LoadKind::Point, 3, 2, "4", "Invalid input for point load 2.\nMember 4 does not exist."},
      {LoadKind::Point, 4, 1, "1.5", "Invalid input for point load 1.\nRatio (0-1) must be from 0 to 1, not 1.5."},
      {LoadKind::Point, 6, 1, "Skew", "Invalid input for point load 1.\n\"Skew\" is not one of Global, Local."},
      {LoadKind::Point, 7, 1, "", "Invalid empty input for point load 1"},
      {LoadKind::Line, 5, 1, "0.5", "Invalid input for line load 1.\nEnd Ratio 0.5 is before Start Ratio 0.9."},
      {LoadKind::Surface, 4, 1, "OX", "Invalid input for surface load 1.\n\"OX\" is not one of X, Y, Z."},
      {LoadKind::Surface, 3, 1, "3", "Invalid input for surface load 1.\nShell4 3 does not exist."},
      {LoadKind::Area, 3, 1, "1, 2", "Invalid input for area load 1.\nAn area needs at least 3 nodes, not 2."},
      {LoadKind::Area, 3, 1, "1 2 2 3", "Invalid input for area load 1.\nNode 2 is listed twice."},
      {LoadKind::Area, 3, 1, "1, 2, 9", "Invalid input for area load 1.\nNode 9 does not exist."},
      {LoadKind::Area, 3, 1, "1;2;3", "Invalid input for area load 1.\nNodes must be node ids separated by commas, not \"1;2;3\"."},
      {LoadKind::BrickThermal, 3, 1, "2", "Invalid input for brick thermal load 1.\nBrick 2 does not exist."},
      {LoadKind::NodalMass, 5, 2, "nan", "Invalid input for nodal mass 2.\nWeight must be a number, not \"nan\"."},
      {LoadKind::CombMass, 2, 2, "1: Dead", "Invalid input for combination mass 2.\nLoad case Dead is already listed in row 1."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.message);
    Open(c.kind);
    if (c.kind == LoadKind::Line) sheet.SetData(4, 1, "0.9");
    sheet.SetData(c.col, c.row, c.text);
    const auto result = Read();
    ASSERT_TRUE(result.failure);
    EXPECT_EQ(result.failure->message, c.message);
    if (!c.text.empty()) {
      EXPECT_EQ(result.failure->cell, (grid::CellRef{c.col, c.row}));
    }
    EXPECT_TRUE(result.caseLoads.empty());
  }
}

TEST_F(LoadTableTest, ATableOnAModelWithoutCaseLoadsShowsNoRowsAndOkGivesOneEntryPerCase) {
  model.caseLoads.clear();
  Open(LoadKind::Line);
  EXPECT_EQ(sheet.MaxRows(), 0);
  AddRow({"2: Live", "3", "0", "0.5", "Y", "Global", "-1", "-1"});
  const auto result = Read();
  ASSERT_FALSE(result.failure) << result.failure->message;
  ASSERT_EQ(result.caseLoads.size(), 2u);
  EXPECT_TRUE(result.caseLoads[0].IsEmpty());
  EXPECT_EQ(result.caseLoads[1].line, (std::vector<fmLineLoad>{{3, {0, 0.5}, {-1, -1}, 1, false}}));
}

}  // namespace
