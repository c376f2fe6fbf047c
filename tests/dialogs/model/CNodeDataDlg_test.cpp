#include <QApplication>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include "dialogs/model/CNodeDataDlg.h"
#include "resources/grid_ids.h"
#include "resources/model_ids.h"
#include "support/DialogTest.h"

namespace {

std::vector<fmNd> SampleNodes() {
  return {{1, 0, 0, 0, 0}, {2, fmNd::kSelected, 20, 0, 0}, {3, fmNd::kFrozen, 40, 0, 0}, {7, 0, 1234.56789, 12, 25}};
}

class NodeDialogTest : public DialogTest {
 protected:
  void Open(CNodeDataDlg& d, bool locked = false, bool selectedOnly = false) {
    d.m_pUnits = &units, d.m_pNodes = &nodes, d.m_bModelLocked = locked, d.m_bShowSelectedOnly = selectedOnly;
    d.InitDialogForTest();
  }
  grid::Sheet& sheet() { return dlg.Spread().sheet(); }
  bool AddNewRows(const char* count) {
    dlg.Item<QLineEdit>(res::kCtlNewRowCount)->setText(count);
    return dlg.PressButton(res::kCtlNewRows);
  }

  fmUnit units;
  std::vector<fmNd> nodes = SampleNodes();
  const std::vector<fmNd> original = SampleNodes();
  CNodeDataDlg dlg;
};

TEST_F(NodeDialogTest, EditsAndNewRowsAreWrittenBackOnOkInRowOrder) {
  Open(dlg);
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Node Data");
  EXPECT_EQ(dlg.PrintTitle(), "Node Table");
  EXPECT_EQ(dlg.GetDlgItemText(res::kCtlEpsilon), "Epsilon = 1e-10");
  ASSERT_EQ(sheet().MaxRows(), 4);
  EXPECT_EQ(sheet().GetData(2, 4), "1234.57");
  EXPECT_TRUE(sheet().IsLocked(1, 1));

  sheet().SetData(3, 1, "2.5");
  sheet().SetData(5, 1, "frozen");
  ASSERT_TRUE(AddNewRows("2"));
  ASSERT_EQ(sheet().MaxRows(), 6);
  EXPECT_EQ(sheet().GetData(1, 6), "9");
  EXPECT_TRUE(sheet().IsLocked(1, 5));
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{1, 5}));
  for (int col = 2; col <= 4; ++col) sheet().SetData(col, 5, std::to_string(col - 1));  // row 6 stays empty
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(dlg.ModalResult(), IDOK);
  ASSERT_EQ(nodes.size(), 5u);
  EXPECT_DOUBLE_EQ(nodes[0].y, 2.5);
  EXPECT_TRUE(nodes[0].IsFrozen());
  EXPECT_EQ(nodes[3], original[3]) << "1234.56789 survives although the grid shows 1234.57";
  EXPECT_EQ(nodes[4], (fmNd{8, 0, 1.0, 2.0, 3.0}));
}

TEST_F(NodeDialogTest, RefusalsAndCancelLeaveTheNodesUnchanged) {
  struct Case { std::vector<std::pair<int, int>> cells; const char* text; std::string message; grid::CellRef active; };
  const Case cases[] = {
      {{{2, 1}}, "abc", "Invalid input for node 1.\nX must be a number, not \"abc\".", {2, 1}},
      {{{1, 1}}, "2147483648", "Invalid node id 2147483648 in row 1: the highest id is 2147483647.", {1, 1}},
      {{{2, 4}, {3, 4}, {4, 4}}, "",
       "Invalid input for existing nodes (7 - 7).\nIf you intend to delete these nodes, cancel this dialog box.\n"
       "Then select these nodes and go to menu Edit | Delete...", {1, 4}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    CNodeDataDlg fresh;
    Open(fresh);
    for (const auto& [col, row] : c.cells) fresh.Spread().sheet().SetData(col, row, c.text);
    prompter.Clear();
    fresh.PressButton(IDOK);
    EXPECT_EQ(fresh.ModalResult(), 0);
    EXPECT_EQ(Messages(), std::vector<std::string>{c.message});
    EXPECT_EQ(fresh.Spread().sheet().ActiveCell(), c.active);
    EXPECT_EQ(nodes, original);
  }
  Open(dlg);
  AddNewRows("100001");
  EXPECT_EQ(Messages().back(), "Please enter a number between 1 and 100000.");
  EXPECT_EQ(sheet().MaxRows(), 4);

  sheet().SetData(2, 1, "99");
  AddNewRows("1");
  dlg.PressButton(IDCANCEL);
  EXPECT_EQ(dlg.ModalResult(), IDCANCEL);
  EXPECT_EQ(nodes, original);
}

TEST_F(NodeDialogTest, LockedModelOrSelectedOnlyIsReadOnlyWithOneNotice) {
  CNodeDataDlg selected;
  Open(dlg, /*locked=*/true);
  Open(selected, false, /*selectedOnly=*/true);
  EXPECT_EQ(sheet().MaxRows(), 4);
  ASSERT_EQ(selected.Spread().sheet().MaxRows(), 1);
  EXPECT_EQ(selected.Spread().sheet().GetData(1, 1), "2");
  for (CNodeDataDlg* d : {&dlg, &selected}) {
    EXPECT_TRUE(d->Spread().sheet().IsLocked(3, 1));
    EXPECT_FALSE(d->GetDlgItem(res::kCtlNewRows)->isEnabled());
  }
  EXPECT_FALSE(dlg.GetDlgItem(IDOK)->isEnabled());
  EXPECT_EQ(dlg.GetDlgItemText(IDCANCEL), "Close");
  EXPECT_EQ(Messages().size(), 2u);
}

TEST_F(NodeDialogTest, RoundOffAndRightClickFillEditTheGrid) {
  nodes = {{1, 0, 1.23456, 0.000049, -2.6}, {2, 0, 0, 0, 0}, {3, 0, 0, 0, 0}};
  dlg.m_dEpsilon = 0.001;
  Open(dlg);
  dlg.PressButton(res::kCtlRoundOff);  // the rounding rules themselves are the node grid's
  EXPECT_EQ(sheet().GetData(2, 1), "1.235");

  dlg.Spread().SetSelectBlock({2, 1, 2, 3});
  sheet().SetData(2, 2, "5");
  prompter.QueueMenuChoice(1);  // series
  ASSERT_TRUE(dlg.Spread().FillSelection(2, 1, false));
  EXPECT_EQ(sheet().GetData(2, 3), "8.765");
}

}  // namespace

TEST_F(NodeDialogTest, EnterInTheCountAddsRowsAndTheGridKeepsTheFocusAfterRefusals) {
  dlg.m_dEpsilon = 1;
  Open(dlg);
  dlg.show();
  QApplication::setActiveWindow(&dlg);
  auto* count = dlg.Item<QLineEdit>(res::kCtlNewRowCount);
  count->setText("2");
  count->setFocus();
  QTest::keyClick(count, Qt::Key_Return);
  EXPECT_EQ(dlg.ModalResult(), 0) << "Enter in the count does not press OK";
  ASSERT_EQ(sheet().MaxRows(), 6);
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{1, 5}));
  QTableView* view = dlg.Spread().view();
  EXPECT_EQ(QApplication::focusWidget(), view);

  QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);  // the new rows are one step
  EXPECT_EQ(sheet().MaxRows(), 4);

  sheet().SetData(3, 2, "");
  ASSERT_TRUE(dlg.PressButton(IDOK));
  EXPECT_EQ(Messages(), std::vector<std::string>{"Invalid empty input for Node 2"});
  EXPECT_EQ(sheet().ActiveCell(), (grid::CellRef{1, 2}));
  EXPECT_EQ(QApplication::focusWidget(), view) << "the user moves to the cell and types the fix";

  dlg.PressButton(res::kCtlRoundOff);
  EXPECT_EQ(sheet().GetData(2, 4), "1235");
  QTest::keyClick(view, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(sheet().GetData(2, 4), "1234.57") << "round-off is undone with the other edits";
  EXPECT_EQ(nodes, original);
}
