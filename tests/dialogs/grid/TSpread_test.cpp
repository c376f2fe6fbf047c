#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QUndoStack>

#include "dialogs/grid/TSpread.h"
#include "support/GridHands.h"

// A real grid driven by keys and mouse clicks as a user drives it: ids locked in column 1,
// X and Y numbers, and a "Nonlinear" drop-down in column 4.
namespace {

const std::vector<std::string> kNonlinear = {"Linear", "Tension only", "Compression Only"};
constexpr int kRows = 10;

class SpreadTest : public DialogTest, public GridHands {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    GridHands::spread = &table;
    table.InitializeGrid(0xF0F0F0, kRows, 4, {"Id", "X", "Y", "Nonlinear"}, {6, 10, 10, 15}, false);
    grid::Sheet& sheet = table.sheet();
    sheet.SetColumnLock(1, true);
    grid::CellType combo;
    combo.kind = grid::CellType::Combo;
    combo.items = kNonlinear;
    sheet.SetColumnType(4, combo);
    sheet.AddFillColumn(3);
    for (int row = 1; row <= kRows; ++row) {
      sheet.SetData(1, row, std::to_string(row));
      sheet.SetData(2, row, std::to_string(row * 10));  // X of row 1 is "10", of row 5 "50"
      sheet.SetData(3, row, std::to_string(row));
      sheet.SetData(4, row, "Linear");
    }
    table.Refresh();
    table.resize(500, 400);
    table.show();
    QApplication::setActiveWindow(&table);
    view()->setFocus();
    opening = Texts();
  }

  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (int row = 1; row <= table.sheet().MaxRows(); ++row)
      for (int col = 1; col <= table.sheet().MaxCols(); ++col) texts.push_back(table.GetData(col, row));
    return texts;
  }
  // The cells that differ from the opening grid, as "col,row=text".
  std::vector<std::string> Changes() const {
    std::vector<std::string> changes;
    const auto now = Texts();
    const int cols = table.sheet().MaxCols();
    for (size_t i = 0; i < now.size(); ++i)
      if (i >= opening.size() || now[i] != opening[i])
        changes.push_back(std::to_string(i % cols + 1) + "," + std::to_string(i / cols + 1) + "=" + now[i]);
    return changes;
  }
  void SelectColumnRange(int col, int fromRow, int toRow) {
    Click(col, fromRow);
    Click(col, toRow, Qt::ShiftModifier);
  }
  grid::CellRef Active() const { return table.GetActiveCell(); }

  TSpread table;
  std::vector<std::string> opening;
};

using Cells = std::vector<std::string>;

TEST_F(SpreadTest, TypingReplacesExactlyTheCellReachedHoweverItWasReached) {
  Click(2, 5);
  Click(2, 5);  // a second click on the current cell must not start a delayed edit
  Type("15");   // "1" is no keyboard search: it does not jump to the X cell "10" of row 1
  Press(Qt::Key_Return);
  EXPECT_EQ(Changes(), (Cells{"2,5=15"}));
  EXPECT_EQ(Active(), (grid::CellRef{2, 6})) << "Enter commits and moves down";

  Press(Qt::Key_Up);
  Press(Qt::Key_Right);  // Y of row 5, reached by arrows
  Type("7");
  Press(Qt::Key_Tab);
  EXPECT_EQ(table.GetData(3, 5), "7");
  EXPECT_EQ(Active(), (grid::CellRef{4, 5})) << "Tab commits and moves right";

  Click(2, 8);
  Type("99");
  Press(Qt::Key_Escape);  // cancels the cell's edit only
  EXPECT_EQ(table.GetData(2, 8), "80");
  EXPECT_TRUE(table.isVisible());

  Press(Qt::Key_F2);  // edits in place: the caret after the text
  Type("5");
  Press(Qt::Key_Return);
  EXPECT_EQ(table.GetData(2, 8), "805");
  Click(3, 2);  // a double click's first press and release
  QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, CellCenter(3, 2));
  Type(".5");
  Press(Qt::Key_Return);
  EXPECT_EQ(table.GetData(3, 2), "2.5");

  Click(1, 3);
  Type("42");  // a locked id takes nothing, and nothing jumps
  Press(Qt::Key_Return);
  EXPECT_EQ(Changes(), (Cells{"3,2=2.5", "2,5=15", "3,5=7", "2,8=805"}));
}

TEST_F(SpreadTest, PasteStartsAtTheTopLeftOfTheSelectionWhicheverWayItWasDrawn) {
  SelectColumnRange(2, 5, 7);  // top down: the current cell ends on row 7
  Paste("1.5\n2.5\n3.5\n");
  const Cells pasted = {"2,5=1.5", "2,6=2.5", "2,7=3.5"};
  EXPECT_EQ(Changes(), pasted);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Changes(), Cells{});

  SelectColumnRange(2, 7, 5);  // bottom up
  Paste("1.5\r\n2.5\r\n3.5");
  EXPECT_EQ(Changes(), pasted);
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Changes(), pasted) << "redo writes the block again";

  Click(2, 9);  // a block over ids skips the locked cells
  SelectColumnRange(1, 1, 1);
  Paste("a\tb\nc\td");
  EXPECT_EQ(table.GetData(1, 1), "1");
  EXPECT_EQ(table.GetData(2, 1), "b");
  EXPECT_EQ(table.GetData(2, 2), "d");
}

TEST_F(SpreadTest, OneValueFillsTheSelectionAndUndoRestoresIt) {
  Click(1, 2);
  Click(3, 4, Qt::ShiftModifier);  // ids, X and Y of rows 2 to 4
  Paste("9");
  EXPECT_EQ(Changes(), (Cells{"2,2=9", "3,2=9", "2,3=9", "3,3=9", "2,4=9", "3,4=9"}));
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Changes(), Cells{});
  Press(Qt::Key_Z, Qt::ShiftModifier | Qt::ControlModifier);
  EXPECT_EQ(Changes().size(), 6u);
  Press(Qt::Key_Z, Qt::ControlModifier);

  // The right-click fill is one step too.
  SelectColumnRange(3, 2, 5);
  prompter.QueueMenuChoice(1);  // a series from the clicked cell: 2, 3, 4, 5 by its step
  table.sheet().SetData(3, 3, "4");
  table.FillSelection(3, 2, false);
  EXPECT_EQ(table.GetData(3, 5), "8");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Changes(), Cells{"3,3=4"});
}

TEST_F(SpreadTest, UndoNeverGoesBackPastTheOpeningGrid) {
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Changes(), Cells{});
  Click(2, 1);
  Type("11");
  Press(Qt::Key_Return);
  Type("22");
  Press(Qt::Key_Return);
  for (int i = 0; i < 4; ++i) Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Changes(), Cells{});
  EXPECT_EQ(table.UndoStack().count(), 2);

  // Laying the grid out anew (a dialog refilling it) starts a new history.
  Press(Qt::Key_Y, Qt::ControlModifier);
  table.InitializeGrid(0xF0F0F0, 2, 2, {"Id", "X"}, {6, 10}, false);
  table.Refresh();
  EXPECT_EQ(table.UndoStack().count(), 0);
}

TEST_F(SpreadTest, CutAndDeleteClearTheUnlockedCellsAsOneStep) {
  Click(1, 3);
  Click(2, 4, Qt::ShiftModifier);
  Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "3\t30\r\n4\t40\r\n");
  EXPECT_EQ(Changes(), (Cells{"2,3=", "2,4="}));
  Click(3, 6);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Changes(), (Cells{"2,3=", "2,4=", "3,6="}));
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Changes(), Cells{});
}

TEST_F(SpreadTest, DropDownCellsTakeOnlyTheirItems) {
  Click(4, 2);
  Paste("tension ONLY");  // case ignored, kept in the list's own spelling
  EXPECT_EQ(table.GetData(4, 2), "Tension only");

  SelectColumnRange(4, 5, 7);
  Paste("Compression Only\nBogus\nLinear");
  EXPECT_EQ(Messages(), (std::vector<std::string>{"\"Bogus\" is not one of Linear, Tension only, Compression Only."}));
  EXPECT_EQ(Changes(), (Cells{"4,2=Tension only"})) << "the whole paste is refused";
  EXPECT_EQ(Active(), (grid::CellRef{4, 6}));
  EXPECT_EQ(QApplication::focusWidget(), view()) << "the user can type the fix at once";

  Type("c");  // a typed letter picks the first item that starts with it
  Press(Qt::Key_Return);
  EXPECT_EQ(table.GetData(4, 6), "Compression Only");
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(SpreadTest, ABlockThatDoesNotFitIsRefusedNotCut) {
  Click(2, 9);
  Paste("1\n2\n3");
  Click(3, 1);
  Paste("1\t2\t3");
  EXPECT_EQ(Messages(), (std::vector<std::string>{
                            "The pasted block has 3 rows: from row 9 it needs rows up to 11, but the table ends at row 10.",
                            "The pasted block has 3 columns: from column 3 it needs columns up to 5, but the table ends "
                            "at column 4."}));
  EXPECT_EQ(Changes(), Cells{});
  EXPECT_EQ(Active(), (grid::CellRef{3, 1}));
}

TEST_F(SpreadTest, NewRowsAreOneStepAndTheirFirstIdIsActive) {
  const int first = table.AddRows(2, true, [](grid::Sheet& sheet, int from, int to) {
    for (int row = from; row <= to; ++row) sheet.SetData(4, row, "Linear");
  });
  EXPECT_EQ(first, 11);
  EXPECT_EQ(Active(), (grid::CellRef{1, 11}));
  EXPECT_EQ(QApplication::focusWidget(), view());
  EXPECT_EQ(table.GetData(1, 12), "12");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(table.sheet().MaxRows(), kRows);
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(table.sheet().MaxRows(), 12);
  EXPECT_EQ(table.GetData(4, 12), "Linear");
  EXPECT_TRUE(table.sheet().IsLocked(1, 12));
}

}  // namespace
