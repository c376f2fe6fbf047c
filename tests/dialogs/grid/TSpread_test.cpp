#include <QApplication>
#include <QTableView>
#include <QTest>

#include "dialogs/grid/TSpread.h"
#include "support/DialogTest.h"

namespace {

class SpreadTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    spread.InitializeGrid(0xF0F0F0, 3, 3, {"Id", "A", "B"}, {6, 10, 10}, false);
    spread.sheet().SetColumnLock(1, true);
    for (int row = 1; row <= 3; ++row) spread.sheet().SetData(1, row, std::to_string(row));
    spread.Refresh();
    spread.resize(400, 300);
    spread.show();
  }
  QTableView* view() { return spread.view(); }
  TSpread spread;
};

TEST_F(SpreadTest, TypingEditsUnlockedCellsInPlaceAndEnterMovesDown) {
  QApplication::setActiveWindow(&spread);
  spread.SetActiveCell(2, 1);
  view()->setFocus();
  QTest::keyClick(view(), Qt::Key_1);  // typing starts the edit in place
  QWidget* editor = QApplication::focusWidget();
  ASSERT_NE(editor, view());
  QTest::keyClicks(editor, "2.5");
  QTest::keyClick(editor, Qt::Key_Return);
  QApplication::processEvents();  // the delegate commits on the next turn of the event loop
  EXPECT_EQ(spread.GetData(2, 1), "12.5");
  EXPECT_EQ(spread.GetActiveCell(), (grid::CellRef{2, 2}));

  spread.SetActiveCell(1, 2);  // an id: locked
  QTest::keyClicks(view(), "99");
  QTest::keyClick(view(), Qt::Key_Return);
  EXPECT_EQ(spread.GetData(1, 2), "2");
}

}  // namespace
