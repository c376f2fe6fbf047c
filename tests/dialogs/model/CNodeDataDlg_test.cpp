#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "dialogs/model/CNodeDataDlg.h"
#include "resources/grid_ids.h"
#include "resources/model_ids.h"
#include "support/DialogTest.h"

namespace {

std::vector<fmNd> SampleNodes() {
  return {{1, 0, 0.0, 0.0, 0.0},
          {2, fmNd::kSelected, 20.0, 0.0, 0.0},
          {3, fmNd::kFrozen, 40.0, 0.0, 0.0},
          {7, 0, 1234.56789, 12.0, 25.0}};
}

class NodeDialogTest : public DialogTest {
 protected:
  void Open(bool locked = false, bool selectedOnly = false) {
    dlg.m_pUnits = &units;
    dlg.m_pNodes = &nodes;
    dlg.m_bModelLocked = locked;
    dlg.m_bShowSelectedOnly = selectedOnly;
    dlg.InitDialogForTest();
  }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }
  void SetNewRowCount(const char* text) { dlg.Item<QLineEdit>(res::kCtlNewRowCount)->setText(text); }

  fmUnit units;
  std::vector<fmNd> nodes = SampleNodes();
  const std::vector<fmNd> original = SampleNodes();
  CNodeDataDlg dlg;
};

TEST_F(NodeDialogTest, FillsOneRowPerNodeWithUnitHeadingsAndStatus) {
  Open();
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Node Data");
  EXPECT_EQ(dlg.PrintTitle(), "Node Table");
  EXPECT_EQ(dlg.GetDlgItemText(res::kCtlEpsilon), "Epsilon = 1e-10");
  ASSERT_EQ(sheet().MaxRows(), 4);
  EXPECT_EQ(sheet().GetData(2, 0), "X [ft]");
  EXPECT_EQ(sheet().GetData(4, 0), "Z [ft]");
  EXPECT_EQ(sheet().GetData(1, 4), "7");
  EXPECT_EQ(sheet().GetData(2, 4), "1234.57");
  EXPECT_EQ(sheet().GetData(5, 1), "Normal");
  EXPECT_EQ(sheet().GetData(5, 2), "Selected");
  EXPECT_EQ(sheet().GetData(5, 3), "Frozen");
  EXPECT_TRUE(sheet().IsLocked(1, 1));
  EXPECT_FALSE(sheet().IsLocked(2, 1));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(NodeDialogTest, OkWithoutEditsKeepsEveryNodeExactly) {
  Open();
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  EXPECT_EQ(nodes, original);  // 1234.56789 survives although the grid shows 1234.57
}

TEST_F(NodeDialogTest, EditedCellsAndNewRowsAreWrittenBackInRowOrder) {
  Open();
  sheet().SetData(3, 1, "2.5");
  sheet().SetData(5, 1, "frozen");
  SetNewRowCount("2");
  ASSERT_TRUE(dlg.PressButton(res::kCtlNewRows));
  ASSERT_EQ(sheet().MaxRows(), 6);
  EXPECT_EQ(sheet().GetData(1, 5), "8");
  EXPECT_EQ(sheet().GetData(1, 6), "9");
  EXPECT_TRUE(sheet().IsLocked(1, 5));
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{1, 5}));
  sheet().SetData(2, 5, "1");
  sheet().SetData(3, 5, "2");
  sheet().SetData(4, 5, "3");  // row 6 stays empty and is dropped
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  ASSERT_EQ(nodes.size(), 5u);
  EXPECT_DOUBLE_EQ(nodes[0].y, 2.5);
  EXPECT_TRUE(nodes[0].IsFrozen());
  EXPECT_EQ(nodes[4], (fmNd{8, 0, 1.0, 2.0, 3.0}));
}

TEST_F(NodeDialogTest, RefusalsKeepTheDialogOpenAndTheNodesUnchanged) {
  struct Case {
    const char* name;
    int col, row;
    const char* text;
    std::string message;
    grid::CellRef active;
  };
  const Case cases[] = {
      {"empty cell", 3, 2, "", "Invalid empty input for Node 2", {1, 2}},
      {"text", 2, 1, "abc", "Invalid input for node 1.\nX must be a number, not \"abc\".", {2, 1}},
      {"overflow", 3, 3, "1e400", "Invalid input for node 3.\nY must be a number, not \"1e400\".", {3, 3}},
      {"decimal comma", 4, 4, "1,5", "Invalid input for node 7.\nZ must be a number, not \"1,5\".", {4, 4}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    CNodeDataDlg fresh;
    fresh.m_pUnits = &units;
    fresh.m_pNodes = &nodes;
    fresh.InitDialogForTest();
    fresh.Spread().sheet().SetData(c.col, c.row, c.text);
    prompter.Clear();
    fresh.PressButton(IDOK);
    EXPECT_EQ(fresh.ModalResult(), 0);
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(fresh.Spread().sheet().ActiveCell(), c.active);
    EXPECT_EQ(nodes, original);
  }
}

TEST_F(NodeDialogTest, EmptiedLastNodeIsRefusedNamingItsIdTwice) {
  Open();
  for (int col = 2; col <= 4; ++col) sheet().SetData(col, 4, "");
  dlg.PressButton(IDOK);
  EXPECT_EQ(dlg.ModalResult(), 0);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid input for existing nodes (7 - 7).\n"
                                                 "If you intend to delete these nodes, cancel this dialog box.\n"
                                                 "Then select these nodes and go to menu Edit | Delete..."});
  EXPECT_EQ(nodes, original);
}

TEST_F(NodeDialogTest, NewRowCountIsRangeChecked) {
  Open();
  for (const char* count : {"0", "100001"}) {
    prompter.Clear();
    SetNewRowCount(count);
    dlg.PressButton(res::kCtlNewRows);
    EXPECT_EQ(Messages(), std::vector<std::string>{"Please enter a number between 1 and 100000."}) << count;
    EXPECT_EQ(sheet().MaxRows(), 4);
  }
}

TEST_F(NodeDialogTest, CancelLeavesTheNodesAsTheyWere) {
  Open();
  sheet().SetData(2, 1, "99");
  dlg.PressButton(IDCANCEL);
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(nodes, original);
}

TEST_F(NodeDialogTest, LockedModelShowsEverythingReadOnlyWithOneMessage) {
  Open(/*locked=*/true);
  EXPECT_EQ(sheet().MaxRows(), 4);
  EXPECT_TRUE(sheet().IsLocked(3, 2));
  EXPECT_FALSE(dlg.GetDlgItem(IDOK)->isEnabled());
  EXPECT_FALSE(dlg.GetDlgItem(res::kCtlNewRows)->isEnabled());
  EXPECT_FALSE(dlg.GetDlgItem(res::kCtlNewRowCount)->isEnabled());
  EXPECT_EQ(dlg.GetDlgItemText(IDCANCEL), "Close");
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(NodeDialogTest, SelectedOnlyShowsTheSelectedNodesLocked) {
  Open(false, /*selectedOnly=*/true);
  ASSERT_EQ(sheet().MaxRows(), 1);
  EXPECT_EQ(sheet().GetData(1, 1), "2");
  EXPECT_TRUE(sheet().IsLockedAll());
  EXPECT_FALSE(dlg.GetDlgItem(res::kCtlNewRows)->isEnabled());
}

TEST_F(NodeDialogTest, RoundOffUsesTheDecimalsEpsilonImplies) {
  nodes = {{1, 0, 1.23456, 0.000049, -2.6}};
  dlg.m_dEpsilon = 0.001;
  Open();
  dlg.PressButton(res::kCtlRoundOff);
  EXPECT_EQ(sheet().GetData(2, 1), "1.235");
  EXPECT_EQ(sheet().GetData(3, 1), "0");
  EXPECT_EQ(sheet().GetData(4, 1), "-2.6");
}

TEST_F(NodeDialogTest, RightClickFillsTheSelectionAsASeries) {
  Open();
  dlg.Spread().SetSelectBlock({2, 1, 2, 4});
  sheet().SetData(2, 2, "5");
  prompter.QueueMenuChoice(1);
  ASSERT_TRUE(dlg.Spread().FillSelection(2, 1, false));
  EXPECT_EQ(sheet().GetData(2, 3), "10");
  EXPECT_EQ(sheet().GetData(2, 4), "15");
}

}  // namespace
